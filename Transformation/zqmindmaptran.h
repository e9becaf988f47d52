// SPDX-License-Identifier: MIT
#ifndef ZQMINDMAPTRAN_H
#define ZQMINDMAPTRAN_H

#include "zqcomitemcontroltran.h"

#include <memory>

class MarkupBuilder;

/*!
 * The mind map: an item with a tree of nodes. JSON holds it under "mindMapData" as an array of three objects, the map
 * information, the edge and the root node; ZQTX in <data><mapItemInfo>.
 *
 * Trees are walked with stacks of their own, so that no depth is too much.
 */
class ZQMindMapTran : public ZQComItemControlTran
{
public:
    explicit ZQMindMapTran(const QString &type);

    static std::unique_ptr<ZQHTran> create(const QString &type);

    //! Without <mapItemInfo> in <data>, "mindMapData" is an empty array.
    QJsonObject tranZQTX2JSON(QDomElement element, QJsonObject json, QJsonObject context) override;

protected:
    //! The element with the tree, which is written nowhere else. Texts go in as they stand; where one is not
    //! well-formed, the tree ends. Logs json on the way.
    QDomElement newTxElement(const QJsonObject &json) const override;

private:
    //! Fills node from the children of a <node>, its attachments and child nodes included.
    static void readMindNode(const QDomElement &element, QJsonObject &node);

    //! Appends the map information, the edge and the root node with all nodes below it.
    static void writeMindMap(const QJsonArray &tree, MarkupBuilder &markup);

    //! Appends node and all nodes below it. "link", "shade", "stamp", "attachments" and "childNodes" are written if
    //! they are there, everything else always.
    static void writeMindNode(const QJsonObject &node, MarkupBuilder &markup);
};

#endif // ZQMINDMAPTRAN_H

#ifndef NAMEDBOXES_H
#define NAMEDBOXES_H

#include <QJsonObject>
#include <QRectF>
#include <QString>

class PlainSvg;

/*!
 * Shows the items that have no drawing of their own in svg.
 */
class NamedBoxes
{
public:
    explicit NamedBoxes(PlainSvg &svg);

    //! A tree of boxes and lines, in the item's box or the whole page. False for what is no mind map.
    bool drawMindMap(const QJsonObject &item);

    //! The item's box with the plain name of its type; for an item without a box, a small one at the page's left edge.
    void drawBox(const QJsonObject &item);

    //! What a teacher calls a type: "ZQPhysicsKaiGuan1" is "Physics: Kai Guan 1".
    static QString plainName(const QString &itemType);

private:
    PlainSvg &m_svg;
    int m_withoutPlace = 0;
};

#endif // NAMEDBOXES_H

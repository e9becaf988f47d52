// SPDX-License-Identifier: MIT
#ifndef IWBOUTLINE_H
#define IWBOUTLINE_H

#include "files/xmlparts.h"
#include "svg/iwbpage.h"

namespace lessonhost {

/*!
 * What an IWB document says outside of its pages: their size, what records say of their elements, and about itself. It
 * is told from front to back, and its parts are the pages, each with the layers that sections write of it.
 */
class IwbOutline : public XmlVisitor
{
public:
    void beginDocument() override;
    Way begin(const QDomElement &element) override;
    Fate end(const QDomElement &element) override;
    void pass(const Passed &passed) override;
    //! What pass() is told, where the element is there with what it holds. level: 1 for a child of the page.
    void lookAt(const QDomElement &element, int level);
    //! Behind the last element.
    void finish();

    //! The tag of the first element, and whether a document of this kind begins so.
    const QString &rootTag() const { return m_rootTag; }
    bool hasKnownRoot() const { return m_hasKnownRoot; }
    //! False where the document has no svg element.
    bool hasSvg() const { return m_hasSvg; }

    const IwbDocumentRules &rules() const { return m_rules; }
    //! The attributes of the svg element that the plug-in reads the size of the lesson from.
    QDomElement sizeElement(QDomDocument &document) const;
    //! What the document says about itself, by the names that it uses: "owner", "description", "creator".
    const QHash<QString, QString> &meta() const { return m_meta; }
    //! Which of the document's groups an element is in, that of the sign for a sound; -1 for none.
    int groupOf(const QString &id) const;
    //! About the document as a whole.
    QVector<SvgRemark> remarks() const { return m_sizeRemarks + m_recordRemarks + m_layerRemarks; }

    int pageCount() const { return m_pages.size(); }
    //! The identifier of a page in the file.
    QString pageId(int index) const { return m_pages.at(index).id; }
    //! What a page was made of by the plug-in, which names the rectangle of its background so; empty for others.
    QString backgroundName(int index) const { return m_pages.at(index).backgroundName; }
    //! The page on which an element stands, or -1; of a document that is read page by page.
    int pageOf(const QString &elementId) const { return m_elementPages.value(markOf(elementId), -1); }
    //! The parts that lie over each other on a page, from back to front.
    const QVector<int> &layers(int index) const { return m_pages.at(index).layers; }

private:
    struct Page
    {
        QString id;
        QString backgroundName;
        QVector<int> layers;
    };
    struct Rectangle
    {
        int part;
        QString id;
    };

    bool beginsSection(const QDomElement &element) const;
    void beginSection(const QDomElement &section);
    Way beginInSection(const QDomElement &element);
    void addLayer(const QDomElement &page);
    Way beginRecord(const QDomElement &row);
    void rememberPage(const QStringRef &id);
    static quint64 markOf(const QStringRef &id);
    static quint64 markOf(const QString &id) { return markOf(QStringRef(&id)); }
    void readSize(const QDomElement &svg);
    void readRecord(const QDomElement &row);
    void nameUnread(const QDomElement &row);
    bool isOwn() const;

    QString m_rootTag;
    bool m_hasKnownRoot = false;
    bool m_hasSvg = false;
    QString m_svgId;
    IwbDocumentRules m_rules;
    QHash<QString, QString> m_meta;
    QVector<SvgRemark> m_sizeRemarks;
    QVector<SvgRemark> m_recordRemarks;
    QVector<SvgRemark> m_layerRemarks;
    QVector<Page> m_pages;
    QHash<quint64, int> m_elementPages; // by a mark of each identifier

    // While it is told:
    QDomElement m_root;
    QDomElement m_sectionHolder; // that has the first svg element, or null for a document
    QDomElement m_section; // null outside
    QVector<QDomElement> m_groups; // of records, that are open
    QVector<int> m_groupNumbers; // of these
    int m_groupCount = 0;
    int m_partCount = 0;
    int m_layersInSection = 0;
    bool m_isInPage = false;
    int m_passedGroup = 0; // the level of a group of records in a page, or 0
    QVector<SvgRemark> m_strays; // what stands in the section and on no page
    QVector<QString> m_strayRectangles; // of these
    QVector<Rectangle> m_rectangles; // on pages
};

} // namespace lessonhost

#endif // IWBOUTLINE_H

// SPDX-License-Identifier: MIT
#ifndef SVGNORMALIZER_H
#define SVGNORMALIZER_H

#include "svg/iwbpage.h"

namespace lessonhost {

/*!
 * Brings the content of IWB files, whoever wrote them, into the few forms that the plug-in reads: whatever prefix
 * stands for svg, groups with transforms, polygons, paths of straight lines, styles, units, all ways to write colours.
 *
 * Files with the version "tesselmark" follow the plug-in's own conventions where they differ from svg: the angle of
 * rotate(a,x,y) with commas is in radians (with blanks it is in degrees as everywhere), a stroke-opacity above 1 is the
 * alpha of the fill, and missing attributes of text mean bold, italic and underlined.
 */
class SvgNormalizer
{
public:
    //! root: the document element. A document without an svg element has no pages.
    explicit SvgNormalizer(const QDomElement &root);

    //! False where the document has no svg element.
    bool hasSvg() const { return !m_svg.isNull(); }

    //! The attributes of the svg element that the plug-in reads the size of the lesson from.
    QDomElement sizeElement(QDomDocument &document) const;

    //! What the document says about itself, by the names that it uses: "owner", "description", "creator".
    const QHash<QString, QString> &meta() const { return m_meta; }

    int pageCount() const { return m_pages.size(); }
    //! The identifier of a page in the file.
    QString pageId(int index) const;
    //! What a page was made of by the plug-in, which names the rectangle of its background so; empty for others.
    QString backgroundName(int index) const;
    //! The elements that lie over each other on a page, from back to front.
    const QVector<QDomElement> &layers(int index) const { return m_pages.at(index); }
    IwbPage page(int index) const;
    //! The page with some of its children alone.
    IwbPage page(int index, const QVector<QDomElement> &children) const;

    //! About the document as a whole.
    const QVector<SvgRemark> &remarks() const { return m_remarks; }

private:
    void readSize();
    void addLayer(const QDomElement &section);
    void readRecords(const QDomElement &holder);
    void readRecord(const QDomElement &row);

    QDomElement m_svg; // the first section, whose size is that of all
    QVector<QVector<QDomElement>> m_pages; // each with the elements of its layers, from back to front
    QHash<QString, QString> m_meta;
    IwbDocumentRules m_rules;
    int m_groupCount = 0;
    QVector<SvgRemark> m_remarks;
};

} // namespace lessonhost

#endif // SVGNORMALIZER_H

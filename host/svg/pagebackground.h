// SPDX-License-Identifier: MIT
#ifndef PAGEBACKGROUND_H
#define PAGEBACKGROUND_H

#include "svg/svgpage.h"

#include <QColor>
#include <QDomElement>
#include <QVector>

#include <optional>

namespace lessonhost {

/*!
 * The colour and the picture of a page, which records name.
 */
class PageBackground
{
public:
    explicit PageBackground(SvgPage &page);

    //! From here on a part of the page is read, the rest of which was looked at before; these were found to be its
    //! background then.
    void setKnown(const QVector<QDomElement> &elements);

    //! True for an element that is of the background, and no item. name: svgName().
    bool take(const QDomElement &element, const QString &name, const SvgStyle &style);

    //! Writes what was taken into the page, in the plug-in's form.
    void finish();

private:
    bool fillsPage(const QDomElement &element, const IwbRecord &record, const SvgStyle &style);

    SvgPage &m_page;
    QColor m_color;
    QString m_stem;
    bool m_hasColor = false;
    std::optional<QVector<QDomElement>> m_known; // where a part of the page is read
};

} // namespace lessonhost

#endif // PAGEBACKGROUND_H

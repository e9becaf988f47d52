// SPDX-License-Identifier: MIT
#ifndef SLIDENOTICE_H
#define SLIDENOTICE_H

#include <QHash>
#include <QJsonObject>
#include <QString>
#include <QStringList>

namespace lessonhost {

class PageFiles;
struct SlidePicture;

//! What people notice of a difference when a lesson is given.
enum class Notice {
    Nothing,
    Deed, //!< it looks the same and does something else
    Look,
};

/*!
 * What a slide and each of its items look like and do, to tell whether people notice what two of them differ in.
 */
class SlideNotice
{
public:
    //! A slide that isn't there.
    SlideNotice() = default;
    //! picture: drawn to be played with those files.
    SlideNotice(const SlidePicture &picture, const PageFiles &files);

    //! Of the slide itself, without its items.
    Notice ofSlide(const SlideNotice &other) const;
    //! Of items, told by their identifiers: of any of them.
    Notice ofItems(const QStringList &ids, const SlideNotice &other) const;

private:
    struct Part
    {
        QString look;
        QJsonObject deed;
    };
    static Notice between(const Part &one, const Part &other);

    Part m_slide;
    QHash<QString, Part> m_items; // by identifier
};

} // namespace lessonhost

#endif // SLIDENOTICE_H

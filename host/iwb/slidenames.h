// SPDX-License-Identifier: MIT
#ifndef SLIDENAMES_H
#define SLIDENAMES_H

#include <QSet>
#include <QString>

namespace lessonhost {

/*!
 * What the slides of an IWB document are called: as what their page was made of, or as the page, where that can name a
 * file and no slide before has it.
 */
class SlideNames
{
public:
    //! The identifier of the next slide; made: what its page was made of, page: its page. Both may be empty.
    QString next(const QString &made, const QString &page);

    //! A slide has this name, wherever it comes.
    void take(const QString &name) { m_used.insert(name); }

private:
    QSet<QString> m_used;
};

} // namespace lessonhost

#endif // SLIDENAMES_H

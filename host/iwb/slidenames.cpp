// SPDX-License-Identifier: MIT
#include "iwb/slidenames.h"

#include "files/packagenames.h"

namespace lessonhost {

QString SlideNames::next(const QString &made, const QString &page)
{
    QString name;
    for (const QString &wanted : {made, page}) {
        if (name.isEmpty() && problemWithFileName(wanted).isEmpty() && !m_used.contains(wanted)) {
            name = wanted;
        }
    }
    for (int number = m_used.size() + 1; name.isEmpty() || m_used.contains(name); ++number) {
        name = QLatin1String("page") + QString::number(number);
    }
    m_used.insert(name);
    return name;
}

} // namespace lessonhost

// SPDX-License-Identifier: MIT
#include "svg/iwbpage.h"

#include <algorithm>

namespace lessonhost {

QString itemOfPart(const QString &id)
{
    const int end = id.lastIndexOf(QLatin1String(partOfItem));
    const QStringRef number = end < 0 ? QStringRef() : id.midRef(end + int(qstrlen(partOfItem)));
    const bool isPart =
        !number.isEmpty() && std::all_of(number.cbegin(), number.cend(), [](QChar c) { return c.isDigit(); });
    return isPart ? id.left(end) : id;
}

} // namespace lessonhost

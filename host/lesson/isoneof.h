// SPDX-License-Identifier: MIT
#ifndef ISONEOF_H
#define ISONEOF_H

#include <QLatin1String>
#include <QString>

#include <algorithm>

namespace lessonhost {

//! True for a text that stands in a table of names.
template <size_t size> bool isOneOf(const char *const (&names)[size], const QString &text)
{
    return std::any_of(std::begin(names), std::end(names),
                       [&text](const char *name) { return text == QLatin1String(name); });
}

} // namespace lessonhost

#endif // ISONEOF_H

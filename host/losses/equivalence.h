#ifndef EQUIVALENCE_H
#define EQUIVALENCE_H

#include <QJsonValue>
#include <QString>

namespace lessonhost {

// What is the same in another dress. Both checks, that of a read and that of a write, ask here and nowhere else.

//! True if a write and a read of the one could give the other: the same value under valueText, or colours of strokes
//! that name the same colour, or points with the same numbers. Missing and empty values are the same.
bool isSameValue(const QString &key, const QJsonValue &given, const QJsonValue &found);

} // namespace lessonhost

#endif // EQUIVALENCE_H

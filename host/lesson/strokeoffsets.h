#ifndef STROKEOFFSETS_H
#define STROKEOFFSETS_H

#include <QString>

namespace lessonhost {

//! The steps between a stroke's points, as the model has them, as offsets from the first point, as lessons older than
//! version 3 store them. The offsets are chosen such that reading gives the same steps again.
QString pointsAsOffsets(const QString &steps);

} // namespace lessonhost

#endif // STROKEOFFSETS_H

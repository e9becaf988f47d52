#ifndef PICTURES_H
#define PICTURES_H

#include <QString>

namespace lessonhost {

//! Why the picture in a file can't be shown, as a clause such as "it is damaged", or nothing for one that can. Pictures
//! of pixels are looked at without unpacking them; drawings in svg are taken as they are.
QString pictureProblem(const QString &file);

} // namespace lessonhost

#endif // PICTURES_H

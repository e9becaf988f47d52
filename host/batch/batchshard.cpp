// SPDX-License-Identifier: MIT
#include "batch/batchshard.h"

#include "formats/lessonformats.h"

#include <QCryptographicHash>
#include <QFileInfo>
#include <QtEndian>

#include <algorithm>

namespace lessonhost {

const QLatin1String archiveEnding("zip");

bool BatchShard::has(const QString &place) const
{
    if (isWhole()) {
        return true;
    }
    const QByteArray hash =
        QCryptographicHash::hash(lessonStem(place).toCaseFolded().toUtf8(), QCryptographicHash::Sha1);
    return qFromBigEndian<quint64>(hash.constData()) % quint64(count) == quint64(number - 1);
}

QString BatchShard::fileName() const
{
    return isWhole() ? QString() : QStringLiteral("%1of%2").arg(number).arg(count);
}

QString lessonStem(const QString &path)
{
    const QString extension = QFileInfo(path).suffix();
    const auto &formats = lessonFormats();
    const bool isKnown = std::any_of(formats.cbegin(), formats.cend(), [&extension](const LessonFormat &format) {
        return format.extensions.contains(extension.toLower());
    });
    return isKnown || extension.toLower() == archiveEnding ? path.chopped(extension.size() + 1) : path;
}

} // namespace lessonhost

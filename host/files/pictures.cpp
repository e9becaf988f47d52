#include "files/pictures.h"

#include "files/checksum.h"

#include <QFile>
#include <QImageReader>
#include <QtEndian>

namespace lessonhost {

namespace {

// As wide and high as a picture needs to be on any screen.
constexpr qint64 mostPixels = qint64(16384) * 16384;

// A drawing is no picture to the reader of pixels.
bool isDrawing(QFile &file)
{
    return file.seek(0) && file.read(4096).contains("<svg");
}

// Whether all parts of a PNG picture are there and hold what they held. Its decoder complains aloud about others.
bool isWholePng(QFile &file)
{
    if (!file.seek(8)) {
        return false;
    }
    forever
    {
        const QByteArray head = file.read(8);
        if (head.size() < 8) {
            return false;
        }
        const auto size = qint64(qFromBigEndian<quint32>(head.constData()));
        if (size > file.size() - file.pos() - 4) {
            return false;
        }
        const QByteArray type = head.mid(4);
        const QByteArray content = file.read(size);
        const QByteArray sum = file.read(4);
        if (sum.size() < 4 || qFromBigEndian<quint32>(sum.constData()) != updatedCrc(0, type + content)) {
            return false;
        }
        if (type == "IEND") {
            return true;
        }
    }
}

} // namespace

QString pictureProblem(const QString &file)
{
    QFile opened(file);
    if (!opened.open(QIODevice::ReadOnly)) {
        return QStringLiteral("it can't be read");
    }
    QImageReader reader(&opened);
    const QByteArray format = reader.format();
    if (format.isEmpty()) {
        return isDrawing(opened) ? QString() : QStringLiteral("it is no picture that can be read");
    }
    if (format == "png" && !isWholePng(opened)) {
        return QStringLiteral("it is a damaged picture");
    }
    opened.seek(0);
    const QSize size = QImageReader(file).size();
    if (qint64(size.width()) * size.height() > mostPixels) {
        return QStringLiteral("it has more pixels than any screen");
    }
    return {};
}

} // namespace lessonhost

// SPDX-License-Identifier: MIT
#include "command/terminal.h"

#include "files/lessonerror.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QTextStream>

#include <cerrno>
#include <numeric>

#include <unistd.h>

namespace lessonhost {

namespace {

// Names come from files of strangers; what they hold must not move a terminal's cursor.
QString printable(QString text)
{
    for (QChar &c : text) {
        if (c.category() == QChar::Other_Control && c != QLatin1Char('\n')) {
            c = QChar::ReplacementCharacter;
        }
    }
    return text;
}

} // namespace

void print(const QString &text)
{
    printBytes(printable(text).toLocal8Bit());
}

void print(const Sentence &text)
{
    print(text.local() + QLatin1Char('\n'));
}

void printBytes(const QByteArray &bytes)
{
    for (int done = 0; done < bytes.size();) {
        const ssize_t count = ::write(STDOUT_FILENO, bytes.constData() + done, std::size_t(bytes.size() - done));
        if (count < 0 && errno != EINTR) {
            throw writeError(QStringLiteral("Standard output"), errno);
        }
        done += int(qMax<ssize_t>(count, 0));
    }
}

void endPrinting()
{
    // A library may still print, and must not print into another file.
    const int copy = ::dup(STDOUT_FILENO);
    if (copy >= 0 && ::close(copy) != 0 && errno != EINTR) {
        throw writeError(QStringLiteral("Standard output"), errno);
    }
}

void printJson(const QJsonObject &object)
{
    print(QString::fromUtf8(QJsonDocument(object).toJson()));
}

QString padded(const QString &text, int columns)
{
    const int width = std::accumulate(text.cbegin(), text.cend(), 0, [](int sum, QChar c) {
        const bool isWide = c.unicode() >= 0x2e80 && c.unicode() < 0xffe0;
        return sum + (isWide ? 2 : 1);
    });
    return text + QString(qMax(0, columns - width), QLatin1Char(' '));
}

void complain(const QString &text)
{
    QTextStream(stderr) << "lessonconv: " << printable(text) << '\n';
}

void complain(const Sentence &text)
{
    complain(text.local());
}

} // namespace lessonhost

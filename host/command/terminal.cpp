#include "command/terminal.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QTextStream>

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
    QTextStream(stdout) << printable(text);
}

void printJson(const QJsonObject &object)
{
    print(QString::fromUtf8(QJsonDocument(object).toJson()));
}

void complain(const QString &text)
{
    QTextStream(stderr) << "lessonconv: " << printable(text) << '\n';
}

} // namespace lessonhost

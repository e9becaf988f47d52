// SPDX-License-Identifier: MIT
#include "marks.h"

#include <QFile>
#include <QTextStream>

void tellMark(const QString &what, double value, double mark, const QString &beside)
{
    QFile file(qEnvironmentVariable("LESSON_MARKS"));
    if (!file.fileName().isEmpty() && file.open(QIODevice::Append)) {
        QTextStream(&file) << what << '\t' << QString::number(value, 'f', 2) << '\t' << mark << '\t' << beside << '\n';
    }
}

// SPDX-License-Identifier: MIT
#include "fuzzsupport.h"
#include "hostsupport.h"

#include <QFile>

// Any bytes as a package in one file, read as the command reads it. Nothing may be unpacked outside of the folder.

void tryInput(const QByteArray &input)
{
    const QString archive = workFolder() + "/lesson.zip";
    QFile file(archive);
    if (file.open(QIODevice::WriteOnly)) {
        file.write(input);
        file.close();
        for (const char *format : {"zqtx", "iwb"}) {
            guarded("reading an archive", [&] { readLesson(format, archive); });
        }
    }
}

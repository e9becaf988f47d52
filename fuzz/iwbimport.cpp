// SPDX-License-Identifier: MIT
#include "fuzzsupport.h"
#include "hostsupport.h"

#include <QFile>

// Any document as the content of an IWB package, read as the command reads it.

void tryInput(const QByteArray &input)
{
    const QString package = workFolder() + "/package";
    QFile content(package + "/content.xml");
    if (content.open(QIODevice::WriteOnly)) {
        content.write(input);
        content.close();
        guarded("importing a package", [&] { readLesson("iwb", package); });
    }
}

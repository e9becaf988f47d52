// SPDX-License-Identifier: MIT
#include "packagefiles.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {

// Qt warns about other names.
bool isName(const QString &path)
{
    return !path.isEmpty() && !path.contains(QChar::Null);
}

} // namespace

bool isFile(const QString &path)
{
    return isName(path) && QFileInfo(path).isFile();
}

void makeDirectory(const QString &path)
{
    if (isName(path) && !QDir(path).exists()) {
        QDir().mkdir(path);
    }
}

void copyFile(const QString &source, const QString &target)
{
    if (isFile(source) && isName(target)) {
        QFile::copy(source, target);
    }
}

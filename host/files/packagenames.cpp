// SPDX-License-Identifier: MIT
#include "files/packagenames.h"

#include <QStringList>

#include <algorithm>

namespace lessonhost {

namespace {

constexpr int maximumPathLength = 1024;
constexpr int maximumNameBytes = 255;

bool hasControlCharacter(const QString &text)
{
    return std::any_of(text.cbegin(), text.cend(), [](QChar c) {
        // Directional marks can make a name look like another one.
        return c.category() == QChar::Other_Control || (c >= QChar(0x202a) && c <= QChar(0x202e))
            || (c >= QChar(0x2066) && c <= QChar(0x2069));
    });
}

// CON, PRN, AUX, NUL, COM1 to COM9, LPT1 to LPT9, also with an extension.
bool isDeviceName(const QString &name)
{
    const QString base = name.section(QLatin1Char('.'), 0, 0).toUpper();
    static const QStringList plain{QStringLiteral("CON"), QStringLiteral("PRN"), QStringLiteral("AUX"),
                                   QStringLiteral("NUL")};
    if (plain.contains(base)) {
        return true;
    }
    return base.size() == 4 && (base.startsWith(QLatin1String("COM")) || base.startsWith(QLatin1String("LPT")))
        && base.at(3) >= QLatin1Char('1') && base.at(3) <= QLatin1Char('9');
}

} // namespace

Sentence problemWithFileName(const QString &name)
{
    if (name.isEmpty()) {
        return say("it is empty");
    }
    if (name == QLatin1String(".") || name == QLatin1String("..")) {
        return say("it leads out of the package");
    }
    if (name.contains(QLatin1Char('/')) || name.contains(QLatin1Char('\\'))) {
        return say("it contains a separator of folders");
    }
    if (name.contains(QLatin1Char(':'))) {
        return say("it contains a colon");
    }
    if (hasControlCharacter(name)) {
        return say("it contains control characters");
    }
    if (isDeviceName(name)) {
        return say("it is the name of a device");
    }
    if (name.toUtf8().size() > maximumNameBytes) {
        return say("it is too long");
    }
    return {};
}

QString plainPath(QString reference)
{
    reference.replace(QLatin1Char('\\'), QLatin1Char('/'));
    while (reference.startsWith(QLatin1String("./"))) {
        reference.remove(0, 2);
    }
    return reference;
}

Sentence problemWithPackagePath(const QString &path)
{
    if (path.isEmpty()) {
        return say("it is empty");
    }
    if (path.size() > maximumPathLength) {
        return say("it is too long");
    }
    if (path.startsWith(QLatin1Char('/'))) {
        return say("it is an absolute path");
    }
    const QStringList parts = path.split(QLatin1Char('/'));
    for (const QString &part : parts) {
        const Sentence problem = problemWithFileName(part);
        if (!problem.isEmpty()) {
            return part.isEmpty() ? say("it has an empty part") : problem;
        }
    }
    return {};
}

QString outerFolder(const QStringList &files)
{
    QString outer;
    for (const QString &file : files) {
        if (file.startsWith(QLatin1String("__MACOSX/"))) {
            continue;
        }
        const QString folder = file.left(file.indexOf(QLatin1Char('/')) + 1);
        if (folder.isEmpty() || (!outer.isEmpty() && folder != outer)) {
            return {};
        }
        outer = folder;
    }
    return outer;
}

} // namespace lessonhost

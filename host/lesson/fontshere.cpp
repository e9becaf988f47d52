// SPDX-License-Identifier: MIT
#include "lesson/fontshere.h"

#include "lesson/fontvalues.h"
#include "lesson/isoneof.h"

#include <QFont>
#include <QFontInfo>
#include <QFontMetrics>
#include <QGuiApplication>
#include <QHash>

#include <mutex>

namespace lessonhost {

namespace {

bool hasFonts()
{
    return qobject_cast<QGuiApplication *>(QCoreApplication::instance());
}

QString familyThatStandsInFor(const QString &family)
{
    return QFontInfo(QFont(family)).family();
}

// As svg calls them, and as Qt does.
constexpr const char *genericFamilies[] = {"serif", "sans-serif", "sans", "monospace", "cursive", "fantasy"};

bool isGeneric(const QString &family)
{
    const QString name = family.toLower().replace(QLatin1Char(' '), QLatin1Char('-'));
    return isOneOf(genericFamilies, name);
}

} // namespace

// Another font of the same widths is one that isn't taken for just any name.
bool hasFamily(const QString &family)
{
    if (!hasFonts() || isGeneric(family)) {
        return true;
    }
    static std::mutex mutex; // for threads that read and write a lesson
    const std::lock_guard<std::mutex> lock(mutex);
    static QHash<QString, bool> known;
    const auto found = known.constFind(family);
    if (found != known.cend()) {
        return *found;
    }
    constexpr int mostFamilies = 500; // to look for one takes a millisecond
    if (known.size() >= mostFamilies) {
        return false;
    }
    const QString standsIn = familyThatStandsInFor(family);
    bool isHere = standsIn.compare(family, Qt::CaseInsensitive) == 0;
    if (!isHere) {
        isHere = true;
        for (const char *generic : {"serif", "sans-serif", "monospace"}) {
            isHere = isHere && standsIn != familyThatStandsInFor(QLatin1String(generic));
        }
    }
    known.insert(family, isHere);
    return isHere;
}

QString familyHere(const QStringList &families)
{
    const QStringList all = withGenericFamily(families);
    for (const QString &family : all) {
        if (hasFamily(family)) {
            return family;
        }
    }
    return all.constLast();
}

bool hasGlyph(uint letter)
{
    const QChar::Category category = QChar::category(letter);
    const bool isMark = category <= QChar::Mark_Enclosing;
    const bool isNoLetter = category >= QChar::Other_Control && category <= QChar::Other_NotAssigned;
    if (isMark || isNoLetter || QChar::isSpace(letter)) {
        return true;
    }
    if (!hasFonts()) {
        return true;
    }
    static std::mutex mutex; // as above
    const std::lock_guard<std::mutex> lock(mutex);
    static QHash<uint, bool> known;
    const auto found = known.constFind(letter);
    if (found != known.cend()) {
        return *found;
    }
    // Each thread has fonts of its own.
    const bool isHere = QFontMetrics(QFont(QStringLiteral("sans-serif"))).inFontUcs4(letter);
    known.insert(letter, isHere);
    return isHere;
}

} // namespace lessonhost

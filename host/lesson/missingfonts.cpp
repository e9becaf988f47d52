// SPDX-License-Identifier: MIT
#include "lesson/missingfonts.h"

#include "lesson/fontshere.h"

#include <QJsonObject>

#include <algorithm>
#include <iterator>

namespace lessonhost {

namespace {

struct Letters
{
    QChar::Script script;
    const char *name;
    const char *package;
};
constexpr Letters scripts[] = {
    {QChar::Script_Han, TO_SAY("Chinese characters"), "fonts-noto-cjk"},
    {QChar::Script_Bopomofo, TO_SAY("Chinese characters"), "fonts-noto-cjk"},
    {QChar::Script_Hiragana, TO_SAY("Japanese letters"), "fonts-noto-cjk"},
    {QChar::Script_Katakana, TO_SAY("Japanese letters"), "fonts-noto-cjk"},
    {QChar::Script_Hangul, TO_SAY("Korean letters"), "fonts-noto-cjk"},
    {QChar::Script_Latin, TO_SAY("Latin letters"), "fonts-dejavu-core"},
    {QChar::Script_Greek, TO_SAY("Greek letters"), "fonts-dejavu-core"},
    {QChar::Script_Cyrillic, TO_SAY("Cyrillic letters"), "fonts-dejavu-core"},
    {QChar::Script_Armenian, TO_SAY("Armenian letters"), "fonts-dejavu-core"},
    {QChar::Script_Georgian, TO_SAY("Georgian letters"), "fonts-dejavu-core"},
    {QChar::Script_Arabic, TO_SAY("Arabic letters"), "fonts-noto-core"},
    {QChar::Script_Hebrew, TO_SAY("Hebrew letters"), "fonts-noto-core"},
    {QChar::Script_Thai, TO_SAY("Thai letters"), "fonts-noto-core"},
    {QChar::Script_Lao, TO_SAY("Lao letters"), "fonts-noto-core"},
    {QChar::Script_Khmer, TO_SAY("Khmer letters"), "fonts-noto-core"},
    {QChar::Script_Myanmar, TO_SAY("Burmese letters"), "fonts-noto-core"},
    {QChar::Script_Tibetan, TO_SAY("Tibetan letters"), "fonts-noto-core"},
    {QChar::Script_Mongolian, TO_SAY("Mongolian letters"), "fonts-noto-core"},
    {QChar::Script_Ethiopic, TO_SAY("Ethiopic letters"), "fonts-noto-core"},
    {QChar::Script_Devanagari, TO_SAY("Devanagari letters"), "fonts-noto-core"},
    {QChar::Script_Bengali, TO_SAY("Bengali letters"), "fonts-noto-core"},
    {QChar::Script_Gurmukhi, TO_SAY("Gurmukhi letters"), "fonts-noto-core"},
    {QChar::Script_Gujarati, TO_SAY("Gujarati letters"), "fonts-noto-core"},
    {QChar::Script_Tamil, TO_SAY("Tamil letters"), "fonts-noto-core"},
    {QChar::Script_Telugu, TO_SAY("Telugu letters"), "fonts-noto-core"},
    {QChar::Script_Kannada, TO_SAY("Kannada letters"), "fonts-noto-core"},
    {QChar::Script_Malayalam, TO_SAY("Malayalam letters"), "fonts-noto-core"},
    {QChar::Script_Sinhala, TO_SAY("Sinhala letters"), "fonts-noto-core"},
    {QChar::Script_Yi, TO_SAY("Yi letters"), "fonts-noto-core"},
};
constexpr Letters wideSigns{QChar::Script_Common, TO_SAY("Chinese signs"), "fonts-noto-cjk"};
constexpr Letters pictures{QChar::Script_Common, TO_SAY("emoji"), "fonts-noto-color-emoji"};
constexpr Letters others{QChar::Script_Common, TO_SAY("signs"), "fonts-noto-core"};

const Letters &lettersOf(uint letter)
{
    const QChar::Script script = QChar::script(letter);
    const auto *const found = std::find_if(std::begin(scripts), std::end(scripts),
                                           [script](const Letters &row) { return row.script == script; });
    if (found != std::end(scripts)) {
        return *found;
    }
    const bool isWide = (letter >= 0x2e80 && letter < 0xa000) || (letter >= 0xfe30 && letter < 0xfff0);
    return isWide ? wideSigns : letter >= 0x1f000 && letter < 0x1fb00 ? pictures : others;
}

QString packageOfLetters(const QString &name)
{
    for (const Letters &row : scripts) {
        if (name == QLatin1String(row.name)) {
            return QLatin1String(row.package);
        }
    }
    for (const Letters *row : {&wideSigns, &pictures}) {
        if (name == QLatin1String(row->name)) {
            return QLatin1String(row->package);
        }
    }
    return QLatin1String(others.package);
}

// Fonts of which a package has one with the same widths.
struct Family
{
    const char *name;
    const char *package;
};
constexpr Family packagedFamilies[] = {
    {"Arial", "fonts-liberation"},          {"Helvetica", "fonts-liberation"},
    {"Times", "fonts-liberation"},          {"Times New Roman", "fonts-liberation"},
    {"Courier", "fonts-liberation"},        {"Courier New", "fonts-liberation"},
    {"Calibri", "fonts-crosextra-carlito"}, {"Cambria", "fonts-crosextra-caladea"},
};

QString packageOfFamily(const QString &name)
{
    for (const Family &row : packagedFamilies) {
        if (name.compare(QLatin1String(row.name), Qt::CaseInsensitive) == 0) {
            return QLatin1String(row.package);
        }
    }
    return {};
}

QJsonObject entry(const char *key, const QString &name, const QString &package, const std::set<int> &slides)
{
    QJsonArray numbers;
    for (const int slide : slides) {
        numbers.append(slide);
    }
    QJsonObject entry{{QLatin1String(key), name}, {QStringLiteral("slides"), numbers}};
    if (!package.isEmpty()) {
        entry.insert(QStringLiteral("package"), package);
    }
    return entry;
}

// "a, b and 3 more"
Sentence someOf(const QStringList &names)
{
    constexpr int mostNamed = 5;
    return names.size() <= mostNamed
        ? listed(names)
        : sayNumber("%1 and %n more", names.size() - mostNamed).arg(listed(names.mid(0, mostNamed)));
}

} // namespace

QMap<QString, QString> missingLetters(const QString &text)
{
    constexpr uint firstBeyondLatin = 0x250; // a font that has one of those before has them all
    QMap<QString, QString> missing;
    for (int i = 0; i < text.size(); ++i) {
        uint letter = text.at(i).unicode();
        if (text.at(i).isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate()) {
            letter = QChar::surrogateToUcs4(text.at(i), text.at(i + 1));
            ++i;
        }
        if (!hasGlyph(letter < firstBeyondLatin && QChar::isLetter(letter) ? 'a' : letter)) {
            const Letters &letters = lettersOf(letter);
            missing.insert(QLatin1String(letters.name), QLatin1String(letters.package));
        }
    }
    return missing;
}

void MissingFonts::lookAt(const QString &text, int slide)
{
    const QMap<QString, QString> missing = missingLetters(text);
    for (auto it = missing.cbegin(); it != missing.cend(); ++it) {
        m_letters[it.key()].insert(slide);
    }
}

void MissingFonts::lookAt(const QStringList &texts, const QStringList &families, int slide)
{
    for (const QString &text : texts) {
        lookAt(text, slide);
    }
    for (const QString &family : families) {
        if (!hasFamily(family)) {
            m_families[family].insert(slide);
        }
    }
}

Sentences MissingFonts::sentences() const
{
    Sentences sentences;
    for (auto it = m_letters.cbegin(); it != m_letters.cend(); ++it) {
        sentences.append(sayNumber("%n slides have %1 and no font here has them: install %2", int(it.value().size()))
                             .arg(say(it.key().toLatin1().constData()), packageOfLetters(it.key())));
    }
    QMap<QString, QStringList> names; // by their package
    QMap<QString, std::set<int>> slides;
    for (auto it = m_families.cbegin(); it != m_families.cend(); ++it) {
        const QString package = packageOfFamily(it.key());
        names[package].append(it.key());
        slides[package].insert(it.value().begin(), it.value().end());
    }
    for (auto it = names.cbegin(); it != names.cend(); ++it) {
        const bool isOne = it.value().size() == 1;
        const Sentence what = isOne ? say("the font %1, which isn't here").arg(it.value().first())
                                    : say("the fonts %1, which aren't here").arg(someOf(it.value()));
        const Sentence remedy = it.key().isEmpty() ? say("letters look otherwise") : say("install %1").arg(it.key());
        sentences.append(sayNumber("%n slides have %1: %2", int(slides.value(it.key()).size())).arg(what, remedy));
    }
    return sentences;
}

QJsonArray MissingFonts::toJson() const
{
    QJsonArray entries;
    for (auto it = m_letters.cbegin(); it != m_letters.cend(); ++it) {
        entries.append(entry("letters", it.key(), packageOfLetters(it.key()), it.value()));
    }
    for (auto it = m_families.cbegin(); it != m_families.cend(); ++it) {
        entries.append(entry("font", it.key(), packageOfFamily(it.key()), it.value()));
    }
    return entries;
}

} // namespace lessonhost

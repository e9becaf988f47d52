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
    {QChar::Script_Han, "Chinese characters", "fonts-noto-cjk"},
    {QChar::Script_Bopomofo, "Chinese characters", "fonts-noto-cjk"},
    {QChar::Script_Hiragana, "Japanese letters", "fonts-noto-cjk"},
    {QChar::Script_Katakana, "Japanese letters", "fonts-noto-cjk"},
    {QChar::Script_Hangul, "Korean letters", "fonts-noto-cjk"},
    {QChar::Script_Latin, "Latin letters", "fonts-dejavu-core"},
    {QChar::Script_Greek, "Greek letters", "fonts-dejavu-core"},
    {QChar::Script_Cyrillic, "Cyrillic letters", "fonts-dejavu-core"},
    {QChar::Script_Armenian, "Armenian letters", "fonts-dejavu-core"},
    {QChar::Script_Georgian, "Georgian letters", "fonts-dejavu-core"},
    {QChar::Script_Arabic, "Arabic letters", "fonts-noto-core"},
    {QChar::Script_Hebrew, "Hebrew letters", "fonts-noto-core"},
    {QChar::Script_Thai, "Thai letters", "fonts-noto-core"},
    {QChar::Script_Lao, "Lao letters", "fonts-noto-core"},
    {QChar::Script_Khmer, "Khmer letters", "fonts-noto-core"},
    {QChar::Script_Myanmar, "Burmese letters", "fonts-noto-core"},
    {QChar::Script_Tibetan, "Tibetan letters", "fonts-noto-core"},
    {QChar::Script_Mongolian, "Mongolian letters", "fonts-noto-core"},
    {QChar::Script_Ethiopic, "Ethiopic letters", "fonts-noto-core"},
    {QChar::Script_Devanagari, "Devanagari letters", "fonts-noto-core"},
    {QChar::Script_Bengali, "Bengali letters", "fonts-noto-core"},
    {QChar::Script_Gurmukhi, "Gurmukhi letters", "fonts-noto-core"},
    {QChar::Script_Gujarati, "Gujarati letters", "fonts-noto-core"},
    {QChar::Script_Tamil, "Tamil letters", "fonts-noto-core"},
    {QChar::Script_Telugu, "Telugu letters", "fonts-noto-core"},
    {QChar::Script_Kannada, "Kannada letters", "fonts-noto-core"},
    {QChar::Script_Malayalam, "Malayalam letters", "fonts-noto-core"},
    {QChar::Script_Sinhala, "Sinhala letters", "fonts-noto-core"},
    {QChar::Script_Yi, "Yi letters", "fonts-noto-core"},
};
constexpr Letters wideSigns{QChar::Script_Common, "Chinese signs", "fonts-noto-cjk"};
constexpr Letters pictures{QChar::Script_Common, "emoji", "fonts-noto-color-emoji"};
constexpr Letters others{QChar::Script_Common, "signs", "fonts-noto-core"};

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
constexpr Family families[] = {
    {"Arial", "fonts-liberation"},          {"Helvetica", "fonts-liberation"},
    {"Times", "fonts-liberation"},          {"Times New Roman", "fonts-liberation"},
    {"Courier", "fonts-liberation"},        {"Courier New", "fonts-liberation"},
    {"Calibri", "fonts-crosextra-carlito"}, {"Cambria", "fonts-crosextra-caladea"},
};

QString packageOfFamily(const QString &name)
{
    for (const Family &row : families) {
        if (name.compare(QLatin1String(row.name), Qt::CaseInsensitive) == 0) {
            return QLatin1String(row.package);
        }
    }
    return {};
}

QString slidesHave(const std::set<int> &slides)
{
    return slides.size() == 1 ? QStringLiteral("1 slide has ") : QStringLiteral("%1 slides have ").arg(slides.size());
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

QString listed(const QStringList &names)
{
    constexpr int mostNamed = 5;
    return names.size() <= mostNamed ? names.join(QLatin1String(", "))
                                     : names.mid(0, mostNamed).join(QLatin1String(", "))
            + QStringLiteral(" and %1 more").arg(names.size() - mostNamed);
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

void MissingFonts::lookAtFamily(const QString &family, int slide)
{
    if (!family.isEmpty() && !hasFamily(family)) {
        m_families[family].insert(slide);
    }
}

QStringList MissingFonts::sentences() const
{
    QStringList sentences;
    for (auto it = m_letters.cbegin(); it != m_letters.cend(); ++it) {
        sentences.append(slidesHave(it.value()) + it.key() + QLatin1String(" and no font here has them: install ")
                         + packageOfLetters(it.key()));
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
        sentences.append(slidesHave(slides.value(it.key())) + QLatin1String(isOne ? "the font " : "the fonts ")
                         + listed(it.value()) + QLatin1String(isOne ? ", which isn't here: " : ", which aren't here: ")
                         + (it.key().isEmpty() ? QStringLiteral("letters look otherwise")
                                               : QString(QLatin1String("install ") + it.key())));
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

// SPDX-License-Identifier: MIT
#include "render/textlanguage.h"

#include <QChar>
#include <QVector>

#include <algorithm>
#include <numeric>

namespace lessonhost {

namespace {

const QLatin1String chinese("zh");
const QLatin1String japanese("ja");

struct ScriptOfOne
{
    QChar::Script script;
    const char *language;
    int weight; //!< such as a word has letters
};

constexpr ScriptOfOne scripts[] = {
    {QChar::Script_Han, "zh", 3},       {QChar::Script_Hiragana, "ja", 3}, {QChar::Script_Katakana, "ja", 3},
    {QChar::Script_Bopomofo, "zh", 3},  {QChar::Script_Hangul, "ko", 3},   {QChar::Script_Greek, "el", 1},
    {QChar::Script_Hebrew, "he", 1},    {QChar::Script_Thai, "th", 1},     {QChar::Script_Lao, "lo", 1},
    {QChar::Script_Khmer, "km", 1},     {QChar::Script_Myanmar, "my", 1},  {QChar::Script_Tibetan, "bo", 1},
    {QChar::Script_Armenian, "hy", 1},  {QChar::Script_Georgian, "ka", 1}, {QChar::Script_Gujarati, "gu", 1},
    {QChar::Script_Tamil, "ta", 1},     {QChar::Script_Telugu, "te", 1},   {QChar::Script_Kannada, "kn", 1},
    {QChar::Script_Malayalam, "ml", 1}, {QChar::Script_Sinhala, "si", 1},
};

constexpr int shortestWord = 3;

// Null for those of many languages, and for what is no letter.
const ScriptOfOne *scriptOf(uint letter)
{
    const QChar::Script script = QChar::script(letter);
    const auto *row = std::find_if(std::begin(scripts), std::end(scripts),
                                   [script](const ScriptOfOne &row) { return row.script == script; });
    return row == std::end(scripts) || !QChar::isLetter(letter) ? nullptr : row;
}

} // namespace

void TextLanguage::add(const QString &text)
{
    const QVector<uint> letters = text.toUcs4();
    for (int begin = 0; begin < letters.size(); ++begin) {
        const ScriptOfOne *script = scriptOf(letters.at(begin));
        int end = begin;
        while (end < letters.size() && QChar::isLetter(letters.at(end)) && scriptOf(letters.at(end)) == script) {
            ++end;
        }
        // Quantities have names of a letter or two, in Greek for instance.
        const int weight = script ? script->weight : 1;
        if (end - begin >= shortestWord || weight > 1) {
            m_weights[script ? QString(QLatin1String(script->language)) : QString()] += (end - begin) * weight;
        }
        begin = qMax(begin, end - 1);
    }
}

void TextLanguage::add(const TextLanguage &other)
{
    for (auto it = other.m_weights.constBegin(); it != other.m_weights.constEnd(); ++it) {
        m_weights[it.key()] += it.value();
    }
}

QString TextLanguage::code() const
{
    QHash<QString, int> weights = m_weights;
    // Japanese is written with Chinese characters as well, Chinese with nothing else.
    if (weights.value(japanese) * 10 > weights.value(chinese)) {
        weights[japanese] += weights.take(chinese);
    }
    const int all = std::accumulate(weights.cbegin(), weights.cend(), 0);
    for (auto it = weights.constBegin(); it != weights.constEnd(); ++it) {
        if (!it.key().isEmpty() && it.value() * 2 > all) {
            return it.key();
        }
    }
    return {};
}

} // namespace lessonhost

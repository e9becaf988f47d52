// SPDX-License-Identifier: MIT
#include "sentences/sentence.h"

#include "sentences/language.h"

namespace lessonhost {

namespace {

Sentences sentencesOf(const QStringList &texts)
{
    Sentences sentences;
    for (const QString &text : texts) {
        sentences.append(Sentence(text));
    }
    return sentences;
}

bool isEastAsian(QChar sign)
{
    return sign.unicode() >= 0x2e80;
}

// Chinese, which has no blanks between words, has one between its signs and letters or digits.
QString joined(const QString &first, const QString &last, const QString &pattern)
{
    const QString word = QString(pattern).remove(QLatin1String("%1")).remove(QLatin1String("%2"));
    const bool isSpaced = !word.isEmpty() && isEastAsian(word.at(0));
    const QLatin1String blank(" ");
    const QLatin1String none("");
    return pattern.arg(first + (isSpaced && !first.isEmpty() && !isEastAsian(first.back()) ? blank : none),
                       (isSpaced && !last.isEmpty() && !isEastAsian(last.front()) ? blank : none) + last);
}

// last: how the last one follows what is before it.
Sentence joined(const Sentences &sentences, const Sentence &last)
{
    if (sentences.size() < 2) {
        return listed(sentences);
    }
    const Sentence first = listed(sentences.mid(0, sentences.size() - 1));
    return {last.english().arg(first.english(), sentences.last().english()),
            joined(first.local(), sentences.last().local(), last.local())};
}

} // namespace

Sentence say(const char *text)
{
    const QString english = QString::fromUtf8(text);
    return spokenLanguage().isEmpty() ? Sentence(english) : Sentence(english, translated(spokenLanguage(), text));
}

Sentence sayNumber(const char *text, qint64 number)
{
    const QString english = translated({}, text, number);
    return spokenLanguage().isEmpty() ? Sentence(english)
                                      : Sentence(english, translated(spokenLanguage(), text, number));
}

Sentence listed(const Sentences &sentences)
{
    Sentence list;
    for (const Sentence &sentence : sentences) {
        list = list.isEmpty() ? sentence : say("%1, %2").arg(list, sentence);
    }
    return list;
}

Sentence listed(const QStringList &texts)
{
    return listed(sentencesOf(texts));
}

Sentence listedWithAnd(const Sentences &sentences)
{
    return joined(sentences, say("%1 and %2"));
}

Sentence listedWithAnd(const QStringList &texts)
{
    return listedWithAnd(sentencesOf(texts));
}

Sentence listedWithOr(const Sentences &sentences)
{
    return joined(sentences, say("%1 or %2"));
}

Sentence listedWithOr(const QStringList &texts)
{
    return listedWithOr(sentencesOf(texts));
}

Sentence onLines(const Sentences &sentences)
{
    const Sentence lineBreak(QStringLiteral("\n"));
    Sentence lines;
    for (const Sentence &sentence : sentences) {
        lines = lines.isEmpty() ? sentence : lines + lineBreak + sentence;
    }
    return lines;
}

QStringList inEnglish(const Sentences &sentences)
{
    QStringList texts;
    for (const Sentence &sentence : sentences) {
        texts.append(sentence.english());
    }
    return texts;
}

} // namespace lessonhost

// SPDX-License-Identifier: MIT
#ifndef SENTENCE_H
#define SENTENCE_H

#include <QString>
#include <QStringList>
#include <QVector>

//! Marks a text of a table as one to be translated; it is translated where it is handed to say().
#define TO_SAY(text) text
//! The same for sayNumber().
#define TO_SAY_NUMBER(text) text

namespace lessonhost {

/*!
 * What people are told, in English and in the language of the user. Reports and everything else that programs read are
 * English in every locale; the terminal, whoever draws and who wants to be understood take the user's.
 */
class Sentence
{
public:
    Sentence() = default;
    //! What is no sentence and the same in all languages: a name, a number, the words of a library.
    explicit Sentence(const QString &text)
        : m_english(text)
        , m_local(text)
    {
    }
    Sentence(const QString &english, const QString &local)
        : m_english(english)
        , m_local(local)
    {
    }

    bool isEmpty() const { return m_english.isEmpty(); }
    QString english() const { return m_english; }
    QString local() const { return m_local; }

    //! Puts sentences, texts or whole numbers in the places %1, %2, ... as QString::arg() does: those of one call never
    //! in each other.
    template <typename... Values> Sentence arg(const Values &...values) const
    {
        return {m_english.arg(english(values)...), m_local.arg(local(values)...)};
    }

    Sentence operator+(const Sentence &other) const { return {m_english + other.m_english, m_local + other.m_local}; }

private:
    static QString english(const Sentence &sentence) { return sentence.m_english; }
    static QString local(const Sentence &sentence) { return sentence.m_local; }
    static QString english(const QString &text) { return text; }
    static QString local(const QString &text) { return text; }
    static QString english(QLatin1String text) { return text; }
    static QString local(QLatin1String text) { return text; }
    static QString english(QChar c) { return c; }
    static QString local(QChar c) { return c; }
    template <typename Number> static QString english(Number number) { return QString::number(number); }
    template <typename Number> static QString local(Number number) { return QString::number(number); }

    QString m_english;
    QString m_local;
};

using Sentences = QVector<Sentence>;

//! A sentence by its English text, which stands in quotes here or was marked with TO_SAY().
Sentence say(const char *text);

//! One with %n for a number, which decides what stands beside it: "%n slides" is "1 slide" for 1.
Sentence sayNumber(const char *text, qint64 number);

//! "a, b" of a list.
Sentence listed(const Sentences &sentences);
Sentence listed(const QStringList &texts);
//! "a, b and c".
Sentence listedWithAnd(const Sentences &sentences);
Sentence listedWithAnd(const QStringList &texts);
//! "a, b or c".
Sentence listedWithOr(const Sentences &sentences);
Sentence listedWithOr(const QStringList &texts);

//! Each on a line of its own.
Sentence onLines(const Sentences &sentences);

QStringList inEnglish(const Sentences &sentences);

} // namespace lessonhost

#endif // SENTENCE_H

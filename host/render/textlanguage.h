// SPDX-License-Identifier: MIT
#ifndef TEXTLANGUAGE_H
#define TEXTLANGUAGE_H

#include <QHash>
#include <QString>

namespace lessonhost {

/*!
 * The language of texts, where their letters tell it: those of Latin, Cyrillic or Arabic are of many.
 */
class TextLanguage
{
public:
    void add(const QString &text);
    void add(const TextLanguage &other);

    //! Such as "zh", where most letters are of one language; empty where that can't be told.
    QString code() const;

private:
    QHash<QString, int> m_weights; // by language; those of many languages have none
};

} // namespace lessonhost

#endif // TEXTLANGUAGE_H

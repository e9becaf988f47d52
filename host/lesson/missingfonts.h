// SPDX-License-Identifier: MIT
#ifndef MISSINGFONTS_H
#define MISSINGFONTS_H

#include "sentences/sentence.h"

#include <QJsonArray>
#include <QMap>
#include <QString>
#include <QStringList>

#include <set>

namespace lessonhost {

/*!
 * Which letters and fonts of a lesson's texts this machine has none of, and which package of Debian has them.
 */
class MissingFonts
{
public:
    //! Looks at the letters of a text. slide is counted from 1.
    void lookAt(const QString &text, int slide);
    //! Looks at texts that are drawn here, and the fonts that they ask for.
    void lookAt(const QStringList &texts, const QStringList &families, int slide);

    bool isEmpty() const { return m_letters.isEmpty() && m_families.isEmpty(); }

    //! "3 slides have Chinese characters and no font here has them: install fonts-noto-cjk", one for each script, and
    //! one for the fonts of each package.
    Sentences sentences() const;

    //! [{"letters" or "font", "package", "slides": [1, 2]}, ...]; no package where none has the font.
    QJsonArray toJson() const;

private:
    QMap<QString, std::set<int>> m_letters; // by what they are called
    QMap<QString, std::set<int>> m_families;
};

//! The letters of a text that no font here has, such as "Chinese characters", for say(), and the packages that have
//! them.
QMap<QString, QString> missingLetters(const QString &text);

} // namespace lessonhost

#endif // MISSINGFONTS_H

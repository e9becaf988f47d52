// SPDX-License-Identifier: MIT
#ifndef DRAWNTEXTS_H
#define DRAWNTEXTS_H

#include "render/textlanguage.h"

#include <QDomElement>
#include <QStringList>

namespace lessonhost {

/*!
 * What the texts of a drawing tell.
 */
struct DrawnTexts
{
    QStringList words; //!< of each
    QStringList families; //!< the fonts that they ask for first, each once
    TextLanguage language; //!< names of items aside, which are in that of who looks at them

    static DrawnTexts of(const QDomElement &svg);
};

} // namespace lessonhost

#endif // DRAWNTEXTS_H

// SPDX-License-Identifier: MIT
#ifndef FORMULALAYOUT_H
#define FORMULALAYOUT_H

#include "drawings/formulabox.h"

#include <QDomElement>

namespace lessonhost {

//! Lays out MathML: rows with the space that operators have, fractions, roots, scripts, limits, fences as high as what
//! stands between them, tables, and the rest as rows.
FormulaBox formulaLayout(const QDomElement &math);

} // namespace lessonhost

#endif // FORMULALAYOUT_H

// SPDX-License-Identifier: MIT
#ifndef DOCUMENTDIFFERENCE_H
#define DOCUMENTDIFFERENCE_H

#include "lessondifference.h"

#include <QDomElement>
#include <QMap>
#include <QStringList>

#include <functional>

// What differs between an XML document and what came back of it.

//! Two documents of a slide or a presentation.
Differences documentDifferences(int slide, const QDomElement &given, const QDomElement &found);

//! What an element says, by the ways to it from the element: attributes as "data/rect@points", texts as "data/note". A
//! row of properties has its label in brackets, the second element of a name "#2" behind it; a bare element says an
//! empty text. isOther: for children that are looked at by themselves.
using Texts = QMap<QString, QStringList>;
void collectTexts(const QDomElement &element, const QString &way,
                  const std::function<bool(const QDomElement &child)> &isOther, Texts &texts);
QString withoutNumbers(QString way);

#endif // DOCUMENTDIFFERENCE_H

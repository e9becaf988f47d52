// SPDX-License-Identifier: MIT
#ifndef IWBITEMS_H
#define IWBITEMS_H

#include <QDomDocument>
#include <QDomElement>
#include <QJsonObject>

//! Puts an item's svg element (null for an item without one) into an "svg:a" with the item's link, and adds the
//! iwb:link record to the document.
QDomElement wrapInIwbLink(QDomDocument &document, const QDomElement &item, const QJsonObject &json);

//! Fills json from an svg element by its tag. Of an "svg:a" with child nodes the first child element is converted and
//! the link added; what has no item form gives json back as it came.
QJsonObject iwbItemToJson(const QDomElement &element, const QJsonObject &json);

#endif // IWBITEMS_H

#ifndef ITEMVALUES_H
#define ITEMVALUES_H

#include <QJsonObject>
#include <QJsonValue>
#include <QString>
#include <QVector>

namespace lessonhost {

// Values of the model as texts, and the texts as values.

//! The first part of the presentation's Version as a number; 0 without one.
int majorVersion(const QJsonObject &presentation);

//! A value's text where it has one: numbers with all their digits, flags as 1 and 0, colour objects as a,r,g,b, arrays
//! of numbers with commas between. Other arrays and objects give a null text.
QString valueText(const QJsonValue &value);

//! The parts of a text with commas between; a comma at the end stands before none.
QStringList numberParts(const QString &text);

//! The numbers of a list with commas between, in single precision; a part that is no number counts as 0, and a comma at
//! the end stands before none.
QVector<float> singleNumbers(const QString &text);

} // namespace lessonhost

#endif // ITEMVALUES_H

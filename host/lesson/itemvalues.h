// SPDX-License-Identifier: MIT
#ifndef ITEMVALUES_H
#define ITEMVALUES_H

#include <QColor>
#include <QJsonObject>
#include <QJsonValue>
#include <QPolygonF>
#include <QRectF>
#include <QString>
#include <QTransform>
#include <QVector>

#include <optional>

namespace lessonhost {

// Values of the model as texts, and the texts as values. Writers take numbers and flags for their texts, so every
// reader here does, too.

//! The first part of the presentation's Version as a number; 0 without one.
int majorVersion(const QJsonObject &presentation);

//! A value's text where it has one: numbers with all their digits, flags as 1 and 0, colour objects as a,r,g,b, arrays
//! of numbers with commas between. Other arrays and objects give a null text.
QString valueText(const QJsonValue &value);

//! True for a value that says no more than a key that is missing.
bool isEmptyValue(const QJsonValue &value);

//! Texts of whole numbers other than 0 are true, "true" is none. missing stands for an empty value.
bool itemFlag(const QJsonValue &value, bool missing = false);

//! 0 for what is no number or none that ends; missing stands for an empty value.
double itemNumber(const QJsonValue &value, double missing = 0);

//! The numbers of a value: an array, or a text with commas between. A part that is no number counts as 0.
QVector<double> itemNumbers(const QJsonValue &value);

//! The same. Nothing where a part is no number or none that ends; a comma at the end of a text stands before none.
std::optional<QVector<double>> wholeNumbers(const QJsonValue &value);

//! The colour of a value: an object with Solid (0xRRGGBB, whatever stands before it) and Alpha (0 to 1), or a text
//! a,r,g,b or r,g,b or a name, such as #aarrggbb. Nothing for an empty or other value.
std::optional<QColor> itemColor(const QJsonValue &value);

//! The colour of a slide's BackColor: the number 0xRRGGBB or its text, or what itemColor() knows.
std::optional<QColor> backColor(const QJsonValue &value);

//! Puts 0 in the place of numbers that JSON can't hold, among values of their own and in lists and colours.
void makeNumbersFinite(QJsonObject &item);

//! The parts of a text with commas between; a comma at the end stands before none.
QStringList numberParts(const QString &text);

//! The numbers of a list with commas between, in single precision; a part that is no number counts as 0, and a comma at
//! the end stands before none.
QVector<float> singleNumbers(const QString &text);

//! a,r,g,b.
QString colorText(const QColor &color);

//! Points from x and y in turn; a last x without its y is left out.
QPolygonF pointsOf(const QVector<double> &numbers);

//! A number with as many digits as a coordinate may need, so that what is computed from it rounds as it did.
QString exactText(double value);

//! What is read of exactText().
double exactNumber(double value);
//! x and y in turn with commas between.
QString pointsText(const QPolygonF &points);
//! What is read of pointsText().
QPolygonF exactPoints(QPolygonF points);

//! A stroke's first point and the steps between its points, as pointsText().
QString stepsText(const QPolygonF &points);
//! The points that are read of stepsText().
QPolygonF pointsOfSteps(const QPolygonF &points);
//! left,top,right,bottom.
QString boxText(const QRectF &box);

//! m11,m12,m21,m22,dx,dy as a transform and back. Nothing for fewer numbers.
std::optional<QTransform> itemTransform(const QJsonValue &value);
QString transformText(const QTransform &transform);

} // namespace lessonhost

#endif // ITEMVALUES_H

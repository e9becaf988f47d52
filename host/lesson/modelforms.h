#ifndef MODELFORMS_H
#define MODELFORMS_H

#include <QJsonObject>
#include <QJsonValue>
#include <QString>
#include <QVector>

namespace lessonhost {

// A read leaves some values in a form that a write doesn't take: colours as objects, points as arrays, flags as texts.
// These functions bring the model of an item into the form that a write takes whole.

//! Keys that only the host knows: how it keeps what the plug-in has no key for.
namespace HostKeys {
const QLatin1String children("Children"); //!< nested items of a group or a formula
const QLatin1String keptXml("KeptXml"); //!< an item nobody can convert, as the XML text that it came as
const QLatin1String ignoredBox("IgnoredBoundingBox"); //!< the box that a version 3 file has for a group
const QLatin1String ignoredControl("IgnoredControl"); //!< the control points that a file has for a figure
const QLatin1String title("Title"); //!< of the presentation
} // namespace HostKeys

//! The first part of the presentation's Version as a number; 0 without one.
int majorVersion(const QJsonObject &presentation);

//! An item's keys as tranItemJSON2ZQTX takes them, without the keys of the host. Texts that templates take in as XML
//! are escaped, texts and numbers have the type that the conversion of their item asks for.
QJsonObject writableItem(const QJsonObject &item, int majorVersion);

//! The same for the keys of a slide or a presentation, in which texts are all that is written.
QJsonObject writableProperties(const QJsonObject &properties);

//! A value's text where it has one: numbers with all their digits, flags as 1 and 0, colour objects as a,r,g,b, arrays
//! of numbers with commas between. Other arrays and objects give a null text.
QString valueText(const QJsonValue &value);

//! The numbers of a list with commas between, in single precision; a part that is no number counts as 0, and a comma at
//! the end stands before none.
QVector<float> singleNumbers(const QString &text);

//! The steps between a stroke's points, as the model has them, as offsets from the first point, as lessons older than
//! version 3 store them. The offsets are chosen such that reading gives the same steps again.
QString pointsAsOffsets(const QString &steps);

//! True for groups and formulas, which hold other items.
bool isContainer(const QString &itemType);

//! True for the drawn figures, whose control points are written and not read.
bool isFigure(const QString &itemType);

} // namespace lessonhost

#endif // MODELFORMS_H

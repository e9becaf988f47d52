// SPDX-License-Identifier: MIT
#ifndef JSONTEXT_H
#define JSONTEXT_H

#include <QByteArray>
#include <QString>
#include <QVector>

#include <functional>

namespace lessonhost {

/*!
 * One step into a JSON value: to a member, or to an element by its number.
 */
struct JsonStep
{
    QByteArray name; //!< empty for an element
    int index = 0;
};

using JsonPath = QVector<JsonStep>;

//! Calls visit for each value that stands in a JSON text and not in what is parsed of it: all but the last of those
//! that have one name in one object, unless the next one says the same, and numbers of more digits than a double has.
//! value: its text. What is no JSON is
//! looked through as far as it goes.
void eachUnheldValue(const QByteArray &json,
                     const std::function<void(const JsonPath &path, const QByteArray &value)> &visit);

//! True if all values of a JSON text stand in what is parsed of it.
bool isJsonHeld(const QByteArray &json);

//! "Control[1]", "animations.path.x", from a step on. Deep paths are told by their two ends.
QString jsonPathText(const JsonPath &path, int from = 0);

} // namespace lessonhost

#endif // JSONTEXT_H

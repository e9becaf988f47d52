// SPDX-License-Identifier: MIT
#ifndef COMPARISON_H
#define COMPARISON_H

#include "losses/slidelosses.h"

#include <QJsonArray>
#include <QJsonObject>

#include <functional>

namespace lessonhost {

/*!
 * Compares what was given to a writer with what a reader finds in the result, and tells what did not survive. Values
 * that are new in the result, such as defaults, are no loss, but where they say otherwise than a missing value.
 */
class Comparison
{
public:
    //! What the format does to all values of a kind.
    struct Rules
    {
        double tolerance = 0; //!< how much numbers may differ, in parts of them
        //! True for values of an item's own keys that are the same for the format alone; may be empty.
        std::function<bool(const QString &key, const QJsonValue &given, const QJsonValue &found)> isSame;
        //! True for values that are lost and without which the item looks the same; may be empty.
        std::function<bool(const QString &key, const QJsonValue &given)> isUnseen;
    };

    explicit Comparison(const SlideLosses &losses);
    Comparison(const SlideLosses &losses, const Rules &rules);

    void compareProperties(const LossOwner &owner, const QJsonObject &given, const QJsonObject &found) const;

    //! Items in the same order, each with those that it holds. written: the given ones as they were written.
    void compareItems(const QJsonArray &given, const QJsonArray &written, const QJsonArray &found) const;

private:
    void compareItem(const QJsonObject &given, const QJsonObject &written, const QJsonObject &found) const;

    SlideLosses m_losses;
    Rules m_rules;
};

//! True if the found value of a key says all that the given one does.
bool saysAllOf(const QString &key, const QJsonValue &given, const QJsonValue &found);

//! True for a list of objects and nothing else, such as items.
bool isListOfObjects(const QJsonValue &value);

} // namespace lessonhost

#endif // COMPARISON_H

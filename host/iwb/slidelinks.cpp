// SPDX-License-Identifier: MIT
#include "iwb/slidelinks.h"

#include "lesson/itemkeys.h"
#include "lesson/itemvalues.h"

#include <QJsonArray>

namespace lessonhost {

QJsonObject SlideLinks::moved(QJsonObject item, QVector<QJsonObject> &lost) const
{
    if (areMoved() && item.value(HostKeys::children).isArray()) {
        QJsonArray children = item.value(HostKeys::children).toArray();
        for (int i = 0; i < children.size(); ++i) {
            if (children.at(i).isObject()) {
                children.replace(i, moved(children.at(i).toObject(), lost));
            }
        }
        item.insert(HostKeys::children, children);
    }
    return movedAlone(item, lost);
}

QJsonObject SlideLinks::movedAlone(QJsonObject item, QVector<QJsonObject> &lost) const
{
    const int given = valueText(item.value(ItemKeys::linkValue)).toInt();
    if (valueText(item.value(ItemKeys::linkType)) != QLatin1String("ACTION_GOTOSLIDE") || given < 1
        || given > m_numbers.size()) {
        return item;
    }
    const int number = m_numbers.at(given - 1);
    if (number == 0) {
        lost.append(item);
        item.remove(ItemKeys::linkType);
        item.remove(ItemKeys::linkValue);
    } else if (number != given) {
        item.insert(ItemKeys::linkValue, QString::number(number));
    }
    return item;
}

} // namespace lessonhost

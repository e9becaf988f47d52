// SPDX-License-Identifier: MIT
#include "lesson/pagesize.h"

#include "lesson/itemvalues.h"

#include <cmath>

namespace lessonhost {

QSize pageOfSourceRect(const QString &sourceRect)
{
    const QVector<float> rect = singleNumbers(sourceRect);
    const float ratio = rect.size() < 4 ? 0 : rect.at(2) / rect.at(3);
    const float to43 = std::fabs(ratio - 1.3333F);
    const float to169 = std::fabs(ratio - 1.7777F);
    const float to1610 = std::fabs(ratio - 1.6F);
    if (to169 > to43 && to1610 > to43) {
        return {1440, 1080};
    }
    if (to169 <= to43 && to1610 > to169) {
        return {1920, 1080};
    }
    return {1728, 1080};
}

} // namespace lessonhost

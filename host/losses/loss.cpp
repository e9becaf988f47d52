// SPDX-License-Identifier: MIT
#include "losses/loss.h"

#include "lesson/keynames.h"

namespace lessonhost {

QLatin1String lossKindName(Loss::Kind kind)
{
    switch (kind) {
    case Loss::Value:
        return QLatin1String("value");
    case Loss::Item:
        return QLatin1String("item");
    case Loss::Kept:
        return QLatin1String("kept");
    case Loss::File:
        return QLatin1String("file");
    case Loss::AsPicture:
        return QLatin1String("asPicture");
    case Loss::NotShown:
        return QLatin1String("notShown");
    case Loss::Otherwise:
        return QLatin1String("otherwise");
    case Loss::Absent:
        return QLatin1String("absent");
    case Loss::Emptied:
        return QLatin1String("emptied");
    case Loss::EmptiedElsewhere:
        return QLatin1String("emptiedElsewhere");
    case Loss::Changed:
        return QLatin1String("changed");
    case Loss::Note:
        break;
    }
    return QLatin1String("note");
}

const QVector<Loss::Kind> &lossKinds()
{
    static const QVector<Loss::Kind> kinds{
        Loss::Value,    Loss::Item,      Loss::File,             Loss::Emptied, Loss::Absent, Loss::AsPicture,
        Loss::NotShown, Loss::Otherwise, Loss::EmptiedElsewhere, Loss::Changed, Loss::Kept,
        Loss::Note};
    return kinds;
}

bool isLoss(Loss::Kind kind)
{
    return kind == Loss::Value || kind == Loss::Item || kind == Loss::File;
}

bool isElsewhere(Loss::Kind kind)
{
    return kind == Loss::AsPicture || kind == Loss::NotShown || kind == Loss::Otherwise
        || kind == Loss::EmptiedElsewhere;
}

Loss::Group groupOf(const Loss &loss)
{
    switch (loss.kind) {
    case Loss::Value:
    case Loss::Otherwise:
        return !loss.isFile && (loss.isShown || isInternalPlace(loss.key)) ? Loss::Internal : Loss::Different;
    case Loss::Item:
    case Loss::NotShown:
        return loss.isShown ? Loss::Different : Loss::Missing;
    case Loss::AsPicture:
        return Loss::Different;
    case Loss::File:
    case Loss::Absent:
    case Loss::Emptied:
    case Loss::EmptiedElsewhere:
        return Loss::Missing;
    case Loss::Kept:
    case Loss::Changed:
    case Loss::Note:
        break;
    }
    return Loss::Told;
}

} // namespace lessonhost

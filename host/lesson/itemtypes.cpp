// SPDX-License-Identifier: MIT
#include "lesson/itemtypes.h"

#include "lesson/isoneof.h"

namespace lessonhost {

namespace {

constexpr const char *containers[] = {"ZQGroupItem", "group", "ZQStrokesMathFormula", "ZQStrokesChemFormula"};

constexpr const char *ink[] = {
    "ZQSmoothStroke", "ZQBrushStrokeVelocity", "ZQBrushStroke",   "ZQCombineStroke", "ZQStrokesCombine",
    "stroke",         "ZQFluorescentStroke",   "ZQStrokeTexture", "ZQChalkStroke",   "ZQBrChalkStroke"};

constexpr const char *textBoards[] = {"ZQTextBoard", "text"};

struct MediaFolder
{
    const char *type;
    const char *folder;
};
constexpr MediaFolder mediaFolders[] = {
    {"ZQImagePic", "images"},
    {"ZQMediaVideo", "videos"},
    {"ZQMediaFlash", "flash"},
    {"ZQMediaAudio", "audio"},
};

} // namespace

bool isContainer(const QString &itemType)
{
    return isOneOf(containers, itemType);
}

bool isFigure(const QString &itemType)
{
    return itemType.startsWith(QLatin1String("ZQShape"));
}

bool isInk(const QString &itemType)
{
    return isOneOf(ink, itemType);
}

bool isTextBoard(const QString &itemType)
{
    return isOneOf(textBoards, itemType);
}

const char *mediaFolder(const QString &itemType)
{
    for (const MediaFolder &row : mediaFolders) {
        if (itemType == QLatin1String(row.type)) {
            return row.folder;
        }
    }
    return nullptr;
}

} // namespace lessonhost

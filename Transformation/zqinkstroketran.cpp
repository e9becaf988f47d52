// SPDX-License-Identifier: MIT
#include "zqinkstroketran.h"

ZQInkStrokeTran::ZQInkStrokeTran(const QString &type)
    : ZQComItemControlTran(type)
{
}

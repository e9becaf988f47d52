// SPDX-License-Identifier: MIT
#ifndef ZQINKSTROKETRAN_H
#define ZQINKSTROKETRAN_H

#include "zqcomitemcontroltran.h"

/*!
 * Base of the ink items. It adds nothing of its own to the common item.
 */
class ZQInkStrokeTran : public ZQComItemControlTran
{
public:
    explicit ZQInkStrokeTran(const QString &type);
};

#endif // ZQINKSTROKETRAN_H

// SPDX-License-Identifier: MIT
#ifndef DOCUMENTS_H
#define DOCUMENTS_H

#include <QString>

//! Every key that the plug-in reads or writes by its tables, by family and type.
QString formatsDocument();

//! What pictures show of an item, by type: found by drawing typical items with other values of every key.
QString drawingsDocument();

//! What other boards have of an item in IWB packages, by family: found by writing typical items of every type.
QString boardsDocument();

//! What conversions can't carry, by type: found by converting one item of every type.
QString lossesDocument();

#endif // DOCUMENTS_H

// SPDX-License-Identifier: MIT
#ifndef IWBTEXTINFO_H
#define IWBTEXTINFO_H

#include <QString>
#include <QVector>

/*!
 * One run of text of an IWB text area: what one svg:textarea or svg:tspan says about its letters.
 *
 * Lists of runs are handed between a host and the plug-in in memory, so the fields and their order are an interface.
 * The defaults are those of a run for which the file says nothing.
 */
struct IwbTextInfo
{
    QString fill = QStringLiteral("#000000");
    QString fontWeight = QStringLiteral("bold");
    QString fontStretch = QStringLiteral("normal");
    QString fontStyle = QStringLiteral("italic");
    QString fontFamily = QStringLiteral("Arial");
    QString fontSize = QStringLiteral("28");
    QString textDecoration = QStringLiteral("underline");
    QString textAlign = QStringLiteral("start");
    QString text;
    QString rect; //!< x,y,width,height in pixels as the file has them, or empty
    bool flag = false; //!< the host's own; the plug-in sets it to false and never reads it
};

//! The list that travels as an address in decimal text under "IWB_TEXTINFO-VECTOR". Allocated with new.
using IwbTextInfoList = QVector<IwbTextInfo>;

//! Destroys a list. Its address travels in decimal text under "IWB_TEXTINFO-DELVECTOR".
using IwbTextInfoListDeleter = void (*)(void *list);

#endif // IWBTEXTINFO_H

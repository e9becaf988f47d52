// SPDX-License-Identifier: MIT
#ifndef ITEMPOSITION_H
#define ITEMPOSITION_H

#include <QJsonObject>
#include <QPolygonF>
#include <QString>
#include <QTransform>

#include <optional>

// Where items stand on a page, worked out without the host's own code for it.

//! Nothing unless they are numbers in pairs.
std::optional<QPolygonF> pairsOf(const QJsonValue &value);
//! Only the plug-in knows the corners of these that follow from the box.
bool hasWorkedOutCorners(const QString &type);
//! Shapes of the plane whose points are told; those of others follow from their box.
bool hasOwnPoints(const QString &type);
bool hasMatrix(const QJsonObject &item);
//! The identity without a matrix, and nothing for one that isn't six numbers.
std::optional<QTransform> matrixOf(const QJsonObject &item);
//! Strokes and stamps.
bool hasSteps(const QString &type);
//! Whether two items are drawn in the same place. A closed outline may name its first point again, and the curve of ink
//! have more points between its own. isFlipped: the given one still has to be mirrored as it says.
bool isDrawnAlike(const QJsonObject &given, const QJsonObject &found, bool isFlipped);

#endif // ITEMPOSITION_H

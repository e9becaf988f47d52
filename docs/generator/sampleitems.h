// SPDX-License-Identifier: MIT
#ifndef SAMPLEITEMS_H
#define SAMPLEITEMS_H

#include <QJsonObject>
#include <QString>

//! A lesson in the JSON model: one slide with an item of every type that the families name, and in each item a value
//! for every key that its tables know. The values of an item differ from each other.
QJsonObject sampleLesson();

//! The same in raw XML, with a value in every place that the tables read.
QString rawSampleLesson();

#endif // SAMPLEITEMS_H

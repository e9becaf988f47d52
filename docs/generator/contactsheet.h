// SPDX-License-Identifier: MIT
#ifndef CONTACTSHEET_H
#define CONTACTSHEET_H

#include <QJsonObject>
#include <QString>

//! A lesson with a typical item of every type, its name below, family after family; then all of them once more in each
//! variant. word: only families and types with this in their name.
QJsonObject contactSheet(const QString &word);

#endif // CONTACTSHEET_H

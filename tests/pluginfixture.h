// SPDX-License-Identifier: MIT
#ifndef PLUGINFIXTURE_H
#define PLUGINFIXTURE_H

#include "izqtransformation.h"
#include "testtable.h"

#include <QDomElement>
#include <QJsonObject>
#include <QString>

#include <functional>

// What tests of the plug-in share: the plug-in itself, loaded once, and short ways to write XML and JSON.

//! The plug-in's object, loaded through the Qt plug-in loader. Fails the program if it can't be loaded.
QObject *pluginObject();
IZQTransformation *plugin();

//! The document element of xml, in a document that lives to the end of the test.
QDomElement xml(const QString &text);

//! The element as text without indentation, attributes in ascending order.
QString toText(const QDomElement &element);

//! The object as compact text, members in ascending order.
QString toText(const QJsonObject &object);

//! The attributes of an element as text members.
QJsonObject attributesOf(const QDomElement &element);

//! What of expected isn't so in actual, a line a member; a null stands for a member that must be missing.
QString differences(const QJsonObject &actual, const QJsonObject &expected);

//! What an item was read to beyond the keys that every item has.
QJsonObject ownKeys(QJsonObject item);

//! The item's svg form, in a document of its own.
QDomElement toSvg(const QJsonObject &item);

//! How many messages a call leaves on Qt's log.
int messagesOf(const std::function<void()> &call);

//! How many times slower things go in this build than in one for users.
#if defined(WITH_SANITIZERS)
constexpr int slowness = 10;
#elif defined(WITHOUT_OPTIMIZATION)
constexpr int slowness = 4;
#else
constexpr int slowness = 1;
#endif

//! Whether a call takes longer than it may, which is two seconds of processor time in a build for users. A busy machine
//! is slow at times, so a call that fails here should get a second and a third try.
bool takesTooLong(const std::function<void()> &call);

//! Writes a file, with the folders on its way. Fails the program if it can't.
void putFile(const QString &path, const QByteArray &content);

//! What a file holds; a null array without the file.
QByteArray fileContent(const QString &path);

//! The files in a folder and below by their paths in it, hidden ones too.
QMap<QString, QByteArray> filesBelow(const QString &folder);

//! A red picture of 4 x 3 in PNG.
QByteArray redPicture();

#endif // PLUGINFIXTURE_H

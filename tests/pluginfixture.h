#ifndef PLUGINFIXTURE_H
#define PLUGINFIXTURE_H

#include "izqtransformation.h"

#include <QDomElement>
#include <QJsonObject>
#include <QString>

// What tests of the plug-in share: the plug-in itself, loaded once, and short ways to write XML and JSON.

inline QString operator""_s(const char *text, std::size_t size)
{
    return QString::fromUtf8(text, int(size));
}

//! The plug-in's object, loaded through the Qt plug-in loader. Fails the program if it can't be loaded.
QObject *pluginObject();
IZQTransformation *plugin();

//! The document element of xml, in a document that lives to the end of the test.
QDomElement xml(const QString &text);

//! The element as text without indentation, attributes in ascending order.
QString toText(const QDomElement &element);

//! The object of a JSON text, in which ' stands for ".
QJsonObject json(const char *text);

//! The object as compact text, members in ascending order.
QString toText(const QJsonObject &object);

//! The attributes of an element as text members.
QJsonObject attributesOf(const QDomElement &element);

//! What of expected isn't so in actual, a line a member; a null stands for a member that must be missing.
QString differences(const QJsonObject &actual, const QJsonObject &expected);

#endif // PLUGINFIXTURE_H

// SPDX-License-Identifier: MIT
#ifndef FUZZSUPPORT_H
#define FUZZSUPPORT_H

#include "transformationplugin.h"
#include "zqhtran.h"

#include <QByteArray>
#include <QDomElement>
#include <QJsonObject>
#include <QString>

#include <cstddef>

// What the fuzz targets share: the plug-in, inputs as a host would let them through, and what must hold for every call.

inline QString operator""_s(const char *text, std::size_t size)
{
    return QString::fromUtf8(text, int(size));
}

//! What each target does with an input.
void tryInput(const QByteArray &input);

//! The bytes of the input that is being tried.
extern std::size_t inputSize;

TransformationPlugin &plugin();

//! A folder for the process alone, in memory where the machine has such a place, with an opened package in "package",
//! a file library beside it and a folder to export into. Without links, gone with the process.
QString workFolder();
QString exportFolder();

//! The surroundings of what is read from the opened package.
QJsonObject inPackage();

//! The document of a text, empty if a host wouldn't take it: not well-formed, with a document type, deeper than 512.
QDomDocument documentOf(const QByteArray &text);

//! The object of a JSON text, empty if it is none.
QJsonObject parsedObject(const QByteArray &text);

//! The same with the folders that a host fills in, and without the addresses that only a host makes.
QJsonObject objectOf(const QByteArray &text);

//! A lesson's surroundings of an item: slide, presentation of that version, folder of the package.
QJsonObject context(const QString &version);

//! Everything below and with the element; attributes in ascending order, without the one left out. Without the drawing
//! of vector shapes too, which a read takes out of the tree.
QString treeText(const QDomElement &element, const QString &leftOut = {});

//! Ends the program with the sentence and the two values unless they are the same.
void mustBeSame(const char *sentence, const QString &one, const QString &other);

//! The same if json lacks an attribute of the element that the translator's key map has a key for.
void mustHoldAttributes(const QJsonObject &keyMap, const QDomElement &element, const QJsonObject &json);

//! Destroys the list of text runs that came with an item.
void releaseTextRuns(const QJsonObject &item);

/*!
 * Lives around the calls for one input: they must take less than 2 seconds, 200 times the input and 64 MiB of memory,
 * and write nowhere but into workFolder().
 */
class CallGuard
{
public:
    explicit CallGuard(const char *what);
    ~CallGuard();
    CallGuard(const CallGuard &) = delete;
    CallGuard &operator=(const CallGuard &) = delete;

private:
    const char *m_what;
    double m_start;
};

//! Calls function under a guard.
template <typename Function> auto guarded(const char *what, const Function &function)
{
    const CallGuard guard(what);
    return function();
}

/*!
 * A translator's key maps, which its class keeps to itself, and the generic walks over them, to which the translator's
 * own class adds nothing here.
 */
class GenericTranslator : public ZQHTran
{
public:
    explicit GenericTranslator(const ZQHTran &translator) { setKeyMaps((translator.*&GenericTranslator::keyMaps)()); }

    const QJsonObject &xmlMap() const { return xmlKeyMap; }
    const QJsonObject &txMap() const { return txKeyMap; }
    const QJsonObject &iwbMap() const { return iwbKeyMap; }
};

#endif // FUZZSUPPORT_H

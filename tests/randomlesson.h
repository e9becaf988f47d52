// SPDX-License-Identifier: MIT
#ifndef RANDOMLESSON_H
#define RANDOMLESSON_H

#include <QByteArray>
#include <QDomDocument>
#include <QJsonObject>
#include <QRandomGenerator>
#include <QStringList>

/*!
 * Lessons at random, for a seed the same each time: items of all types, with good, odd and wrong values for the keys
 * that the plug-in's tables have for them, and for some that nobody has.
 */
class RandomLesson
{
public:
    explicit RandomLesson(quint32 seed);

    //! A lesson in the JSON model. isForIwb: most of its items have a form in svg.
    QJsonObject lesson(bool isForIwb);

    //! A lesson in raw XML, with values in the places that the tables name.
    QDomDocument rawLesson();

    //! Puts odd values in the place of some texts and attributes of a document, and adds some that nobody knows.
    void disturb(const QDomElement &root);

private:
    bool oneIn(int count) { return m_random.bounded(count) == 0; }
    template <typename List> auto anyOf(const List &list) { return list[m_random.bounded(int(std::size(list)))]; }
    QString number();
    QString numbers(int count);
    QString colorText();
    QJsonValue color();
    QString oddText();
    QJsonValue oddValue(int depth = 0);
    QJsonValue goodValue(const QString &type, const QString &key);
    QJsonValue value(const QString &type, const QString &key);
    QJsonValue disturbed(const QJsonValue &value);
    void addKeys(QJsonObject &object, const QString &type, const QStringList &keys, int most);
    QString nextId();
    QString type(bool isForIwb);
    QJsonObject item(bool isForIwb, int depth);
    QJsonObject slide(bool isForIwb, int number);
    QDomElement rawItem(QDomDocument &document, int depth);
    void putRaw(QDomDocument &document, QDomElement element, const QJsonArray &path, const QString &text);

    QRandomGenerator m_random;
    int m_lastId = 100;
    bool m_hasEqualIds;
    bool m_isOdd; //!< has odd and wrong values
};

//! What a variable of the environment says of a run over random lessons, or the usual.
int setting(const char *name, int usual);

//! For main() of such a test, before its application: no display is needed, it may take that many seconds, and the order
//! of hashes, which attributes stand in, is the same for a seed.
void prepareRandomRun(int seconds);

//! Where raw XML has the keys of an item type; empty for a type that no table has.
QJsonObject rawPlacesOf(const QString &type);

//! The JSON text of a lesson. A key that ends in sameKeyMark is written without it, as a second one of its name; a text
//! that begins with numberMark is written as the number behind it, digit for digit.
QByteArray jsonText(const QJsonObject &lesson);

constexpr char sameKeyMark = '\a';
constexpr char numberMark = '\v';

#endif // RANDOMLESSON_H

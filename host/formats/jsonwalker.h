// SPDX-License-Identifier: MIT
#ifndef JSONWALKER_H
#define JSONWALKER_H

#include "sentences/sentence.h"

#include <QByteArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QPair>
#include <QString>
#include <QVector>

namespace lessonhost {

//! An object of members in any order, of which the last of a name counts. To insert each by itself takes time for each
//! pair of them.
QJsonObject jsonObject(QVector<QPair<QString, QJsonValue>> members);

/*!
 * Goes through a JSON text of any size from its beginning to its end, and holds a piece of it. What a derived class
 * wants of it is parsed, the rest skipped. Every function throws LessonError.
 */
class JsonWalker
{
public:
    struct Range
    {
        qint64 begin = 0;
        qint64 end = 0;
        int depth = 0; //!< of the arrays and objects in it
    };

    virtual ~JsonWalker() = default;
    JsonWalker(const JsonWalker &) = delete;
    JsonWalker &operator=(const JsonWalker &) = delete;

    QJsonValue value(const Range &range);
    //! A value as it stands in the text.
    QByteArray source(const Range &range);
    [[noreturn]] void fail(const Sentence &problem, qint64 position);

protected:
    //! path and remedy are for messages. pieceSize: how much is held.
    JsonWalker(const QString &path, const Sentence &remedy, int pieceSize);

    virtual QByteArray bytes(qint64 begin, qint64 size) = 0;

    //! To be called before anything is read.
    void setSize(qint64 size) { m_size = size; }
    qint64 size() const { return m_size; }
    //! Where it is.
    qint64 position() const { return m_at; }
    void skipMark();
    void skipBlanks();
    Range skipValue();
    void expect(char c);
    bool comesNext(char c);
    QString memberName();
    //! Calls take() before each element, which it has to go past.
    template <typename Take> void eachElement(const Take &take);
    //! Calls take(name) before each value, which it has to go past.
    template <typename Take> void eachMember(const Take &take);

private:
    QJsonValue parsedValue(const Range &range);
    QJsonValue nextValue(int levels);
    int next();
    void skipString();
    void skipLiteral();

    QString m_path;
    Sentence m_remedy;
    qint64 m_pieceSize;
    qint64 m_size = 0;
    qint64 m_at = 0;
    QByteArray m_piece; // with what stands at m_at in most cases
    qint64 m_pieceBegin = 0;
};

template <typename Take> void JsonWalker::eachElement(const Take &take)
{
    expect('[');
    bool isFirst = true;
    while (!comesNext(']')) {
        if (!isFirst) {
            expect(',');
        }
        isFirst = false;
        take();
    }
    expect(']');
}

template <typename Take> void JsonWalker::eachMember(const Take &take)
{
    expect('{');
    bool isFirst = true;
    while (!comesNext('}')) {
        if (!isFirst) {
            expect(',');
        }
        isFirst = false;
        const QString name = memberName();
        take(name);
    }
    expect('}');
}

} // namespace lessonhost

#endif // JSONWALKER_H

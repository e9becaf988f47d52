// SPDX-License-Identifier: MIT
#ifndef TESTTABLE_H
#define TESTTABLE_H

#include <QJsonObject>
#include <QTest>

#include <tuple>

inline QString operator""_s(const char *text, std::size_t size)
{
    return QString::fromUtf8(text, int(size));
}

//! The object of a JSON text, in which ' stands for ", or of members "key=text other=null" without blanks in them.
QJsonObject json(const QByteArray &text);
inline QJsonObject json(const QString &text)
{
    return json(text.toUtf8());
}
inline QJsonObject json(const char *text)
{
    return json(QByteArray(text));
}

/*!
 * The columns of a _data function, and the cells of the row that a test gets. Called with a name and a cell for each
 * column, it adds a row; a text will do for an object, and nullptr is a null text.
 */
template <typename... Columns> class Table
{
    struct Object
    {
        Object(const char *text)
            : value(json(text))
        {
        }
        Object(const QJsonObject &object)
            : value(object)
        {
        }
        QJsonObject value;
    };
    template <typename Column> using Cell = std::conditional_t<std::is_same_v<Column, QJsonObject>, Object, Column>;
    template <typename Column> static const Column &valueOf(const Column &cell) { return cell; }
    static const QJsonObject &valueOf(const Object &cell) { return cell.value; }

public:
    template <typename... Names> explicit Table(const Names &...names)
    {
        columnNames() = {names...};
        (QTest::addColumn<Columns>(names), ...);
    }

    void operator()(const QByteArray &name, const Cell<Columns> &...cells) const
    {
        QTestData &row = QTest::newRow(name.constData());
        (row << ... << valueOf(cells));
    }

    //! The cells of the current row.
    static std::tuple<Columns...> cells() { return cellsAt(std::index_sequence_for<Columns...>()); }

private:
    static QVector<QByteArray> &columnNames()
    {
        static QVector<QByteArray> names;
        return names;
    }
    template <std::size_t... places> static std::tuple<Columns...> cellsAt(std::index_sequence<places...>)
    {
        return {*static_cast<Columns *>(QTest::qData(columnNames().at(int(places)), qMetaTypeId<Columns>()))...};
    }
};

#endif // TESTTABLE_H

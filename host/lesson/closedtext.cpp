// SPDX-License-Identifier: MIT
#include "lesson/closedtext.h"

#include <QGuiApplication>
#include <QHash>
#include <QPixmap>
#include <QRegularExpression>
#include <QStringList>
#include <QVariant>
#include <QVector>

#include <algorithm>
#include <initializer_list>

namespace lessonhost {

namespace {

constexpr int mostDepth = 100;
constexpr int mostPictures = 1000;
constexpr int mostListItems = 2000; // what follows begins a line, without its mark
constexpr int mostOpenTables = 8; // each takes twice the time of that within
constexpr int mostTables = 2000; // a row or cell that is in none makes one
constexpr int widestCell = 100;
constexpr qint64 mostCells = 100000; // of all tables, the empty places in their grids among them
constexpr qint64 mostInnerSteps = 20000; // what is laid out for the cells of tables in tables
constexpr qint64 mostStyleSteps = 1000000; // each rule of a style sheet is held against each tag

bool isAnyOf(const QString &name, std::initializer_list<const char *> names)
{
    return std::any_of(names.begin(), names.end(), [&name](const char *one) { return name == QLatin1String(one); });
}

/*!
 * Copies HTML tag by tag and leaves out what text documents take more than linear time for. It counts what is open at
 * least as deep as they do: what they close by themselves beside that makes it less.
 */
class HtmlLimits
{
public:
    explicit HtmlLimits(const QString &html)
        : m_html(html)
        , m_tags(html.count(QLatin1Char('<')))
    {
        m_result.reserve(html.size());
    }

    QString result()
    {
        while (m_at < m_html.size()) {
            const int start = m_html.indexOf(QLatin1Char('<'), m_at);
            copyText(start < 0 ? m_html.size() : start);
            if (start < 0) {
                break;
            }
            if (m_html.midRef(m_at, 4) == QLatin1String("<!--")) {
                skipBehind(QLatin1String("-->"));
            } else if (m_html.midRef(m_at, 2) == QLatin1String("<!") || m_html.midRef(m_at, 2) == QLatin1String("<?")) {
                skipBehind(QLatin1String(">"));
            } else {
                readTag();
            }
        }
        return m_result;
    }

    int leftOut() const { return m_leftOut; }

private:
    struct Table
    {
        qint64 rows = 0;
        qint64 columns = 0;
        qint64 inRow = 0;
        qint64 higherCells = 0; // columns of cells that reach into the rows below
        qint64 highest = 1;

        qint64 area() const { return (rows + highest) * (columns + higherCells); }
    };

    void skipBehind(QLatin1String end)
    {
        const int found = m_html.indexOf(end, m_at);
        m_at = found < 0 ? m_html.size() : found + end.size();
    }

    void skipTo(QLatin1Char end)
    {
        const int found = m_html.indexOf(end, m_at);
        m_at = found < 0 ? m_html.size() : found;
    }

    void copyText(int end)
    {
        const QStringRef text = m_html.midRef(m_at, end - m_at);
        m_at = end;
        if (!m_open.isEmpty() && m_open.constLast() == QLatin1String("style")) {
            const int rules = text.count(QLatin1Char('{')) + text.count(QLatin1Char(','));
            if ((m_rules + rules) * m_tags > mostStyleSteps) {
                ++m_leftOut;
                return;
            }
            m_rules += rules;
        }
        m_result += text;
    }

    // What has no end, or another tag in it, is text.
    void readTag()
    {
        int at = m_at + 1;
        const bool isEnd = at < m_html.size() && m_html.at(at) == QLatin1Char('/');
        at += isEnd ? 1 : 0;
        const int nameStart = at;
        while (at < m_html.size() && at - nameStart < 32
               && (m_html.at(at).isLetterOrNumber() || QStringLiteral(":-_").contains(m_html.at(at)))) {
            ++at;
        }
        const QString name = m_html.mid(nameStart, at - nameStart).toLower();
        const int attributesStart = at;
        QChar quote;
        for (; at < m_html.size(); ++at) {
            const QChar c = m_html.at(at);
            if (c == QLatin1Char('<') || (c == QLatin1Char('>') && quote.isNull())) {
                break;
            }
            if (!quote.isNull()) {
                quote = c == quote ? QChar() : quote;
            } else if (c == QLatin1Char('"') || c == QLatin1Char('\'')) {
                quote = c;
            }
        }
        const bool hasAttributes = at > attributesStart;
        const QChar behindName = hasAttributes ? m_html.at(attributesStart) : QChar(QLatin1Char(' '));
        const bool isTag = !name.isEmpty() && at < m_html.size() && m_html.at(at) == QLatin1Char('>')
            && (behindName.isSpace() || behindName == QLatin1Char('/'));
        if (!isTag) {
            m_result += m_html.mid(m_at, at - m_at).replace(QLatin1Char('<'), QLatin1String("&lt;"));
            m_at = at;
            return;
        }
        const bool isClosed = hasAttributes && m_html.at(at - 1) == QLatin1Char('/');
        const QString attributes = m_html.mid(attributesStart, at - attributesStart - (isClosed ? 1 : 0));
        m_at = at + 1;
        if (isEnd) {
            end(name);
            return;
        }
        copyTag(name, attributes);
        if (isClosed) {
            end(name);
        }
    }

    void copyTag(const QString &name, const QString &attributes)
    {
        if (name == QLatin1String("li") && ++m_listItems > mostListItems) {
            m_result += QLatin1String("<br>");
            ++m_leftOutOpen[name];
            ++m_leftOut;
        } else if (start(name, attributes)) {
            m_result += QLatin1Char('<') + name + kept(name, attributes) + QLatin1Char('>');
        } else {
            ++m_leftOut;
        }
    }

    // False for a tag that is left out.
    bool start(const QString &name, const QString &attributes)
    {
        if (name == QLatin1String("img")) {
            return ++m_pictures <= mostPictures;
        }
        if (isAnyOf(name, {"br", "hr", "meta"})) {
            return true;
        }
        if (name == QLatin1String("style") && ++m_rules * m_tags > mostStyleSteps) {
            skipTo(QLatin1Char('<'));
            return false;
        }
        closeBefore(name);
        const bool isTable =
            name == QLatin1String("table") || (m_tables.isEmpty() && isAnyOf(name, {"tr", "td", "th"}));
        m_tableCount += isTable ? 1 : 0;
        const bool isTooMuch = isTable && (m_tableCount > mostTables || m_tables.size() >= mostOpenTables);
        if (m_open.size() >= mostDepth || isTooMuch || !countCell(name, attributes)) {
            ++m_leftOutOpen[name];
            return false;
        }
        m_open.append(name);
        if (name == QLatin1String("table")) {
            m_tables.append(Table());
        }
        return true;
    }

    void end(const QString &name)
    {
        int &leftOut = m_leftOutOpen[name];
        if (leftOut > 0) {
            --leftOut;
            return;
        }
        const int at = m_open.lastIndexOf(name);
        if (at >= 0) {
            closeTo(at);
            m_result += QLatin1String("</") + name + QLatin1Char('>');
        }
    }

    // What ends without an end tag where one of the name begins.
    void closeBefore(const QString &name)
    {
        if (!m_open.isEmpty() && m_open.constLast() == name && isAnyOf(name, {"p", "li"})) {
            closeTo(m_open.size() - 1);
        }
        const bool isCell = isAnyOf(name, {"td", "th"});
        if (!isCell && name != QLatin1String("tr")) {
            return;
        }
        for (int i = m_open.size() - 1; i >= 0 && m_open.at(i) != QLatin1String("table"); --i) {
            if (isCell ? isAnyOf(m_open.at(i), {"td", "th"}) : m_open.at(i) == QLatin1String("tr")) {
                closeTo(i);
                return;
            }
        }
    }

    void closeTo(int size)
    {
        while (m_open.size() > size) {
            if (m_open.takeLast() == QLatin1String("table")) {
                m_tables.removeLast();
            }
        }
    }

    // How many columns or rows a cell has.
    static int spanOf(const QString &attributes, const char *direction)
    {
        static const QRegularExpression span(QStringLiteral("\\b(col|row)span\\s*=\\s*[\"']?\\s*([0-9]*)"),
                                             QRegularExpression::CaseInsensitiveOption);
        int most = 1;
        for (auto it = span.globalMatch(attributes); it.hasNext();) {
            const auto match = it.next();
            const int number = match.capturedRef(2).toInt();
            if (match.capturedRef(1).compare(QLatin1String(direction), Qt::CaseInsensitive) == 0
                && number <= widestCell) {
                most = qMax(most, number);
            }
        }
        return most;
    }

    // A cell's attributes without how far it stretches, where that is too far or can't be told.
    static QString kept(const QString &name, const QString &attributes)
    {
        if (!isAnyOf(name, {"td", "th"})) {
            return attributes;
        }
        static const QRegularExpression span(
            QStringLiteral("\\b(?:col|row)span\\s*=\\s*(?:\"[^\"]*\"|'[^']*'|[^\\s\"']*)"),
            QRegularExpression::CaseInsensitiveOption);
        QString result;
        int end = 0;
        for (auto it = span.globalMatch(attributes); it.hasNext();) {
            const auto match = it.next();
            const bool isWide = spanOf(match.captured(), "col") > 1 || spanOf(match.captured(), "row") > 1;
            result += attributes.midRef(end, match.capturedStart() - end);
            result += isWide ? match.captured() : QString();
            end = match.capturedEnd();
        }
        result += attributes.midRef(end);
        // Names of attributes may be written as references.
        return result.contains(QLatin1Char('&')) ? QString() : result;
    }

    bool countCell(const QString &name, const QString &attributes)
    {
        if (m_tables.isEmpty() || !isAnyOf(name, {"tr", "td", "th"})) {
            return true;
        }
        Table grown = m_tables.constLast();
        if (name == QLatin1String("tr")) {
            ++grown.rows;
            grown.inRow = 0;
        } else {
            const int columns = spanOf(attributes, "col");
            const int rows = spanOf(attributes, "row");
            grown.rows = qMax<qint64>(grown.rows, 1);
            grown.inRow += columns;
            grown.columns = qMax(grown.columns, grown.inRow);
            grown.highest = qMax<qint64>(grown.highest, rows);
            grown.higherCells += rows > 1 ? columns : 0;
        }
        const qint64 growth = grown.area() - m_tables.constLast().area();
        const int around = m_tables.size() - 1;
        const qint64 inner = around > 0 ? growth << around : 0;
        if (m_cells + growth > mostCells || m_innerSteps + inner > mostInnerSteps) {
            return false;
        }
        m_cells += growth;
        m_innerSteps += inner;
        m_tables.last() = grown;
        return true;
    }

    const QString &m_html;
    qint64 m_tags;
    int m_at = 0;
    QString m_result;
    QStringList m_open;
    QHash<QString, int> m_leftOutOpen; // by name
    QVector<Table> m_tables; // those of m_open
    qint64 m_cells = 0; // of all tables so far
    qint64 m_innerSteps = 0;
    qint64 m_rules = 0;
    int m_listItems = 0;
    int m_pictures = 0;
    int m_tableCount = 0;
    int m_leftOut = 0;
};

} // namespace

ClosedTextDocument::ClosedTextDocument()
{
    setUndoRedoEnabled(false);
}

// A document that is laid out opens the file of a picture itself where it gets none here.
QVariant ClosedTextDocument::loadResource(int type, const QUrl &name)
{
    if (type != ImageResource || !qobject_cast<QGuiApplication *>(QCoreApplication::instance())) {
        return {};
    }
    QPixmap nothing(1, 1);
    nothing.fill(Qt::transparent);
    m_pictures.insert(nothing.cacheKey(), name.toString());
    return nothing;
}

int ClosedTextDocument::setLessonHtml(const QString &html)
{
    HtmlLimits limits(html);
    setHtml(limits.result());
    return limits.leftOut();
}

QString plainWords(const QString &html)
{
    ClosedTextDocument document;
    document.setLessonHtml(html);
    // Pictures stand in it as characters.
    return document.toPlainText().remove(QChar::ObjectReplacementCharacter).simplified();
}

} // namespace lessonhost

// SPDX-License-Identifier: MIT
#include "svg/svgvalues.h"

#include "svg/svgscanner.h"

#include <QStringList>

#include <cmath>

namespace lessonhost {

namespace {

constexpr double degreesOfRadian = 180.0 / M_PI;

// The text between the brackets of name(...), or nothing.
std::optional<QString> argumentsOf(const QString &text, QLatin1String name)
{
    const QString trimmed = text.trimmed();
    if (!trimmed.startsWith(name) || !trimmed.endsWith(QLatin1Char(')'))) {
        return std::nullopt;
    }
    const int open = trimmed.indexOf(QLatin1Char('('));
    if (open < 0 || !trimmed.midRef(name.size(), open - name.size()).trimmed().isEmpty()) {
        return std::nullopt;
    }
    return trimmed.mid(open + 1, trimmed.size() - open - 2);
}

// Numbers and percents of a colour function: channels as they are, percents of 255.
QVector<double> channels(const QString &arguments)
{
    QVector<double> values;
    SvgScanner scanner(arguments);
    while (!scanner.atEnd()) {
        if (scanner.peek() == QLatin1Char('/')) {
            scanner.take();
            continue;
        }
        const auto value = scanner.number();
        if (!value) {
            return {};
        }
        const bool isPercent = scanner.word() == QLatin1String("%");
        values.append(isPercent ? *value * (values.size() < 3 ? 255.0 : 1.0) / 100.0 : *value);
    }
    return values;
}

int channel(double value)
{
    return qRound(qBound(0.0, value, 255.0));
}

std::optional<QTransform> transformStep(const QString &name, const QVector<double> &n)
{
    if (name == QLatin1String("matrix") && n.size() == 6) {
        return QTransform(n[0], n[1], n[2], n[3], n[4], n[5]);
    }
    if (name == QLatin1String("translate") && (n.size() == 1 || n.size() == 2)) {
        return QTransform::fromTranslate(n[0], n.value(1, 0));
    }
    if (name == QLatin1String("scale") && (n.size() == 1 || n.size() == 2)) {
        return QTransform::fromScale(n[0], n.value(1, n[0]));
    }
    if (name == QLatin1String("rotate") && (n.size() == 1 || n.size() == 3)) {
        const double x = n.value(1, 0);
        const double y = n.value(2, 0);
        return QTransform::fromTranslate(-x, -y) * QTransform().rotate(n[0]) * QTransform::fromTranslate(x, y);
    }
    if (name == QLatin1String("skewX") && n.size() == 1) {
        return QTransform(1, 0, std::tan(n[0] / degreesOfRadian), 1, 0, 0);
    }
    if (name == QLatin1String("skewY") && n.size() == 1) {
        return QTransform(1, std::tan(n[0] / degreesOfRadian), 0, 1, 0, 0);
    }
    return std::nullopt;
}

// Walks the commands of a path that draw straight lines.
class StraightPath
{
public:
    explicit StraightPath(const QString &data)
        : m_scanner(data)
    {
    }

    std::optional<QVector<SvgOutline>> read()
    {
        QChar command;
        while (!m_scanner.atEnd()) {
            if (m_scanner.peek().isLetter()) {
                command = m_scanner.take();
            } else if (command.toUpper() == QLatin1Char('M')) {
                // Pairs behind the first are lines.
                command = command.isUpper() ? QLatin1Char('L') : QLatin1Char('l');
            } else if (command.toUpper() == QLatin1Char('Z')) {
                return std::nullopt;
            }
            if (!step(command)) {
                return std::nullopt;
            }
        }
        return m_outlines;
    }

private:
    bool step(QChar command)
    {
        const bool isRelative = command.isLower();
        const QPointF base = isRelative ? m_at : QPointF();
        switch (command.toUpper().unicode()) {
        case 'M':
        case 'L': {
            const auto x = m_scanner.number();
            const auto y = m_scanner.number();
            if (!x || !y) {
                return false;
            }
            m_at = base + QPointF(*x, *y);
            if (command.toUpper() == QLatin1Char('M')) {
                m_outlines.append(SvgOutline{QPolygonF() << m_at, false});
                return true;
            }
            return line();
        }
        case 'H':
        case 'V': {
            const auto value = m_scanner.number();
            if (!value) {
                return false;
            }
            if (command.toUpper() == QLatin1Char('H')) {
                m_at.setX(base.x() + *value);
            } else {
                m_at.setY(base.y() + *value);
            }
            return line();
        }
        case 'Z':
            if (m_outlines.isEmpty()) {
                return false;
            }
            m_outlines.last().closed = true;
            m_at = m_outlines.last().points.first();
            return true;
        default:
            return false;
        }
    }

    bool line()
    {
        if (m_outlines.isEmpty()) {
            return false;
        }
        if (m_outlines.constLast().closed) {
            const QPointF start = m_outlines.constLast().points.first();
            m_outlines.append(SvgOutline{QPolygonF() << start, false});
        }
        m_outlines.last().points.append(m_at);
        return true;
    }

    SvgScanner m_scanner;
    QPointF m_at;
    QVector<SvgOutline> m_outlines;
};

} // namespace

QVector<double> svgNumbers(const QString &text)
{
    QVector<double> numbers;
    SvgScanner scanner(text);
    while (const auto value = scanner.number()) {
        numbers.append(*value);
    }
    return numbers;
}

std::optional<double> svgLength(const QString &text, double reference, double fontSize)
{
    struct Unit
    {
        const char *name;
        double pixels;
    };
    static constexpr Unit units[] = {{"", 1},           {"px", 1},         {"pt", 96.0 / 72}, {"pc", 16},
                                     {"mm", 96 / 25.4}, {"cm", 96 / 2.54}, {"in", 96}};
    SvgScanner scanner(text);
    const auto value = scanner.number();
    if (!value) {
        return std::nullopt;
    }
    const QString unit = scanner.word();
    if (unit == QLatin1String("%")) {
        return *value * reference / 100;
    }
    if (unit == QLatin1String("em")) {
        return *value * fontSize;
    }
    if (unit == QLatin1String("ex")) {
        return *value * fontSize / 2;
    }
    for (const Unit &known : units) {
        if (unit == QLatin1String(known.name)) {
            return *value * known.pixels;
        }
    }
    return std::nullopt;
}

std::optional<QColor> svgColor(const QString &text)
{
    const QString trimmed = text.trimmed();
    if (trimmed == QLatin1String("none") || trimmed == QLatin1String("transparent")) {
        return QColor(0, 0, 0, 0);
    }
    const auto rgba = argumentsOf(trimmed, QLatin1String("rgba"));
    const auto rgb = rgba ? std::nullopt : argumentsOf(trimmed, QLatin1String("rgb"));
    if (rgba || rgb) {
        const QVector<double> values = channels(rgba ? *rgba : *rgb);
        if (rgb && values.size() == 4 && !trimmed.contains(QLatin1Char('/'))) {
            return QColor(channel(values[1]), channel(values[2]), channel(values[3]), channel(values[0]));
        }
        if (values.size() < 3) {
            return std::nullopt;
        }
        return QColor(channel(values[0]), channel(values[1]), channel(values[2]), channel(values.value(3, 1) * 255));
    }
    const bool isHex = trimmed.startsWith(QLatin1Char('#'));
    if (trimmed.isEmpty() || (isHex && trimmed.size() != 4 && trimmed.size() != 7)) {
        return std::nullopt;
    }
    QColor color;
    color.setNamedColor(trimmed.toLower());
    return color.isValid() ? std::optional<QColor>(color) : std::nullopt;
}

std::optional<QTransform> svgTransform(const QString &text)
{
    QTransform result;
    int at = 0;
    for (;;) {
        while (at < text.size() && (text.at(at).isSpace() || text.at(at) == QLatin1Char(','))) {
            ++at;
        }
        if (at >= text.size()) {
            return result;
        }
        const int open = text.indexOf(QLatin1Char('('), at);
        const int close = text.indexOf(QLatin1Char(')'), at);
        if (open < 0 || close < open) {
            return std::nullopt;
        }
        const auto step =
            transformStep(text.mid(at, open - at).trimmed(), svgNumbers(text.mid(open + 1, close - open - 1)));
        if (!step) {
            return std::nullopt;
        }
        result = *step * result;
        at = close + 1;
    }
}

std::optional<QVector<SvgOutline>> svgStraightPath(const QString &data)
{
    return StraightPath(data).read();
}

QHash<QString, QString> svgDeclarations(const QString &style)
{
    QHash<QString, QString> declarations;
    const QStringList rows = style.split(QLatin1Char(';'));
    for (const QString &row : rows) {
        const int colon = row.indexOf(QLatin1Char(':'));
        if (colon > 0) {
            QString value = row.mid(colon + 1);
            value.remove(QLatin1String("!important"));
            declarations.insert(row.left(colon).trimmed(), value.trimmed());
        }
    }
    return declarations;
}

} // namespace lessonhost

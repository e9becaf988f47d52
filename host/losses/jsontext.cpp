// SPDX-License-Identifier: MIT
#include "losses/jsontext.h"

#include "losses/comparison.h"

#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QLocale>

#include <cmath>
#include <cstring>

namespace lessonhost {

namespace {

// Each number of so many digits is another double.
constexpr int digitsOfDouble = 15;
constexpr int toldSteps = 64;
// Fewer names are compared one by one.
constexpr int fewMembers = 12;

/*!
 * A decimal number as its digits, without zeros at either end, times a power of ten.
 */
struct Decimal
{
    QByteArray digits;
    qint64 exponent = 0;
    bool isNegative = false;

    friend bool operator==(const Decimal &one, const Decimal &other)
    {
        return one.digits == other.digits && one.exponent == other.exponent && one.isNegative == other.isNegative;
    }
};

Decimal decimalOf(const QByteArray &text)
{
    Decimal decimal;
    bool isFraction = false;
    int i = text.startsWith('-') ? 1 : 0;
    for (; i < text.size() && text.at(i) != 'e' && text.at(i) != 'E'; ++i) {
        if (text.at(i) == '.') {
            isFraction = true;
            continue;
        }
        decimal.exponent -= isFraction ? 1 : 0;
        if (!decimal.digits.isEmpty() || text.at(i) != '0') {
            decimal.digits += text.at(i);
        }
    }
    decimal.exponent += text.mid(i + 1).toLongLong();
    while (decimal.digits.endsWith('0')) {
        decimal.digits.chop(1);
        ++decimal.exponent;
    }
    if (decimal.digits.isEmpty()) {
        return {};
    }
    decimal.isNegative = text.startsWith('-');
    return decimal;
}

bool isHeldByDouble(const QByteArray &number)
{
    const bool isShort = number.size() <= digitsOfDouble && !number.contains('e') && !number.contains('E');
    if (isShort) {
        return true;
    }
    const double value = number.toDouble();
    const Decimal decimal = decimalOf(number);
    if (decimal == decimalOf(QByteArray::number(value, 'g', QLocale::FloatingPointShortest))) {
        return true;
    }
    // Large whole numbers are written with all their digits.
    constexpr double limit = 9.2e18;
    return qAbs(value) < limit && std::floor(value) == value && decimal == decimalOf(QByteArray::number(qint64(value)));
}

QByteArray unescapedName(const QByteArray &text)
{
    if (!text.contains('\\')) {
        return text;
    }
    return QJsonDocument::fromJson("[\"" + text + "\"]").array().at(0).toString().toUtf8();
}

QJsonValue parsed(const QByteArray &text)
{
    return QJsonDocument::fromJson('[' + text + ']').array().at(0);
}

class JsonScan
{
public:
    JsonScan(const QByteArray &json, const std::function<void(const JsonPath &, const QByteArray &)> &visit)
        : m_json(json)
        , m_visit(visit)
    {
    }

    void scan()
    {
        while (m_at < m_json.size()) {
            const char c = m_json.at(m_at);
            switch (c) {
            case '{':
            case '[':
                m_levels.append({c == '{', {}, {}});
                m_path.append(JsonStep());
                ++m_at;
                break;
            case '}':
            case ']':
                endMember();
                if (m_levels.isEmpty()) {
                    return;
                }
                m_levels.removeLast();
                m_path.removeLast();
                ++m_at;
                break;
            case ',':
                endMember();
                if (!m_path.isEmpty()) {
                    ++m_path.last().index;
                }
                ++m_at;
                break;
            case '"':
                text();
                break;
            case ' ':
            case '\t':
            case '\n':
            case '\r':
            case ':':
                ++m_at;
                break;
            default:
                literal(c);
                break;
            }
        }
    }

private:
    struct Member
    {
        QByteArray name;
        int begin;
        int end;
    };
    struct Level
    {
        bool isObject;
        QVector<Member> members;
        QHash<QByteArray, int> indexes; // of the members, where there are more than a few
    };

    void text()
    {
        const int begin = ++m_at;
        while (m_at < m_json.size() && m_json.at(m_at) != '"') {
            m_at += m_json.at(m_at) == '\\' ? 2 : 1;
        }
        const int end = qMin(m_at, m_json.size());
        ++m_at;
        if (m_levels.isEmpty() || !m_levels.last().isObject || !m_path.last().name.isNull()) {
            return;
        }
        m_path.last().name = unescapedName(QByteArray::fromRawData(m_json.constData() + begin, end - begin));
        while (m_at < m_json.size() && m_json.at(m_at) != ':') {
            ++m_at;
        }
        m_levels.last().members.append({m_path.last().name, ++m_at, m_at});
    }

    void literal(char c)
    {
        const int begin = m_at;
        do {
            ++m_at;
        } while (m_at < m_json.size() && !std::strchr(",:]}[{\" \t\r\n", m_json.at(m_at)));
        if (c != '-' && (c < '0' || c > '9')) {
            return;
        }
        const QByteArray number = QByteArray::fromRawData(m_json.constData() + begin, m_at - begin);
        if (!isHeldByDouble(number)) {
            m_visit(m_path, number);
        }
    }

    void endMember()
    {
        if (m_levels.isEmpty() || !m_levels.last().isObject || m_path.last().name.isNull()) {
            return;
        }
        Level &level = m_levels.last();
        Member &member = level.members.last();
        member.end = m_at;
        const int before = memberBefore(level);
        if (before >= 0) {
            const QByteArray dropped = textOf(level.members.at(before));
            const QByteArray stays = textOf(member);
            if (dropped != stays && !saysAllOf(QString::fromUtf8(member.name), parsed(dropped), parsed(stays))) {
                m_visit(m_path, dropped);
            }
        }
        m_path.last().name = QByteArray();
    }

    // The member of the name that the last one has.
    int memberBefore(Level &level) const
    {
        const int last = level.members.size() - 1;
        const QByteArray &name = level.members.at(last).name;
        if (last < fewMembers) {
            int i = last - 1;
            while (i >= 0 && level.members.at(i).name != name) {
                --i;
            }
            return i;
        }
        const int unlisted = level.indexes.isEmpty() ? last : 0;
        for (int i = 0; i < unlisted; ++i) {
            level.indexes.insert(level.members.at(i).name, i);
        }
        const int before = level.indexes.value(name, -1);
        level.indexes.insert(name, last);
        return before;
    }

    QByteArray textOf(const Member &member) const
    {
        return m_json.mid(member.begin, member.end - member.begin).trimmed();
    }

    const QByteArray &m_json;
    const std::function<void(const JsonPath &, const QByteArray &)> &m_visit;
    QVector<Level> m_levels;
    JsonPath m_path;
    int m_at = 0;
};

} // namespace

void eachUnheldValue(const QByteArray &json,
                     const std::function<void(const JsonPath &path, const QByteArray &value)> &visit)
{
    JsonScan(json, visit).scan();
}

bool isJsonHeld(const QByteArray &json)
{
    bool isHeld = true;
    eachUnheldValue(json, [&isHeld](const JsonPath &, const QByteArray &) { isHeld = false; });
    return isHeld;
}

QString jsonPathText(const JsonPath &path, int from)
{
    QString text;
    for (int i = from; i < path.size(); ++i) {
        if (i == from + toldSteps / 2 && path.size() - from > toldSteps) {
            text += QLatin1String("...");
            i = path.size() - toldSteps / 2;
        }
        const JsonStep &step = path.at(i);
        if (step.name.isNull()) {
            text += QStringLiteral("[%1]").arg(step.index);
        } else {
            text += (text.isEmpty() ? QString() : QStringLiteral(".")) + QString::fromUtf8(step.name.left(200));
        }
    }
    return text;
}

} // namespace lessonhost

// SPDX-License-Identifier: MIT
#include "files/compactjson.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <array>
#include <charconv>
#include <cmath>

namespace lessonhost {

namespace {

class JsonOutput
{
public:
    void write(const QJsonValue &value)
    {
        switch (value.type()) {
        case QJsonValue::String:
            writeText(value.toString());
            break;
        case QJsonValue::Array:
            writeArray(value.toArray());
            break;
        case QJsonValue::Object:
            writeObject(value.toObject());
            break;
        case QJsonValue::Bool:
            m_bytes += value.toBool() ? "true" : "false";
            break;
        case QJsonValue::Double:
            writeNumber(value);
            break;
        default:
            m_bytes += "null";
        }
    }

    QByteArray bytes() const { return m_bytes; }
    bool isReadable() const { return m_isReadable; }

private:
    void enter()
    {
        constexpr int certain = 1000; // levels, of 1024
        m_isReadable = ++m_depth < certain && m_isReadable;
    }

    void writeObject(const QJsonObject &object)
    {
        enter();
        char separator = '{';
        for (auto it = object.constBegin(); it != object.constEnd(); ++it) {
            m_bytes += separator;
            writeText(it.key());
            m_bytes += ':';
            write(it.value());
            separator = ',';
        }
        m_bytes += object.isEmpty() ? "{}" : "}";
        --m_depth;
    }

    void writeArray(const QJsonArray &array)
    {
        enter();
        char separator = '[';
        for (const QJsonValue &value : array) {
            m_bytes += separator;
            write(value);
            separator = ',';
        }
        m_bytes += array.isEmpty() ? "[]" : "]";
        --m_depth;
    }

    void writeNumber(const QJsonValue &value)
    {
        // Others have an exponent, or are near those that have.
        constexpr double smallest = 1e-3;
        constexpr double beyondPlain = 1e6;
        const double number = value.toDouble();
        const double size = std::fabs(number);
        if ((size >= smallest && size < beyondPlain) || (number == 0 && !std::signbit(number))) {
            std::array<char, 32> digits{};
            char *const end = digits.data() + digits.size();
            const auto result = number == int(number)
                ? std::to_chars(digits.data(), end, int(number))
                : std::to_chars(digits.data(), end, number, std::chars_format::fixed);
            m_bytes.append(digits.data(), int(result.ptr - digits.data()));
            return;
        }
        const QByteArray array = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
        m_bytes.append(array.constData() + 1, array.size() - 2);
    }

    static bool isPlain(ushort c) { return c >= ' ' && c < 0x80 && c != '"' && c != '\\'; }

    // Plain letters, which are most, in one go.
    void writeText(const QString &text)
    {
        m_bytes += '"';
        const QChar *at = text.constData();
        const QChar *const end = at + text.size();
        while (at < end) {
            const int before = m_bytes.size();
            m_bytes.resize(before + int(end - at));
            char *out = m_bytes.data() + before;
            while (at < end && isPlain(at->unicode())) {
                *out++ = char(at->unicode());
                ++at;
            }
            m_bytes.resize(int(out - m_bytes.constData()));
            at = at < end ? writeOdd(at, end) : at;
        }
        m_bytes += '"';
    }

    // Gives what stands behind.
    const QChar *writeOdd(const QChar *at, const QChar *end)
    {
        if (at->unicode() < 0x80) {
            writeEscape(at->unicode());
            return at + 1;
        }
        if (!at->isSurrogate()) {
            const QChar *const begin = at;
            while (at < end && at->unicode() >= 0x80 && !at->isSurrogate()) {
                m_isReadable = m_isReadable && at->unicode() != QChar::ByteOrderMark;
                ++at;
            }
            m_bytes += QString::fromRawData(begin, int(at - begin)).toUtf8();
            return at;
        }
        m_isReadable = false;
        if (at->isHighSurrogate() && at + 1 < end && (at + 1)->isLowSurrogate()) {
            m_bytes += QString::fromRawData(at, 2).toUtf8();
            return at + 2;
        }
        writeCode(at->unicode());
        return at + 1;
    }

    void writeEscape(ushort c)
    {
        constexpr char named[] = "\"\\\b\f\n\r\t";
        constexpr char names[] = "\"\\bfnrt";
        for (int i = 0; named[i] != 0; ++i) {
            if (c == ushort(named[i])) {
                m_bytes += '\\';
                m_bytes += names[i];
                return;
            }
        }
        writeCode(c);
    }

    void writeCode(ushort c) { m_bytes += "\\u" + QByteArray::number(c, 16).rightJustified(4, '0'); }

    QByteArray m_bytes;
    int m_depth = 0;
    bool m_isReadable = true;
};

} // namespace

QByteArray compactJson(const QJsonValue &value, bool *isReadable)
{
    JsonOutput output;
    output.write(value);
    if (isReadable) {
        *isReadable = output.isReadable();
    }
    return output.bytes();
}

} // namespace lessonhost

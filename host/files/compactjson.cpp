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

private:
    void writeObject(const QJsonObject &object)
    {
        char separator = '{';
        for (auto it = object.constBegin(); it != object.constEnd(); ++it) {
            m_bytes += separator;
            writeText(it.key());
            m_bytes += ':';
            write(it.value());
            separator = ',';
        }
        m_bytes += object.isEmpty() ? "{}" : "}";
    }

    void writeArray(const QJsonArray &array)
    {
        char separator = '[';
        for (const QJsonValue &value : array) {
            m_bytes += separator;
            write(value);
            separator = ',';
        }
        m_bytes += array.isEmpty() ? "[]" : "]";
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
            const QChar *const begin = at;
            while (at < end && isPlain(at->unicode())) {
                ++at;
            }
            const int before = m_bytes.size();
            m_bytes.resize(before + int(at - begin));
            char *out = m_bytes.data() + before;
            for (const QChar *letter = begin; letter < at; ++letter) {
                *out++ = char(letter->unicode());
            }
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
                ++at;
            }
            m_bytes += QString::fromRawData(begin, int(at - begin)).toUtf8();
            return at;
        }
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
};

} // namespace

QByteArray compactJson(const QJsonValue &value)
{
    JsonOutput output;
    output.write(value);
    return output.bytes();
}

} // namespace lessonhost

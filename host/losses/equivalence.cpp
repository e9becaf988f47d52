// SPDX-License-Identifier: MIT
#include "losses/equivalence.h"

#include "lesson/itemvalues.h"
#include "lesson/numbertexts.h"
#include "losses/jsontext.h"

#include <QColor>
#include <QJsonDocument>
#include <QVector>

#include <algorithm>
#include <optional>

namespace lessonhost {

namespace {

struct FormOfPlace
{
    const char *parent; // null: any
    const char *tag;
    const char *attribute;
    ValueForm form;
    const char *implied = ""; // what a missing one says
};

constexpr FormOfPlace formsOfPlaces[] = {
    {"", "", "visible", ValueForm::Flag, "1"},
    {"", "", "locked", ValueForm::Flag, "0"},
    {"", "", "uclone", ValueForm::Flag, "0"},
    {"", "", "horizonflip", ValueForm::Text, "0"},
    {"", "", "verticalflip", ValueForm::Text, "0"},
    {"transform", "rotate", "angle", ValueForm::Number, "0"},
    // Ink.
    {"", "", "color", ValueForm::InkColor},
    {"", "", "opacity", ValueForm::Number},
    {"", "", "width", ValueForm::InkWidth},
    {"data", "vertex", "points", ValueForm::Points},
    {"element", "property", "pixelDeleteInfos", ValueForm::Json},
    // Items of the subjects.
    {"data", "rect", "controlpoints", ValueForm::Numbers},
    {"properties", "property", "value", ValueForm::SubjectColor},
    // Mind maps.
    {"mapItemInfo", "type", "", ValueForm::Number},
    {"mapItemInfo", "style", "", ValueForm::Number},
    {"mapItemInfo", "spreadStyle", "", ValueForm::Number},
    {"edge", "style", "", ValueForm::Number},
    {nullptr, "position", "", ValueForm::Number},
    {nullptr, "width", "", ValueForm::Number},
    {nullptr, "height", "", ValueForm::Number},
    {nullptr, "visiable", "", ValueForm::Flag},
    {nullptr, "childrenVisiable", "", ValueForm::Flag},
    {nullptr, "shade", "", ValueForm::Flag},
    {nullptr, "stamp", "", ValueForm::Number},
    // Questions.
    {"data", "page_scale", "", ValueForm::Number},
    {"data", "answer_width", "", ValueForm::Number},
    {"data", "answer_height", "", ValueForm::Number},
    {"data", "content_width", "", ValueForm::Number},
    {"data", "content_height", "", ValueForm::Number},
    // Items that no translator knows.
    {"", "", "json", ValueForm::Json},
};

// Nothing if a part is no number.
std::optional<QVector<double>> numbersOf(const QString &text)
{
    QVector<double> numbers;
    QVector<QStringRef> parts = text.splitRef(QLatin1Char(','));
    if (parts.size() > 1 && parts.last().isEmpty()) {
        parts.removeLast();
    }
    for (const QStringRef &part : qAsConst(parts)) {
        bool isNumber = false;
        numbers.append(numberOfText(part, &isNumber));
        if (!isNumber || !qIsFinite(numbers.last())) {
            return std::nullopt;
        }
    }
    return numbers;
}

bool haveSameNumbers(const QString &one, const QString &other)
{
    const auto numbers = numbersOf(one);
    return numbers && numbers == numbersOf(other);
}

// Sums of steps differ in digits that single precision doesn't have.
bool haveSamePoints(const QString &one, const QString &other)
{
    const auto numbers = numbersOf(one);
    const auto others = numbersOf(other);
    return numbers && others
        && std::equal(numbers->cbegin(), numbers->cend(), others->cbegin(), others->cend(), [](double a, double b) {
               return qAbs(a - b) <= 1e-9 * qMax(qAbs(a), qAbs(b)) || float(a) == float(b);
           });
}

bool isSameFlag(const QString &one, const QString &other)
{
    const auto flag = numbersOf(one);
    return flag && (*flag == QVector<double>{0} || *flag == QVector<double>{1}) && flag == numbersOf(other);
}

bool isSameInk(const QString &one, const QString &other)
{
    const QColor color(one);
    const QColor otherColor(other);
    return color.isValid() && otherColor.isValid() && color.rgba() == otherColor.rgba();
}

bool isSameSubjectColor(const QString &one, const QString &other)
{
    auto channels = numbersOf(one);
    if (channels && channels->size() == 3) {
        channels->prepend(255);
    }
    return channels && channels->size() == 4 && channels == numbersOf(other);
}

bool isSameJson(const QString &one, const QString &other)
{
    const QByteArray text = one.toUtf8();
    const QJsonDocument document = QJsonDocument::fromJson(text);
    return !document.isNull() && document == QJsonDocument::fromJson(other.toUtf8()) && isJsonHeld(text);
}

const FormOfPlace *rowOf(const XmlPlace &place)
{
    const auto found = std::find_if(std::begin(formsOfPlaces), std::end(formsOfPlaces), [&](const FormOfPlace &row) {
        return place.tag == QLatin1String(row.tag) && place.attribute == QLatin1String(row.attribute)
            && (!row.parent || place.parent == QLatin1String(row.parent));
    });
    return found == std::end(formsOfPlaces) ? nullptr : found;
}

} // namespace

ValueForm formOfPlace(const XmlPlace &place)
{
    const FormOfPlace *row = rowOf(place);
    return row ? row->form : ValueForm::Text;
}

QString impliedText(const XmlPlace &place)
{
    const FormOfPlace *row = rowOf(place);
    return row ? QString(QLatin1String(row->implied)) : QString();
}

bool isSameText(ValueForm form, const QString &given, const QString &found)
{
    if (given == found) {
        return true;
    }
    switch (form) {
    case ValueForm::Text:
        break;
    case ValueForm::Flag:
        return isSameFlag(given, found);
    case ValueForm::Number:
    case ValueForm::Numbers:
        return haveSameNumbers(given, found);
    case ValueForm::Points:
        return haveSamePoints(given, found);
    case ValueForm::InkColor:
        return isSameInk(given, found);
    case ValueForm::InkWidth:
        return QString(given).remove(QLatin1String("[ ,]")) == found;
    case ValueForm::SubjectColor:
        return isSameSubjectColor(given, found);
    case ValueForm::Json:
        return isSameJson(given, found);
    }
    return false;
}

} // namespace lessonhost

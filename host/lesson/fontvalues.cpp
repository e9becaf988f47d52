// SPDX-License-Identifier: MIT
#include "lesson/fontvalues.h"

#include <QRegularExpression>

#include <algorithm>
#include <iterator>

namespace lessonhost {

namespace {

// Weights as svg numbers them and as fonts here do.
struct Weight
{
    int svg;
    int font;
};
constexpr Weight weights[] = {{100, 0},  {200, 12}, {300, 25}, {400, 50}, {500, 57},
                              {600, 63}, {700, 75}, {800, 81}, {900, 87}};
constexpr int normalWeight = 50;
constexpr int boldWeight = 75;

struct AlignmentName
{
    Qt::AlignmentFlag flag;
    const char *svg;
    const char *html;
    const char *anchor; //!< as svg names what stands at a point
};
constexpr AlignmentName alignments[] = {
    {Qt::AlignLeft, "start", "left", "start"},
    {Qt::AlignRight, "end", "right", "end"},
    {Qt::AlignHCenter, "center", "center", "middle"},
    {Qt::AlignJustify, "justify", "justify", "justify"},
};

// A part of a font's name, and what it tells. The first that fits counts.
struct FamilyKind
{
    QStringView part;
    const char *generic;
};
constexpr FamilyKind familyKinds[] = {
    {u"mono", "monospace"}, {u"courier", "monospace"}, {u"consolas", "monospace"}, {u"sans", "sans-serif"},
    {u"serif", "serif"},    {u"times", "serif"},       {u"georgia", "serif"},      {u"cambria", "serif"},
    {u"garamond", "serif"}, {u"palatino", "serif"},    {u"song", "serif"},         {u"simsun", "serif"},
    {u"ming", "serif"},     {u"mincho", "serif"},      {u"kai", "serif"},          {u"batang", "serif"},
    {u"宋", "serif"},       {u"明", "serif"},          {u"楷", "serif"},
};

const AlignmentName &alignmentName(Qt::Alignment alignment)
{
    for (const AlignmentName &name : alignments) {
        if (alignment & name.flag) {
            return name;
        }
    }
    return alignments[0];
}

} // namespace

int fontWeight(const QString &text)
{
    bool isNumber = false;
    const int number = text.toInt(&isNumber);
    if (!isNumber) {
        return text.startsWith(QLatin1String("bold")) ? boldWeight : normalWeight;
    }
    int font = normalWeight;
    for (const Weight &weight : weights) {
        if (weight.svg <= number) {
            font = weight.font;
        }
    }
    return font;
}

QString fontWeightText(int fontWeight)
{
    int best = 400;
    int bestDistance = 1000;
    for (const Weight &weight : weights) {
        const int distance = qAbs(weight.font - fontWeight);
        if (distance < bestDistance) {
            bestDistance = distance;
            best = weight.svg;
        }
    }
    switch (best) {
    case 400:
        return QStringLiteral("normal");
    case 700:
        return QStringLiteral("bold");
    default:
        return QString::number(best);
    }
}

Qt::AlignmentFlag textAlignment(const QString &text)
{
    for (const AlignmentName &name : alignments) {
        for (const char *known : {name.svg, name.html, name.anchor}) {
            if (text == QLatin1String(known)) {
                return name.flag;
            }
        }
    }
    return Qt::AlignLeft;
}

QLatin1String svgAlignment(Qt::Alignment alignment)
{
    return QLatin1String(alignmentName(alignment).svg);
}

QLatin1String htmlAlignment(Qt::Alignment alignment)
{
    return QLatin1String(alignmentName(alignment).html);
}

QStringList withGenericFamily(QStringList families)
{
    const QString first = families.value(0).toLower();
    const auto *const kind = std::find_if(std::begin(familyKinds), std::end(familyKinds),
                                          [&first](const FamilyKind &row) { return first.contains(row.part); });
    const QString generic = QLatin1String(kind == std::end(familyKinds) ? "sans-serif" : kind->generic);
    families.removeAll(generic);
    families.append(generic);
    return families;
}

QStringList familiesIn(const QString &list)
{
    QStringList families;
    for (QString name : list.split(QLatin1Char(','))) {
        name = name.remove(QLatin1Char('\'')).remove(QLatin1Char('"')).simplified();
        if (!name.isEmpty()) {
            families.append(name);
        }
    }
    return families;
}

// Words of letters and digits need no quotes. What names of fonts don't have stays out, for a style ends at a
// semicolon.
QString svgFamilies(const QStringList &families)
{
    static const QRegularExpression words(QStringLiteral("^[^\\W\\d][\\w-]*( [^\\W\\d][\\w-]*)*$"),
                                          QRegularExpression::UseUnicodePropertiesOption);
    static const QRegularExpression odd(QStringLiteral("[^\\w .+-]"), QRegularExpression::UseUnicodePropertiesOption);
    QStringList names;
    for (QString family : families) {
        family = family.remove(odd).simplified();
        if (words.match(family).hasMatch()) {
            names.append(family);
        } else if (!family.isEmpty()) {
            names.append(QLatin1Char('\'') + family + QLatin1Char('\''));
        }
    }
    return names.join(QLatin1String(", "));
}

} // namespace lessonhost

// SPDX-License-Identifier: MIT
#include "drawings/formuladrawing.h"

#include "canvas/svgelements.h"
#include "drawings/formulalayout.h"
#include "drawings/itemoutline.h"
#include "files/lessonerror.h"
#include "files/xmlloader.h"
#include "lesson/closedtext.h"
#include "svg/svgstyle.h"

#include <QHash>
#include <QRegularExpression>

namespace lessonhost {

namespace {

// Names of characters that MathML has and HTML hasn't.
QString characterOf(const QString &name)
{
    static const QHash<QString, ushort> names{
        {QStringLiteral("InvisibleTimes"), 0x2062},
        {QStringLiteral("it"), 0x2062},
        {QStringLiteral("ApplyFunction"), 0x2061},
        {QStringLiteral("af"), 0x2061},
        {QStringLiteral("InvisibleComma"), 0x2063},
        {QStringLiteral("ic"), 0x2063},
        {QStringLiteral("PlusMinus"), 0xb1},
        {QStringLiteral("pm"), 0xb1},
        {QStringLiteral("MinusPlus"), 0x2213},
        {QStringLiteral("minus"), 0x2212},
        {QStringLiteral("Sum"), 0x2211},
        {QStringLiteral("Product"), 0x220f},
        {QStringLiteral("Integral"), 0x222b},
        {QStringLiteral("Infinity"), 0x221e},
        {QStringLiteral("Sqrt"), 0x221a},
        {QStringLiteral("NotEqual"), 0x2260},
        {QStringLiteral("leq"), 0x2264},
        {QStringLiteral("geq"), 0x2265},
        {QStringLiteral("RightArrow"), 0x2192},
        {QStringLiteral("LeftArrow"), 0x2190},
        {QStringLiteral("Rightarrow"), 0x21d2},
        {QStringLiteral("OverBar"), 0xaf},
        {QStringLiteral("UnderBar"), 0x332},
        {QStringLiteral("Hat"), '^'},
        {QStringLiteral("OverBrace"), 0x23de},
        {QStringLiteral("UnderBrace"), 0x23df},
        {QStringLiteral("DifferentialD"), 'd'},
        {QStringLiteral("dd"), 'd'},
        {QStringLiteral("ExponentialE"), 'e'},
        {QStringLiteral("ee"), 'e'},
        {QStringLiteral("ImaginaryI"), 'i'},
        {QStringLiteral("ii"), 'i'},
        {QStringLiteral("CenterDot"), 0xb7},
        {QStringLiteral("Element"), 0x2208},
        {QStringLiteral("PartialD"), 0x2202},
        {QStringLiteral("prime"), 0x2032},
        {QStringLiteral("rightleftharpoons"), 0x21cc},
        {QStringLiteral("Equilibrium"), 0x21cc},
    };
    if (names.contains(name)) {
        return QChar(names.value(name));
    }
    const QString reference = QLatin1Char('&') + name + QLatin1Char(';');
    const QString plain = plainWords(reference);
    return plain == reference ? name : plain;
}

// XML knows five names, formulas have many more.
QString withCharacters(QString mml)
{
    static const QRegularExpression reference(QStringLiteral("&([A-Za-z][A-Za-z0-9]{1,31});"));
    static const QStringList known{QStringLiteral("amp"), QStringLiteral("lt"), QStringLiteral("gt"),
                                   QStringLiteral("quot"), QStringLiteral("apos")};
    QHash<QString, QString> found;
    for (auto it = reference.globalMatch(mml); it.hasNext();) {
        const QString name = it.next().captured(1);
        if (!known.contains(name) && !found.contains(name)) {
            found.insert(name, characterOf(name));
        }
    }
    for (auto it = found.constBegin(); it != found.constEnd(); ++it) {
        mml.replace(QLatin1Char('&') + it.key() + QLatin1Char(';'), it.value().toHtmlEscaped());
    }
    return mml;
}

FormulaBox layoutOf(const QString &mml)
{
    try {
        const QDomDocument document = loadXml(withCharacters(mml).toUtf8(), QStringLiteral("mml"), XmlBlanks::Kept);
        return formulaLayout(document.documentElement());
    } catch (const LessonError &) {
        return {};
    }
}

void addLetters(QDomElement &group, const FormulaPart &part, const QColor &color)
{
    QDomElement text = group.ownerDocument().createElement(QStringLiteral("text"));
    group.appendChild(text);
    text.setAttribute(QStringLiteral("x"), drawnNumber(part.middle.x()));
    text.setAttribute(QStringLiteral("y"), drawnNumber(part.middle.y()));
    text.setAttribute(QStringLiteral("font-size"), drawnNumber(part.size));
    setDrawnColor(text, "fill", color);
    if (part.isItalic) {
        text.setAttribute(QStringLiteral("font-style"), QStringLiteral("italic"));
    }
    if (part.isBold) {
        text.setAttribute(QStringLiteral("font-weight"), QStringLiteral("bold"));
    }
    text.appendChild(group.ownerDocument().createTextNode(part.text));
}

void addFormula(PlainSvg &svg, const FormulaBox &formula, const QTransform &placed, const QColor &color)
{
    const PlainSvg::Scope scope(svg, placed);
    // Words about their middles, so that letters of other widths stand where they should.
    QDomElement words = svg.addGroup({});
    words.setAttribute(QStringLiteral("text-anchor"), QStringLiteral("middle"));
    setDrawnFamilies(words, formulaFamilies());
    for (const FormulaPart &part : formula.parts) {
        const QColor own = part.color.isValid() ? part.color : color;
        if (part.text.isEmpty()) {
            SvgPaint paint;
            paint.fill = Qt::transparent;
            paint.line = own;
            paint.lineWidth = part.lineWidth;
            svg.addPath(part.lines, paint);
        } else {
            addLetters(words, part, own);
        }
    }
}

bool drawFormula(Canvas &canvas, const ItemView &item)
{
    const auto box = item.box();
    if (!box || box->isEmpty()) {
        return false;
    }
    const QTransform placed = placeOnPage(item);
    const FormulaBox formula = layoutOf(item.text(QLatin1String("mml")));
    if (formula.parts.isEmpty() || !(formula.width > 0 && formula.height() > 0)) {
        return canvas.addPicture(item.text(ItemKeys::document), *box, placed);
    }
    const double scale = qMin(box->width() / formula.width, box->height() / formula.height());
    const QPointF corner = box->center() - QPointF(formula.width, formula.height()) * scale / 2;
    const QTransform toBox = QTransform::fromTranslate(0, formula.ascent) * QTransform::fromScale(scale, scale)
        * QTransform::fromTranslate(corner.x(), corner.y());
    addFormula(canvas.svg(), formula, toBox * placed, item.color(QLatin1String("color")).value_or(QColor(Qt::black)));
    return true;
}

// A formula that is a text.
bool drawExpression(Canvas &canvas, const ItemView &item)
{
    const auto box = item.box();
    const bool isDrawn = box && !box->isEmpty() && item.has(ItemKeys::html);
    if (isDrawn) {
        canvas.addText(item.text(ItemKeys::html), *box, placeOnPage(item));
    }
    return isDrawn;
}

} // namespace

SvgDrawing formulaDrawing(const QString &type)
{
    static const QHash<QString, SvgDrawing> drawings{
        {QStringLiteral("ZQFormulaEditorItem"), &drawFormula},
        {QStringLiteral("ZQFormulaMath"), &drawExpression},
        {QStringLiteral("ZQMathToolExpressions"), &drawExpression},
    };
    return drawings.value(type);
}

} // namespace lessonhost

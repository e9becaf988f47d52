#include "iwb/iwbitemwriter.h"

#include "files/lessonerror.h"
#include "files/pictures.h"
#include "iwb/shapeplacing.h"
#include "izqtransformation.h"
#include "lesson/itemplace.h"
#include "lesson/itemvalues.h"
#include "lesson/shapeforms.h"
#include "lesson/textruns.h"
#include "losses/lossreport.h"
#include "svg/pluginoutlines.h"
#include "svg/svgextent.h"
#include "svg/svgstyle.h"

#include <QFile>
#include <QSet>

#include <cmath>

namespace lessonhost {

namespace {

const QLatin1String idKey("ID");
const QLatin1String typeKey("Type");
const QLatin1String linkTypeKey("InteractiveType");
const QLatin1String linkValueKey("InteractiveValue");
const QLatin1String openFile("ACTION_OPENFILE");

// Keys of an item that go over, one way or another, or that say nothing about the item itself.
constexpr const char *carriedByAll[] = {"ID",
                                        "Type",
                                        "BoundingBox",
                                        "Matrix",
                                        "SlideMatrix",
                                        "Angle",
                                        "Visible",
                                        "LockIn",
                                        "InfiniteClone",
                                        "InteractiveType",
                                        "InteractiveValue",
                                        "IgnoreEraser",
                                        "IWB_TEXTINFO-VECTOR",
                                        "IWB_TEXTINFO-DELVECTOR"};
constexpr const char *carriedByShapes[] = {"Control",   "XYValue",          "ArtObj_Width",       "ArtObj_Fill",
                                           "ArtObj_Ln", "ArtObj_ArrowType", "Discipline_xCreate", "Discipline_yCreate"};
constexpr const char *carriedByStrokes[] = {"XY", "Color", "Width"};
constexpr const char *carriedByText[] = {"TextHtml", "Text", "TextContent"};
constexpr const char *carriedByMedia[] = {"resource",    "MultiMediaFile", "AbsMediaFile",
                                          "tmpFilePath", "path",           "saveType"};

// Strokes that are lines. Stamps and records of erased pixels are not.
bool isInk(const QString &type)
{
    static const QSet<QString> types{
        QStringLiteral("ZQSmoothStroke"),      QStringLiteral("ZQBrushStrokeVelocity"), QStringLiteral("ZQBrushStroke"),
        QStringLiteral("ZQCombineStroke"),     QStringLiteral("ZQStrokesCombine"),      QStringLiteral("stroke"),
        QStringLiteral("ZQFluorescentStroke"), QStringLiteral("ZQStrokeTexture"),       QStringLiteral("ZQChalkStroke"),
        QStringLiteral("ZQBrChalkStroke"),
    };
    return types.contains(type);
}

struct MediaFolder
{
    const char *type;
    const char *folder;
};
constexpr MediaFolder mediaFolders[] = {
    {"ZQImagePic", "images"},
    {"ZQMediaVideo", "videos"},
    {"ZQMediaFlash", "videos"},
    {"ZQMediaAudio", "audio"},
};

const char *mediaFolder(const QString &type)
{
    for (const MediaFolder &row : mediaFolders) {
        if (type == QLatin1String(row.type)) {
            return row.folder;
        }
    }
    return nullptr;
}

bool isTextBoard(const QString &type)
{
    return type == QLatin1String("ZQTextBoard") || type == QLatin1String("text");
}

bool isFlagSet(const QJsonValue &value, bool missing)
{
    if (value.isUndefined() || value.isNull()) {
        return missing;
    }
    if (value.isBool()) {
        return value.toBool();
    }
    return value.isDouble() ? value.toDouble() != 0 : value.toString().toInt() != 0;
}

QString textOf(const QJsonValue &value)
{
    return value.isDouble() ? QString::number(value.toDouble(), 'g', 12) : value.toString();
}

bool saysNothing(const QJsonValue &value)
{
    switch (value.type()) {
    case QJsonValue::String:
        return value.toString().isEmpty() || value.toString() == QLatin1String("0");
    case QJsonValue::Bool:
        return !value.toBool();
    case QJsonValue::Array:
        return value.toArray().isEmpty();
    case QJsonValue::Object:
        return value.toObject().isEmpty();
    case QJsonValue::Double:
        return value.toDouble() == 0;
    default:
        return true;
    }
}

SvgPaint paintOf(const QJsonObject &item, const ShapeForm &form)
{
    SvgPaint paint;
    paint.line = itemColor(item.value(QLatin1String(form.lineKey))).value_or(QColor(Qt::black));
    paint.fill = QColor(0, 0, 0, 0);
    const bool isFilled = item.value(QLatin1String("ArtObj_Fill")).toString() != QLatin1String("0");
    if (form.fillKey && isFilled) {
        paint.fill = itemColor(item.value(QLatin1String(form.fillKey))).value_or(paint.fill);
    }
    const double width = textOf(item.value(QLatin1String("ArtObj_Width"))).toDouble();
    // Shapes without a width are drawn two pixels wide.
    paint.lineWidth = width > 0 && qIsFinite(width) ? width : 2;
    return paint;
}

// The paint in the keys that the plug-in reads for this form. Widths are whole numbers, since dashes are made of them.
void setPaintKeys(QJsonObject &prepared, const ShapeForm &form, const SvgPaint &paint, const QString &dash)
{
    prepared.insert(QLatin1String(form.lineKey), lineColorText(form, paint.line));
    if (form.fillKey && paint.fill.alpha() > 0) {
        prepared.insert(QLatin1String(form.fillKey), colorText(paint.fill));
    }
    prepared.insert(QLatin1String("ArtObj_Width"), QString::number(qBound(1, qRound(paint.lineWidth), 10000)));
    if (!dash.isEmpty()) {
        prepared.insert(QLatin1String(form.dashKey), dash);
    }
}

void setNumber(QDomElement &element, const char *attribute, double value)
{
    element.setAttribute(QLatin1String(attribute), QString::number(qAbs(value) < 1e-9 ? 0 : value));
}

void setBox(QDomElement &element, const QRectF &box)
{
    setNumber(element, "x", box.x());
    setNumber(element, "y", box.y());
    setNumber(element, "width", box.width());
    setNumber(element, "height", box.height());
}

// A turn as svg tells it, in degrees, about the very centre of what is written: another would move the element when it
// is read. The numbers have blanks between them: with commas they would be in radians.
void setTurn(QDomElement &element, double angle)
{
    double degrees = std::remainder(angle * 180 / M_PI, 360);
    if (degrees < -180 + 1e-4) {
        degrees += 360;
    }
    if (qAbs(degrees) < 1e-4) {
        element.removeAttribute(QStringLiteral("transform"));
        return;
    }
    const QPointF center = drawnExtent(element).value_or(QRectF()).center();
    element.setAttribute(
        QStringLiteral("transform"),
        QStringLiteral("rotate(%1 %2 %3)").arg(degrees).arg(exactText(center.x()), exactText(center.y())));
}

// The item's own element, within a link around it.
QDomElement innermost(QDomElement element)
{
    while (element.tagName() == QLatin1String("svg:a") && !element.firstChildElement().isNull()) {
        element = element.firstChildElement();
    }
    return element;
}

// False for a shape that svg readers would see nothing of.
bool isDrawn(const QDomElement &element)
{
    const QString tag = element.tagName();
    if (tag == QLatin1String("svg:line") || tag == QLatin1String("svg:polyline")) {
        return drawnExtent(element).has_value();
    }
    const bool hasArea =
        tag == QLatin1String("svg:rect") || tag == QLatin1String("svg:circle") || tag == QLatin1String("svg:ellipse");
    const QRectF extent = drawnExtent(element).value_or(QRectF());
    return !hasArea || (extent.width() > 0 && extent.height() > 0);
}

// Points of a stroke: the first pair is a place, each further one a step.
QPolygonF strokePoints(const QJsonObject &item)
{
    QPolygonF points = pointsOf(itemNumbers(item.value(QLatin1String("XY"))));
    for (int i = 1; i < points.size(); ++i) {
        points[i] += points.at(i - 1);
    }
    const auto matrix = transformOfText(item.value(QLatin1String("Matrix")).toString());
    return matrix ? matrix->map(points) : points;
}

} // namespace

IwbItemWriter::IwbItemWriter(const Setting &setting)
    : m_setting(setting)
{
}

void IwbItemWriter::write(QDomDocument &document, QDomElement &page, const QJsonArray &items, int slide)
{
    m_document = document;
    m_page = page;
    m_slide = slide;
    for (const QJsonValue &item : items) {
        writeItem(item.toObject());
    }
}

void IwbItemWriter::writeItem(const QJsonObject &item)
{
    const QString type = item.value(typeKey).toString();
    const QJsonArray children = item.value(QLatin1String("Children")).toArray();
    if (!children.isEmpty()) {
        report(item, Loss::Note, {}, QStringLiteral("taken apart, its items stand on the page by themselves"));
        for (const QJsonValue &child : children) {
            writeItem(child.toObject());
        }
    } else if (const ShapeForm *form = shapeForm(type)) {
        writeShape(item, *form);
    } else if (isInk(type) && item.contains(QLatin1String("XY"))) {
        writeStroke(item);
    } else if (isTextBoard(type)) {
        writeText(item);
    } else if (mediaFolder(type)) {
        writeMedia(item);
    } else {
        writeOther(item);
    }
}

void IwbItemWriter::writeShape(const QJsonObject &item, const ShapeForm &form)
{
    const PlacedShape placed = placeShape(item, form, pluginOutlines(m_setting.plugin));
    const SvgPaint paint = paintOf(item, form);
    QJsonObject prepared = commonKeys(item);
    for (auto it = placed.geometry.constBegin(); it != placed.geometry.constEnd(); ++it) {
        prepared.insert(it.key(), it.value().isDouble() ? QJsonValue(textOf(it.value())) : it.value());
    }
    setPaintKeys(prepared, *placed.form, paint, textOf(item.value(QLatin1String(form.dashKey))));
    QDomElement element = convert(item, prepared);
    if (element.isNull()) {
        return;
    }
    QDomElement shape = innermost(element);
    setSvgPaint(shape, paint);
    if (shape.tagName() == QLatin1String("svg:polyline")) {
        shape.setAttribute(QStringLiteral("stroke-linejoin"), QStringLiteral("round"));
        if (!shape.hasAttribute(QStringLiteral("stroke-dasharray"))) {
            shape.setAttribute(QStringLiteral("stroke-linecap"), QStringLiteral("round"));
        }
    }
    const QRectF extent = drawnExtent(shape).value_or(QRectF());
    const QRectF box = placed.form->outline == ShapeForm::Rectangle ? placed.box.value_or(extent) : extent;
    setBox(shape, box);
    setTurn(shape, placed.angle);
    reportUncarried(withoutDoubledWidth(item), carriedByShapes, &form);
    append(item, element);
}

void IwbItemWriter::writeStroke(const QJsonObject &item)
{
    const QPolygonF points = strokePoints(item);
    if (!m_setting.keepsInk || points.isEmpty()) {
        ++m_strokesLeftOut;
        report(item, Loss::Item, {},
               m_setting.keepsInk ? QStringLiteral("it has no points") : QStringLiteral("--ink drop"));
        return;
    }
    const ShapeForm &form = *shapeForm(QStringLiteral("ZQMath2DPolyline"));
    QJsonObject polyline;
    for (const char *key :
         {"ID", "Angle", "Visible", "LockIn", "InfiniteClone", "InteractiveType", "InteractiveValue"}) {
        if (item.contains(QLatin1String(key))) {
            polyline.insert(QLatin1String(key), item.value(QLatin1String(key)));
        }
    }
    const QColor color = itemColor(item.value(QLatin1String("Color"))).value_or(QColor(Qt::red));
    polyline.insert(typeKey, QLatin1String(form.type));
    polyline.insert(QLatin1String("XYValue"), QString(pointsText(points) + QLatin1Char(',')));
    polyline.insert(QLatin1String(form.lineKey), colorText(color));
    polyline.insert(QLatin1String("ArtObj_Width"),
                    exactText(itemNumbers(item.value(QLatin1String("Width"))).value(0, 5) * itemScale(item)));
    reportUncarried(item, carriedByStrokes);
    writeShape(polyline, form);
    ++m_strokes;
}

void IwbItemWriter::writeText(const QJsonObject &item)
{
    QString html = item.value(QLatin1String("TextHtml")).toString();
    TextRuns text;
    if (!html.isEmpty()) {
        text = textRunsFromHtml(html);
    } else {
        const QString plain = item.value(QLatin1String("Text")).toString();
        const QString content = item.value(QLatin1String("TextContent")).toString();
        text = textRunsFromPlainText(plain.isEmpty() ? content : plain);
        if (!plain.isEmpty() && !content.isEmpty() && plain != content) {
            report(item, Loss::Value, QStringLiteral("TextContent"), {});
        }
    }
    for (const QString &loss : qAsConst(text.losses)) {
        report(item, Loss::Value, QStringLiteral("TextHtml"), loss);
    }
    QJsonObject prepared = commonKeys(item);
    const auto place = itemPlace(item);
    if (place) {
        prepared.insert(QLatin1String("BoundingBox"), boxText(place->box));
        prepared.insert(QLatin1String("Matrix"), QStringLiteral("1,0,0,1,0,0"));
    }
    for (int i = 0; i < text.runs.size(); ++i) {
        QString &size = text.runs[i].fontSize;
        const double pixels = size.toDouble() * itemScale(item);
        size = text.shifts.at(i).isEmpty() ? QString::number(pixels) : exactText(pixels * shiftedLetters);
    }
    const TextRunLoan loan(prepared, text.runs);
    QDomElement element = convert(item, prepared);
    if (element.isNull()) {
        return;
    }
    QDomElement area = innermost(element);
    int run = 0;
    for (QDomElement span = area.firstChildElement(); !span.isNull(); span = span.nextSiblingElement()) {
        const QString shift = text.shifts.value(run++);
        if (!shift.isEmpty()) {
            span.setAttribute(QStringLiteral("baseline-shift"), shift);
        }
        const QString content = span.text();
        if (content.endsWith(QLatin1Char('\n')) || content.endsWith(QChar::LineSeparator)) {
            span = area.insertAfter(m_document.createElement(QStringLiteral("svg:tbreak")), span).toElement();
        }
    }
    if (place) {
        setBox(area, place->box);
        setTurn(area, place->angle);
    }
    reportUncarried(item, carriedByText);
    append(item, element);
}

void IwbItemWriter::writeMedia(const QJsonObject &item)
{
    const QString type = item.value(typeKey).toString();
    QString reference = item.value(QLatin1String("resource")).toString();
    if (reference.isEmpty()) {
        reference = item.value(QLatin1String("MultiMediaFile")).toString().section(QLatin1Char(','), 0, 0);
    }
    QString source = m_setting.files->find(reference);
    if (source.isEmpty()) {
        report(item, Loss::File, reference, QStringLiteral("the lesson has no such file"));
    } else if (type == QLatin1String("ZQImagePic")) {
        const QString problem = pictureProblem(source);
        if (!problem.isEmpty()) {
            report(item, Loss::File, reference, problem);
            source.clear();
        }
    }
    QJsonObject prepared = commonKeys(item);
    prepared.insert(QLatin1String("tmpFilePath"), m_setting.exportFolder);
    if (!source.isEmpty()) {
        prepared.insert(QLatin1String("AbsMediaFile"), source);
        prepared.insert(QLatin1String("MultiMediaFile"),
                        m_setting.files->nameIn(QLatin1String(mediaFolder(type)), source));
    }
    const auto place = itemPlace(item);
    if (place) {
        prepared.insert(QLatin1String("BoundingBox"), boxText(place->box));
        prepared.insert(QLatin1String("Matrix"), QStringLiteral("1,0,0,1,0,0"));
    }
    QDomElement element = convert(item, prepared);
    if (element.isNull()) {
        return;
    }
    QDomElement media = innermost(element);
    if (source.isEmpty()) {
        media.removeAttribute(QStringLiteral("xlink:href"));
    }
    if (place) {
        setBox(media, place->box);
        setTurn(media, place->angle);
    }
    if (media.tagName() == QLatin1String("svg:image")) {
        media.setAttribute(QStringLiteral("preserveAspectRatio"), QStringLiteral("none"));
    }
    reportUncarried(item, carriedByMedia);
    append(item, element);
}

void IwbItemWriter::writeOther(const QJsonObject &item)
{
    const QDomElement element = convert(item, commonKeys(item));
    if (!element.isNull()) {
        append(item, element);
    }
}

// What every item hands over. Nothing else of an item reaches the plug-in by itself: what a file says under keys that
// are addresses in memory or folders to write into must not count.
QJsonObject IwbItemWriter::commonKeys(const QJsonObject &item)
{
    QJsonObject prepared;
    QString id = withoutControlCharacters(textOf(item.value(idKey)));
    if (id.isEmpty()) {
        id = QStringLiteral("item%1_%2").arg(m_slide).arg(++m_generatedIds);
    }
    prepared.insert(idKey, id);
    prepared.insert(typeKey, item.value(typeKey).toString());
    prepared.insert(QLatin1String("Visible"), isFlagSet(item.value(QLatin1String("Visible")), true));
    for (const char *key : {"LockIn", "InfiniteClone"}) {
        const bool isSet = isFlagSet(item.value(QLatin1String(key)), false);
        prepared.insert(QLatin1String(key), isSet ? QStringLiteral("1") : QStringLiteral("0"));
    }
    addLink(item, prepared);
    return prepared;
}

void IwbItemWriter::addLink(const QJsonObject &item, QJsonObject &prepared)
{
    const QString kind = item.value(linkTypeKey).toString();
    if (kind.isEmpty()) {
        return;
    }
    QString value = withoutControlCharacters(textOf(item.value(linkValueKey)));
    if (kind == openFile) {
        value = linkedFile(item, value);
        if (value.isEmpty()) {
            return;
        }
        prepared.insert(QLatin1String("tmpFilePath"), m_setting.exportFolder);
    }
    prepared.insert(linkTypeKey, kind);
    prepared.insert(linkValueKey, value);
}

// The file under the name that it gets in the package, which is that of the path that the plug-in copies from.
QString IwbItemWriter::linkedFile(const QJsonObject &item, const QString &reference)
{
    const QString source = m_setting.files->find(reference);
    if (source.isEmpty()) {
        report(item, Loss::File, reference, QStringLiteral("the lesson has no such file to open"));
        return {};
    }
    const QString path =
        m_setting.linkFolder + QLatin1Char('/') + m_setting.files->nameIn(QStringLiteral("additional"), source);
    if (!QFile::exists(path) && !QFile::link(source, path) && !QFile::copy(source, path)) {
        throw LessonError(QStringLiteral("The file %1 can't be put into the package").arg(reference),
                          QStringLiteral("Make room in the folder for temporary files"));
    }
    return path;
}

// Null, and named in the report, for an item that the plug-in gives no element of its own for, or one without geometry.
QDomElement IwbItemWriter::convert(const QJsonObject &item, const QJsonObject &prepared)
{
    QDomElement root = m_document.documentElement();
    const QDomNode lastRecord = root.lastChild();
    const QDomElement element = m_setting.plugin->tranItemJSON2IWB(m_document, prepared);
    const bool isEmptyLink = prepared.contains(linkTypeKey) && element.firstChildElement().isNull();
    const bool hasForm = !element.isNull() && !isEmptyLink;
    if (hasForm && isDrawn(innermost(element))) {
        return element;
    }
    // A link around nothing would come back as a sound.
    if (root.lastChild() != lastRecord) {
        root.removeChild(root.lastChild());
    }
    report(item, Loss::Item, {}, hasForm ? QStringLiteral("it has too few points to be drawn") : QString());
    return {};
}

void IwbItemWriter::append(const QJsonObject &item, QDomElement element)
{
    QDomElement inner = innermost(element);
    if (!isFlagSet(item.value(QLatin1String("Visible")), true)) {
        inner.setAttribute(QStringLiteral("visibility"), QStringLiteral("hidden"));
    }
    m_page.appendChild(element);
    if (isFlagSet(item.value(QLatin1String("LockIn")), false)) {
        QDomElement record = m_document.createElement(QStringLiteral("iwb:element"));
        record.setAttribute(QStringLiteral("ref"), inner.attribute(QStringLiteral("id")));
        record.setAttribute(QStringLiteral("locked"), QStringLiteral("true"));
        m_document.documentElement().appendChild(record);
    }
}

void IwbItemWriter::report(const QJsonObject &item, int kind, const QString &key, const QString &detail)
{
    Loss loss;
    loss.kind = Loss::Kind(kind);
    loss.slide = m_slide;
    loss.itemType = item.value(typeKey).toString();
    loss.itemId = textOf(item.value(idKey));
    loss.key = key;
    loss.detail = detail;
    m_setting.losses->add(loss);
}

template <std::size_t size>
void IwbItemWriter::reportUncarried(const QJsonObject &item, const char *const (&carried)[size], const ShapeForm *form)
{
    const auto isCarried = [&](const QString &key) {
        const auto isKey = [&key](const char *name) { return name && key == QLatin1String(name); };
        return std::any_of(std::begin(carriedByAll), std::end(carriedByAll), isKey)
            || std::any_of(std::begin(carried), std::end(carried), isKey)
            || (form && (isKey(form->lineKey) || isKey(form->fillKey) || isKey(form->dashKey)));
    };
    for (auto it = item.constBegin(); it != item.constEnd(); ++it) {
        if (!isCarried(it.key()) && !saysNothing(it.value())) {
            report(item, Loss::Value, it.key(), {});
        }
    }
}

} // namespace lessonhost

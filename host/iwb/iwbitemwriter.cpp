#include "iwb/iwbitemwriter.h"

#include "files/outputfile.h"
#include "files/pictures.h"
#include "iwb/shapeplacing.h"
#include "izqtransformation.h"
#include "lesson/itemtypes.h"
#include "lesson/itemview.h"
#include "lesson/shapeforms.h"
#include "lesson/textruns.h"
#include "losses/lossreport.h"
#include "svg/pluginoutlines.h"
#include "svg/svggeometry.h"
#include "svg/svgstyle.h"

#include <QFile>
#include <QFileInfo>
#include <QSet>

#include <cmath>

namespace lessonhost {

namespace {

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

SvgPaint paintOf(const ItemView &item, const ShapeForm &form)
{
    SvgPaint paint;
    paint.line = item.color(QLatin1String(form.lineKey)).value_or(QColor(Qt::black));
    paint.fill = QColor(0, 0, 0, 0);
    const bool isFilled = item.text(ItemKeys::isFilled) != QLatin1String("0");
    if (form.fillKey && isFilled) {
        paint.fill = item.color(QLatin1String(form.fillKey)).value_or(paint.fill);
    }
    const double width = item.number(ItemKeys::lineWidth);
    // Shapes without a width are drawn two pixels wide.
    paint.lineWidth = width > 0 ? width : 2;
    return paint;
}

// The paint in the keys that the plug-in reads for this form. Widths are whole numbers, since dashes are made of them.
void setPaintKeys(QJsonObject &prepared, const ShapeForm &form, const SvgPaint &paint, const QString &dash)
{
    prepared.insert(QLatin1String(form.lineKey), lineColorText(form, paint.line));
    if (form.fillKey && paint.fill.alpha() > 0) {
        prepared.insert(QLatin1String(form.fillKey), colorText(paint.fill));
    }
    prepared.insert(ItemKeys::lineWidth, QString::number(qRound(qBound(1.0, paint.lineWidth, 10000.0))));
    if (!dash.isEmpty()) {
        prepared.insert(QLatin1String(form.dashKey), dash);
    }
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
    const ItemView view(item);
    const QString type = view.type();
    const QVector<QJsonObject> children = view.looseChildren();
    if (!children.isEmpty()) {
        report(item, Loss::Note, {}, QStringLiteral("taken apart, its items stand on the page by themselves"));
        for (const QJsonObject &child : children) {
            writeItem(child);
        }
    } else if (const ShapeForm *form = shapeForm(type)) {
        writeShape(item, *form);
    } else if (isInk(type) && view.has(ItemKeys::steps)) {
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
    const ItemView view(item);
    const PlacedShape placed = placeShape(view, form, pluginOutlines(m_setting.plugin));
    const SvgPaint paint = paintOf(view, form);
    QJsonObject prepared = commonKeys(item);
    for (auto it = placed.geometry.constBegin(); it != placed.geometry.constEnd(); ++it) {
        prepared.insert(it.key(), it.value());
    }
    setPaintKeys(prepared, *placed.form, paint, view.text(QLatin1String(form.dashKey)));
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
    setSvgBox(shape, box, pluginDigits);
    setSvgTurn(shape, placed.angle);
    reportUncarried(withoutDoubledWidth(item), carriedByShapes, &form);
    append(item, element);
}

void IwbItemWriter::writeStroke(const QJsonObject &item)
{
    const ItemView view(item);
    const auto matrix = view.matrix();
    const QPolygonF points = matrix ? matrix->map(view.strokePoints()) : view.strokePoints();
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
    const QColor color = view.color(ItemKeys::color).value_or(QColor(Qt::red));
    polyline.insert(ItemKeys::type, QLatin1String(form.type));
    polyline.insert(ItemKeys::polyline, QString(pointsText(points) + QLatin1Char(',')));
    polyline.insert(QLatin1String(form.lineKey), colorText(color));
    polyline.insert(ItemKeys::lineWidth, exactText(view.numbers(ItemKeys::width).value(0, strokeWidth) * view.scale()));
    reportUncarried(item, carriedByStrokes);
    writeShape(polyline, form);
    ++m_strokes;
}

void IwbItemWriter::writeText(const QJsonObject &item)
{
    const ItemView view(item);
    const QString html = view.text(ItemKeys::html);
    TextRuns text;
    if (!html.isEmpty()) {
        text = textRunsFromHtml(html);
    } else {
        const QString plain = view.text(ItemKeys::text);
        const QString content = view.text(ItemKeys::textContent);
        text = textRunsFromPlainText(plain.isEmpty() ? content : plain);
        if (!plain.isEmpty() && !content.isEmpty() && plain != content) {
            report(item, Loss::Value, ItemKeys::textContent, {});
        }
    }
    for (const QString &loss : qAsConst(text.losses)) {
        report(item, Loss::Value, ItemKeys::html, loss);
    }
    QJsonObject prepared = commonKeys(item);
    const auto place = view.place();
    if (place) {
        prepared.insert(ItemKeys::box, boxText(place->box));
        prepared.insert(ItemKeys::matrix, QStringLiteral("1,0,0,1,0,0"));
    }
    for (int i = 0; i < text.runs.size(); ++i) {
        QString &size = text.runs[i].fontSize;
        const double pixels = size.toDouble() * view.scale();
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
        setSvgBox(area, place->box, pluginDigits);
        setSvgTurn(area, place->angle);
    }
    reportUncarried(item, carriedByText);
    append(item, element);
}

void IwbItemWriter::writeMedia(const QJsonObject &item)
{
    const ItemView view(item);
    const QString type = view.type();
    QString reference = view.text(ItemKeys::resource);
    if (reference.isEmpty()) {
        reference = view.firstText(ItemKeys::mediaFiles);
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
        const QString file = placed(source, reference, QLatin1String(mediaFolder(type)));
        prepared.insert(QLatin1String("AbsMediaFile"), file);
        prepared.insert(ItemKeys::mediaFiles, QFileInfo(file).fileName());
    }
    const auto place = view.place();
    if (place) {
        prepared.insert(ItemKeys::box, boxText(place->box));
        prepared.insert(ItemKeys::matrix, QStringLiteral("1,0,0,1,0,0"));
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
        setSvgBox(media, place->box, pluginDigits);
        setSvgTurn(media, place->angle);
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
    const ItemView view(item);
    QJsonObject prepared;
    QString id = withoutControlCharacters(view.id());
    if (id.isEmpty()) {
        id = QStringLiteral("item%1_%2").arg(m_slide).arg(++m_generatedIds);
    }
    prepared.insert(ItemKeys::id, id);
    prepared.insert(ItemKeys::type, view.type());
    prepared.insert(ItemKeys::visible, view.isVisible());
    for (const QLatin1String key : {ItemKeys::locked, ItemKeys::endless}) {
        prepared.insert(key, view.flag(key) ? QStringLiteral("1") : QStringLiteral("0"));
    }
    addLink(item, prepared);
    return prepared;
}

void IwbItemWriter::addLink(const QJsonObject &item, QJsonObject &prepared)
{
    const ItemView view(item);
    const QString kind = view.text(ItemKeys::linkType);
    if (kind.isEmpty()) {
        return;
    }
    QString value = withoutControlCharacters(view.text(ItemKeys::linkValue));
    if (kind == openFile) {
        value = linkedFile(item, value);
        if (value.isEmpty()) {
            return;
        }
        prepared.insert(QLatin1String("tmpFilePath"), m_setting.exportFolder);
    }
    prepared.insert(ItemKeys::linkType, kind);
    prepared.insert(ItemKeys::linkValue, value);
}

// The file under the name that it gets in the package, which is that of the path that the plug-in copies from.
QString IwbItemWriter::linkedFile(const QJsonObject &item, const QString &reference)
{
    const QString source = m_setting.files->find(reference);
    if (source.isEmpty()) {
        report(item, Loss::File, reference, QStringLiteral("the lesson has no such file to open"));
        return {};
    }
    return placed(source, reference, QStringLiteral("additional"));
}

// The file in the package. The plug-in copies to the same place, where it finds it and lets it be; it would say nothing
// of a copy that failed.
QString IwbItemWriter::placed(const QString &source, const QString &reference, const QString &folder)
{
    const QString parent = m_setting.exportFolder + QLatin1Char('/') + folder;
    const QString path = parent + QLatin1Char('/') + m_setting.files->nameIn(folder, source);
    if (!QFile::exists(path)) {
        makeFolders(parent, m_setting.target);
        copyFile(source, reference, path, m_setting.target);
    }
    return path;
}

// Null, and named in the report, for an item that the plug-in gives no element of its own for, or one without geometry.
QDomElement IwbItemWriter::convert(const QJsonObject &item, const QJsonObject &prepared)
{
    QDomElement root = m_document.documentElement();
    const QDomNode lastRecord = root.lastChild();
    const QDomElement element = m_setting.plugin->tranItemJSON2IWB(m_document, prepared);
    const bool isEmptyLink = prepared.contains(ItemKeys::linkType) && element.firstChildElement().isNull();
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
    const ItemView view(item);
    if (!view.isVisible()) {
        inner.setAttribute(QStringLiteral("visibility"), QStringLiteral("hidden"));
    }
    m_page.appendChild(element);
    if (view.isLocked()) {
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
    const ItemView view(item);
    loss.itemType = view.type();
    loss.itemId = view.id();
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

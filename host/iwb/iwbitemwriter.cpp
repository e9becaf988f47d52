// SPDX-License-Identifier: MIT
#include "iwb/iwbitemwriter.h"

#include "files/pictures.h"
#include "iwb/drawnplace.h"
#include "iwb/iwbmedia.h"
#include "iwb/shapeplacing.h"
#include "iwb/textrunloan.h"
#include "izqtransformation.h"
#include "lesson/curtain.h"
#include "lesson/groupplace.h"
#include "lesson/itemtypes.h"
#include "lesson/itemview.h"
#include "lesson/numbertexts.h"
#include "lesson/shapeforms.h"
#include "lesson/textruns.h"
#include "svg/inkpath.h"
#include "svg/iwbpage.h"
#include "svg/pluginoutlines.h"
#include "svg/svggeometry.h"
#include "svg/svgstyle.h"

#include <QFileInfo>

#include <algorithm>
#include <cmath>

namespace lessonhost {

namespace {

const QLatin1String openFile("ACTION_OPENFILE");

SvgPaint paintOf(const ItemView &item, const ShapeForm &form)
{
    SvgPaint paint;
    paint.line = item.color(QLatin1String(form.lineKey)).value_or(QColor(Qt::black));
    paint.fill = QColor(0, 0, 0, 0);
    if (form.fillKey && item.isFilled()) {
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

// What a shape keeps of the item that it stands for, beside its place and looks.
QJsonObject ownKeys(const QJsonObject &item)
{
    QJsonObject keys;
    for (const QLatin1String key :
         {ItemKeys::visible, ItemKeys::locked, ItemKeys::endless, ItemKeys::linkType, ItemKeys::linkValue}) {
        if (item.contains(key)) {
            keys.insert(key, item.value(key));
        }
    }
    return keys;
}

// The folders of a package take files of some kinds only.
struct FolderFiles
{
    const char *folder;
    const char *suffixes;
};
constexpr FolderFiles folderFiles[] = {
    {"images", "png|jpg|jpeg|gif|bmp"}, {"videos", "mpg|mpeg"}, {"flash", "swf"}, {"audio", "wav|mp3"}};

bool takesFile(const QString &folder, const QString &file)
{
    const QString suffix = QFileInfo(file).suffix().toLower();
    return std::any_of(std::begin(folderFiles), std::end(folderFiles), [&](const FolderFiles &row) {
        return folder == QLatin1String(row.folder)
            && QString::fromLatin1(row.suffixes).split(QLatin1Char('|')).contains(suffix);
    });
}

Sentence noPlace()
{
    return say("it has no place on the page");
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
    const QString points = QStringLiteral("points");
    if (tag == QLatin1String("svg:line")) {
        return element.hasAttribute(QStringLiteral("x1")) || element.hasAttribute(points);
    }
    if (tag == QLatin1String("svg:polyline")) {
        return !element.attribute(points).isEmpty();
    }
    const bool hasArea =
        tag == QLatin1String("svg:rect") || tag == QLatin1String("svg:circle") || tag == QLatin1String("svg:ellipse");
    if (!hasArea) {
        return true;
    }
    const QRectF extent = drawnExtent(element).value_or(QRectF());
    return extent.width() > 0 && extent.height() > 0;
}

// How a stroke ends and is dashed.
void setEnds(QDomElement line, const ItemView &stroke)
{
    const QVector<double> dashes = inkDashes(stroke.text(QLatin1String("DashStyle")));
    const Qt::PenCapStyle cap = dashes.isEmpty() ? inkCap(stroke.text(QLatin1String("Cap"))) : Qt::FlatCap;
    if (cap != Qt::RoundCap) {
        line.setAttribute(QStringLiteral("stroke-linecap"),
                          cap == Qt::FlatCap ? QStringLiteral("butt") : QStringLiteral("square"));
    }
    QStringList lengths;
    for (const double length : dashes) {
        lengths.append(svgCoordinate(length * line.attribute(QStringLiteral("stroke-width")).toDouble()));
    }
    if (!lengths.isEmpty()) {
        line.setAttribute(QStringLiteral("stroke-dasharray"), lengths.join(QLatin1Char(',')));
    }
}

} // namespace

IwbItemWriter::IwbItemWriter(const Setting &setting)
    : m_setting(setting)
{
}

QDomElement IwbItemWriter::write(QDomDocument &document, const QJsonObject &item, const QString &id,
                                 const SlideLosses &losses, bool isMoved)
{
    m_document = document;
    m_given = item;
    m_id = id;
    m_losses = losses;
    m_linkedFile.clear();
    m_missingFile.clear();
    m_shortLine.clear();
    const ItemView view(item);
    const QString type = view.type();
    QDomElement element;
    if (const ShapeForm *form = shapeForm(type)) {
        element = writeShape(item, *form);
    } else if (isInk(type) && view.has(ItemKeys::steps)) {
        element = writeStroke(item, isMoved);
    } else if (isTextBoard(type)) {
        element = writeText(item);
    } else if (mediaFolder(type)) {
        element = writeMedia(item);
    } else if (m_setting.convertsDrawings && type == curtainType) {
        element = writeCurtain(item);
    } else if (m_formless.contains(type) && view.text(ItemKeys::linkType).isEmpty()) {
        tellFormless({});
    } else {
        element = convert(commonKeys(item));
        if (element.isNull() && m_whyNot.isEmpty()) {
            m_formless.insert(type);
        }
    }
    if (!element.isNull()) {
        complete(item, element);
    }
    return element;
}

QDomElement IwbItemWriter::writeShape(const QJsonObject &item, const ShapeForm &form)
{
    const ItemView view(item);
    const PlacedShape placed = placeShape(view, form, pluginOutlines(m_setting.plugin));
    const SvgPaint paint = paintOf(view, form);
    QJsonObject prepared = commonKeys(item);
    for (auto it = placed.geometry.constBegin(); it != placed.geometry.constEnd(); ++it) {
        prepared.insert(it.key(), it.value());
    }
    setPaintKeys(prepared, *placed.form, paint, view.text(QLatin1String(form.dashKey)));
    QDomElement element = convert(prepared);
    if (element.isNull()) {
        return {};
    }
    QDomElement shape = innermost(element);
    setSvgPaint(shape, paint);
    if (shape.tagName() == QLatin1String("svg:polyline")) {
        shape.setAttribute(QStringLiteral("stroke-linejoin"), QStringLiteral("round"));
        if (!shape.hasAttribute(QStringLiteral("stroke-dasharray"))) {
            shape.setAttribute(QStringLiteral("stroke-linecap"), QStringLiteral("round"));
        }
    }
    if (placed.form->outline == ShapeForm::Rectangle) {
        setSvgBox(shape, placed.box.value_or(drawnExtent(shape).value_or(QRectF())), pluginDigits);
    }
    setSvgTurn(shape, placed.angle);
    return element;
}

QDomElement IwbItemWriter::writeStroke(const QJsonObject &item, bool isMoved)
{
    const ItemView view(item);
    QPolygonF points = fineLine(placeOfStroke(view).map(view.strokePoints()));
    if (!m_setting.keepsInk || points.isEmpty()) {
        ++m_strokesLeftOut;
        tellFormless(m_setting.keepsInk ? say("it has no points") : Sentence(QStringLiteral("--ink drop")));
        return {};
    }
    constexpr int mostLeftOut = 100000; // or the page may be longer than a page may be
    if (m_setting.isTried && !isMoved && m_pointsLeftOut + points.size() < mostLeftOut) {
        m_shortLine = shortLineOf(item, points);
        m_pointsLeftOut += m_shortLine.isEmpty() ? 0 : points.size() - m_shortLine.size();
        points = m_shortLine.isEmpty() ? points : m_shortLine;
    }
    const ShapeForm &form = *shapeForm(QStringLiteral("ZQMath2DPolyline"));
    QJsonObject polyline = ownKeys(item);
    QColor color = view.color(ItemKeys::color).value_or(QColor(Qt::red));
    if (view.has(ItemKeys::opacity)) {
        color.setAlphaF(qBound(0.0, view.number(ItemKeys::opacity) / 255, 1.0));
    }
    polyline.insert(ItemKeys::type, QLatin1String(form.type));
    // Two stand for all: to take them through the texts of an item would cost more than all else of a page.
    polyline.insert(ItemKeys::polyline, QString(pointsText(points.mid(0, 2)) + QLatin1Char(',')));
    polyline.insert(QLatin1String(form.lineKey), colorText(color));
    polyline.insert(ItemKeys::lineWidth, exactText(view.numbers(ItemKeys::width).value(0, strokeWidth) * view.scale()));
    ++m_strokes;
    QDomElement element = writeShape(polyline, form);
    if (!element.isNull()) {
        QDomElement line = innermost(element);
        line.setAttribute(QStringLiteral("points"), coordinateTexts(placeLine(points), pluginDigits, ',', ','));
        setEnds(line, view);
    }
    return element;
}

// Boards have covers of one colour, which is that of the cloth.
QDomElement IwbItemWriter::writeCurtain(const QJsonObject &item)
{
    const auto place = placeOfCurtain(ItemView(item));
    if (!place) {
        tellFormless(noPlace());
        return {};
    }
    const ShapeForm &form = *shapeForm(QStringLiteral("ZQMath2DRectangle"));
    QJsonObject cover = ownKeys(item);
    cover.insert(ItemKeys::type, QLatin1String(form.type));
    cover.insert(ItemKeys::box, boxText(place->box));
    cover.insert(ItemKeys::angle, exactText(place->angle));
    cover.insert(QLatin1String(form.lineKey), colorText(Qt::transparent));
    cover.insert(QLatin1String(form.fillKey), colorText(QColor(curtainCloth)));
    return writeShape(cover, form);
}

QDomElement IwbItemWriter::writeText(const QJsonObject &item)
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
    }
    QJsonObject prepared = commonKeys(item);
    const auto place = view.place();
    if (!place && m_setting.convertsDrawings) {
        tellFormless(noPlace());
        return {};
    }
    if (place) {
        prepared.insert(ItemKeys::box, boxText(place->box));
        prepared.insert(ItemKeys::matrix, QStringLiteral("1,0,0,1,0,0"));
    }
    for (int i = 0; i < text.runs.size(); ++i) {
        QString &size = text.runs[i].fontSize;
        const double pixels = numberOfText(size) * view.scale();
        size = text.shifts.at(i).isEmpty() ? numberText(pixels) : exactText(pixels * shiftedLetters);
    }
    const TextRunLoan loan(prepared, text.runs);
    QDomElement element = convert(prepared);
    if (element.isNull()) {
        return {};
    }
    QDomElement area = innermost(element);
    int run = 0;
    for (QDomElement span = area.firstChildElement(); !span.isNull(); span = span.nextSiblingElement()) {
        const QString shift = text.shifts.value(run);
        const QString background = text.backgrounds.value(run++);
        if (!shift.isEmpty()) {
            span.setAttribute(QStringLiteral("baseline-shift"), shift);
        }
        if (!background.isEmpty() && m_setting.convertsDrawings) {
            span.setAttribute(QStringLiteral("background-fill"), background);
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
    return element;
}

QDomElement IwbItemWriter::writeMedia(const QJsonObject &item)
{
    const ItemView view(item);
    const QString type = view.type();
    QString reference = item.value(ItemKeys::resource).toString();
    if (reference.isEmpty()) {
        reference = item.value(ItemKeys::mediaFiles).toString().section(QLatin1Char(','), 0, 0);
    }
    QString source = m_setting.media->find(reference);
    if (source.isEmpty() && !reference.isEmpty()) {
        m_losses.file(item, reference, say("the lesson has no such file"));
    } else if (!source.isEmpty() && type == QLatin1String("ZQImagePic")) {
        const Sentence problem = pictureProblem(source);
        if (!problem.isEmpty()) {
            m_losses.file(item, reference, problem);
            source.clear();
        }
    }
    if (source.isEmpty() && m_setting.convertsDrawings) {
        tellFormless(say("it has no file to show"));
        return {};
    }
    const auto place = view.place();
    if (!place && m_setting.convertsDrawings) {
        tellFormless(noPlace());
        return {};
    }
    QJsonObject prepared = commonKeys(item);
    QString file;
    if (!source.isEmpty()) {
        file = placeMedia(source, QLatin1String(mediaFolder(type)));
        prepared.insert(ItemKeys::mediaFiles, file);
    }
    if (place) {
        prepared.insert(ItemKeys::box, boxText(place->box));
        prepared.insert(ItemKeys::matrix, QStringLiteral("1,0,0,1,0,0"));
    }
    QDomElement element = convert(prepared);
    if (element.isNull()) {
        return {};
    }
    QDomElement media = innermost(element);
    media.setAttribute(QStringLiteral("xlink:href"), file);
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
    return element;
}

// The format has pictures of few kinds, and no drawings in svg: others go as pictures of pixels. What else no folder
// takes stands among the other files.
QString IwbItemWriter::placeMedia(const QString &source, const QString &folder)
{
    IwbMedia::File file;
    file.source = source;
    QString name;
    const bool isPicture = folder == QLatin1String("images");
    QString chosen = folder;
    if (m_setting.convertsDrawings && !takesFile(folder, source)) {
        chosen = isPicture ? folder : QStringLiteral("additional");
        const Picture picture(isPicture ? source : QString());
        file.isConverted = isPicture;
        if (file.isConverted) {
            file.picture = picture.image();
            name = QFileInfo(source).completeBaseName() + QLatin1String(".png");
        }
        if (file.isConverted && file.picture.isNull()) {
            file.isConverted = false;
            name.clear();
        }
    }
    return m_setting.media->place(chosen, file, name);
}

// What every item hands over. Nothing else of an item reaches the plug-in by itself: what a file says under keys that
// are addresses in memory or folders to write into must not count.
QJsonObject IwbItemWriter::commonKeys(const QJsonObject &item)
{
    const ItemView view(item);
    QJsonObject prepared;
    prepared.insert(ItemKeys::id, m_id);
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
    if (kind.isEmpty() || !m_setting.keepsLinks) {
        return;
    }
    QString value = withoutControlCharacters(view.text(ItemKeys::linkValue));
    if (kind == openFile) {
        value = linkedFile(value);
        if (value.isEmpty()) {
            return;
        }
    }
    prepared.insert(ItemKeys::linkType, kind);
    prepared.insert(ItemKeys::linkValue, value);
}

// The file on disk, which the plug-in wants to see; what it calls it in the document is put right afterwards.
QString IwbItemWriter::linkedFile(const QString &reference)
{
    const QString source = m_setting.media->find(reference);
    if (source.isEmpty()) {
        m_missingFile = reference;
        return {};
    }
    m_linkedFile = m_setting.media->place(QStringLiteral("additional"), {source, false, {}, false});
    return source;
}

// Null, and named in the report, for an item that the plug-in gives no element of its own for, or one without geometry.
QDomElement IwbItemWriter::convert(const QJsonObject &prepared)
{
    QDomElement root = m_document.documentElement();
    const QDomNode lastRecord = root.lastChild();
    QDomElement element = m_setting.plugin->tranItemJSON2IWB(m_document, prepared);
    const bool isEmptyLink = prepared.contains(ItemKeys::linkType) && element.firstChildElement().isNull();
    const bool hasForm = !element.isNull() && !isEmptyLink;
    if (hasForm && isDrawn(innermost(element))) {
        if (!m_linkedFile.isEmpty()) {
            element.setAttribute(QStringLiteral("xlink:href"), m_linkedFile);
        }
        return element;
    }
    // A link around nothing would come back as a sound.
    if (root.lastChild() != lastRecord) {
        root.removeChild(root.lastChild());
    }
    tellFormless(hasForm ? say("it has too few points to be drawn") : Sentence());
    return {};
}

void IwbItemWriter::tellFormless(const Sentence &why)
{
    m_whyNot = why;
    if (m_tellsFormless) {
        m_losses.item(m_given, why);
    }
}

QDomElement IwbItemWriter::writePicture(QDomDocument &document, const QJsonObject &item, const QString &id,
                                        const QString &reference, const QRectF &box)
{
    m_document = document;
    m_given = item;
    m_id = id;
    m_linkedFile.clear();
    m_missingFile.clear();
    QJsonObject prepared = commonKeys(item);
    prepared.insert(ItemKeys::type, QStringLiteral("ZQImagePic"));
    prepared.insert(ItemKeys::mediaFiles, reference);
    prepared.insert(ItemKeys::box, boxText(box));
    prepared.insert(ItemKeys::matrix, QStringLiteral("1,0,0,1,0,0"));
    QDomElement element = convert(prepared);
    if (!element.isNull()) {
        QDomElement image = innermost(element);
        setSvgBox(image, box, pluginDigits);
        image.setAttribute(QStringLiteral("preserveAspectRatio"), QStringLiteral("none"));
        complete(item, element);
    }
    return element;
}

// They take the place of a picture, which the plug-in has put into a link.
QVector<QDomElement> IwbItemWriter::writeElements(QDomDocument &document, const QJsonObject &item, const QString &id,
                                                  const QVector<PlainElement> &elements)
{
    const QDomElement whole = writePicture(document, item, id, QStringLiteral("images/"), QRectF(0, 0, 1, 1));
    if (whole.isNull() || elements.isEmpty()) {
        return {};
    }
    const QString cloneName = QStringLiteral("infiniteclone");
    const QDomElement picture = innermost(whole);
    QVector<QDomElement> written;
    for (int i = 0; i < elements.size(); ++i) {
        const PlainElement &plain = elements.at(i);
        const bool isLast = i + 1 == elements.size();
        QDomElement element = document.createElement(plain.tag);
        element.setAttribute(QStringLiteral("id"),
                             isLast ? id : id + QLatin1String(partOfItem) + QString::number(i + 1));
        for (const auto &[name, value] : plain.attributes) {
            element.setAttribute(name, value);
        }
        if (!plain.text.isEmpty()) {
            element.appendChild(document.createTextNode(plain.text));
        }
        if (!ItemView(item).isVisible()) {
            element.setAttribute(QStringLiteral("visibility"), QStringLiteral("hidden"));
        }
        if (picture.hasAttribute(cloneName)) {
            element.setAttribute(cloneName, picture.attribute(cloneName));
        }
        if (!isLast && ItemView(item).isLocked()) {
            addLock(element.attribute(QStringLiteral("id")));
        }
        written.append(element);
    }
    if (whole == picture) {
        return written;
    }
    QDomNode link = picture.parentNode();
    link.removeChild(picture);
    for (const QDomElement &element : qAsConst(written)) {
        link.appendChild(element);
    }
    return {whole};
}

// What the element says about the item beside its place and looks.
void IwbItemWriter::complete(const QJsonObject &item, QDomElement element)
{
    QDomElement inner = innermost(element);
    const ItemView view(item);
    if (!view.isVisible()) {
        inner.setAttribute(QStringLiteral("visibility"), QStringLiteral("hidden"));
    }
    if (view.isLocked()) {
        addLock(inner.attribute(QStringLiteral("id")));
    }
}

void IwbItemWriter::addLock(const QString &id)
{
    QDomElement record = m_document.createElement(QStringLiteral("iwb:element"));
    record.setAttribute(QStringLiteral("ref"), id);
    record.setAttribute(QStringLiteral("locked"), QStringLiteral("true"));
    m_document.documentElement().appendChild(record);
}

} // namespace lessonhost

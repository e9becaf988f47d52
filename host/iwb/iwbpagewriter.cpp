// SPDX-License-Identifier: MIT
#include "iwb/iwbpagewriter.h"

#include "files/packagenames.h"
#include "files/pictures.h"
#include "iwb/boarddress.h"
#include "iwb/iwbmedia.h"
#include "izqtransformation.h"
#include "lesson/itemtypes.h"
#include "lesson/itemview.h"
#include "lesson/pagesize.h"
#include "lesson/plainnames.h"
#include "lesson/textruns.h"
#include "svg/iwbpage.h"

#include <QPainter>
#include <QRegularExpression>

#include <algorithm>

namespace lessonhost {

namespace {

const QLatin1String svgTag("svg:svg");
const QLatin1String linkTag("svg:a");

// The name of a background's colour.
QString backgroundColor(const QJsonObject &properties)
{
    auto color = backColor(properties.value(SlideKeys::backColor));
    if (!color) {
        color = itemColor(properties.value(SlideKeys::color));
    }
    return color ? color->name(color->alpha() < 255 ? QColor::HexArgb : QColor::HexRgb) : QStringLiteral("#ffffff");
}

// What a picture of an item is called in the package, which is its title on other boards.
QString fileTitle(const QString &type)
{
    QString title;
    const QString name = plainName(type);
    for (const QChar c : name) {
        const bool isPlain = c.unicode() < 128 && (c.isLetterOrNumber() || c == QLatin1Char('-'));
        title += isPlain ? c : QLatin1Char('_');
    }
    return title;
}

QDomElement withinLink(QDomElement element)
{
    while (element.tagName() == linkTag && !element.firstChildElement().isNull()) {
        element = element.firstChildElement();
    }
    return element;
}

// A film of a kind that the format hasn't is a file to open.
QDomElement withFilmLinked(QDomElement element)
{
    QDomElement film = withinLink(element);
    const QString reference = film.attribute(QStringLiteral("xlink:href"));
    if (film.tagName() == QLatin1String("svg:video") && reference.startsWith(QLatin1String("additional/"))) {
        film.setTagName(linkTag);
        film.setAttribute(QLatin1String(filmMark), QStringLiteral("1"));
    }
    return element;
}

// A painted item in a frame of its own instead of the smallest around it.
QImage inFrame(const PaintedItem &item, const QRectF &frame)
{
    const double scale = item.image.width() / item.box.width();
    QImage image((frame.size() * scale).toSize().expandedTo(QSize(1, 1)), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.drawImage((item.box.topLeft() - frame.topLeft()) * scale, item.image);
    return image;
}

} // namespace

IwbPageWriter::IwbPageWriter(const IwbItemWriter::Setting &setting)
    : m_plugin(setting.plugin)
    , m_media(setting.media)
    , m_isStored(setting.isStored)
    , m_items(setting)
{
}

void IwbPageWriter::start(const QJsonObject &presentation, const QJsonObject &firstSlide)
{
    m_pageSize = QSizeF(itemNumber(presentation.value(PresentationKeys::width)),
                        itemNumber(presentation.value(PresentationKeys::height)));
    if (!(m_pageSize.width() > 0) || !(m_pageSize.height() > 0)) {
        m_pageSize = pageOfSourceRect(valueText(firstSlide.value(SlideKeys::sourceRect)));
    }
    QJsonObject size{{PresentationKeys::width, exactText(m_pageSize.width())},
                     {PresentationKeys::height, exactText(m_pageSize.height())}};
    const QString id = withoutControlCharacters(valueText(presentation.value(PresentationKeys::id)));
    if (!id.isEmpty()) {
        size.insert(PresentationKeys::id, id);
    }
    m_document = m_plugin->tranPresJSON2IWB({}, size);
    QDomElement svg = m_document.documentElement().firstChildElement(svgTag);
    svg.setAttribute(QStringLiteral("viewBox"),
                     QStringLiteral("0 0 %1 %2").arg(exactText(m_pageSize.width()), exactText(m_pageSize.height())));
}

QDomElement IwbPageWriter::pageSet() const
{
    return m_document.documentElement().firstChildElement(svgTag).firstChildElement(QStringLiteral("svg:pageset"));
}

QDomElement IwbPageWriter::addPage(const QJsonObject &slide, int number, const SlideLosses &losses)
{
    m_number = number;
    m_paintedWords.clear();
    m_paintedFamilies.clear();
    if (!m_isUniqueInDocument) {
        m_ids = {};
    }
    // The identifier names a file.
    QString id = withoutControlCharacters(valueText(slide.value(SlideKeys::id)));
    if (!problemWithFileName(id).isEmpty()) {
        id = QLatin1String("slide") + QString::number(number);
    }
    m_ids.take(id + QLatin1String("_rect"));
    m_ids.take(id + QLatin1String("_bgd"));
    const QString picture = background(slide, id, losses);
    QDomElement page = m_plugin->tranSlideJSON2IWB(m_document,
                                                   {
                                                       {QStringLiteral("index"), number},
                                                       {SlideKeys::id, id},
                                                       {QStringLiteral("x"), QStringLiteral("0")},
                                                       {QStringLiteral("y"), QStringLiteral("0")},
                                                       {PresentationKeys::width, exactText(m_pageSize.width())},
                                                       {PresentationKeys::height, exactText(m_pageSize.height())},
                                                       {SlideKeys::backColor, backgroundColor(slide)},
                                                       {QStringLiteral("AttachFile"), picture},
                                                   });
    if (!page.isNull()) {
        pageSet().appendChild(page);
        fillPage(page, picture);
    }
    return page;
}

// The reference of the background picture, which the plug-in will say is a png, or nothing.
QString IwbPageWriter::background(const QJsonObject &slide, const QString &id, const SlideLosses &losses)
{
    const QString owner = QStringLiteral("slide");
    QStringList references = slide.value(SlideKeys::files).toString().split(QLatin1Char(','));
    references.append(slide.value(SlideKeys::document).toString());
    references.removeAll(QString());
    QString chosen;
    for (const QString &reference : qAsConst(references)) {
        IwbMedia::File file;
        file.source = m_media->find(reference);
        if (file.source.isEmpty()) {
            const bool isPaper = reference.startsWith(QLatin1String("ID_SLIDE_NOTEBOOK_"));
            losses.file(owner, reference,
                        isPaper ? say("it is a paper of the editor, not a file of the lesson")
                                : say("the lesson has no such file"));
            continue;
        }
        if (m_media->file(chosen).source == file.source) {
            continue;
        }
        if (!chosen.isEmpty()) {
            losses.file(owner, reference, say("a page has one background picture"));
            continue;
        }
        const Picture picture(file.source);
        if (!picture.problem().isEmpty()) {
            losses.file(owner, reference, picture.problem());
            continue;
        }
        file.isConverted = picture.format() != "png";
        if (file.isConverted && m_isStored) {
            file.picture = picture.image();
            if (file.picture.isNull()) {
                losses.file(owner, reference, say("it can't be made a PNG picture"));
                continue;
            }
        }
        if (picture.format() == "svg" && m_isStored) {
            const QStringList leftOut = picture.drawing().leftOut;
            for (const QString &name : leftOut) {
                losses.file(owner, reference, say("it shows \"%1\", which isn't beside it in the lesson").arg(name));
            }
        }
        chosen = m_media->place(QStringLiteral("images"), file, id + QLatin1String("_bgd.png"));
    }
    return chosen;
}

// The picture is said to be stretched to the page; readers of svg need its size for that.
void IwbPageWriter::fillPage(QDomElement &page, const QString &picture) const
{
    QDomElement image = page.firstChildElement(QStringLiteral("svg:image"));
    if (image.isNull()) {
        return;
    }
    image.setAttribute(QStringLiteral("xlink:href"), picture);
    image.setAttribute(QStringLiteral("width"), exactText(m_pageSize.width()));
    image.setAttribute(QStringLiteral("height"), exactText(m_pageSize.height()));
    image.setAttribute(QStringLiteral("preserveAspectRatio"), QStringLiteral("none"));
}

QVector<IwbPageWriter::WrittenItem> IwbPageWriter::addItems(QDomElement &page, const QJsonArray &items,
                                                            const SlideLosses &losses)
{
    QVector<WrittenItem> written;
    for (int i = 0; i < items.size(); ++i) {
        const int first = written.size();
        addItem(page, items.at(i).toObject(), items.at(i).toObject(), losses, written);
        for (int k = first; k < written.size(); ++k) {
            written[k].top = i;
        }
    }
    return written;
}

void IwbPageWriter::addItem(QDomElement &page, const QJsonObject &given, const QJsonObject &item,
                            const SlideLosses &losses, QVector<WrittenItem> &written, bool isInGroup)
{
    const QVector<QJsonObject> children = ItemView(item).looseChildren();
    if (!children.isEmpty()) {
        const QVector<QJsonObject> own = ItemView(given).childObjects();
        const int first = written.size();
        for (int i = 0; i < children.size(); ++i) {
            addItem(page, own.at(i), children.at(i), losses, written, true);
        }
        const auto shown = std::count_if(written.cbegin() + first, written.cend(),
                                         [](const WrittenItem &row) { return !row.id.isEmpty(); });
        // Boards have groups, but none within groups.
        const bool staysGroup =
            m_isUniqueInDocument && !isInGroup && shown > 1 && ItemView(given).type() == QLatin1String("ZQGroupItem");
        if (!staysGroup) {
            losses.takenApart(given);
        }
        return;
    }
    WrittenItem row{given, item, idOf(given), false, 0};
    QDomElement element = m_items.write(m_document, item, row.id, losses);
    if (element.isNull() && m_painter) {
        element = pictureOf(item, row.id);
        row.isPicture = !element.isNull();
        const bool isHidden = m_items.whyNot().isEmpty() && !ItemView(item).isVisible();
        row.isPicture ? losses.picture(given)
                      : losses.item(given, isHidden ? say("it is hidden") : m_items.whyNot());
    }
    if (m_isUniqueInDocument) {
        element = withFilmLinked(element);
    }
    const QDomElement media = withinLink(element);
    if (m_painter && media.tagName() == linkTag) {
        addSign(media, item);
    }
    if (media.hasAttribute(QLatin1String(filmMark))) {
        losses.note(given, say("other boards show a picture that opens it"));
    }
    if (element.isNull()) {
        m_ids.giveBack(row.id);
        row.id.clear();
    } else {
        page.appendChild(element);
    }
    // What the group would open is lost with the group. A number names no file.
    if (!element.isNull() && !m_items.missingFile().isEmpty() && ItemView(given).has(ItemKeys::linkType)
        && given.value(ItemKeys::linkValue).isString()) {
        losses.file(given, m_items.missingFile(), say("the lesson has no such file to open"));
    }
    written.append(row);
}

void IwbPageWriter::setPainter(ItemPainter *painter)
{
    m_painter = painter;
    m_items.setTellsFormless(!painter);
}

// Nothing for an item that isn't to be seen, or was asked to be left out.
QDomElement IwbPageWriter::pictureOf(const QJsonObject &item, const QString &id, const QRectF &frame)
{
    const ItemView view(item);
    if (!view.isVisible() || isInk(view.type())) {
        return {};
    }
    auto picture = m_painter->paint(item, m_pageSize);
    if (!picture) {
        return {};
    }
    if (!frame.isEmpty()) {
        picture->image = inFrame(*picture, frame);
        picture->box = frame;
    }
    m_paintedWords += picture->words;
    m_paintedFamilies += picture->families;
    IwbMedia::File file;
    file.source = QStringLiteral("page%1/%2.png").arg(m_number).arg(id);
    file.isConverted = true;
    file.isMade = true;
    file.picture = picture->image;
    const QString name = QStringLiteral("%1_%2-%3.png").arg(fileTitle(view.type())).arg(m_number).arg(++m_pictures);
    const QString reference = m_media->place(QStringLiteral("images"), file, name);
    return m_items.writePicture(m_document, item, id, reference, picture->box);
}

// Others see a sound only where its link holds something, and so it is with films that they can't play.
void IwbPageWriter::addSign(QDomElement link, const QJsonObject &item)
{
    QJsonObject sound = item;
    for (const QLatin1String key : {ItemKeys::linkType, ItemKeys::locked, ItemKeys::angle, ItemKeys::matrix}) {
        sound.remove(key);
    }
    const auto place = ItemView(item).place();
    const QRectF frame = place ? place->box : QRectF();
    if (place) {
        sound.insert(ItemKeys::box, boxText(frame));
    }
    const QDomElement sign = pictureOf(sound, signIdOf(link), frame);
    if (!sign.isNull() && sign.tagName() == QLatin1String("svg:image")) {
        link.appendChild(sign);
    }
}

// Of an identifier that two items have, the second gets one of its own: records know elements by it.
QString IwbPageWriter::idOf(const QJsonObject &item)
{
    QString id = withoutControlCharacters(ItemView(item).id());
    id = id.isEmpty() ? QStringLiteral("item%1_%2").arg(m_number).arg(++m_generatedIds) : id;
    if (!m_isUniqueInDocument) {
        return m_ids.take(id);
    }
    // The format's identifiers are of one line.
    static const QRegularExpression lineBreaks(QStringLiteral("[\\t\\n\\r]+"));
    id.replace(lineBreaks, QStringLiteral(" "));
    // Pages have identifiers, too, and so have what stands around an element, in it and behind it.
    static const QRegularExpression otherName(QStringLiteral("^page\\d+$|%1\\d+$").arg(QLatin1String(markedSpan)));
    id = otherName.match(id).hasMatch() ? id + QLatin1String("_item") : id;
    constexpr const char *endings[] = {"_link", soundSign, filmSign, lineFill};
    QString own = m_ids.take(id);
    const auto isTaken = [&](const char *ending) { return m_ids.has(own + QLatin1String(ending)); };
    while (std::any_of(std::begin(endings), std::end(endings), isTaken)) {
        own = m_ids.take(id);
    }
    for (const char *ending : endings) {
        m_ids.take(own + QLatin1String(ending));
    }
    return own;
}

} // namespace lessonhost

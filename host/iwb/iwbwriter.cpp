// SPDX-License-Identifier: MIT
#include "iwb/iwbwriter.h"

#include "files/inputfile.h"
#include "files/lessonerror.h"
#include "files/paintedpng.h"
#include "files/pictures.h"
#include "files/xmlloader.h"
#include "files/xmltext.h"
#include "iwb/iwbpackage.h"
#include "lesson/curtain.h"
#include "lesson/itemtypes.h"
#include "lesson/itemview.h"
#include "lesson/slidelimits.h"

#include <QBuffer>
#include <QFileInfo>
#include <QImage>

#include <algorithm>
#include <memory>

namespace lessonhost {

namespace {

const QLatin1String contentFile("content.xml");
const QLatin1String svgPartTag("svg:svg");
constexpr int thumbnailWidth = 320;
// How many elements stand around a page and around a record about an item.
constexpr int pageDepth = 3;
constexpr int recordDepth = 1;
// Such that one is written while the next is made, and none waits.
constexpr qint64 bytesOfPage = qint64(16) * 1024 * 1024;

LossOwner ownerOf(const LessonSlide &slide)
{
    return {QStringLiteral("slide"), slide.properties.value(SlideKeys::id).toString()};
}

IwbItemWriter::Setting itemSetting(const LessonContext &context, IwbMedia *media)
{
    IwbItemWriter::Setting setting;
    setting.plugin = context.plugin;
    setting.media = media;
    setting.convertsDrawings = true;
    setting.isTried = context.isTrial;
    setting.keepsInk =
        context.options.value(QStringLiteral("ink"), QStringLiteral("polyline")) != QLatin1String("drop");
    return setting;
}

// What a picture's file shows is mirrored. Under a matrix, nobody asks for these keys.
QString flipOf(const ItemView &item)
{
    const bool isAcross = item.flag(ItemKeys::flippedAcross);
    const bool isDown = item.flag(ItemKeys::flippedDown);
    if (item.type() != QLatin1String("ZQImagePic") || item.matrix() || !(isAcross || isDown)) {
        return {};
    }
    return isAcross && isDown ? QStringLiteral("both")
        : isAcross            ? QStringLiteral("horizontal")
                              : QStringLiteral("vertical");
}

// Items of one group of the slide become one again.
BoardDress::Items itemsFor(const QVector<IwbPageWriter::WrittenItem> &items)
{
    BoardDress::Items dressed;
    int last = -1;
    for (const IwbPageWriter::WrittenItem &written : items) {
        const ItemView item(written.item);
        if (isInk(item.type())) {
            dressed.ink.insert(written.id, item.type() == QLatin1String("ZQFluorescentStroke"));
        }
        const bool isOwn = !written.isPicture && !written.isOutlined;
        if (item.type() == curtainType && isOwn) {
            dressed.covers.insert(written.id);
        }
        const QString flip = flipOf(item);
        if (!flip.isEmpty() && isOwn) {
            dressed.flips.insert(written.id, flip);
        }
        if (written.top != last) {
            dressed.groups.append(QStringList());
        }
        last = written.top;
        dressed.groups.last().append(written.id);
    }
    return dressed;
}

bool isArchiveName(const QString &path)
{
    return QFileInfo(path).suffix().compare(QLatin1String("iwb"), Qt::CaseInsensitive) == 0;
}

} // namespace

IwbWriter::IwbWriter(const QString &path, const LessonContext &context)
    : m_context(context)
    , m_losses(context.losses)
    , m_target(path, isArchiveName(path) ? PackageTarget::Archive : PackageTarget::Directory, isIwbFolder)
    , m_packing(context.readsAhead)
    , m_pages(itemSetting(context, &m_media))
    , m_travels(!context.options.contains(QStringLiteral("plain")))
    , m_makesPictures(context.options.value(QStringLiteral("items")) != QLatin1String("drop"))
    , m_places(context.losses)
    , m_dress(m_travels)
    , m_writing(context.readsAhead, WorkBehind::Order::AsGiven)
{
    m_losses.setFormat(QStringLiteral("IWB"));
    m_target.setKept(context.isKept);
    m_pages.setPainter(context.painter, m_makesPictures);
    if (context.verify && m_losses.presentation().isHeard()) {
        m_check = std::make_unique<IwbPageCheck>(context.plugin);
    }
    m_pages.setUniqueInDocument();
    if (m_travels && !context.isTrial) {
        m_native = std::make_unique<NativePartWriter>(m_target);
    }
}

void IwbWriter::expect(int slides, int resources)
{
    Q_UNUSED(resources)
    m_dress.setPageCount(slides);
    if (m_travels) {
        m_target.expectFiles(qint64(slides) + 2); // each has a file beside the document
    }
}

void IwbWriter::begin(const QJsonObject &presentation)
{
    m_presentation = presentation;
}

void IwbWriter::addResource(const QString &relativePath, const QString &sourceFile)
{
    m_media.add(relativePath, sourceFile);
}

void IwbWriter::writeSlide(const LessonSlide &slide)
{
    try {
        const auto made = std::make_shared<const MadePage>(makePage(slide));
        m_writing.give(bytesOfPage, [this, made] { writePage(*made); });
    } catch (const LessonError &) {
        finishPages(); // which fails with that of a page before
        throw;
    }
}

IwbWriter::MadePage IwbWriter::makePage(const LessonSlide &slide)
{
    if (m_empty.isNull()) {
        start(slide.properties);
        startPages();
    }
    MadePage made;
    made.slide = slide;
    made.number = ++m_slides;
    made.losses = SlideLosses(m_places.next(), made.number);
    checkPagePoints(slide.items, made.number, m_target.target());
    const SlideLosses losses = m_travels ? made.losses.elsewhere() : made.losses;
    m_pages.setDocument(m_empty.cloneNode().toDocument());
    QDomElement page = m_pages.addPage(slide.properties, made.number, losses);
    if (page.isNull()) {
        failWithoutPages();
    }
    made.items = m_pages.addItems(page, slide, losses);
    const auto isLeftOut = [](const IwbPageWriter::WrittenItem &item) { return item.id.isEmpty(); };
    if (!made.items.isEmpty() && std::all_of(made.items.cbegin(), made.items.cend(), isLeftOut)) {
        losses.emptied(ownerOf(slide));
    }
    lookAtTexts(page);
    constexpr int lettersOfPoint = 16;
    made.leftOut = qint64(m_pages.items().takePointsLeftOut()) * lettersOfPoint;
    made.media = m_media.takeAdditions();
    storeMedia(made.media);
    made.document = m_pages.takeDocument();
    return made;
}

// Any thread may do it, one page after the other.
void IwbWriter::writePage(const MadePage &made)
{
    const QDomElement page = IwbPageWriter::pageSet(made.document).firstChildElement();
    m_dress.dress(page, itemsFor(made.items));
    if (m_check) {
        m_check->add(made.media);
        m_check->compare(made.document, made.slide, made.items, made.number,
                         m_travels ? made.losses.elsewhere() : made.losses);
    }
    if (m_native && !m_native->writePage(made.number, made.slide, made.items, page)) {
        made.losses.note(ownerOf(made.slide),
                         say("it is too deep to travel along, so that what other boards don't show is lost"));
    }
    const QByteArray text = xmlLines(page, pageDepth);
    checkSlideSize(text.size() + made.leftOut, made.number, m_target.target());
    m_contentSize += made.leftOut;
    append(text);
    const QDomElement svg = made.document.documentElement().firstChildElement(svgPartTag);
    for (QDomElement record = svg.nextSiblingElement(); !record.isNull(); record = record.nextSiblingElement()) {
        m_records += xmlLines(record, recordDepth);
    }
    ++m_writtenPages;
}

// So that all is told of the pages that are written, and of the one that fails, and nothing of those behind it.
void IwbWriter::finishPages()
{
    const auto tell = [this] { m_places.finish(m_writtenPages + 1); };
    try {
        m_writing.finish();
    } catch (const LessonError &) {
        tell();
        throw;
    }
    tell();
}

void IwbWriter::lookAtTexts(const QDomElement &page)
{
    const QDomNodeList spans = page.elementsByTagName(QStringLiteral("svg:tspan"));
    for (int i = 0; i < spans.size(); ++i) {
        m_missing.lookAt(spans.at(i).toElement().text(), m_slides);
    }
    m_missing.lookAt(m_pages.paintedWords(), m_pages.paintedFamilies(), m_slides);
}

void IwbWriter::start(const QJsonObject &firstSlide)
{
    m_pages.start(m_presentation, firstSlide);
    m_empty = m_pages.takeDocument();
    BoardDress::startDocument(m_empty, m_presentation);
    if (m_check) {
        const SlideLosses losses = m_losses.presentation();
        m_check->comparePresentation(m_empty, m_presentation, m_travels ? losses.elsewhere() : losses);
    }
}

// Writes what stands before the pages and keeps what stands behind them.
void IwbWriter::startPages()
{
    QDomElement pages = IwbPageWriter::pageSet(m_empty);
    if (pages.isNull()) {
        failWithoutPages();
    }
    const QDomNode mark = pages.appendChild(m_empty.createElement(QStringLiteral("pages")));
    const QByteArray text = xmlDocumentText(m_empty.documentElement());
    const QByteArray marked = xmlLines(mark.toElement(), pageDepth);
    pages.removeChild(mark);
    const int place = text.indexOf(marked);
    m_contentSize = text.size();
    m_contentHash.addData(text.left(place));
    if (!m_context.isTrial) {
        m_target.append(contentFile, text.left(place));
    }
    m_afterPages = text.mid(place + marked.size());
}

void IwbWriter::finishDocument()
{
    const int end = m_afterPages.lastIndexOf("\n</");
    append(m_afterPages.left(end) + m_records + m_afterPages.mid(end));
}

void IwbWriter::append(const QByteArray &text)
{
    m_contentSize += text.size();
    checkXmlSize(m_contentSize, m_target.target());
    if (m_context.isTrial) {
        return;
    }
    m_contentHash.addData(text);
    m_target.append(contentFile, text);
}

void IwbWriter::storeMedia(IwbMedia::Additions &media)
{
    for (auto &[reference, file] : media.placed) {
        if (m_context.isTrial) {
            // It is only asked for its name.
        } else if (!file.isConverted) {
            m_target.copy(reference, file.source, reference);
        } else {
            storePicture(reference, file.picture, file.isMade);
        }
        file.picture = {};
    }
}

// To pack a picture takes longer than all else that is done for an item.
void IwbWriter::storePicture(const QString &reference, const QImage &picture, bool isPainted)
{
    const auto store = [this, reference, picture, isPainted] {
        QBuffer png;
        png.open(QIODevice::WriteOnly);
        if (!(isPainted ? writePaintedPng(picture, &png) : picture.save(&png, "png"))) {
            throw packingError(reference).in(m_target.target());
        }
        m_target.write(reference, png.data());
    };
    m_packing.give(picture.sizeInBytes(), store);
}

void IwbWriter::failWithoutPages() const
{
    throw LessonError(say("The plug-in writes no IWB pages"), say("Use the plug-in that belongs to this command"))
        .in(m_target.target());
}

void IwbWriter::finish()
{
    finishPages();
    if (m_empty.isNull()) {
        start({});
        const QByteArray text = xmlDocumentText(m_empty.documentElement());
        m_contentHash.addData(text);
        m_target.write(contentFile, text);
    } else {
        finishDocument();
    }
    const SlideLosses losses = m_losses.presentation();
    if (m_check) {
        m_check->finish(m_slides, m_context.losses);
    }
    const int strokes = m_pages.items().strokesAsPolylines();
    if (strokes > 0) {
        losses.note(QStringLiteral("ink"), sayNumber("%n strokes became polylines", strokes));
    }
    const int leftOut = m_pages.items().strokesLeftOut();
    if (leftOut > 0) {
        losses.note(QStringLiteral("ink"), sayNumber("%n strokes left out", leftOut));
    }
    const Sentences missing = m_missing.sentences();
    for (const Sentence &sentence : missing) {
        losses.note(QStringLiteral("fonts"), sentence);
    }
    const QStringList unused = m_media.unused();
    if (!m_travels && !unused.isEmpty()) {
        losses.note(QStringLiteral("files"), say("no page shows them, so they stay behind: %1").arg(listed(unused)));
    }
    if (m_context.isTrial) {
        return;
    }
    const QImage thumbnail =
        m_context.painter && m_makesPictures ? m_context.painter->thumbnail(thumbnailWidth) : QImage();
    if (!thumbnail.isNull()) {
        storePicture(QLatin1String(thumbnailFile), thumbnail, true);
    }
    m_packing.finish();
    if (m_native) {
        m_native->finish(m_presentation, m_pages.pageSize(), m_media, m_contentHash.result());
    }
    m_target.commit();
}

} // namespace lessonhost

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

namespace lessonhost {

namespace {

const QLatin1String contentFile("content.xml");
const QLatin1String svgPartTag("svg:svg");
constexpr int thumbnailWidth = 320;
// How many elements stand around a page and around a record about an item.
constexpr int pageDepth = 3;
constexpr int recordDepth = 1;

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
    , m_dress(!context.options.contains(QStringLiteral("plain")))
    , m_travels(!context.options.contains(QStringLiteral("plain")))
    , m_makesPictures(context.options.value(QStringLiteral("items")) != QLatin1String("drop"))
{
    m_losses.setFormat(QStringLiteral("IWB"));
    m_target.setKept(context.isKept);
    m_pages.setPainter(context.painter, m_makesPictures);
    if (context.verify && m_losses.presentation().isHeard()) {
        m_check = std::make_unique<IwbPageCheck>(context.plugin, m_media);
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
    if (m_pages.document().isNull()) {
        start(slide.properties);
        startPages();
    }
    ++m_slides;
    checkPagePoints(slide.items, m_slides, m_target.target());
    const SlideLosses told = m_losses.slide(m_slides);
    const SlideLosses losses = m_travels ? told.elsewhere() : told;
    QDomElement page = m_pages.addPage(slide.properties, m_slides, losses);
    if (page.isNull()) {
        failWithoutPages();
    }
    const QVector<IwbPageWriter::WrittenItem> items = m_pages.addItems(page, slide, losses);
    const auto isLeftOut = [](const IwbPageWriter::WrittenItem &item) { return item.id.isEmpty(); };
    if (!items.isEmpty() && std::all_of(items.cbegin(), items.cend(), isLeftOut)) {
        losses.emptied({QStringLiteral("slide"), slide.properties.value(SlideKeys::id).toString()});
    }
    m_dress.dress(page, itemsFor(items));
    if (m_check) {
        m_check->compare(m_pages.document(), slide, items, m_slides, losses);
    }
    lookAtTexts(page);
    storeMedia();
    if (m_native && !m_native->writePage(m_slides, slide, items, page)) {
        told.note({QStringLiteral("slide"), slide.properties.value(SlideKeys::id).toString()},
                  say("it is too deep to travel along, so that what other boards don't show is lost"));
    }
    writePage(page);
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
    BoardDress::startDocument(m_pages.document(), m_presentation);
    if (m_check) {
        const SlideLosses losses = m_losses.presentation();
        m_check->comparePresentation(m_pages.document(), m_presentation, m_travels ? losses.elsewhere() : losses);
    }
}

// Writes what stands before the pages and keeps what stands behind them.
void IwbWriter::startPages()
{
    QDomElement pages = m_pages.pageSet();
    if (pages.isNull()) {
        failWithoutPages();
    }
    const QDomNode mark = pages.appendChild(m_pages.document().createElement(QStringLiteral("pages")));
    const QByteArray text = xmlDocumentText(m_pages.document().documentElement());
    const QByteArray marked = xmlLines(mark.toElement(), pageDepth);
    pages.removeChild(mark);
    const int place = text.indexOf(marked);
    m_contentSize = text.size();
    m_contentHash.addData(text.left(place));
    if (!m_context.isTrial) {
        m_target.write(contentFile, text.left(place));
    }
    m_afterPages = text.mid(place + marked.size());
}

// The page goes into the file and out of the document, and so do the records about its items.
void IwbWriter::writePage(const QDomElement &page)
{
    const QByteArray text = xmlLines(page, pageDepth);
    constexpr int lettersOfPoint = 16;
    const qint64 leftOut = qint64(m_pages.items().takePointsLeftOut()) * lettersOfPoint;
    checkSlideSize(text.size() + leftOut, m_slides, m_target.target());
    m_contentSize += leftOut;
    append(text);
    m_pages.pageSet().removeChild(page);
    QDomElement root = m_pages.document().documentElement();
    const QDomElement svg = root.firstChildElement(svgPartTag);
    for (QDomElement record = svg.nextSiblingElement(); !record.isNull(); record = svg.nextSiblingElement()) {
        m_records += xmlLines(record, recordDepth);
        root.removeChild(record);
    }
}

void IwbWriter::finishPages()
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

void IwbWriter::storeMedia()
{
    m_media.storeNew([this](const QString &reference, const IwbMedia::File &file) {
        if (m_context.isTrial) {
            return;
        }
        if (!file.isConverted) {
            m_target.copy(reference, file.source, reference);
            return;
        }
        storePicture(reference, file.picture, file.isMade);
    });
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
    if (m_pages.document().isNull()) {
        start({});
        const QByteArray text = xmlDocumentText(m_pages.document().documentElement());
        m_contentHash.addData(text);
        m_target.write(contentFile, text);
    } else {
        finishPages();
    }
    const SlideLosses losses = m_losses.presentation();
    if (m_check) {
        m_check->finish(m_slides);
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

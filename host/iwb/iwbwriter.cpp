#include "iwb/iwbwriter.h"

#include "files/inputfile.h"
#include "files/lessonerror.h"
#include "files/outputfile.h"
#include "files/packagenames.h"
#include "files/pictures.h"
#include "files/xmlloader.h"
#include "files/xmltext.h"
#include "iwb/iwbpackage.h"
#include "izqtransformation.h"
#include "lesson/itemkeys.h"
#include "lesson/itemvalues.h"
#include "lesson/pagesize.h"
#include "lesson/textruns.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QImage>

#include <cerrno>
#include <cstdio>

namespace lessonhost {

namespace {

// The plug-in cuts four characters off the export folder's name to find the file library beside it.
const QLatin1String exportFolder("/lesson.iwb");
const QLatin1String libraryFolder("/lesson/filelibrary");
const QLatin1String contentFile("content.xml");
const QLatin1String svgTag("svg:svg");
// How many elements stand around a page and around a record about an item.
constexpr int pageDepth = 3;
constexpr int recordDepth = 1;

// The name of a background's colour: a number 0xRRGGBB or any text of a colour.
QString backgroundColor(const QJsonObject &properties)
{
    auto color = backColor(properties.value(SlideKeys::backColor));
    if (!color) {
        color = itemColor(properties.value(SlideKeys::color));
    }
    return color ? color->name(color->alpha() < 255 ? QColor::HexArgb : QColor::HexRgb) : QStringLiteral("#ffffff");
}

bool isArchiveName(const QString &path)
{
    return QFileInfo(path).suffix().compare(QLatin1String("iwb"), Qt::CaseInsensitive) == 0;
}

} // namespace

IwbWriter::IwbWriter(const QString &path, const LessonContext &context)
    : m_context(context)
    , m_target(path, isArchiveName(path) ? PackageTarget::Archive : PackageTarget::Directory, isIwbFolder)
{
    if (!m_context.losses) {
        m_context.losses = &m_unwanted;
    }
    m_context.losses->setFormat(QStringLiteral("IWB"));
    m_target.setKept(context.isKept);
    const QString work = m_target.workFolder();
    makeFolders(work + exportFolder, path);
    makeFolders(work + libraryFolder, path);
    IwbItemWriter::Setting setting;
    setting.plugin = context.plugin;
    setting.losses = m_context.losses;
    setting.files = &m_files;
    setting.exportFolder = work + exportFolder;
    setting.target = path;
    setting.keepsInk =
        context.options.value(QStringLiteral("ink"), QStringLiteral("polyline")) != QLatin1String("drop");
    m_items = std::make_unique<IwbItemWriter>(setting);
}

void IwbWriter::begin(const QJsonObject &presentation)
{
    m_presentation = presentation;
    reportUncarried(presentation, QStringLiteral("presentation"),
                    {QStringLiteral("ID"), QStringLiteral("Width"), QStringLiteral("Height"), QStringLiteral("Range")});
}

void IwbWriter::addResource(const QString &relativePath, const QString &sourceFile)
{
    m_files.add(relativePath, sourceFile);
}

// The page size of a raw lesson stands in its slides, so the document waits for the first.
void IwbWriter::startDocument(const QJsonObject &firstSlide)
{
    const QLatin1String width("Width");
    const QLatin1String height("Height");
    m_pageSize = QSizeF(itemNumber(m_presentation.value(width)), itemNumber(m_presentation.value(height)));
    if (!(m_pageSize.width() > 0) || !(m_pageSize.height() > 0)) {
        m_pageSize = pageOfSourceRect(valueText(firstSlide.value(SlideKeys::sourceRect)));
    }
    QJsonObject size{{width, exactText(m_pageSize.width())}, {height, exactText(m_pageSize.height())}};
    const QString id = withoutControlCharacters(valueText(m_presentation.value(QLatin1String("ID"))));
    if (!id.isEmpty()) {
        size.insert(QLatin1String("ID"), id);
    }
    m_document = m_context.plugin->tranPresJSON2IWB({}, size);
    QDomElement svg = m_document.documentElement().firstChildElement(svgTag);
    svg.setAttribute(QStringLiteral("viewBox"),
                     QStringLiteral("0 0 %1 %2").arg(exactText(m_pageSize.width()), exactText(m_pageSize.height())));
}

void IwbWriter::writeSlide(const LessonSlide &slide)
{
    if (m_document.isNull()) {
        startDocument(slide.properties);
        startPages();
    }
    ++m_slides;
    QDomElement page = m_context.plugin->tranSlideJSON2IWB(m_document, pageProperties(slide.properties));
    if (page.isNull()) {
        failWithoutPages();
    }
    pageSet().appendChild(page);
    placeBackground(page);
    fillPage(page);
    m_items->write(m_document, page, slide.items, m_slides);
    checkMedia(page);
    writePage(page);
    reportUncarried(slide.properties, QStringLiteral("slide"),
                    {QStringLiteral("ID"), QStringLiteral("SlideSourceRect"), QStringLiteral("BackColor"),
                     QStringLiteral("color"), QStringLiteral("AttachFile"), QStringLiteral("document"),
                     QStringLiteral("TextureLineType")});
}

QDomElement IwbWriter::pageSet() const
{
    return m_document.documentElement().firstChildElement(svgTag).firstChildElement(QStringLiteral("svg:pageset"));
}

// Writes what stands before the pages and keeps what stands behind them.
void IwbWriter::startPages()
{
    QDomElement pages = pageSet();
    if (pages.isNull()) {
        failWithoutPages();
    }
    const QDomNode mark = pages.appendChild(m_document.createElement(QStringLiteral("pages")));
    const QByteArray text = xmlDocumentText(m_document.documentElement());
    const QByteArray marked = xmlLines(mark.toElement(), pageDepth);
    pages.removeChild(mark);
    const int place = text.indexOf(marked);
    m_contentSize = text.size();
    m_target.write(contentFile, text.left(place));
    m_afterPages = text.mid(place + marked.size());
}

// The page goes into the file and out of the document, and so do the records about its items.
void IwbWriter::writePage(const QDomElement &page)
{
    append(xmlLines(page, pageDepth));
    pageSet().removeChild(page);
    QDomElement root = m_document.documentElement();
    const QDomElement svg = root.firstChildElement(svgTag);
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
    m_target.append(contentFile, text);
}

void IwbWriter::failWithoutPages() const
{
    throw LessonError(QStringLiteral("The plug-in writes no IWB pages"),
                      QStringLiteral("Use the plug-in that belongs to this command"))
        .in(m_target.target());
}

QJsonObject IwbWriter::pageProperties(const QJsonObject &properties)
{
    // The identifier names a file.
    QString id = withoutControlCharacters(valueText(properties.value(QLatin1String("ID"))));
    if (!problemWithFileName(id).isEmpty()) {
        id = QLatin1String("slide") + QString::number(m_slides);
    }
    return {
        {QStringLiteral("index"), m_slides},
        {QStringLiteral("ID"), id},
        {QStringLiteral("filePath"), QString(m_target.workFolder() + exportFolder)},
        {QStringLiteral("x"), QStringLiteral("0")},
        {QStringLiteral("y"), QStringLiteral("0")},
        {QStringLiteral("Width"), exactText(m_pageSize.width())},
        {QStringLiteral("Height"), exactText(m_pageSize.height())},
        {SlideKeys::backColor, backgroundColor(properties)},
        {QStringLiteral("AttachFile"), backgroundFile(properties, id)},
    };
}

// Puts the background picture into the file library, as the png that its name will say it is. Its name there, or
// nothing.
QString IwbWriter::backgroundFile(const QJsonObject &properties, const QString &id)
{
    QStringList references = valueText(properties.value(SlideKeys::files)).split(QLatin1Char(','));
    references.append(valueText(properties.value(SlideKeys::document)));
    references.removeAll(QString());
    QString chosen;
    for (const QString &reference : qAsConst(references)) {
        const QString source = m_files.find(reference);
        if (source.isEmpty()) {
            const bool isPaper = reference.startsWith(QLatin1String("ID_SLIDE_NOTEBOOK_"));
            report(Loss::File, QStringLiteral("slide"), reference,
                   isPaper ? QStringLiteral("it is a paper of the editor, not a file of the lesson")
                           : QStringLiteral("the lesson has no such file"));
            continue;
        }
        if (!chosen.isEmpty()) {
            report(Loss::File, QStringLiteral("slide"), reference, QStringLiteral("a page has one background picture"));
            continue;
        }
        const Picture picture(source);
        if (!picture.problem().isEmpty()) {
            report(Loss::File, QStringLiteral("slide"), reference, picture.problem());
            continue;
        }
        const QString name = id + QLatin1String(".png");
        const QString file = m_target.workFolder() + libraryFolder + QLatin1Char('/') + name;
        QFile::remove(file);
        if (!placeAsPng(picture, source, reference, file)) {
            report(Loss::File, QStringLiteral("slide"), reference, QStringLiteral("it can't be made a PNG picture"));
            continue;
        }
        if (picture.format() == "svg") {
            const QStringList leftOut = picture.drawing().leftOut;
            for (const QString &name : leftOut) {
                report(Loss::File, QStringLiteral("slide"), reference,
                       QStringLiteral("it shows \"%1\", which isn't beside it in the lesson").arg(name));
            }
        }
        chosen = name;
    }
    return chosen;
}

bool IwbWriter::placeAsPng(const Picture &picture, const QString &source, const QString &reference,
                           const QString &file) const
{
    if (picture.format() == "png") {
        copyFile(source, reference, file, m_target.target());
        return true;
    }
    const QImage image = picture.image();
    if (image.isNull()) {
        return false;
    }
    OutputFile output(file, m_target.target());
    image.save(&output, "png");
    output.finish();
    return true;
}

// The picture is said to be stretched to the page; readers of svg need its size for that.
void IwbWriter::fillPage(QDomElement &page) const
{
    QDomElement image = page.firstChildElement(QStringLiteral("svg:image"));
    if (image.isNull()) {
        return;
    }
    image.setAttribute(QStringLiteral("width"), exactText(m_pageSize.width()));
    image.setAttribute(QStringLiteral("height"), exactText(m_pageSize.height()));
    image.setAttribute(QStringLiteral("preserveAspectRatio"), QStringLiteral("none"));
}

// The plug-in has copied the picture from the library and says nothing if it couldn't. The library's own file is whole.
void IwbWriter::placeBackground(const QDomElement &page) const
{
    const QString reference =
        page.firstChildElement(QStringLiteral("svg:image")).attribute(QStringLiteral("xlink:href"));
    if (reference.isEmpty()) {
        return;
    }
    const QDir library(m_target.workFolder() + libraryFolder);
    const QStringList files = library.entryList(QDir::Files);
    for (const QString &file : files) {
        const QString place = m_target.workFolder() + exportFolder + QLatin1Char('/') + reference;
        makeFolders(QFileInfo(place).path(), m_target.target());
        if (std::rename(QFile::encodeName(library.filePath(file)).constData(), QFile::encodeName(place).constData())
            != 0) {
            throw writeError(m_target.target(), errno);
        }
    }
}

void IwbWriter::finish()
{
    moveMedia();
    if (m_document.isNull()) {
        startDocument({});
        m_target.write(contentFile, xmlDocumentText(m_document.documentElement()));
    } else {
        finishPages();
    }
    reportTotals();
    m_target.commit();
}

void IwbWriter::failToPlace(const QString &file) const
{
    throw LessonError(QStringLiteral("The file %1 can't be put into the package").arg(file),
                      QStringLiteral("Check that there is room"))
        .in(m_target.target());
}

// The plug-in says nothing of a file that it couldn't copy.
void IwbWriter::checkMedia(const QDomElement &element) const
{
    const QDir folder(m_target.workFolder() + exportFolder);
    const QString reference = element.attribute(QStringLiteral("xlink:href"));
    const bool isInPackage = reference.contains(QLatin1Char('/')) && !reference.contains(QLatin1Char(':'))
        && !reference.startsWith(QLatin1Char('#'));
    if (isInPackage && !folder.exists(reference)) {
        failToPlace(reference);
    }
    for (QDomElement child = element.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
        checkMedia(child);
    }
}

void IwbWriter::moveMedia()
{
    const QDir folder(m_target.workFolder() + exportFolder);
    QDirIterator it(folder.path(), QDir::Files, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString file = it.next();
        m_target.take(folder.relativeFilePath(file), file);
    }
}

void IwbWriter::reportTotals()
{
    m_slides = 0;
    const int strokes = m_items->strokesAsPolylines();
    if (strokes > 0) {
        report(Loss::Note, QStringLiteral("ink"), {},
               QString::number(strokes)
                   + QLatin1String(strokes == 1 ? " stroke became a polyline" : " strokes became polylines"));
    }
    if (m_items->strokesLeftOut() > 0) {
        report(Loss::Note, QStringLiteral("ink"), {},
               QString::number(m_items->strokesLeftOut())
                   + QLatin1String(m_items->strokesLeftOut() == 1 ? " stroke left out" : " strokes left out"));
    }
    const QStringList unused = m_files.unused();
    if (!unused.isEmpty()) {
        report(Loss::Note, QStringLiteral("files"), {},
               QLatin1String("no page shows them, so they stay behind: ") + unused.join(QLatin1String(", ")));
    }
}

void IwbWriter::reportUncarried(const QJsonObject &properties, const QString &type, const QStringList &carried)
{
    for (auto it = properties.constBegin(); it != properties.constEnd(); ++it) {
        const QJsonValue value = it.value();
        const bool saysSomething = value.isString() ? !value.toString().isEmpty()
            : value.isObject()                      ? !value.toObject().isEmpty()
            : value.isArray()                       ? !value.toArray().isEmpty()
                                                    : value.isBool() || value.isDouble();
        if (!carried.contains(it.key()) && saysSomething) {
            report(Loss::Value, type, it.key(), {});
        }
    }
}

void IwbWriter::report(Loss::Kind kind, const QString &type, const QString &key, const QString &detail)
{
    Loss loss;
    loss.kind = kind;
    loss.slide = m_slides;
    loss.itemType = type;
    loss.key = key;
    loss.detail = detail;
    m_context.losses->add(loss);
}

} // namespace lessonhost

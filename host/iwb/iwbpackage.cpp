// SPDX-License-Identifier: MIT
#include "iwb/iwbpackage.h"

#include "files/inputfile.h"
#include "files/lessonerror.h"
#include "files/outputfile.h"
#include "files/packagenames.h"
#include "iwb/nativepart.h"
#include "lesson/slidelimits.h"
#include "svg/svgnames.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QUrl>

#include <algorithm>

namespace lessonhost {

namespace {

const QLatin1String contentName("content.xml");

const QLatin1String embeddedScheme("data:");
constexpr qint64 pieceSize = qint64(64) * 1024;

bool isReferenceOfSvg(const QString &attribute)
{
    return attribute.endsWith(QLatin1String("href"));
}

// Whether there is something behind the head of a "data:" reference.
bool hasContent(const QString &uri)
{
    return uri.contains(QLatin1Char(','));
}

// The format has folders for more than one, and says "image" and "video" in its samples.
QString pathInFolder(const QString &path)
{
    const QString folder = path.section(QLatin1Char('/'), 0, 0);
    const QString rest = path.mid(folder.size());
    return folder == QLatin1String("image") || folder == QLatin1String("video") ? folder + QLatin1Char('s') + rest
        : folder == QLatin1String("images") || folder == QLatin1String("videos") ? folder.chopped(1) + rest
                                                                                : path;
}

bool hasScheme(const QString &reference)
{
    const int colon = reference.indexOf(QLatin1Char(':'));
    // A single letter before the colon is a drive.
    return colon > 0 && reference.indexOf(QLatin1Char('/')) != 0
        && reference.leftRef(colon).indexOf(QLatin1Char('/')) < 0;
}

QString suffixOfMediaType(const QString &type)
{
    struct Row
    {
        const char *type;
        const char *suffix;
    };
    static constexpr Row rows[] = {{"image/png", "png"},  {"image/jpeg", "jpg"}, {"image/jpg", "jpg"},
                                   {"image/gif", "gif"},  {"image/bmp", "bmp"},  {"image/svg+xml", "svg"},
                                   {"audio/mpeg", "mp3"}, {"audio/mp3", "mp3"},  {"video/mp4", "mp4"}};
    for (const Row &row : rows) {
        if (type == QLatin1String(row.type)) {
            return QLatin1String(row.suffix);
        }
    }
    return QStringLiteral("bin");
}

} // namespace

/*!
 * Goes through the document for all that has to be known before the first page is read.
 */
class IwbPackage::Visitor : public XmlVisitor
{
public:
    Visitor(IwbPackage &package, bool readsRecords)
        : m_package(package)
        , m_readsRecords(readsRecords)
    {
    }

    void beginDocument() override
    {
        m_before.clear();
        m_package.forgetDocument();
    }

    Way begin(const QDomElement &element) override
    {
        const int embedded = m_package.m_embeddedPaths.size();
        const QDomNamedNodeMap attributes = element.attributes();
        for (int i = 0; i < attributes.size(); ++i) {
            if (isReferenceOfSvg(attributes.item(i).nodeName())) {
                m_package.takeReference(attributes.item(i).nodeValue());
            }
        }
        if (m_readsRecords) {
            m_package.m_records.add(element);
        }
        const Way way = m_package.m_outline.begin(element);
        if (way == Part) {
            m_package.m_embeddedBefore.append(embedded);
        } else if (way == Inside) {
            m_before.append(embedded);
        }
        return way;
    }

    Fate end(const QDomElement &element) override
    {
        const Fate fate = m_package.m_outline.end(element);
        const int embedded = m_before.takeLast();
        if (fate == LatePart) {
            m_package.m_embeddedBefore.append(embedded);
        }
        return fate;
    }

    void pass(const Passed &passed) override
    {
        for (const ReadAttribute &attribute : passed.attributes) {
            if (isReferenceOfSvg(attribute.name)) {
                m_package.takeReference(attribute.value());
            }
        }
        m_package.m_outline.pass(passed);
    }

private:
    IwbPackage &m_package;
    bool m_readsRecords;
    QVector<int> m_before; // pictures within the document before each open element
};

IwbPackage::IwbPackage(const QString &path)
    : m_source(path, contentName)
{
    const QString content = m_source.file(contentName);
    m_files = m_source.files();
    for (const QString &name : qAsConst(m_files)) {
        m_folded.insert(name.toCaseFolded(), name);
    }
    const bool hasOwnFiles = std::any_of(m_files.cbegin(), m_files.cend(), NativePart::isPart);
    Visitor visitor(*this, hasOwnFiles);
    m_parts = std::make_unique<XmlParts>(content, displayName(), visitor);
    m_outline.finish();
    if (!m_outline.hasKnownRoot()) {
        throw LessonError(say("The document begins with <%1> where an IWB file has <iwb>").arg(m_outline.rootTag()),
                          say("Check that this is an IWB lesson"))
            .in(displayName());
    }
}

XmlPart IwbPackage::part(int index) const
{
    checkSlideSize(m_parts->size(index), index + 1, displayName());
    const XmlPart part = m_parts->part(index);
    findReferences(part.element, m_embeddedBefore.at(index));
    return part;
}

QString IwbPackage::displayName() const
{
    return m_source.displayName(contentName);
}

QString IwbPackage::contentFile() const
{
    return m_source.file(contentName);
}

QStringList IwbPackage::resources() const
{
    QStringList paths = m_files;
    paths.removeOne(contentName);
    paths.removeOne(QLatin1String(thumbnailFile));
    paths += m_embedded.keys();
    paths.sort();
    return paths;
}

QString IwbPackage::file(const QString &resource) const
{
    const QString embedded = m_embedded.value(resource);
    return embedded.isEmpty() ? m_source.file(resource) : embedded;
}

QString IwbPackage::resolve(const QString &reference, Sentence *problem) const
{
    const QString asWritten = plainPath(reference.trimmed());
    const QString decoded = QUrl::fromPercentEncoding(asWritten.toUtf8());
    for (const QString &path : {asWritten, decoded}) {
        if (m_embedded.contains(path) || (m_source.contains(path) && path != contentName)) {
            return path;
        }
    }
    if (asWritten.isEmpty()) {
        *problem = say("it names no file");
    } else if (hasScheme(asWritten)) {
        *problem = say("it lies outside of the package and isn't fetched");
    } else {
        *problem = problemWithPackagePath(decoded);
        if (problem->isEmpty()) {
            *problem = m_source.containsFolder(decoded) ? say("it is a folder") : say("the package has no such file");
        }
    }
    return {};
}

void IwbPackage::forgetDocument()
{
    for (const QString &file : qAsConst(m_embedded)) {
        QFile::remove(file);
    }
    m_outline.beginDocument();
    m_records = RecordTexts();
    m_remarks.clear();
    m_embedded.clear();
    m_embeddedPaths.clear();
    m_embeddedBefore.clear();
}

// Pictures within the document become files.
void IwbPackage::takeReference(const QString &reference)
{
    if (reference.startsWith(embeddedScheme)) {
        saveEmbedded(reference);
        return;
    }
    const QString other = otherName(reference);
    if (!other.isEmpty()) {
        m_remarks.append(say("the file %1 was found as %2").arg(reference.left(200), other));
    }
}

// Makes references to what is there. embedded: how many pictures within the document there are before the element;
// gives those before what follows it.
int IwbPackage::findReferences(QDomElement element, int embedded) const
{
    const QDomNamedNodeMap attributes = element.attributes();
    for (int i = 0; i < attributes.size(); ++i) {
        QDomAttr attribute = attributes.item(i).toAttr();
        if (!isReferenceOfSvg(attribute.name())) {
            continue;
        }
        const QString other = otherName(attribute.value());
        if (attribute.value().startsWith(embeddedScheme)) {
            attribute.setValue(hasContent(attribute.value()) ? m_embeddedPaths.at(embedded++) : QString());
        } else if (!other.isEmpty()) {
            attribute.setValue(other);
        }
    }
    for (QDomElement child = element.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
        embedded = findReferences(child, embedded);
    }
    return embedded;
}

// A file that isn't there by its name, but compressed beside it or with other capitals, as some programs leave it.
QString IwbPackage::otherName(const QString &reference) const
{
    const QString path = QUrl::fromPercentEncoding(plainPath(reference.trimmed()).toUtf8());
    if (path.isEmpty() || hasScheme(path) || path.startsWith(QLatin1Char('#')) || m_source.contains(path)) {
        return {};
    }
    const int name = path.lastIndexOf(QLatin1Char('/')) + 1;
    const QString compressed = path.left(name) + QLatin1String("compressed_") + path.mid(name);
    const QString inFolder = pathInFolder(path);
    for (const QString &other : {compressed, path, inFolder}) {
        const QString found = m_folded.value(other.toCaseFolded());
        if (!found.isEmpty()) {
            return found;
        }
    }
    return {};
}

void IwbPackage::saveEmbedded(const QString &uri)
{
    if (!hasContent(uri)) {
        return;
    }
    const int comma = uri.indexOf(QLatin1Char(','));
    const QStringList head = uri.mid(5, comma - 5).split(QLatin1Char(';'));
    const QByteArray data = QByteArray::fromPercentEncoding(uri.mid(comma + 1).toUtf8());
    const QString name =
        QStringLiteral("embedded-%1.%2").arg(m_embedded.size() + 1).arg(suffixOfMediaType(head.first()));
    const QByteArray content = head.contains(QLatin1String("base64")) ? QByteArray::fromBase64(data) : data;
    const QString file = m_work.filePath(name);
    writeFile(file, content, m_source.path(), OutputFile::Temporary);
    QString path = QLatin1String("images/") + name;
    while (m_source.contains(path)) {
        path.insert(path.lastIndexOf(QLatin1Char('.')), QLatin1Char('_'));
    }
    m_embedded.insert(path, file);
    m_embeddedPaths.append(path);
}

bool isIwbFolder(const QString &path)
{
    // Only its first element counts, but the rest has to be XML as well.
    class Root : public XmlVisitor
    {
    public:
        void beginDocument() override { isIwb = false; }
        Way begin(const QDomElement &element) override
        {
            isIwb = iwbName(element) == QLatin1String("iwb");
            return Past;
        }
        Fate end(const QDomElement &) override { return Dropped; }

        bool isIwb = false;
    };
    const QString file = path + QLatin1Char('/') + contentName;
    if (!QFileInfo(file).isFile()) {
        return false;
    }
    Root root;
    try {
        const XmlParts document(file, file, root);
        return root.isIwb;
    } catch (const LessonError &) {
        // A disk that fails says nothing about the folder.
        InputFile input(file);
        while (!input.read(pieceSize).isEmpty()) { }
        input.check();
        return false;
    }
}

} // namespace lessonhost

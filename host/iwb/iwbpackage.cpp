// SPDX-License-Identifier: MIT
#include "iwb/iwbpackage.h"

#include "files/inputfile.h"
#include "files/lessonerror.h"
#include "files/outputfile.h"
#include "files/packagenames.h"
#include "files/xmlloader.h"
#include "svg/svgnames.h"

#include <QDir>
#include <QFileInfo>
#include <QUrl>

namespace lessonhost {

namespace {

const QLatin1String contentName("content.xml");

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

IwbPackage::IwbPackage(const QString &path)
    : m_source(path, contentName)
{
    m_document = loadXmlFile(m_source.file(contentName), displayName());
    if (iwbName(root()) != QLatin1String("iwb") && svgName(root()) != QLatin1String("svg")) {
        throw LessonError(
            QStringLiteral("The document begins with <%1> where an IWB file has <iwb>").arg(root().tagName()),
            QStringLiteral("Check that this is an IWB lesson"))
            .in(displayName());
    }
    m_files = m_source.files();
    for (const QString &name : qAsConst(m_files)) {
        m_folded.insert(name.toCaseFolded(), name);
    }
    extractEmbedded(root());
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

QString IwbPackage::resolve(const QString &reference, QString *problem) const
{
    const QString asWritten = plainPath(reference.trimmed());
    const QString decoded = QUrl::fromPercentEncoding(asWritten.toUtf8());
    for (const QString &path : {asWritten, decoded}) {
        if (m_embedded.contains(path) || (m_source.contains(path) && path != contentName)) {
            return path;
        }
    }
    if (asWritten.isEmpty()) {
        *problem = QStringLiteral("it names no file");
    } else if (hasScheme(asWritten)) {
        *problem = QStringLiteral("it lies outside of the package and isn't fetched");
    } else {
        *problem = problemWithPackagePath(decoded);
        if (problem->isEmpty()) {
            const bool isFolder = QFileInfo(m_source.directory() + QLatin1Char('/') + decoded).isDir();
            *problem = isFolder ? QStringLiteral("it is a folder") : QStringLiteral("the package has no such file");
        }
    }
    return {};
}

// Pictures within the document become files, and their references the names of these.
void IwbPackage::extractEmbedded(QDomElement element)
{
    const QDomNamedNodeMap attributes = element.attributes();
    for (int i = 0; i < attributes.size(); ++i) {
        QDomAttr attribute = attributes.item(i).toAttr();
        if (!attribute.name().endsWith(QLatin1String("href"))) {
            continue;
        }
        const QString other = otherName(attribute.value());
        if (attribute.value().startsWith(QLatin1String("data:"))) {
            attribute.setValue(saveEmbedded(attribute.value()));
        } else if (!other.isEmpty()) {
            m_remarks.append(QStringLiteral("%1 was found as %2").arg(attribute.value().left(200), other));
            attribute.setValue(other);
        }
    }
    for (QDomElement child = element.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
        extractEmbedded(child);
    }
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
    return m_folded.value(compressed.toCaseFolded(), m_folded.value(path.toCaseFolded()));
}

QString IwbPackage::saveEmbedded(const QString &uri)
{
    const int comma = uri.indexOf(QLatin1Char(','));
    const QStringList head = uri.mid(5, qMax(0, comma - 5)).split(QLatin1Char(';'));
    const QByteArray data = QByteArray::fromPercentEncoding(uri.mid(comma + 1).toUtf8());
    const QString name =
        QStringLiteral("embedded-%1.%2").arg(m_embedded.size() + 1).arg(suffixOfMediaType(head.first()));
    const QByteArray content = head.contains(QLatin1String("base64")) ? QByteArray::fromBase64(data) : data;
    if (comma < 0) {
        return {};
    }
    const QString file = m_work.filePath(name);
    writeFile(file, content, m_source.path(), OutputFile::Temporary);
    QString path = QLatin1String("images/") + name;
    while (m_source.contains(path)) {
        path.insert(path.lastIndexOf(QLatin1Char('.')), QLatin1Char('_'));
    }
    m_embedded.insert(path, file);
    return path;
}

bool isIwbFolder(const QString &path)
{
    const QString file = path + QLatin1Char('/') + contentName;
    if (!QFileInfo(file).isFile()) {
        return false;
    }
    // A disk that fails says nothing about the folder.
    const QByteArray text = InputFile(file).all();
    try {
        return iwbName(loadXml(text, file).documentElement()) == QLatin1String("iwb");
    } catch (const LessonError &) {
        return false;
    }
}

} // namespace lessonhost

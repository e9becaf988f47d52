// SPDX-License-Identifier: MIT
#include "domhelpers.h"
#include "files/ziparchive.h"
#include "fuzzsupport.h"
#include "hostsupport.h"
#include "mutation.h"
#include "translatorchains.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QJsonDocument>
#include <QSet>

#include <cstdio>
#include <cstdlib>

using namespace lessonhost;

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t *, std::size_t size, std::size_t)
{
    return size;
}

// Makes the seeds of the fuzz targets out of the example lessons and the plug-in's tables:
// seeds EXAMPLES SEEDS fills the folders SEEDS/<target>.

namespace {

QString seedFolder;
QSet<QByteArray> written;

[[noreturn]] void fail(const QString &path)
{
    std::fprintf(stderr, "%s can't be read or written\n", qPrintable(path));
    std::exit(1);
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : (fail(path), QByteArray());
}

void put(const char *target, const QByteArray &content)
{
    if (content.isEmpty() || written.contains(target + content)) {
        return;
    }
    written.insert(target + content);
    const QString folder = seedFolder + QLatin1Char('/') + target;
    QDir().mkpath(folder);
    QFile file(folder + "/%1"_s.arg(written.size(), 5, 10, QLatin1Char('0')));
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) {
        fail(file.fileName());
    }
}

QByteArray textOf(const QDomElement &element)
{
    QByteArray text;
    if (element.isNull()) {
        return text;
    }
    QTextStream stream(&text);
    stream.setCodec("UTF-8");
    element.save(stream, -1);
    stream.flush();
    return text;
}

void putObject(const char *target, const QJsonObject &object)
{
    if (!object.isEmpty()) {
        put(target, QJsonDocument(object).toJson(QJsonDocument::Compact));
    }
}

// An item and what it becomes on its ways.
void putItem(const QJsonObject &item)
{
    putObject("itemjson2zqtx", item);
    putObject("itemjson2iwb", item);
    QDomDocument document;
    put("itemiwb2json", textOf(plugin().tranItemJSON2IWB(document, item)));
}

void putElements(const QDomElement &root)
{
    forEachDescendant(root, [](const QDomElement &element) {
        if (createTranslator(element.attribute("type"))) {
            put("itemzqtx2json", textOf(element));
            putItem(plugin().tranItemZQTX2JSON(element, context("3.0")));
        } else if (createTranslator(element.nodeName())) {
            put("itemxml2json", textOf(element));
            putItem(plugin().tranItemXML2JSON(element, context("3.0")));
        } else if (element.tagName().startsWith("svg:")) {
            put("itemiwb2json", textOf(element));
        }
        return true;
    });
}

void putDocument(const QString &path)
{
    const QByteArray text = contentOf(path);
    QDomDocument document;
    if (!document.setContent(text, false)) {
        return;
    }
    const QDomElement root = document.documentElement();
    put("slidesandlessons", text);
    putObject("slidesandlessons", plugin().tranSlideZQTX2JSON(root, {}));
    putObject("slidesandlessons", plugin().tranPresZQTX2JSON(root, {}));
    for (QDomElement slide = root.firstChildElement(); !slide.isNull(); slide = slide.nextSiblingElement()) {
        put("slidesandlessons", textOf(slide));
        putObject("slidesandlessons", plugin().tranSlideXML2JSON(slide, {}));
    }
    putElements(root);
}

void putPackage(const QString &path)
{
    const bool isIwb = path.endsWith(".iwb");
    const QString archive = workFolder() + "/seed.zip";
    packZip(path, archive);
    put("archives", contentOf(archive));
    QFile::remove(archive);
    if (isIwb) {
        put("iwbimport", contentOf(path + "/content.xml"));
        return;
    }
    const QString exported = workFolder() + "/seed.iwb";
    convert("zqtx", path, "iwb", exported);
    const QString unpacked = workFolder() + "/seed";
    unpackZip(exported, unpacked);
    put("iwbimport", contentOf(unpacked + "/content.xml"));
    QDir(unpacked).removeRecursively();
    QFile::remove(exported);
}

void putTypes()
{
    for (const QString &type : itemTypes()) {
        for (const char *value : {"1,2,3,4,5,6", "1", ""}) {
            const QString text = value;
            putItem(filledObject(type, text));
            put("itemzqtx2json", textOf(filledItem(type, text)));
            put("itemxml2json", textOf(filledRawItem(type, text)));
        }
    }
}

} // namespace

int main(int argc, char **argv)
{
    startApplication();
    if (argc != 3) {
        std::fprintf(stderr, "usage: seeds EXAMPLES SEEDS\n");
        return 1;
    }
    plugin();
    seedFolder = QFile::decodeName(argv[2]);
    QDir(seedFolder).removeRecursively();
    const QString examples = QFile::decodeName(argv[1]);
    QDirIterator files(examples, {"*.xml"}, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        putDocument(files.next());
    }
    const QDir folder(examples);
    const QStringList packages = folder.entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString &package : packages) {
        const QString path = folder.filePath(package);
        if (QFile::exists(path + "/index.xml") || package.endsWith(".iwb")) {
            putPackage(path);
        }
    }
    putTypes();
    return 0;
}

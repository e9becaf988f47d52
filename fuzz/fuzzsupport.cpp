// SPDX-License-Identifier: MIT
#include "fuzzsupport.h"

#include "files/lessonerror.h"
#include "files/xmlloader.h"
#include "iwbtextinfo.h"
#include "writewatch.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QMap>
#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <optional>

#include <sanitizer/allocator_interface.h>
#include <sanitizer/lsan_interface.h>

using namespace lessonhost;

namespace {

constexpr double longestCall = 2.0; // seconds
constexpr std::size_t memoryPerByte = 200;
constexpr std::size_t spareMemory = std::size_t(64) << 20;

std::size_t liveMemory = 0;
std::size_t mostMemory = 0;
std::optional<WriteWatch> watch;

void countAllocation(const volatile void *, std::size_t size)
{
    liveMemory += size;
    mostMemory = qMax(mostMemory, liveMemory);
}

void countRelease(const volatile void *memory)
{
    const auto *address = const_cast<const void *>(memory);
    if (address && __sanitizer_get_ownership(address)) {
        const std::size_t size = __sanitizer_get_allocated_size(address);
        liveMemory -= qMin(size, liveMemory);
    }
}

double processorTime()
{
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return double(time.tv_sec) + double(time.tv_nsec) * 1e-9;
}

[[noreturn]] void fail(const QString &message)
{
    std::fprintf(stderr, "==ERROR: %s\n", qPrintable(message));
    std::abort();
}

QString newWorkFolder()
{
    const QString memory = "/dev/shm";
    static QTemporaryDir folder((QFileInfo(memory).isWritable() ? memory : QDir::tempPath()) + "/lessonfuzz-XXXXXX");
    const QString path = QFileInfo(folder.path()).canonicalFilePath();
    for (const char *part : {"package/images", "filelibrary", "export", "temporary"}) {
        QDir().mkpath(path + QLatin1Char('/') + part);
    }
    qputenv("TMPDIR", QFile::encodeName(path + "/temporary"));
    // libFuzzer leaves by _exit, which skips destructors, but runs atexit functions before.
    std::atexit([] { folder.remove(); });
    return path;
}

QJsonValue asHandedIn(const QString &key, const QJsonValue &value)
{
    if (value.isObject()) {
        QJsonObject object = value.toObject();
        object.remove("IWB_TEXTINFO-VECTOR");
        object.remove("IWB_TEXTINFO-DELVECTOR");
        for (auto it = object.begin(); it != object.end(); ++it) {
            it.value() = asHandedIn(it.key(), it.value());
        }
        return object;
    }
    if (value.isArray()) {
        QJsonArray array = value.toArray();
        for (int i = 0; i < array.size(); ++i) {
            array[i] = asHandedIn(QString(), array.at(i));
        }
        return array;
    }
    if (key == "path") {
        return inPackage().value(key);
    }
    if (key == "tmpFilePath" || key == "filePath") {
        return exportFolder();
    }
    return value;
}

void appendTree(const QDomElement &element, const QString &leftOut, QString &text)
{
    QMap<QString, QString> attributes;
    const QDomNamedNodeMap nodes = element.attributes();
    for (int i = 0; i < nodes.count(); ++i) {
        const QDomNode node = nodes.item(i);
        if (node.nodeName() != leftOut) {
            attributes.insert(node.nodeName(), node.nodeValue());
        }
    }
    text += QLatin1Char('<') + element.tagName();
    for (auto it = attributes.cbegin(); it != attributes.cend(); ++it) {
        text += QLatin1Char(' ') + it.key() + QLatin1Char('=') + it.value() + QLatin1Char('\n');
    }
    text += QLatin1Char('>');
    for (QDomNode child = element.firstChild(); !child.isNull(); child = child.nextSibling()) {
        if (child.nodeName() == "ArtVectObj_Manager") {
            continue;
        }
        if (child.isElement()) {
            appendTree(child.toElement(), leftOut, text);
        } else {
            text += child.nodeValue();
        }
    }
    text += "</>";
}

} // namespace

std::size_t inputSize = 0;

TransformationPlugin &plugin()
{
    static auto *const instance = [] {
        // Nothing but the one log of the mind map is printed, and that would drown the messages of libFuzzer.
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
        __sanitizer_install_malloc_and_free_hooks(countAllocation, countRelease);
        return new TransformationPlugin;
    }();
    return *instance;
}

QString workFolder()
{
    static const QString folder = newWorkFolder();
    return folder;
}

QDomDocument documentOf(const QByteArray &text)
{
    try {
        return loadXml(text, "input");
    } catch (const LessonError &) {
        return {};
    }
}

QJsonObject parsedObject(const QByteArray &text)
{
    // Qt's parser loses some of its memory where an object has a key twice.
    const __lsan::ScopedDisabler disabler;
    return QJsonDocument::fromJson(text).object();
}

QJsonObject objectOf(const QByteArray &text)
{
    return asHandedIn({}, parsedObject(text)).toObject();
}

QString exportFolder()
{
    return workFolder() + "/export";
}

QJsonObject inPackage()
{
    return {{"path", QString(workFolder() + "/package/")}};
}

QJsonObject context(const QString &version)
{
    const QJsonObject slide{
        {"SlideSourceRect", "0,0,1024,768"},
        {"SlideTagsInfo", "<interactive><Trigger><ID value=\"1\"/></Trigger></interactive><effect/>"}};
    QJsonObject context = inPackage();
    context.insert("slide", slide);
    context.insert("pres", QJsonObject{{"Version", version}});
    return context;
}

QString treeText(const QDomElement &element, const QString &leftOut)
{
    QString text;
    appendTree(element, leftOut, text);
    return text;
}

void mustBeSame(const char *sentence, const QString &one, const QString &other)
{
    if (one != other) {
        fail("%1\n--- one\n%2\n--- other\n%3"_s.arg(sentence, one, other));
    }
}

void mustHoldAttributes(const QJsonObject &keyMap, const QDomElement &element, const QJsonObject &json)
{
    for (auto it = keyMap.constBegin(); it != keyMap.constEnd(); ++it) {
        const QJsonArray path = it.value().toArray();
        const QString name = path.first().toString();
        if (path.size() == 1 && element.hasAttribute(name)) {
            mustBeSame("an attribute is read as it stands", json.value(it.key()).toString(), element.attribute(name));
        }
    }
}

void releaseTextRuns(const QJsonObject &item)
{
    const auto address = [&item](const char *key) { return quintptr(item.value(key).toString().toULongLong()); };
    const auto list = address("IWB_TEXTINFO-VECTOR");
    const auto destroy = address("IWB_TEXTINFO-DELVECTOR");
    if (list && destroy) {
        // NOLINTNEXTLINE(performance-no-int-to-ptr): that is how the plug-in hands them over.
        reinterpret_cast<IwbTextInfoListDeleter>(destroy)(reinterpret_cast<void *>(list));
    }
}

CallGuard::CallGuard(const char *what)
    : m_what(what)
    , m_start(processorTime())
{
    static const QByteArray folder = QFile::encodeName(workFolder());
    watch.emplace(folder.constData());
    liveMemory = 0;
    mostMemory = 0;
}

CallGuard::~CallGuard()
{
    watch.reset();
    const double seconds = processorTime() - m_start;
    const QLatin1String what(m_what);
    if (seconds > longestCall) {
        fail("%1 took %2 s for %3 bytes"_s.arg(what).arg(seconds).arg(inputSize));
    }
    if (mostMemory > memoryPerByte * inputSize + spareMemory) {
        fail("%1 took %2 bytes of memory for %3 bytes"_s.arg(what).arg(mostMemory).arg(inputSize));
    }
}

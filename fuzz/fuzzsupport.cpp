#include "fuzzsupport.h"

#include "iwbtextinfo.h"
#include "lessonerror.h"
#include "writewatch.h"
#include "xmlloader.h"

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
    const QString memory = QStringLiteral("/dev/shm");
    static QTemporaryDir folder((QFileInfo(memory).isWritable() ? memory : QDir::tempPath())
                                + QStringLiteral("/lessonfuzz-XXXXXX"));
    const QString path = QFileInfo(folder.path()).canonicalFilePath();
    for (const char *part : {"package/images", "filelibrary", "export", "temporary"}) {
        QDir().mkpath(path + QLatin1Char('/') + QLatin1String(part));
    }
    qputenv("TMPDIR", QFile::encodeName(path + QLatin1String("/temporary")));
    // libFuzzer leaves by _exit, which skips destructors, but runs atexit functions before.
    std::atexit([] { folder.remove(); });
    return path;
}

QJsonValue asHandedIn(const QString &key, const QJsonValue &value)
{
    if (value.isObject()) {
        QJsonObject object = value.toObject();
        object.remove(QStringLiteral("IWB_TEXTINFO-VECTOR"));
        object.remove(QStringLiteral("IWB_TEXTINFO-DELVECTOR"));
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
    if (key == QLatin1String("path")) {
        return QString(workFolder() + QLatin1String("/package/"));
    }
    if (key == QLatin1String("tmpFilePath") || key == QLatin1String("filePath")) {
        return QString(workFolder() + QLatin1String("/export"));
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
        if (child.nodeName() == QLatin1String("ArtVectObj_Manager")) {
            continue;
        }
        if (child.isElement()) {
            appendTree(child.toElement(), leftOut, text);
        } else {
            text += child.nodeValue();
        }
    }
    text += QLatin1String("</>");
}

} // namespace

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

QDomDocument documentOf(const std::uint8_t *data, std::size_t size)
{
    plugin();
    workFolder();
    try {
        return loadXml(QByteArray(reinterpret_cast<const char *>(data), int(size)), QStringLiteral("input"));
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

QJsonObject objectOf(const std::uint8_t *data, std::size_t size)
{
    plugin();
    const QByteArray text(reinterpret_cast<const char *>(data), int(size));
    return asHandedIn(QString(), parsedObject(text)).toObject();
}

QJsonObject context(const QString &version)
{
    const QJsonObject slide{
        {QStringLiteral("SlideSourceRect"), QStringLiteral("0,0,1024,768")},
        {QStringLiteral("SlideTagsInfo"),
         QStringLiteral("<interactive><Trigger><ID value=\"1\"/></Trigger></interactive><effect/>")}};
    return {{QStringLiteral("slide"), slide},
            {QStringLiteral("pres"), QJsonObject{{QStringLiteral("Version"), version}}},
            {QStringLiteral("path"), QString(workFolder() + QLatin1String("/package/"))}};
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
        fail(QStringLiteral("%1\n--- one\n%2\n--- other\n%3").arg(QLatin1String(sentence), one, other));
    }
}

void mustBeSame(const char *sentence, const QJsonObject &one, const QJsonObject &other)
{
    if (one != other) {
        mustBeSame(sentence, QString::fromUtf8(QJsonDocument(one).toJson()),
                   QString::fromUtf8(QJsonDocument(other).toJson()));
    }
}

void releaseTextRuns(const QJsonObject &item)
{
    const auto address = [&item](const char *key) {
        return quintptr(item.value(QLatin1String(key)).toString().toULongLong());
    };
    const auto list = address("IWB_TEXTINFO-VECTOR");
    const auto destroy = address("IWB_TEXTINFO-DELVECTOR");
    if (list && destroy) {
        reinterpret_cast<IwbTextInfoListDeleter>(destroy)(reinterpret_cast<void *>(list));
    }
}

CallGuard::CallGuard(const char *what, std::size_t inputSize)
    : m_what(what)
    , m_inputSize(inputSize)
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
        fail(QStringLiteral("%1 took %2 s for %3 bytes").arg(what).arg(seconds).arg(m_inputSize));
    }
    if (mostMemory > memoryPerByte * m_inputSize + spareMemory) {
        fail(QStringLiteral("%1 took %2 bytes of memory for %3 bytes").arg(what).arg(mostMemory).arg(m_inputSize));
    }
}

#include "transformationplugin.h"

#include <QDomDocument>

#include <cstddef>
#include <cstdint>

// Any XML as an item of every form that the plug-in reads, and what comes out written again. Only depth and size that a
// host lets through are tried.

namespace {

const std::size_t largestInput = 1 << 16;

QJsonObject context()
{
    return {
        {QStringLiteral("slide"),
         QJsonObject{{QStringLiteral("SlideSourceRect"), QStringLiteral("0,0,1024,768")},
                     {QStringLiteral("SlideTagsInfo"), QStringLiteral("<interactive><a value='1'/></interactive>")}}},
        {QStringLiteral("pres"), QJsonObject{{QStringLiteral("Version"), QStringLiteral("2.0")}}}};
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static TransformationPlugin plugin;
    QDomDocument document;
    if (size > largestInput
        || !document.setContent(QByteArray::fromRawData(reinterpret_cast<const char *>(data), int(size)), false)) {
        return 0;
    }
    const QDomElement element = document.documentElement();
    const QJsonObject slide = plugin.tranSlideZQTX2JSON(element, {});
    plugin.tranSlideJSON2ZQTX({}, slide);
    plugin.tranSlideXML2JSON(element, {});
    const QJsonObject item = plugin.tranItemZQTX2JSON(element, context());
    const QDomElement written = plugin.tranItemJSON2ZQTX({}, item);
    plugin.tranItemZQTX2JSON(written, context());
    plugin.tranItemXML2JSON(element, context());
    return 0;
}

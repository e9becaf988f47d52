// SPDX-License-Identifier: MIT
// Text boards in IWB: the texts travel beside the item, as a list of runs in memory.
#include <iwbtextinfo.h>
#include <izqtransformation.h>

#include <QCoreApplication>
#include <QPluginLoader>
#include <QTextStream>

namespace {

const QString listKey = QStringLiteral("IWB_TEXTINFO-VECTOR");
const QString destroyerKey = QStringLiteral("IWB_TEXTINFO-DELVECTOR");

void destroyRuns(void *list)
{
    delete static_cast<IwbTextInfoList *>(list);
}

// Before an export: the item carries the addresses of a list and of its destroyer, with which the plug-in destroys the
// list when it has written it.
void lendRuns(QJsonObject &item, const IwbTextInfoList &runs)
{
    item[listKey] = QString::number(quintptr(new IwbTextInfoList(runs)));
    item[destroyerKey] = QString::number(quintptr(&destroyRuns));
}

// After an import: the list is the host's, and so is destroying it, with the destroyer that came with it.
IwbTextInfoList takeRuns(const QJsonObject &item)
{
    auto *list = reinterpret_cast<IwbTextInfoList *>(item[listKey].toString().toULongLong());
    const auto destroy = reinterpret_cast<IwbTextInfoListDeleter>(item[destroyerKey].toString().toULongLong());
    const IwbTextInfoList runs = list ? *list : IwbTextInfoList();
    if (list && destroy) {
        destroy(list);
    }
    return runs;
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    QTextStream out(stdout);
    QPluginLoader loader(QString::fromLocal8Bit(argc > 1 ? argv[1] : PLUGIN_FILE));
    auto *plugin = qobject_cast<IZQTransformation *>(loader.instance());
    if (!plugin) {
        out << "The plug-in can't be loaded: " << loader.errorString() << '\n';
        return 1;
    }

    IwbTextInfo run;
    run.text = QStringLiteral("Half of base times height");
    run.fontWeight = QStringLiteral("normal");
    QJsonObject item{
        {"Type", "ZQTextBoard"}, {"ID", "7"}, {"BoundingBox", "100,100,500,160"}, {"Matrix", "1,0,0,1,0,0"}};
    lendRuns(item, {run});
    QDomDocument document;
    const QDomElement element = plugin->tranItemJSON2IWB(document, item);
    element.save(out, 2);

    // The first run is what the area says about all of its letters; those with letters follow.
    const IwbTextInfoList again = takeRuns(plugin->tranItemIWB2JSON(element, {}));
    for (const IwbTextInfo &one : again) {
        out << one.fontFamily << ' ' << one.fontSize << ": " << one.text << '\n';
    }
    return again.size() == 2 && again.last().text == run.text ? 0 : 1;
}

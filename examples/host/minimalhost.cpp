// SPDX-License-Identifier: MIT
// The least a host does: load the plug-in, write an item as ZQTX, read it back.
#include <izqtransformation.h>

#include <QCoreApplication>
#include <QPluginLoader>
#include <QTextStream>

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    qSetGlobalQHashSeed(0); // attributes come in the same order each time
    QTextStream out(stdout);

    QPluginLoader loader(QString::fromLocal8Bit(argc > 1 ? argv[1] : PLUGIN_FILE));
    auto *plugin = qobject_cast<IZQTransformation *>(loader.instance());
    if (!plugin) {
        out << "The plug-in can't be loaded: " << loader.errorString() << '\n';
        return 1;
    }

    const QJsonObject stroke{{"Type", "ZQSmoothStroke"}, {"ID", "42"},        {"BoundingBox", "0,0,100,50"},
                             {"Color", "255,0,0"},       {"XY", "10,10,5,5"}, {"Width", "4"}};
    const QDomElement element = plugin->tranItemJSON2ZQTX({}, stroke);
    element.save(out, 2);

    const QJsonObject again = plugin->tranItemZQTX2JSON(element, {});
    out << again.value("Type").toString() << ' ' << again.value("ID").toString() << '\n';
    return again.value("Type") == stroke.value("Type") ? 0 : 1;
}

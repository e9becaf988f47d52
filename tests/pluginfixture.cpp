#include "pluginfixture.h"

#include <QJsonDocument>
#include <QMap>
#include <QPluginLoader>
#include <QVector>

QObject *pluginObject()
{
    static QPluginLoader loader(QStringLiteral(PLUGIN_FILE));
    QObject *object = loader.instance();
    if (!object) {
        qFatal("%s", qPrintable(loader.errorString()));
    }
    return object;
}

IZQTransformation *plugin()
{
    auto *interface = qobject_cast<IZQTransformation *>(pluginObject());
    if (!interface) {
        qFatal("the plug-in has another interface");
    }
    return interface;
}

QDomElement xml(const QString &text)
{
    static QVector<QDomDocument> documents;
    QDomDocument document;
    QString error;
    if (!document.setContent(text, false, &error)) {
        qFatal("%s in %s", qPrintable(error), qPrintable(text));
    }
    documents.append(document);
    return document.documentElement();
}

QString toText(const QDomElement &element)
{
    QMap<QString, QString> attributes;
    for (int i = 0; i < element.attributes().count(); ++i) {
        const QDomAttr attribute = element.attributes().item(i).toAttr();
        attributes.insert(attribute.name(), attribute.value());
    }
    QString text = QLatin1Char('<') + element.tagName();
    for (auto it = attributes.cbegin(); it != attributes.cend(); ++it) {
        text += QStringLiteral(" %1=\"%2\"").arg(it.key(), it.value());
    }
    if (!element.hasChildNodes()) {
        return text + QStringLiteral("/>");
    }
    text += QLatin1Char('>');
    for (QDomNode node = element.firstChild(); !node.isNull(); node = node.nextSibling()) {
        text += node.isElement() ? toText(node.toElement()) : node.nodeValue();
    }
    return text + QStringLiteral("</%1>").arg(element.tagName());
}

QJsonObject json(const char *text)
{
    QJsonParseError error{};
    const auto document = QJsonDocument::fromJson(QByteArray(text).replace('\'', '"'), &error);
    if (!document.isObject()) {
        qFatal("%s in %s", qPrintable(error.errorString()), text);
    }
    return document.object();
}

QString toText(const QJsonObject &object)
{
    return QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact));
}

QJsonObject attributesOf(const QDomElement &element)
{
    QJsonObject object;
    const QDomNamedNodeMap attributes = element.attributes();
    for (int i = 0; i < attributes.count(); ++i) {
        object.insert(attributes.item(i).nodeName(), attributes.item(i).nodeValue());
    }
    return object;
}

QString differences(const QJsonObject &actual, const QJsonObject &expected)
{
    const auto written = [](const QJsonValue &value) { return toText(QJsonObject{{QString(), value}}); };
    QString lines;
    for (auto it = expected.constBegin(); it != expected.constEnd(); ++it) {
        const QJsonValue value = actual.value(it.key());
        if (it->isNull() ? !value.isUndefined() : value != *it) {
            lines += it.key() + QLatin1String(" is ") + written(value) + QLatin1String(", not ") + written(*it)
                + QLatin1Char('\n');
        }
    }
    return lines;
}

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
    const QDomNamedNodeMap nodes = element.attributes();
    for (int i = 0; i < nodes.count(); ++i) {
        attributes.insert(nodes.item(i).nodeName(), nodes.item(i).nodeValue().toHtmlEscaped());
    }
    QString text = QLatin1Char('<') + element.tagName();
    for (auto it = attributes.cbegin(); it != attributes.cend(); ++it) {
        text += QLatin1Char(' ') + it.key() + QLatin1String("=\"") + it.value() + QLatin1Char('"');
    }
    QString content;
    QTextStream stream(&content);
    for (QDomNode child = element.firstChild(); !child.isNull(); child = child.nextSibling()) {
        if (child.isElement()) {
            stream << toText(child.toElement());
        } else {
            child.save(stream, -1);
        }
    }
    stream.flush();
    if (content.isEmpty()) {
        return text + QLatin1String("/>");
    }
    return text + QLatin1Char('>') + content + QLatin1String("</") + element.tagName() + QLatin1Char('>');
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

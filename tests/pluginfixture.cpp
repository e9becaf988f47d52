// SPDX-License-Identifier: MIT
#include "pluginfixture.h"

#include <QBuffer>
#include <QDir>
#include <QDirIterator>
#include <QImage>
#include <QJsonDocument>
#include <QMap>
#include <QPluginLoader>
#include <QVector>

#include <ctime>

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
    QString text = '<' + element.tagName();
    const QJsonObject attributes = attributesOf(element);
    for (auto it = attributes.constBegin(); it != attributes.constEnd(); ++it) {
        text += ' ' + it.key() + "=\"" + it->toString().toHtmlEscaped() + '"';
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
    return text + '>' + content + QLatin1String("</") + element.tagName() + '>';
}

QJsonObject json(const QByteArray &text)
{
    if (!text.startsWith('{')) {
        QJsonObject members;
        const QStringList parts = QString::fromUtf8(text).split(' ');
        for (const QString &part : parts) {
            const QString value = part.section('=', 1);
            members.insert(part.section('=', 0, 0), value == "null" ? QJsonValue() : value);
        }
        return members;
    }
    QJsonParseError error{};
    const auto document = QJsonDocument::fromJson(QByteArray(text).replace('\'', '"'), &error);
    if (!document.isObject()) {
        qFatal("%s in %s", qPrintable(error.errorString()), text.constData());
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
            lines += it.key() + QLatin1String(" is ") + written(value) + QLatin1String(", not ") + written(*it) + '\n';
        }
    }
    return lines;
}

QJsonObject ownKeys(QJsonObject item)
{
    for (const char *key : {"Type", "ID", "Visible", "LockIn", "InfiniteClone", "Matrix", "SlideMatrix"}) {
        item.remove(key);
    }
    return item;
}

QDomElement toSvg(const QJsonObject &item)
{
    QDomDocument document;
    return plugin()->tranItemJSON2IWB(document, item);
}

int messagesOf(const std::function<void()> &call)
{
    static int count = 0;
    count = 0;
    const auto former = qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) { ++count; });
    call();
    qInstallMessageHandler(former);
    return count;
}

bool takesTooLong(const std::function<void()> &call)
{
    // Processor time, since other programs may keep the machine.
    const std::clock_t start = std::clock();
    call();
    return double(std::clock() - start) / CLOCKS_PER_SEC >= 2 * slowness;
}

void putFile(const QString &path, const QByteArray &content)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size() || !file.flush()) {
        qFatal("%s: %s", qPrintable(path), qPrintable(file.errorString()));
    }
}

QByteArray fileContent(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QMap<QString, QByteArray> filesBelow(const QString &folder)
{
    QMap<QString, QByteArray> files;
    QDirIterator it(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString file = it.next();
        files.insert(QDir(folder).relativeFilePath(file), fileContent(file));
    }
    return files;
}

QByteArray redPicture()
{
    QImage picture(4, 3, QImage::Format_RGB32);
    picture.fill(Qt::red);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    picture.save(&buffer, "png");
    return bytes;
}

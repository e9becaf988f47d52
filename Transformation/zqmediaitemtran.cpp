// SPDX-License-Identifier: MIT
#include "zqmediaitemtran.h"

#include "domhelpers.h"
#include "numbertext.h"
#include "packagefiles.h"
#include "xmlplaces.h"

#include <QFileInfo>

const FamilyVocabulary &ZQMediaItemTran::vocabulary()
{
    static const FamilyVocabulary table(
        {},
        {
            {{"ZQImagePic", "ZQMediaFlash", "ZQMediaAudio", "ZQMediaVideo", "ZQMediaDoc"},
             {},
             {
                 attribute("resource"),
                 attribute("document"),
                 attribute("name"),
                 childAttribute("format", "property", "format"),
                 childAttribute("loop", "property", "loop"),
                 childAttribute("auto", "property", "auto"),
                 childAttribute("span", "property", "span"),
                 childAttribute("rotate", "property", "rotate"),
                 childAttribute("show_name", "property", "show_name"),
                 childAttribute("extern", "property", "extern"),
                 childAttribute("volume", "property", "volume"),
                 childAttribute("mute", "property", "mute"),
                 childAttribute("duration", "property", "duration"),
                 childAttribute("transparent", "property", "transparent"),
                 childAttribute("filter", "property", "filter"),
                 childAttribute("simulation", "property", "simulation"),
                 childAttribute("subject", "property", "subject"),
                 path("outlinetype", "data", "rect", "outlinetype"),
                 childAttribute("clipStartX", "clipData", "clipStartX"),
                 childAttribute("clipStartY", "clipData", "clipStartY"),
                 childAttribute("clipWidth", "clipData", "clipWidth"),
                 childAttribute("clipHeight", "clipData", "clipHeight"),
                 childAttribute("clipShape", "clipData", "clipShape"),
             },
             // An svg reader finds the file under the same attribute.
             {attribute("MultiMediaFile", "xlink:href")}},
        });
    return table;
}

const TypePairs &ZQMediaItemTran::typePairs()
{
    static const TypePairs pairs{
        {"ZQImagePic", "image"},   {"ZQMediaFlash", "flash"},  {"ZQMediaAudio", "audio"},
        {"ZQMediaVideo", "video"}, {"ZQMediaDoc", "document"},
    };
    return pairs;
}

namespace {

// What a type becomes in IWB: its element, and the directory of its files in the package.
struct IwbForm
{
    const char *type;
    const char *tag;
    const char *directory;
};

const IwbForm iwbForms[] = {
    {"ZQImagePic", "svg:image", "images/"},
    {"ZQMediaVideo", "svg:video", "videos/"},
    {"ZQMediaFlash", "svg:video", "videos/"},
    {"ZQMediaAudio", "svg:a", "audio/"},
};

const IwbForm *iwbFormOf(const QString &type)
{
    for (const IwbForm &form : iwbForms) {
        if (type == QLatin1String(form.type)) {
            return &form;
        }
    }
    return nullptr;
}

const QLatin1String fileKey("MultiMediaFile");

QString mediaTypeOf(const QString &tag, const QString &file)
{
    if (tag == QLatin1String("svg:image")) {
        return QStringLiteral("ZQImagePic");
    }
    if (tag == QLatin1String("svg:a")) {
        return QStringLiteral("ZQMediaAudio");
    }
    if (tag == QLatin1String("svg:video")) {
        const bool isFlash = QFileInfo(file).suffix().toLower() == QLatin1String("swf");
        return isFlash ? QStringLiteral("ZQMediaFlash") : QStringLiteral("ZQMediaVideo");
    }
    return {};
}

// Brings a file of the opened package into the file library beside it. The reference is rewritten in any case.
void importFile(const QString &file, const QString &path, QJsonObject &json)
{
    QString parent = path;
    parent.chop(1);
    parent.truncate(parent.lastIndexOf(QLatin1Char('/')) + 1);
    const QString name = QFileInfo(file).fileName();
    if (!path.isEmpty()) {
        copyFile(path + file, parent + QLatin1String("filelibrary/") + name);
    }
    json.insert(fileKey, name);
    json.insert(QLatin1String("saveType"), QStringLiteral("local"));
}

} // namespace

ZQMediaItemTran::ZQMediaItemTran(const QString &type)
    : ZQComItemControlTran(type)
{
    setKeyMaps(vocabulary().keyMaps(type, keyMaps()));
    foldsMatrixIntoBox = true;
}

QJsonObject ZQMediaItemTran::tranXML2JSON(QDomElement element, QJsonObject json, QJsonObject context)
{
    json = ZQComItemControlTran::tranXML2JSON(element, json, context);
    // The files stand in an attribute that no key map names; what the object says already comes first.
    const auto attribute = attributeText(element, fileKey);
    if (attribute && !json.contains(fileKey)) {
        json.insert(fileKey, *attribute);
    }
    const QString files = json.value(fileKey).toString();
    const bool hasBars = files.contains(QLatin1Char('|'));
    // A text with neither separator is no list and stays as it came.
    if (hasBars || files.contains(QLatin1Char(';'))) {
        json.insert(fileKey,
                    joinResourcePaths(files, QLatin1Char(hasBars ? '|' : ';'),
                                      context.value(QLatin1String("path")).toString()));
    }
    return json;
}

QDomElement ZQMediaItemTran::newTxElement(const QJsonObject &) const
{
    static const ElementTemplate media(
        QStringLiteral(R"(<?xml version="1.0" encoding="UTF-8"?>)"
                       R"(<media visible="1" locked="0" type="" uclone="0" id="" name="">)"
                       R"(<transform><rotate angle="0"/></transform>)"
                       R"(<data><rect points="" controlpoints="" outlinetype=""/></data></media>)"));
    return media.instance();
}

QDomElement ZQMediaItemTran::tranJSON2IWB(QDomElement element, QJsonObject json, QJsonObject context)
{
    const IwbForm *form = iwbFormOf(json.value(QLatin1String("Type")).toString());
    if (!form) {
        return element;
    }
    QString source = json.value(QLatin1String("AbsMediaFile")).toString();
    const QLatin1String scheme("file:///");
    if (source.startsWith(scheme)) {
        source.remove(scheme);
    }
    const QString file = json.value(fileKey).toString();
    const QString name = file.mid(file.lastIndexOf(QLatin1Char('/')) + 1);
    const QLatin1String directory(form->directory);
    const QString package = json.value(QLatin1String("tmpFilePath")).toString();
    // Without a package, "/images/" would be a directory of the machine.
    if (!package.isEmpty()) {
        const QString target = package + QLatin1Char('/') + directory;
        makeDirectory(target);
        copyFile(source, target + name);
    }
    json.insert(fileKey, QString(directory + name));
    return ZQComItemControlTran::tranJSON2IWB(newElement(QLatin1String(form->tag)), json, context);
}

QJsonObject ZQMediaItemTran::tranIWB2JSON(QDomElement element, QJsonObject json, QJsonObject context)
{
    json = ZQComItemControlTran::tranIWB2JSON(element, json, context);
    const QString file = json.value(fileKey).toString();
    const QString type = mediaTypeOf(element.nodeName(), file);
    if (!type.isEmpty()) {
        json.insert(QLatin1String("Type"), type);
    }
    if (!file.startsWith(QLatin1String("http:"))) {
        importFile(file, json.value(QLatin1String("path")).toString(), json);
    }
    json.remove(QLatin1String("path"));

    const QString x = json.value(QLatin1String("x")).toString();
    const QString y = json.value(QLatin1String("y")).toString();
    const double right = x.toDouble() + json.value(QLatin1String("Width")).toString().toDouble();
    const double bottom = y.toDouble() + json.value(QLatin1String("Height")).toString().toDouble();
    json.insert(QLatin1String("BoundingBox"),
                QString(x + QLatin1Char(',') + y + QLatin1Char(',') + numberText(right) + QLatin1Char(',')
                        + numberText(bottom)));
    return json;
}

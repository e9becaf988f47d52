// SPDX-License-Identifier: MIT
#include "zqgentooltran.h"

#include "domhelpers.h"

#include <QHash>
#include <QMap>

namespace {

// A key in an attribute of its own name, or of another one, of <data><element>.
KeyPaths inElement(const char *key, const char *name)
{
    return path(key, "data", "element", name);
}

KeyPaths inElement(const char *key)
{
    return inElement(key, key);
}

} // namespace

const FamilyVocabulary &ZQGenToolTran::vocabulary()
{
    static const KeyPaths placedInstrument = {inElement("Translate_X"), inElement("Translate_Y"),
                                              inElement("RotateAngle")};
    static const FamilyVocabulary table(
        {},
        {
            {{"General:everCard"},
             {},
             {inElement("CardList", "Listdata"), inElement("Title"), inElement("CanvasSize")}},
            {{"General:fiaction"},
             {},
             {inElement("FicationList", "Listdata"), inElement("IdList", "Iddata"), inElement("EditList", "Editdata"),
              inElement("Title"), inElement("CanvasSize")}},
            {{"General:connection"},
             {},
             {inElement("ConnectionList"), inElement("Title"), inElement("ConnectionIndex"), inElement("CanvasSize")}},
            {{"General:curtain"},
             {},
             {path("rect", "data", "property", "rect"), path("picture", "data", "property", "picture")}},
            {{"General:spotlight"},
             {},
             {inElement("CanvasSize"), inElement("BackgroundAlpha"), inElement("SpotRadius"), inElement("SpotCenter"),
              inElement("ShapeType"), inElement("Rectsparent")}},
            {{"Math:triangle3060", "Math:triangle4545", "Math:protractor", "Math:compasses"}, {}, placedInstrument},
            {{"Math:ruler"}, {}, {placedInstrument, inElement("Length")}},
        });
    return table;
}

ZQGenToolTran::ZQGenToolTran(const QString &type)
    : ZQComItemControlTran(type)
{
    setKeyMaps(vocabulary().keyMaps(type, keyMaps()));
}

QDomElement ZQGenToolTran::newTxElement(const QJsonObject &) const
{
    static QHash<QString, ElementTemplate> templates;
    auto found = templates.find(itemType);
    if (found == templates.end()) {
        found = templates.insert(itemType, ElementTemplate(templateText()));
    }
    return found->instance();
}

// The key map says it all: each element in <data> that a path leads through, with an empty attribute for each of its
// paths. Elements and attributes stand in ascending order, of their tags and of the keys.
QString ZQGenToolTran::templateText() const
{
    QMap<QString, QString> texts;
    for (auto it = txKeyMap.constBegin(); it != txKeyMap.constEnd(); ++it) {
        const QJsonArray path = it.value().toArray();
        if (path.size() < 3 || path.at(0).toString() != QLatin1String("data")) {
            continue;
        }
        const QString tag = path.at(1).toString();
        QString &text = texts[tag];
        if (text.isEmpty()) {
            text = QLatin1Char('<') + tag + QLatin1Char(' ');
        }
        text += path.at(2).toString() + QLatin1String(R"(="" )");
    }
    QString inner;
    for (const QString &text : qAsConst(texts)) {
        inner += text + QLatin1String("/>");
    }
    return QLatin1String(R"(<?xml version="1.0" encoding="UTF-8"?>)"
                         R"(<generalTool visible="1" locked="0" type="" uclone="0" id=""><data>)")
        + inner + QLatin1String("</data></generalTool>");
}

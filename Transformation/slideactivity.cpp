// SPDX-License-Identifier: MIT
#include "slideactivity.h"

#include "domhelpers.h"

#include <QDir>
#include <QStandardPaths>
#include <QStringList>

namespace {

// Attributes of <activity> and their keys.
struct ActivityAttribute
{
    const char *attribute;
    const char *key;
    bool onlyIfNotEmpty;
};

const ActivityAttribute activityAttributes[] = {
    {"type", "type", false},
    {"audio", "audio", false},
    {"time", "countdown", false},
    {"hotoffset", "hotoffset", false},
    {"gametime", "time", true},
    {"model", "model", true},
    {"difficulty", "difficulty", true},
    {"group", "group", true},
    {"title", "title", true},
};

// Children of <templet> with a picture in the attribute "pic", beside the backgrounds.
const char *const pictureElements[] = {
    "answer_area",
    "question_normal_signal",
    "target",
    "start_teaching_tip",
    "question_normal_double",
    "symbol_greater",
    "symbol_equal",
    "symbol_less",
    "board",
    "copy_active",
    "copy_normal",
    "copy_disable",
    "listen_active",
    "listen_disable",
    "listen_normal",
    "next_active",
    "next_normal",
    "next_disable",
    "play_active",
    "play_normal",
    "play_disable",
    "pre_normal",
    "pre_disable",
    "pre_active",
    "right",
    "stop_active",
    "stop_normal",
    "stop_disable",
};

// Attributes of the children of <templet> that have several.
struct FigureAttribute
{
    enum Kind { Text, Picture, PictureIfNotEmpty };

    const char *figure;
    const char *name;
    Kind kind;
};

const FigureAttribute figureAttributes[] = {
    {"container", "font_align", FigureAttribute::Text},
    {"container", "font_color", FigureAttribute::Text},
    {"container", "font_family", FigureAttribute::Text},
    {"container", "font_size", FigureAttribute::Text},
    {"container", "hotoffset", FigureAttribute::Text},
    {"container", "hotpath", FigureAttribute::Picture},
    {"container", "path", FigureAttribute::Picture},
    {"container", "process_bar_back", FigureAttribute::PictureIfNotEmpty},
    {"container", "process_bar_rate", FigureAttribute::PictureIfNotEmpty},
    {"container", "font_offsetup", FigureAttribute::Text},
    {"material", "font_align", FigureAttribute::Text},
    {"material", "font_color", FigureAttribute::Text},
    {"material", "font_family", FigureAttribute::Text},
    {"material", "font_size", FigureAttribute::Text},
    {"material", "path", FigureAttribute::Picture},
    {"material", "path2", FigureAttribute::Picture},
    {"material", "process_bar_back", FigureAttribute::PictureIfNotEmpty},
    {"material", "process_bar_rate", FigureAttribute::PictureIfNotEmpty},
    {"material", "font_offsetup", FigureAttribute::Text},
};

// Attributes of the elements of a match, in both directions the same names.
const QStringList containerAttributes{QStringLiteral("id"), QStringLiteral("txt")};
const QStringList materialAttributes{QStringLiteral("id"), QStringLiteral("txt"), QStringLiteral("juxtaposedColor")};

const QLatin1String activityInfo("ActivityInfo");
const QLatin1String classActivity("/ClassActivity");

QString behindLast(const QString &text, const QString &word)
{
    return text.mid(text.lastIndexOf(word) + word.size());
}

QJsonObject readAttributes(const QDomElement &element, const QStringList &names)
{
    QJsonObject json;
    for (const QString &name : names) {
        json.insert(name, element.attribute(name));
    }
    return json;
}

QDomElement elementWithAttributes(const QString &tag, const QJsonObject &json, const QStringList &names)
{
    QDomElement element = newElement(tag);
    for (const QString &name : names) {
        element.setAttribute(name, json.value(name).toString());
    }
    return element;
}

QDomElement elementWithAttribute(const QString &tag, const QString &name, const QString &value)
{
    QDomElement element = newElement(tag);
    element.setAttribute(name, value);
    return element;
}

// An element whose one attribute bears its own name, such as <question question="..."/>.
QString namesakeText(const QDomElement &parent, const QString &tag)
{
    return childByTag(parent, tag).attribute(tag);
}

// A game of matching: a container, the materials that go with it, and the groups of answers.

QJsonArray readMaterials(const QDomElement &match, const QStringList &names)
{
    QJsonArray materials;
    const QDomElement list = childByTag(match, QStringLiteral("materials"));
    for (QDomElement row = list.firstChildElement(); !row.isNull(); row = row.nextSiblingElement()) {
        materials.append(readAttributes(row, names));
    }
    return materials;
}

QJsonArray readAnswers(const QDomElement &match)
{
    QJsonArray answers;
    const QDomElement list = childByTag(match, QStringLiteral("answers"));
    for (QDomElement group = list.firstChildElement(); !group.isNull(); group = group.nextSiblingElement()) {
        QJsonArray values;
        for (QDomElement answer = group.firstChildElement(); !answer.isNull(); answer = answer.nextSiblingElement()) {
            values.append(answer.attribute(QStringLiteral("value")));
        }
        answers.append(QJsonObject{{group.attribute(QStringLiteral("id")), values}});
    }
    return answers;
}

QJsonObject readMatch(const QDomElement &match, const QStringList &materialNames)
{
    const QDomElement container = childByTag(match, QStringLiteral("container"));
    return {{QStringLiteral("container"), readAttributes(container, containerAttributes)},
            {QStringLiteral("materials"), readMaterials(match, materialNames)}};
}

void writeMatch(QDomElement &match, const QJsonObject &json, const QStringList &materialNames)
{
    const QString container = QStringLiteral("container");
    match.appendChild(elementWithAttributes(container, json.value(container).toObject(), containerAttributes));
    QDomElement list = newElement(QStringLiteral("materials"));
    const QJsonArray materials = json.value(QLatin1String("materials")).toArray();
    for (const QJsonValue &material : materials) {
        list.appendChild(elementWithAttributes(QStringLiteral("material"), material.toObject(), materialNames));
    }
    match.appendChild(list);
}

void writeAnswers(QDomElement &match, const QJsonArray &answers)
{
    QDomElement list = newElement(QStringLiteral("answers"));
    for (const QJsonValue &value : answers) {
        const QJsonObject group = value.toObject();
        const QString id = group.isEmpty() ? QString() : group.constBegin().key();
        QDomElement container = elementWithAttribute(QStringLiteral("container"), QStringLiteral("id"), id);
        const QJsonArray texts = group.value(id).toArray();
        for (const QJsonValue &text : texts) {
            container.appendChild(
                elementWithAttribute(QStringLiteral("answer"), QStringLiteral("value"), text.toString()));
        }
        list.appendChild(container);
    }
    match.appendChild(list);
}

// A comparison: rows that are a condition or a symbol, each with an id.

QJsonArray readComparison(const QDomElement &match)
{
    QJsonArray rows;
    for (QDomElement row = match.firstChildElement(); !row.isNull(); row = row.nextSiblingElement()) {
        QJsonObject json = readAttributes(row, {QStringLiteral("id")});
        for (const QString &content : {QStringLiteral("condition"), QStringLiteral("symbol")}) {
            const QString text = row.attribute(content);
            if (!text.isEmpty()) {
                json.insert(content, text);
                break;
            }
        }
        rows.append(json);
    }
    return rows;
}

void writeComparison(QDomElement &match, const QJsonArray &rows)
{
    for (const QJsonValue &value : rows) {
        const QJsonObject row = value.toObject();
        for (const QString &content : {QStringLiteral("condition"), QStringLiteral("symbol")}) {
            if (!row.value(content).toString().isEmpty()) {
                match.appendChild(elementWithAttributes(content, row, {QStringLiteral("id"), content}));
                break;
            }
        }
    }
}

QJsonValue readEntry(const QDomElement &match, const QString &type)
{
    const QString question = QStringLiteral("question");
    const QString answer = QStringLiteral("answer");
    if (type == QLatin1String("Judgment")) {
        return QJsonObject{{question, namesakeText(match, question)}, {answer, namesakeText(match, answer)}};
    }
    if (type.contains(QLatin1String("Comparison"))) {
        return readComparison(match);
    }
    if (type.contains(QLatin1String("Pronunciation"))) {
        return namesakeText(match, QStringLiteral("text"));
    }
    QJsonObject json = readMatch(match, materialAttributes);
    json.insert(QLatin1String("answers"), readAnswers(match));
    return json;
}

QDomElement writeEntry(const QJsonValue &entry, const QString &type)
{
    QDomElement match = newElement(QStringLiteral("match"));
    if (type.contains(QLatin1String("PronunciationTest"))) {
        const QString text = QStringLiteral("text");
        match.appendChild(elementWithAttribute(text, text, entry.toString()));
    } else if (type == QLatin1String("Judgment")) {
        for (const QString &part : {QStringLiteral("question"), QStringLiteral("answer")}) {
            match.appendChild(elementWithAttributes(part, entry.toObject(), {part}));
        }
    } else if (type.contains(QLatin1String("Comparison"))) {
        writeComparison(match, entry.toArray());
    } else {
        writeMatch(match, entry.toObject(), materialAttributes);
        writeAnswers(match, entry.toObject().value(QLatin1String("answers")).toArray());
    }
    return match;
}

// Pictures of the first two looks of a game come with the application, those of the others lie in its data.
bool isSharedLook(const QString &index)
{
    return index.toInt() <= 2;
}

} // namespace

SlideActivity::SlideActivity()
    : m_dataDirectory(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation))
{
    m_dataDirectory.replace(QLatin1Char('\\'), QLatin1Char('/'));
    const QStringList imageDirectories = QDir::searchPaths(QStringLiteral("imageDir"));
    if (!imageDirectories.isEmpty()) {
        m_canvasDirectory = imageDirectories.first() + QLatin1String("Canvas/");
    }
}

QJsonObject SlideActivity::read(const QDomElement &activity) const
{
    QJsonObject json;
    for (const ActivityAttribute &row : activityAttributes) {
        const QString text = activity.attribute(QLatin1String(row.attribute));
        if (!row.onlyIfNotEmpty || !text.isEmpty()) {
            json.insert(QLatin1String(row.key), text);
        }
    }
    json.insert(QLatin1String("templet"), readTemplet(childByTag(activity, QStringLiteral("templet"))));

    const QString type = json.value(QLatin1String("type")).toString();
    QJsonArray matchs;
    const QDomElement matchList = childByTag(activity, QStringLiteral("matchs"));
    for (QDomElement match = matchList.firstChildElement(); !match.isNull(); match = match.nextSiblingElement()) {
        matchs.append(readEntry(match, type));
    }
    json.insert(QLatin1String("matchs"), matchs);

    QJsonArray unmatchs;
    const QDomElement unmatchList = childByTag(activity, QStringLiteral("unmatchs"));
    for (QDomElement match = unmatchList.firstChildElement(); !match.isNull(); match = match.nextSiblingElement()) {
        unmatchs.append(readMatch(match, containerAttributes));
    }
    json.insert(QLatin1String("unmatchs"), unmatchs);
    return json;
}

QDomElement SlideActivity::write(const QJsonObject &activity) const
{
    QDomElement element = newElement(QStringLiteral("activity"));
    for (const ActivityAttribute &row : activityAttributes) {
        const QString text = activity.value(QLatin1String(row.key)).toString();
        if (!row.onlyIfNotEmpty || !text.isEmpty()) {
            element.setAttribute(QLatin1String(row.attribute), text);
        }
    }
    element.appendChild(writeTemplet(activity));

    const QString type = activity.value(QLatin1String("type")).toString();
    QDomElement matchs = newElement(QStringLiteral("matchs"));
    const QJsonArray entries = activity.value(QLatin1String("matchs")).toArray();
    for (const QJsonValue &entry : entries) {
        matchs.appendChild(writeEntry(entry, type));
    }
    element.appendChild(matchs);

    QDomElement unmatchs = newElement(QStringLiteral("unmatchs"));
    const QJsonArray unmatchedEntries = activity.value(QLatin1String("unmatchs")).toArray();
    for (const QJsonValue &entry : unmatchedEntries) {
        QDomElement match = newElement(QStringLiteral("match"));
        writeMatch(match, entry.toObject(), containerAttributes);
        unmatchs.appendChild(match);
    }
    element.appendChild(unmatchs);
    return element;
}

QJsonObject SlideActivity::readTemplet(const QDomElement &templet) const
{
    const QString pic = QStringLiteral("pic");
    const QString index = templet.attribute(QStringLiteral("index"));
    const bool isShared = isSharedLook(index);
    const QString background = QStringLiteral("background");
    const QString largeBackground = QStringLiteral("backgroundx2");
    QJsonObject json{
        {QStringLiteral("index"), index},
        {background, readBackground(childByTag(templet, background).attribute(pic), isShared)},
        {largeBackground, readPicture(childByTag(templet, largeBackground).attribute(pic), isShared)},
    };
    for (const char *name : pictureElements) {
        const QString tag = QLatin1String(name);
        const QDomElement picture = childByTag(templet, tag);
        if (!picture.isNull()) {
            json.insert(tag, readPicture(picture.attribute(pic), isShared));
        }
    }
    const QString answerColor = QStringLiteral("answer_font_color");
    if (!childByTag(templet, answerColor).isNull()) {
        json.insert(answerColor, namesakeText(templet, answerColor));
    }
    for (const char *name : {"container", "material"}) {
        const QDomElement figure = childByTag(templet, QLatin1String(name));
        if (!figure.isNull()) {
            json.insert(QLatin1String(name), readFigure(figure, name, isShared));
        }
    }
    return json;
}

QJsonObject SlideActivity::readFigure(const QDomElement &figure, const char *name, bool isShared) const
{
    QJsonObject json;
    for (const FigureAttribute &row : figureAttributes) {
        if (QLatin1String(row.figure) != QLatin1String(name)) {
            continue;
        }
        const QString text = figure.attribute(QLatin1String(row.name));
        if (row.kind == FigureAttribute::Text) {
            json.insert(QLatin1String(row.name), text);
        } else if (row.kind == FigureAttribute::Picture || !text.isEmpty()) {
            json.insert(QLatin1String(row.name), readFigurePicture(text, isShared));
        }
    }
    return json;
}

QString SlideActivity::readBackground(const QString &pic, bool isShared) const
{
    QString canvasPath = m_canvasDirectory + pic;
    if (isShared) {
        return canvasPath;
    }
    if (canvasPath.contains(activityInfo)) {
        return m_dataDirectory + classActivity + behindLast(canvasPath, activityInfo);
    }
    return m_dataDirectory + QLatin1Char('/') + pic;
}

QString SlideActivity::readPicture(const QString &pic, bool isShared) const
{
    return (isShared ? m_canvasDirectory : m_dataDirectory) + pic;
}

QString SlideActivity::readFigurePicture(QString pic, bool isShared) const
{
    const QString marker = QStringLiteral("/ActivityInfo");
    if (!isShared && pic.contains(marker)) {
        pic = classActivity + behindLast(pic, marker);
    }
    return readPicture(pic, isShared);
}

QDomElement SlideActivity::writeTemplet(const QJsonObject &activity) const
{
    const QString pic = QStringLiteral("pic");
    const QString background = QStringLiteral("background");
    const QString answerColor = QStringLiteral("answer_font_color");
    const QJsonObject json = activity.value(QLatin1String("templet")).toObject();
    const QString index = json.value(QLatin1String("index")).toString();
    QDomElement templet = elementWithAttribute(QStringLiteral("templet"), QStringLiteral("index"), index);
    if (!json.contains(background)) {
        QString picture = reference(activity.value(background).toString());
        if (!isSharedLook(index) && picture.contains(activityInfo)) {
            picture = classActivity + behindLast(picture, activityInfo);
        }
        templet.appendChild(elementWithAttribute(background, pic, picture));
    }
    static const QStringList otherKeys{QStringLiteral("container"), QStringLiteral("material"), QStringLiteral("index"),
                                       QStringLiteral("name"), QStringLiteral("type")};
    for (auto it = json.constBegin(); it != json.constEnd(); ++it) {
        const QString key = it.key();
        if (otherKeys.contains(key)) {
            continue;
        }
        QDomElement element = elementFromXml(QLatin1Char('<') + key + QLatin1Char('>'));
        const bool isColor = key == answerColor;
        const QString text = isColor ? it.value().toString() : reference(it.value().toString());
        if (!text.isEmpty()) {
            element.setAttribute(isColor ? answerColor : pic, text);
        }
        templet.appendChild(element);
    }
    templet.appendChild(writeFigure(json.value(QLatin1String("container")).toObject(), "container"));
    const QJsonObject material = json.value(QLatin1String("material")).toObject();
    if (!material.value(QLatin1String("font_align")).toString().isEmpty()) {
        templet.appendChild(writeFigure(material, "material"));
    }
    return templet;
}

QDomElement SlideActivity::writeFigure(const QJsonObject &figure, const char *name) const
{
    QDomElement element = newElement(QLatin1String(name));
    for (const FigureAttribute &row : figureAttributes) {
        if (QLatin1String(row.figure) != QLatin1String(name)) {
            continue;
        }
        const QString text = figure.value(QLatin1String(row.name)).toString();
        const QString value = row.kind == FigureAttribute::Text ? text : reference(text);
        if (row.kind != FigureAttribute::PictureIfNotEmpty || !value.isEmpty()) {
            element.setAttribute(QLatin1String(row.name), value);
        }
    }
    return element;
}

QString SlideActivity::reference(const QString &path) const
{
    if (!m_dataDirectory.isEmpty() && path.contains(m_dataDirectory)) {
        return behindLast(path, m_dataDirectory);
    }
    const int start = path.indexOf(QLatin1String("ActivityInfo/"));
    return start < 0 ? path : path.mid(start);
}

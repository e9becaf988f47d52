// SPDX-License-Identifier: MIT
#include "lesson/activitypictures.h"

#include "files/packagenames.h"
#include "lesson/isoneof.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace lessonhost {

namespace {

const QLatin1String activityKey("activity");
const QLatin1String templetKey("templet");
const QLatin1String backgroundKey("background");
const QLatin1String indexKey("index");
constexpr const char *figurePictures[] = {"path", "path2", "hotpath", "process_bar_back", "process_bar_rate"};
constexpr const char *plainKeys[] = {"index", "name", "type", "answer_font_color"};

// What of a templet is a picture.
enum class Kind { Background, Other, OfFigure };

// Replaces each picture of a templet by change(kind, key, text, figure); figure is the container or the material, empty
// for others.
template <typename Change> QJsonObject changedPictures(QJsonObject templet, Change change)
{
    const QStringList keys = templet.keys();
    for (const QString &key : keys) {
        const QJsonValue value = templet.value(key);
        const bool isPlain = isOneOf(plainKeys, key);
        if (value.isObject()) {
            QJsonObject figure = value.toObject();
            for (const char *name : figurePictures) {
                const QLatin1String picture(name);
                if (figure.value(picture).isString()) { // others are no picture, and stay what they are
                    figure.insert(picture, change(Kind::OfFigure, picture, figure.value(picture).toString(), key));
                }
            }
            templet.insert(key, figure);
        } else if (value.isString() && !isPlain) {
            const Kind kind = key == backgroundKey ? Kind::Background : Kind::Other;
            templet.insert(key, change(kind, key, value.toString(), QString()));
        }
    }
    return templet;
}

QString dataDirectory()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation)
        .replace(QLatin1Char('\\'), QLatin1Char('/'));
}

// Empty where it is no place on this machine.
QString canvasDirectory()
{
    const QString images = QDir::searchPaths(QStringLiteral("imageDir")).value(0);
    return QDir::isAbsolutePath(images) ? images + QLatin1String("Canvas/") : QString();
}

bool liesInData(const QJsonObject &templet)
{
    return templet.value(indexKey).toString().toInt() > 2;
}

QString behindLast(const QString &text, const QString &word)
{
    return text.mid(text.lastIndexOf(word) + word.size());
}

// Where the reference leads below the data directory; empty for one that leads elsewhere.
QString placeInData(Kind kind, const QString &reference)
{
    const QString marker = kind == Kind::Background ? QStringLiteral("ActivityInfo") : QStringLiteral("/ActivityInfo");
    QString place = reference;
    if (kind != Kind::Other && reference.contains(marker)) {
        place = QLatin1String("/ClassActivity") + behindLast(reference, marker);
    } else if (kind == Kind::Background) {
        place.prepend(QLatin1Char('/'));
    }
    if (!place.startsWith(QLatin1Char('/'))) {
        return {};
    }
    place = QDir::cleanPath(place.mid(1));
    while (place.startsWith(QLatin1Char('/'))) {
        place.remove(0, 1);
    }
    return problemWithPackagePath(place).isEmpty() ? place : QString();
}

} // namespace

QJsonObject withReferencesOf(const QDomElement &root, QJsonObject slide)
{
    QJsonObject activity = slide.value(activityKey).toObject();
    if (activity.isEmpty()) {
        return slide;
    }
    const QDomElement element = root.firstChildElement(activityKey).firstChildElement(templetKey);
    activity.insert(templetKey,
                    changedPictures(activity.value(templetKey).toObject(),
                                    [&element](Kind, const QString &key, const QString &, const QString &figure) {
                                        return figure.isEmpty()
                                            ? element.firstChildElement(key).attribute(QStringLiteral("pic"))
                                            : element.firstChildElement(figure).attribute(key);
                                    }));
    slide.insert(activityKey, activity);
    return slide;
}

QJsonObject withShortPictures(QJsonObject slide)
{
    QJsonObject activity = slide.value(activityKey).toObject();
    if (activity.isEmpty()) {
        return slide;
    }
    QJsonObject templet = activity.value(templetKey).toObject();
    if (!templet.contains(backgroundKey) && activity.contains(backgroundKey)) {
        templet.insert(backgroundKey, activity.take(backgroundKey));
    }
    const QString data = dataDirectory();
    const QString canvas = canvasDirectory();
    const bool isInData = liesInData(templet);
    activity.insert(templetKey,
                    changedPictures(templet, [&](Kind kind, const QString &, QString path, const QString &) {
                        if (!data.isEmpty() && path.contains(data)) {
                            path = behindLast(path, data);
                            // A read puts the separator before a background only.
                            while (isInData && kind == Kind::Background && path.startsWith(QLatin1Char('/'))) {
                                path.remove(0, 1);
                            }
                        }
                        while (!canvas.isEmpty() && path.startsWith(canvas)) {
                            path.remove(0, canvas.size());
                        }
                        return path;
                    }));
    slide.insert(activityKey, activity);
    return slide;
}

QJsonObject withPackagedPictures(QJsonObject slide)
{
    slide = withShortPictures(slide);
    QJsonObject activity = slide.value(activityKey).toObject();
    const QJsonObject templet = activity.value(templetKey).toObject();
    if (liesInData(templet)) {
        activity.insert(
            templetKey,
            changedPictures(templet, [](Kind kind, const QString &, const QString &reference, const QString &) {
                const QString place = placeInData(kind, reference);
                return place.isEmpty() ? reference : place;
            }));
        slide.insert(activityKey, activity);
    }
    return slide;
}

QMap<QString, QString> picturesInData(const QJsonObject &slide)
{
    const QJsonObject templet = withShortPictures(slide).value(activityKey).toObject().value(templetKey).toObject();
    QMap<QString, QString> pictures;
    if (!liesInData(templet)) {
        return pictures;
    }
    const QDir data(dataDirectory());
    changedPictures(templet, [&](Kind kind, const QString &, const QString &reference, const QString &) {
        const QString place = placeInData(kind, reference);
        const QFileInfo file(data.filePath(place));
        // A link may lead anywhere.
        if (!place.isEmpty() && file.isFile()
            && file.canonicalFilePath().startsWith(data.canonicalPath() + QLatin1Char('/'))) {
            pictures.insert(place, file.filePath());
        }
        return reference;
    });
    return pictures;
}

} // namespace lessonhost

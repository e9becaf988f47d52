// SPDX-License-Identifier: MIT
#include "render/lessonpage.h"

#include "files/inputfile.h"
#include "files/outputfile.h"
#include "render/differencepage.h"
#include "render/pagefiles.h"
#include "render/slidepictures.h"
#include "sentences/language.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QUrl>

// Outside of all namespaces, as the macro wants it.
static void makePartsKnown()
{
    Q_INIT_RESOURCE(page);
}

namespace lessonhost {

namespace {

// The script in the order of what its parts need, and the style.
constexpr const char *scriptParts[] = {"words", "lesson", "stage", "changes", "animate", "links",
                                       "media", "tools",  "cards", "games",   "ink",     "present"};

QByteArray pageFile(const char *name)
{
    static const bool isKnown = (makePartsKnown(), true);
    Q_UNUSED(isKnown)
    QFile file(QLatin1String(":/page/") + QLatin1String(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QByteArray script()
{
    QByteArray text;
    for (const char *part : scriptParts) {
        text += "\n" + pageFile(QByteArray(part).append(".js").constData());
    }
    return text;
}

QByteArray hashOf(const QByteArray &text)
{
    return "'sha256-" + QCryptographicHash::hash(text, QCryptographicHash::Sha256).toBase64() + "'";
}

// Data that no text within can end or begin anew.
QByteArray jsonHtml(const QJsonDocument &json, const QByteArray &attribute)
{
    return "<script type=\"application/json\"" + attribute + ">"
        + json.toJson(QJsonDocument::Compact).replace('<', "\\u003c") + "</script>\n";
}

// What the script says, and kinds of items, in all languages that there are: {"de": {"Slide %1": "Folie %1", ...}, ...}
QJsonObject translations(const QSet<QString> &kinds)
{
    static const QRegularExpression call(QStringLiteral("Words\\.text\\(\\s*'([^']+)'"));
    QJsonObject all;
    for (const QString &language : translatedLanguages()) {
        QJsonObject texts;
        for (auto found = call.globalMatch(QString::fromUtf8(script())); found.hasNext();) {
            const QString text = found.next().captured(1);
            texts.insert(text, translated(language, text.toUtf8().constData()));
        }
        for (const QString &kind : kinds) {
            texts.insert(kind, translated(language, kind.toUtf8().constData()));
        }
        all.insert(languageTag(language), texts);
    }
    return all;
}

QByteArray escaped(const QString &text)
{
    return text.toHtmlEscaped().toUtf8();
}

} // namespace

LessonPage::LessonPage(const QString &path, const QString &title, const RenderSettings &settings,
                       const PictureStore &store, const PageFiles &files)
    : m_path(path)
    , m_title(title)
    , m_settings(settings)
    , m_files(files)
    , m_target(path)
    , m_slides(m_target.workFolder() + QLatin1String("/slides"), path)
    , m_pictures(store)
{
}

void LessonPage::add(const SlidePicture &picture)
{
    const QByteArray number = QByteArray::number(picture.slide);
    const QByteArray language = picture.language.code().toLatin1();
    const QDomElement svg = picture.svg.documentElement();
    // What the heading says, for the script to say it in other languages.
    const QByteArray parts = (picture.title.isEmpty() ? QByteArray() : " data-title=\"" + escaped(picture.title) + '"')
        + (picture.named.isEmpty() ? QByteArray() : " data-named=\"" + QByteArray::number(picture.named.size()) + '"');
    const QByteArray size = "--width:" + QByteArray::number(qRound(picture.size.width()))
        + ";--height:" + QByteArray::number(qRound(picture.size.height()));
    m_slides.put("<section class=\"slide\" id=\"slide" + number + "\" data-slide=\"" + number + "\" aria-label=\"Slide "
                 + number + "\"" + (language.isEmpty() ? QByteArray() : " lang=\"" + language + "\"")
                 + ">\n<h2 lang=\"en\"" + parts + ">" + escaped(captionOf(picture).english())
                 + "</h2>\n<div class=\"stage\" style=\"" + size + "\">\n" + m_pictures.html(svg) + "\n</div>\n"
                 + jsonHtml(QJsonDocument(picture.play), " class=\"play\"") + "</section>\n");
    m_widest = qMax(m_widest, qRound(picture.size.width()));
    for (QDomElement item = svg.firstChildElement(); !item.isNull(); item = item.nextSiblingElement()) {
        if (item.hasAttribute(QStringLiteral("data-kind"))) {
            m_kinds.insert(item.attribute(QStringLiteral("data-kind")));
        }
    }
    const QDomNodeList styles = svg.elementsByTagName(QStringLiteral("style"));
    for (int i = 0; i < styles.size(); ++i) {
        m_styles += ' ' + hashOf(styles.at(i).toElement().text().toUtf8());
    }
}

// Drawings of lessons have style sheets that reach nothing but them, and attributes; neither loads anything.
void LessonPage::putHead()
{
    const QByteArray style = "\n" + pageFile("page.css");
    put("<!DOCTYPE html>\n<html lang=\"en\"><head><meta charset=\"utf-8\">\n"
        "<meta http-equiv=\"Content-Security-Policy\" content=\"default-src 'none'; script-src "
        + hashOf(script()) + "; style-src " + hashOf(style) + m_styles
        + "; style-src-attr 'unsafe-inline'; img-src data:; media-src data: 'self' file:; base-uri 'none'; "
          "form-action 'none'\">\n<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n"
          "<meta name=\"referrer\" content=\"no-referrer\">\n<title>"
        + escaped(m_title) + "</title>\n<style>" + style + "</style></head><body>\n<h1>" + escaped(m_title)
        + "</h1>\n");
}

void LessonPage::putSlides()
{
    m_slides.finish(false);
    InputFile slides(m_target.workFolder() + QLatin1String("/slides"), m_path);
    put("<main style=\"--widest:" + QByteArray::number(m_widest) + "\">\n");
    constexpr qint64 chunk = qint64(256) * 1024;
    for (qint64 at = 0; at < slides.size(); at += chunk) {
        put(slides.bytes(at, qMin(chunk, slides.size() - at)));
    }
    put("</main>\n");
}

// A file within the page, as data that its script takes from here.
void LessonPage::putFile(int number)
{
    const PageFiles::File &told = m_files.all().at(number);
    InputFile file(told.source, told.name);
    put("<script type=\"text/plain\" id=\"file" + QByteArray::number(number) + "\">");
    constexpr qint64 chunk = qint64(3) * 64 * 1024; // without anything left over in base64
    for (qint64 at = 0; at < file.size(); at += chunk) {
        put(file.bytes(at, qMin(chunk, file.size() - at)).toBase64());
    }
    put("</script>\n");
}

QStringList LessonPage::finish()
{
    putHead();
    putSlides();
    QStringList written{m_target.target()};
    QJsonArray list;
    for (int i = 0; i < m_files.all().size(); ++i) {
        const PageFiles::File &file = m_files.all().at(i);
        QJsonObject entry{{QStringLiteral("name"), file.name}, {QStringLiteral("type"), file.type}};
        if (m_settings.isEmbedded) {
            putFile(i);
        } else {
            const QString path = filesFolderOfPage(m_path) + QLatin1Char('/') + file.stored;
            const QString place = QFileInfo(m_path).dir().filePath(path);
            m_settings.inputs.check(place);
            if (m_settings.isKept) {
                refuseToReplace(place);
            }
            m_target.copy(path, file.source, file.name);
            written.append(place);
            entry.insert(QStringLiteral("address"), QString::fromLatin1(QUrl::toPercentEncoding(path, "/")));
        }
        list.append(entry);
    }
    put(jsonHtml(QJsonDocument(list), " id=\"files\"") + jsonHtml(QJsonDocument(translations(m_kinds)), " id=\"texts\"")
        + "<script>" + script() + "</script>\n</body></html>\n");
    m_target.commit();
    return written;
}

} // namespace lessonhost

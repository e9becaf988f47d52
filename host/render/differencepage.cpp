// SPDX-License-Identifier: MIT
#include "render/differencepage.h"

#include "render/slidepictures.h"
#include "sentences/language.h"

namespace lessonhost {

namespace {

const char *const pageHead = R"(<!DOCTYPE html>
<html lang="%2"><head><meta charset="utf-8"><meta name="viewport" content="width=device-width">
<title>%1</title>
<style>
body { margin: 2em auto; max-width: 1600px; padding: 0 1em; background: #f4f4f2; font-family: sans-serif; color: #222 }
figure { margin: 0 0 2em } figcaption { margin: .4em 0; color: #555 }
figure > svg { height: auto; box-shadow: 0 1px 6px #0004 } .pictures { position: absolute }
.pair { display: grid; grid-template-columns: 1fr 1fr; gap: 1em } .losses { color: #a00 } .none { color: #262 }
</style></head><body>
<h1>%1</h1>
)";

} // namespace

Sentence captionOf(const SlidePicture &picture)
{
    const Sentence line = picture.outlineLine();
    return picture.named.isEmpty() ? line : say("%1 (items shown by their name: %2)").arg(line, picture.named.size());
}

DifferencePage::DifferencePage(const QString &path, const QString &title, const PictureStore &store)
    : m_target(path)
    , m_pictures(store)
{
    addHtml(QString(QLatin1String(pageHead))
                .replace(QLatin1String("%1"), title.toHtmlEscaped())
                .replace(QLatin1String("%2"), languageTag(spokenLanguage()))
                .toUtf8());
}

void DifferencePage::add(const SlidePicture &picture)
{
    const int width = qRound(picture.size.width());
    m_widest = qMax(m_widest, width);
    QDomElement svg = picture.svg.documentElement().cloneNode().toElement();
    svg.setAttribute(QStringLiteral("style"), QStringLiteral("width:calc(100% * %1 / var(--widest))").arg(width));
    const QByteArray language = picture.language.code().toLatin1();
    addHtml("<figure" + (language.isEmpty() ? QByteArray() : " lang=\"" + language + '"') + ">\n" + m_pictures.html(svg)
            + "\n<figcaption>" + captionOf(picture).local().toHtmlEscaped().toUtf8() + "</figcaption></figure>\n");
}

void DifferencePage::addHtml(const QByteArray &html)
{
    m_target.file().put(html);
}

QStringList DifferencePage::finish()
{
    addHtml("<style>:root { --widest: " + QByteArray::number(m_widest) + " }</style>\n</body></html>\n");
    m_target.commit();
    return {m_target.target()};
}

} // namespace lessonhost

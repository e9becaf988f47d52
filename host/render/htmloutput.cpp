#include "render/htmloutput.h"

#include "files/xmltext.h"
#include "lesson/itemvalues.h"
#include "render/picturestore.h"
#include "render/slidelayers.h"
#include "render/slidepictures.h"

namespace lessonhost {

namespace {

const char *const pageHead = R"(<!DOCTYPE html>
<html lang="en"><head><meta charset="utf-8"><meta name="viewport" content="width=device-width">
<title>%1</title>
<style>
body { margin: 2em auto; max-width: 1600px; padding: 0 1em; background: #f4f4f2; font-family: sans-serif; color: #222 }
figure { margin: 0 0 2em } figcaption { margin: .4em 0; color: #555 }
figure > svg { height: auto; box-shadow: 0 1px 6px #0004 } .pictures { position: absolute }
.pair { display: grid; grid-template-columns: 1fr 1fr; gap: 1em } .losses { color: #a00 } .none { color: #262 }
</style></head><body>
<h1>%1</h1>
)";

QString caption(const SlidePicture &picture)
{
    return picture.named.isEmpty()
        ? QStringLiteral("Slide %1").arg(picture.slide)
        : QStringLiteral("Slide %1 (items shown by their name: %2)").arg(picture.slide).arg(picture.named.size());
}

} // namespace

HtmlOutput::HtmlOutput(const QString &path, const QString &title, const PictureStore &store)
    : m_store(store)
    , m_target(path)
{
    addHtml(QString(QLatin1String(pageHead)).replace(QLatin1String("%1"), title.toHtmlEscaped()).toUtf8());
}

void HtmlOutput::add(const SlidePicture &picture)
{
    QDomElement svg = referring(picture.svg.documentElement());
    const int width = qRound(picture.size.width());
    m_widest = qMax(m_widest, width);
    svg.setAttribute(QStringLiteral("style"), QStringLiteral("width:calc(100% * %1 / var(--widest))").arg(width));
    const QByteArray language = picture.language.code().toLatin1();
    addHtml("<figure id=\"slide" + QByteArray::number(picture.slide) + '"'
            + (language.isEmpty() ? QByteArray() : " lang=\"" + language + '"') + ">\n" + xmlNodeText(svg).toUtf8()
            + "\n<figcaption>" + caption(picture).toHtmlEscaped().toUtf8() + "</figcaption></figure>\n");
}

// The drawing with references in the places of its pictures, which are written if they aren't there yet.
QDomElement HtmlOutput::referring(const QDomElement &svg)
{
    QDomElement copy = svg.cloneNode().toElement();
    for (QDomElement &image : imagesIn(copy)) {
        const PlacedPicture picture = placedPicture(image, m_store);
        if (picture.name.isEmpty()) {
            continue;
        }
        if (!m_written.contains(picture.name)) {
            addPicture(picture.name);
        }
        const QSizeF size = m_store.size(picture.name);
        const QTransform stretched(picture.box.width() / size.width(), 0, 0, picture.box.height() / size.height(),
                                   picture.box.x(), picture.box.y());
        image.setTagName(QStringLiteral("use"));
        for (const char *name : {"x", "y", "width", "height", "preserveAspectRatio"}) {
            image.removeAttribute(QLatin1String(name));
        }
        image.setAttribute(
            QStringLiteral("transform"),
            QString(QLatin1String("matrix(") + transformText(stretched * picture.transform) + QLatin1Char(')')));
    }
    return copy;
}

void HtmlOutput::addPicture(const QString &name)
{
    const QSize size = m_store.size(name);
    addHtml("<svg class=\"pictures\" width=\"0\" height=\"0\"><defs><image id=\"" + name.toLatin1() + "\" width=\""
            + QByteArray::number(size.width()) + "\" height=\"" + QByteArray::number(size.height())
            + "\" preserveAspectRatio=\"none\" xlink:href=\"" + addressOf(m_store.shown(name)).toLatin1()
            + "\"/></defs></svg>\n");
    m_written.insert(name);
}

void HtmlOutput::addHtml(const QByteArray &html)
{
    m_target.file().put(html);
}

QStringList HtmlOutput::finish()
{
    addHtml("<style>:root { --widest: " + QByteArray::number(m_widest) + " }</style>\n</body></html>\n");
    m_target.commit();
    return {m_target.target()};
}

} // namespace lessonhost

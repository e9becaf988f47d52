// SPDX-License-Identifier: MIT
#include "files/closedsvg.h"

#include "files/domtools.h"
#include "files/drawingbounds.h"
#include "files/lessonerror.h"
#include "files/xmlloader.h"
#include "files/xmltext.h"

#include <QSet>

#include <utility>

namespace lessonhost {

namespace {

// Each rule of a style sheet is held against each element.
constexpr qint64 mostStyleSteps = 1000000;

// What draws. Fonts, filters, scripts, films and other documents' elements are no part of it.
bool isKept(const QString &tag)
{
    static const QSet<QString> tags = [] {
        QSet<QString> all;
        for (const char *tag : {"svg",      "g",      "a",       "switch",   "defs",           "use",
                                "rect",     "circle", "ellipse", "line",     "polygon",        "path",
                                "image",    "text",   "tspan",   "textArea", "linearGradient", "radialGradient",
                                "polyline", "tbreak", "stop",    "style",    "solidColor"}) {
            all.insert(QLatin1String(tag));
        }
        return all;
    }();
    return tags.contains(tag);
}

// What is seen by itself; the others group, place or describe it.
bool isShape(const QString &tag)
{
    static const QSet<QString> tags{QStringLiteral("rect"),     QStringLiteral("circle"),  QStringLiteral("ellipse"),
                                    QStringLiteral("line"),     QStringLiteral("polygon"), QStringLiteral("path"),
                                    QStringLiteral("polyline"), QStringLiteral("image"),   QStringLiteral("text"),
                                    QStringLiteral("textArea")};
    return tags.contains(tag);
}

// True for a text of style that names something outside of the drawing, or hides what it names.
bool leadsOut(const QString &style)
{
    const QLatin1String address("url(");
    for (int at = style.indexOf(address, 0, Qt::CaseInsensitive); at >= 0;
         at = style.indexOf(address, at + 1, Qt::CaseInsensitive)) {
        int target = at + address.size();
        while (target < style.size()
               && (style.at(target).isSpace() || style.at(target) == QLatin1Char('"')
                   || style.at(target) == QLatin1Char('\''))) {
            ++target;
        }
        if (target < style.size() && style.at(target) != QLatin1Char('#')) {
            return true;
        }
    }
    return style.contains(QLatin1Char('\\')) || style.contains(QLatin1String("@import"), Qt::CaseInsensitive);
}

// Drawings of some programs name their type, which says nothing. One that declares something stays, and is refused.
QByteArray withoutDocumentType(const QByteArray &svg)
{
    int at = 0;
    while ((at = svg.indexOf('<', at)) >= 0) {
        if (svg.mid(at, 4) == "<!--") {
            at = svg.indexOf("-->", at + 4);
        } else if (svg.mid(at, 2) == "<?") {
            at = svg.indexOf("?>", at);
        } else {
            break;
        }
        if (at < 0) {
            return svg;
        }
    }
    const int end = at >= 0 && svg.mid(at, 9) == "<!DOCTYPE" ? svg.indexOf('>', at) : -1;
    return end < 0 || svg.mid(at, end - at).contains('[') ? svg : svg.left(at) + svg.mid(end + 1);
}

class Closing
{
public:
    Closing(ClosedSvg &result, const ClosedSvg::PictureAddress &addressOf)
        : m_result(result)
        , m_addressOf(addressOf)
    {
    }

    // isKeptBack: for references, which draw it.
    void close(QDomElement element, bool isKeptBack = false)
    {
        ++m_elements;
        const QString tag = bareName(element.tagName());
        isKeptBack |= tag == QLatin1String("defs");
        (isKeptBack ? m_hasKeptBack : m_hasShown) |= isShape(tag);
        m_refers |= !isKeptBack && tag == QLatin1String("use");
        closeAttributes(element);
        if (tag == QLatin1String("style")) {
            closeStyleSheet(element);
        }
        QDomNode next;
        for (QDomNode child = element.firstChild(); !child.isNull(); child = next) {
            next = child.nextSibling();
            if (child.isElement()) {
                if (!isKept(bareName(child.toElement().tagName()))) {
                    element.removeChild(child);
                } else {
                    close(child.toElement(), isKeptBack);
                }
            }
        }
    }

    bool draws() const { return m_hasShown || (m_refers && m_hasKeptBack); }

    void limitStyleSheets()
    {
        if (m_rules * m_elements > mostStyleSteps) {
            for (QDomElement &sheet : m_styleSheets) {
                sheet.parentNode().removeChild(sheet);
            }
        }
    }

private:
    void closeAttributes(QDomElement &element)
    {
        QStringList names;
        const QDomNamedNodeMap attributes = element.attributes();
        names.reserve(attributes.size());
        for (int i = 0; i < attributes.size(); ++i) {
            names.append(attributes.item(i).nodeName());
        }
        QString picture;
        for (const QString &name : qAsConst(names)) {
            const QString value = element.attribute(name);
            const QString bare = bareName(name);
            if (bare == QLatin1String("href") && picture.isEmpty()) {
                picture = value.trimmed();
            }
            const bool isReference =
                bare == QLatin1String("href") || bare == QLatin1String("src") || bare == QLatin1String("base");
            if ((isReference && !value.startsWith(QLatin1Char('#'))) || bare.startsWith(QLatin1String("on"))
                || leadsOut(value)) {
                element.removeAttribute(name);
            }
        }
        if (bareName(element.tagName()) == QLatin1String("image")) {
            setPicture(element, picture);
        }
    }

    void setPicture(QDomElement &image, const QString &reference)
    {
        const QString address = m_addressOf(reference);
        const bool isFile = !reference.startsWith(QLatin1String("data:"));
        m_result.files += isFile && !address.isEmpty() ? 1 : 0;
        if (address.isEmpty()) {
            m_result.leftOut.append(isFile ? reference : reference.section(QLatin1Char(','), 0, 0));
            // A frame, so that nobody takes the gap for an empty place.
            image.setTagName(QStringLiteral("rect"));
            for (const auto &row : {std::make_pair("fill", "none"), std::make_pair("stroke", "#777777"),
                                    std::make_pair("stroke-dasharray", "10,6")}) {
                image.setAttribute(QLatin1String(row.first), QLatin1String(row.second));
            }
            return;
        }
        image.setAttribute(QStringLiteral("xlink:href"), address);
    }

    void closeStyleSheet(QDomElement &sheet)
    {
        QString rules = sheet.text();
        while (sheet.hasChildNodes()) {
            sheet.removeChild(sheet.firstChild());
        }
        // The bounds are those of attributes.
        rules.replace(QLatin1String("stroke-dasharray"), QLatin1String("-none"), Qt::CaseInsensitive);
        if (!leadsOut(rules)) {
            m_rules += rules.count(QLatin1Char('{')) + rules.count(QLatin1Char(','));
            m_styleSheets.append(sheet);
            sheet.appendChild(sheet.ownerDocument().createTextNode(rules));
        }
    }

    ClosedSvg &m_result;
    const ClosedSvg::PictureAddress &m_addressOf;
    QVector<QDomElement> m_styleSheets;
    qint64 m_rules = 0;
    qint64 m_elements = 0;
    bool m_hasShown = false;
    bool m_hasKeptBack = false;
    bool m_refers = false;
};

} // namespace

ClosedSvg closedSvg(const QByteArray &svg, const QString &displayName, const ClosedSvg::PictureAddress &addressOf)
{
    const QDomDocument document = loadXml(withoutDocumentType(svg), displayName, XmlBlanks::Kept);
    QDomElement root = document.documentElement();
    if (bareName(root.tagName()) != QLatin1String("svg")) {
        throw LessonError(say("This is no drawing in svg"), say("Check the file")).in(displayName);
    }
    const QString prefix = QStringLiteral("xmlns:xlink");
    if (!root.hasAttribute(prefix)) {
        root.setAttribute(prefix, QStringLiteral("http://www.w3.org/1999/xlink"));
    }
    ClosedSvg result;
    Closing closing(result, addressOf);
    closing.close(root);
    closing.limitStyleSheets();
    result.isEmpty = !closing.draws();
    boundDrawing(root);
    result.text = xmlNodeText(root).toUtf8();
    return result;
}

} // namespace lessonhost

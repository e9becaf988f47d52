// SPDX-License-Identifier: MIT
#include "canvas/innersvg.h"

#include "canvas/svgelements.h"
#include "files/domtools.h"
#include "files/drawingbounds.h"
#include "lesson/fontvalues.h"
#include "lesson/itemvalues.h"
#include "svg/svgvalues.h"

#include <QHash>
#include <QRegularExpression>

namespace lessonhost {

namespace {

// A drawing may use its parts in parts that it uses.
constexpr int mostUses = 16;
constexpr double lettersOfElement = 100;

bool isGradient(const QString &tag)
{
    return tag == QLatin1String("linearGradient") || tag == QLatin1String("radialGradient");
}

QString transformAttribute(const QTransform &transform)
{
    return QStringLiteral("matrix(%1)").arg(transformText(transform).replace(QLatin1Char(','), QLatin1Char(' ')));
}

// Where an svg element has its view: its viewBox or its size.
QRectF viewOf(const QDomElement &svg, const QSizeF &missing)
{
    const QVector<double> box = svgNumbers(svg.attribute(QStringLiteral("viewBox")));
    if (box.size() >= 4 && box.at(2) > 0 && box.at(3) > 0) {
        return {box.at(0), box.at(1), box.at(2), box.at(3)};
    }
    const QSizeF size(svgLength(svg.attribute(QStringLiteral("width")), missing.width()).value_or(missing.width()),
                      svgLength(svg.attribute(QStringLiteral("height")), missing.height()).value_or(missing.height()));
    return {QPointF(), size.isEmpty() ? missing : size};
}

// In its proportion, with the same share of what is left over on both sides.
QTransform fitting(const QRectF &view, const QRectF &box, double share)
{
    const double scale = qMin(box.width() / view.width(), box.height() / view.height());
    const QSizeF left = box.size() - view.size() * scale;
    return QTransform::fromTranslate(-view.left(), -view.top()) * QTransform::fromScale(scale, scale)
        * QTransform::fromTranslate(box.left() + left.width() * share, box.top() + left.height() * share);
}

class InnerSvg
{
public:
    InnerSvg(const QDomDocument &document, const QString &prefix, InnerSvgBudget &budget)
        : m_document(document)
        , m_prefix(prefix)
        , m_budget(budget)
    {
    }

    QDomElement part(const QDomElement &drawing, const QTransform &placed)
    {
        findNames(drawing);
        QDomElement group = m_document.createElement(QStringLiteral("g"));
        group.setAttribute(QStringLiteral("id"), m_prefix);
        group.setAttribute(QStringLiteral("transform"), transformAttribute(placed));
        // Whatever the page around it says.
        group.setAttribute(QStringLiteral("font-family"), QStringLiteral("sans-serif"));
        group.setAttribute(QStringLiteral("font-size"), QStringLiteral("16"));
        group.setAttribute(QStringLiteral("color"), QStringLiteral("#000000"));
        copyChildrenInto(group, drawing);
        return group;
    }

private:
    void findNames(const QDomElement &element)
    {
        const QString id = element.attribute(QStringLiteral("id"));
        if (!id.isEmpty() && !m_named.contains(id)) {
            m_named.insert(id, element);
        }
        for (QDomElement e = element.firstChildElement(); !e.isNull(); e = e.nextSiblingElement()) {
            findNames(e);
        }
    }

    // The root is a group that has the looks of the drawing's own root.
    void copyChildrenInto(QDomElement &group, const QDomElement &drawing)
    {
        QDomElement inner = m_document.createElement(QStringLiteral("g"));
        copyAttributes(drawing, inner, true);
        group.appendChild(inner);
        copyChildren(drawing, inner);
    }

    void copyChildren(const QDomElement &from, QDomElement &to)
    {
        for (QDomNode node = from.firstChild(); !node.isNull(); node = node.nextSibling()) {
            if (node.isElement()) {
                copy(node.toElement(), to);
            } else if (node.isText()) {
                m_budget.elements -= node.nodeValue().size() / lettersOfElement;
                to.appendChild(m_document.createTextNode(node.nodeValue()));
            }
        }
    }

    void copy(const QDomElement &from, QDomElement &parent)
    {
        if (m_budget.elements < 1) {
            return;
        }
        m_budget.elements -= 1;
        const QString tag = bareName(from.tagName());
        if (tag == QLatin1String("use")) {
            copyUsed(from, parent);
            return;
        }
        if (tag == QLatin1String("style")) {
            parent.appendChild(styleSheet(from.text()));
            return;
        }
        if (tag == QLatin1String("defs")) {
            copyGradients(from, parent);
            return;
        }
        const bool isView = tag == QLatin1String("svg");
        const bool isGroup = isView || tag == QLatin1String("a") || tag == QLatin1String("switch");
        QDomElement element = m_document.createElement(isGroup ? QStringLiteral("g") : tag);
        copyAttributes(from, element, isView);
        if (isView) {
            element.setAttribute(QStringLiteral("transform"), transformAttribute(placeOfView(from)));
        }
        parent.appendChild(element);
        copyChildren(from, element);
    }

    static QTransform placeOfView(const QDomElement &svg)
    {
        const auto length = [&svg](const char *name) { return svgLength(svg.attribute(QLatin1String(name))); };
        const QPointF corner(length("x").value_or(0), length("y").value_or(0));
        const QSizeF size(length("width").value_or(0), length("height").value_or(0));
        const QRectF view = viewOf(svg, size);
        return size.isEmpty() || view.isEmpty() ? QTransform::fromTranslate(corner.x(), corner.y())
                                                : fitting(view, QRectF(corner, size), 0.5);
    }

    void copyUsed(const QDomElement &use, QDomElement &parent)
    {
        const QDomElement used = m_named.value(referenceOf(use).mid(1));
        if (used.isNull() || m_uses >= mostUses) {
            return;
        }
        QDomElement group = m_document.createElement(QStringLiteral("g"));
        copyAttributes(use, group, true);
        const auto length = [&use](const char *name) {
            return svgLength(use.attribute(QLatin1String(name))).value_or(0);
        };
        const QTransform own = svgTransform(use.attribute(QStringLiteral("transform"))).value_or(QTransform());
        group.setAttribute(QStringLiteral("transform"),
                           transformAttribute(QTransform::fromTranslate(length("x"), length("y")) * own));
        parent.appendChild(group);
        ++m_uses;
        copy(used, group);
        --m_uses;
    }

    // What else is there is drawn where it is used.
    void copyGradients(const QDomElement &from, QDomElement &parent)
    {
        QDomElement defs = m_document.createElement(QStringLiteral("defs"));
        for (QDomElement e = from.firstChildElement(); !e.isNull(); e = e.nextSiblingElement()) {
            const QString tag = bareName(e.tagName());
            if (isGradient(tag) || tag == QLatin1String("style")) {
                copy(e, tag == QLatin1String("style") ? parent : defs);
            }
        }
        if (defs.hasChildNodes()) {
            parent.appendChild(defs);
        }
    }

    static QString referenceOf(const QDomElement &element)
    {
        const QDomNamedNodeMap attributes = element.attributes();
        for (int i = 0; i < attributes.size(); ++i) {
            if (bareName(attributes.item(i).nodeName()) == QLatin1String("href")) {
                return attributes.item(i).nodeValue();
            }
        }
        return {};
    }

    // isPlaced: where it stands is told another way.
    void copyAttributes(const QDomElement &from, QDomElement &to, bool isPlaced)
    {
        const QDomNamedNodeMap attributes = from.attributes();
        for (int i = 0; i < attributes.size(); ++i) {
            const QString name = attributes.item(i).nodeName();
            const QString bare = bareName(name);
            const QString value = attributes.item(i).nodeValue();
            m_budget.elements -= value.size() / lettersOfElement;
            if (bare == QLatin1String("href")) {
                setReference(to, value);
            } else if (bare == QLatin1String("id")) {
                if (isGradient(to.tagName())) {
                    to.setAttribute(bare, ownName(value));
                }
            } else if ((bare == name && !name.startsWith(QLatin1String("xmlns")) && !(isPlaced && isPlace(name)))
                       || name == QLatin1String("xml:space")) {
                to.setAttribute(name, withOwnNames(value));
            }
        }
        // Letters are as wide as their font has them, in every viewer.
        to.removeAttribute(QStringLiteral("textLength"));
        const QString families = to.attribute(QStringLiteral("font-family"));
        if (!families.isEmpty() && !to.hasAttribute(QStringLiteral("style"))) {
            setDrawnFamilies(to, familiesIn(families));
        }
    }

    static bool isPlace(const QString &name)
    {
        static const QStringList places{QStringLiteral("x"),         QStringLiteral("y"),
                                        QStringLiteral("width"),     QStringLiteral("height"),
                                        QStringLiteral("viewBox"),   QStringLiteral("preserveAspectRatio"),
                                        QStringLiteral("transform"), QStringLiteral("version")};
        return places.contains(name);
    }

    void setReference(QDomElement &to, const QString &reference)
    {
        if (to.tagName() == QLatin1String("image")) {
            to.setAttribute(QStringLiteral("xlink:href"), reference);
        } else if (isGradient(to.tagName())) {
            to.setAttribute(QStringLiteral("xlink:href"), QString(QLatin1Char('#') + ownName(reference.mid(1))));
        }
    }

    QString ownName(const QString &name) const { return m_prefix + QLatin1Char('-') + name; }

    QString withOwnNames(const QString &value) const
    {
        static const QRegularExpression address(QStringLiteral("url\\(\\s*['\"]?\\s*#([^'\")]*?)\\s*['\"]?\\s*\\)"),
                                                QRegularExpression::CaseInsensitiveOption);
        QString own = value;
        return value.contains(QLatin1Char('#'))
            ? own.replace(address, QLatin1String("url(#") + m_prefix + QLatin1String("-\\1)"))
            : value;
    }

    // Each rule is one of what stands within the drawing. Rules of rules, such as those for some screens, are left out.
    QDomElement styleSheet(QString rules)
    {
        static const QRegularExpression comment(QStringLiteral("/\\*.*?\\*/|<!--|-->"),
                                                QRegularExpression::DotMatchesEverythingOption);
        rules.remove(comment);
        QString own;
        for (int at = 0; at < rules.size();) {
            const int begin = rules.indexOf(QLatin1Char('{'), at);
            const int end = rules.indexOf(QLatin1Char('}'), begin);
            if (begin < 0 || end < 0) {
                break;
            }
            const QString selectors = rules.mid(at, begin - at).trimmed();
            const QString body = rules.mid(begin + 1, end - begin - 1);
            at = end + 1;
            if (selectors.startsWith(QLatin1Char('@')) || body.contains(QLatin1Char('{'))) {
                at = body.contains(QLatin1Char('{')) ? endOfBlock(rules, begin) : at;
                continue;
            }
            QStringList scoped;
            const QStringList all = selectors.split(QLatin1Char(','));
            m_budget.rules -= all.size();
            if (m_budget.rules < 0) {
                break;
            }
            for (const QString &selector : all) {
                scoped.append(QLatin1Char('#') + m_prefix + QLatin1Char(' ') + selector.trimmed());
            }
            own += scoped.join(QLatin1Char(',')) + QLatin1Char('{') + withOwnNames(body) + QLatin1String("}\n");
        }
        QDomElement sheet = m_document.createElement(QStringLiteral("style"));
        sheet.appendChild(m_document.createTextNode(own));
        return sheet;
    }

    static int endOfBlock(const QString &rules, int begin)
    {
        int open = 0;
        for (int i = begin; i < rules.size(); ++i) {
            open += rules.at(i) == QLatin1Char('{') ? 1 : rules.at(i) == QLatin1Char('}') ? -1 : 0;
            if (open == 0) {
                return i + 1;
            }
        }
        return rules.size();
    }

    QDomDocument m_document;
    QString m_prefix;
    QHash<QString, QDomElement> m_named;
    InnerSvgBudget &m_budget;
    int m_uses = 0; // in each other
};

} // namespace

QDomElement innerSvg(QDomDocument document, const QDomElement &drawing, const QRectF &box, const QSizeF &usualSize,
                     const QString &prefix, InnerSvgBudget &budget)
{
    const QRectF view = viewOf(drawing, usualSize.isEmpty() ? box.size() : usualSize);
    return InnerSvg(document, prefix, budget).part(drawing, view.isEmpty() ? QTransform() : fitting(view, box, 0));
}

} // namespace lessonhost

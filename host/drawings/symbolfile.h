// SPDX-License-Identifier: MIT
#ifndef SYMBOLFILE_H
#define SYMBOLFILE_H

#include "lesson/itemview.h"
#include "svg/svgstyle.h"

#include <QDomElement>
#include <QHash>
#include <QPainterPath>
#include <QSizeF>
#include <QStringList>
#include <QVector>

#include <memory>

namespace lessonhost {

/*!
 * A part of a symbol's file, as it is before an item says anything of it. What few parts have is read from its element.
 */
struct SymbolPart
{
    enum class Kind { Group, Repeated, Liquid, Outline, Word, Scale };

    //! Whether it is shown: as its condition says where the item has the key, else as in the file.
    bool isShownFor(const ItemView &item) const;

    Kind kind = Kind::Group;
    QDomElement element;

    QString key; //!< of its condition; empty for none
    QString value; //!< that the key has to have; null for any that is set
    bool isUnless = false; //!< shown where the condition doesn't hold
    bool isUsual = true; //!< shown where the item doesn't tell

    SvgPaint paint; //!< of the file
    QString lineRole; //!< of the colour that the item may have for it
    QString fillRole;
    QTransform matrix; //!< by transforms of the file
    double fontPixels = 16;
    QPainterPath outline; //!< under the matrix; of a liquid, the inside of its vessel
    std::optional<QPointF> kept; //!< around which it keeps its proportion
    std::optional<QPointF> upright; //!< around which it stays upright
    QVector<SymbolPart> children;
};

/*!
 * The drawing of a type that stands in a file of its own; symbols/README.md tells its form.
 */
class SymbolFile
{
public:
    //! Null for a type that has no symbol. Read once.
    static std::shared_ptr<const SymbolFile> ofType(const QString &type);

    //! The types that have a symbol.
    static QStringList types();

    const QDomElement &root() const { return m_root; }
    const SymbolPart &whole() const { return m_whole; }
    QSizeF size() const { return m_size; }
    //! From and to of the parts that stretch, in turn.
    const QVector<double> &stretchingAcross() const { return m_across; }
    const QVector<double> &stretchingDown() const { return m_down; }

    //! Whether it lies down in a box that is wider than high, or stands up, if it is drawn the other way.
    bool turns() const { return m_root.attribute(QStringLiteral("data-turn")) == QLatin1String("auto"); }

    //! The names of colours that parts of the file may have.
    QStringList roles() const { return m_keys.keys(); }
    //! What an item says of a colour; nothing for an item that doesn't.
    std::optional<QColor> color(const QString &role, const ItemView &item) const;

private:
    SymbolFile(const QDomDocument &document, const QString &type);

    QDomDocument m_document;
    QDomElement m_root;
    SymbolPart m_whole;
    QSizeF m_size;
    QVector<double> m_across;
    QVector<double> m_down;
    QHash<QString, QStringList> m_keys; //!< of the item, by role; the first one that it has counts
};

} // namespace lessonhost

#endif // SYMBOLFILE_H

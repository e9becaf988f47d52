// SPDX-License-Identifier: MIT
#ifndef IWBEDITS_H
#define IWBEDITS_H

#include <QDomDocument>
#include <QJsonArray>
#include <QJsonObject>
#include <QMap>
#include <QRandomGenerator>
#include <QSet>
#include <QVector>

/*!
 * What another program does to the document of an IWB package, and the lesson that must come of it: edits at random,
 * for a seed the same each time. The lesson is told by the edits alone, from what it was and from how its elements are
 * read where nobody knows what they were made of.
 */
class IwbEdits
{
public:
    //! document: content.xml. whole, plain: the lesson as it was, and as the elements alone tell it.
    IwbEdits(quint32 seed, const QByteArray &document, const QJsonObject &whole, const QJsonObject &plain);

    //! Some edits, of which none is about what another one was about.
    void edit();

    //! The document written anew: with other prefixes, attributes in another order, other digits behind the fifth,
    //! other blanks, sections as text and the other way round.
    //! isExact: with the same digits.
    QByteArray written(bool isExact = false);

    const QJsonArray &slides() const { return m_slides; }
    //! What has to be told, sorted: "number of the slide/identifier: what".
    QStringList told() const;
    //! Identifiers of items that needn't be as they were to the last digit.
    const QSet<QString> &edited() const { return m_edited; }
    //! What was done, for who looks into a failure.
    const QStringList &done() const { return m_done; }

private:
    struct Told
    {
        int slide; // -1 for the presentation
        QString id;
        QString what;
    };

    bool oneIn(int count) { return m_random.bounded(count) == 0; }
    void findElements();
    QDomElement page(int slide) const;
    QDomElement innermost(const QString &id) const;
    QVector<QDomElement> elementsOf(const QJsonObject &item) const;
    QJsonArray items(int slide) const { return m_slides.at(slide).toObject().value("Items").toArray(); }
    void setItems(int slide, const QJsonArray &items);
    QJsonArray withItem(QJsonArray items, const QString &id, const QJsonObject &item) const;
    void tell(int slide, const QString &id, const QString &what);

    QString takeFree(int slide);
    bool changeOne(int slide);
    QJsonObject moved(const QString &id);
    QJsonObject colored(const QString &id);
    bool removeOne(int slide);
    bool addElement(int slide);
    bool swapNeighbors(int slide);
    bool rename(int slide);
    bool dissolve(int slide);
    bool colorBackground(int slide);
    void editPages();
    void moveLinks(QJsonArray &items, const QVector<int> &places) const;

    QString textOf(const QDomNode &node, int depth, bool isInText);
    QString nameOf(const QString &name) const;
    QString valueOf(const QString &name, const QString &value);

    QRandomGenerator m_random;
    QDomDocument m_document;
    QJsonArray m_slides;
    QHash<QString, QJsonObject> m_plain; // items of the elements alone
    QVector<bool> m_isPlain; // whether that is so of all items of a slide
    QVector<QStringList> m_free; // identifiers on each page that one item and one element have
    QHash<QString, QDomElement> m_elements;
    QSet<QString> m_edited;
    QVector<Told> m_told;
    QStringList m_done;
    QHash<QString, QString> m_prefixes;
    bool m_isIndented = false;
    bool m_isExact = false;
    int m_new = 0;
};

#endif // IWBEDITS_H

#ifndef CARRIEDCHECK_H
#define CARRIEDCHECK_H

#include <QDomElement>
#include <QHash>
#include <QJsonObject>
#include <QString>
#include <QVector>

#include <functional>

class LossReport;

/*!
 * Finds what an element says and its JSON doesn't, and adds it to a report.
 *
 * A value (an attribute, a text, an element that stands alone) is carried if another value in its place gives another
 * JSON. That is tried once for each place of an item type and remembered. What is not carried but comes back when the
 * JSON is written again, as the constants of templates do, is no loss.
 */
class CarriedCheck
{
public:
    using Read = std::function<QJsonObject(const QDomElement &copy)>;
    using Write = std::function<QDomElement()>;

    explicit CarriedCheck(LossReport *losses);

    //! The slide of what is examined next, counted from 1; 0 for the presentation.
    void setSlide(int slide) { m_slide = slide; }

    //! element is not changed. read gives the JSON of a changed copy; write gives the element of the JSON, and may be
    //! empty where nothing is written.
    void examine(const QString &type, const QString &id, const QDomElement &element, const Read &read,
                 const Write &write);

private:
    struct Value
    {
        QVector<int> position; // of the element: which child element, level by level
        QString path; // where it is, such as data/rect@points
        QString kind; // the same without numbers that don't matter
        QString attribute; // empty: the text, or the element itself
        QString text;
    };

    void collect(const QDomElement &element, const QString &path, const QString &kind, const QVector<int> &position,
                 QVector<Value> &values) const;
    bool isCarried(const QString &place, const QDomElement &element, const Value &value, const Read &read);

    LossReport *m_losses;
    int m_slide = 0;
    QHash<QString, bool> m_known; // by the form of an element and the kind of a value
    QJsonObject m_unchanged; // the JSON of the element that is examined, empty until it is needed
};

#endif // CARRIEDCHECK_H

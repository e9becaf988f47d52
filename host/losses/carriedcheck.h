#ifndef CARRIEDCHECK_H
#define CARRIEDCHECK_H

#include <QDomElement>
#include <QHash>
#include <QJsonObject>
#include <QStringList>
#include <QVector>

#include <functional>

namespace lessonhost {

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
    using Read = std::function<QJsonObject(const QDomElement &changed)>;
    using Write = std::function<QDomElement()>;

    //! The way from an element to one of its children.
    struct Step
    {
        QString tag;
        QString row; // the name of a row in a list of properties, by which it is told
        int count; // how many of the tag there are up to this one
        int previous; // index of the step before it, or -1
    };

    explicit CarriedCheck(LossReport *losses);

    //! The slide of what is examined next, counted from 1; 0 for the presentation.
    void setSlide(int slide) { m_slide = slide; }

    //! element is changed on the way and is as it was at the end. read gives the JSON of the changed one; write gives
    //! the element of the JSON, and may be empty where nothing is written.
    void examine(const QString &type, const QString &id, const QDomElement &element, const Read &read,
                 const Write &write);

private:
    // A place that values of one type are told apart by: where it is but for numbers that don't matter.
    struct Kind
    {
        int parent; // index of the kind around it, -1 for a type
        QString name;
        int number; // among those of the same name, or one of the marks in the source file
        friend bool operator==(const Kind &one, const Kind &other)
        {
            return one.parent == other.parent && one.number == other.number && one.name == other.name;
        }
        friend uint qHash(const Kind &kind)
        {
            return qHash(kind.name) + uint(kind.parent * 31 + kind.number) * 16777619U;
        }
    };
    enum Answer : char { Unknown, Carried, NotCarried };

    struct Value
    {
        QDomElement element;
        QString attribute; // empty: the text, or the element itself
        QString text;
        int kind;
        int step; // index of the last step to the element, -1 for the outermost
    };

    // Where an element is that is looked at.
    struct Place
    {
        int depth = 0;
        int kind = 0;
        int deepKind = 0; // of the element around it as deep as any kind goes, or its own
        int step = -1; // index of the last step to it
    };

    int kindOf(int parent, const QString &name, int number);
    int kindOfChild(int parent, int depth, const Step &step);
    void collect(const QDomElement &element, const Place &place, QVector<Value> &values);
    QStringList pathOf(const Value &value) const;
    bool isCarried(const Value &value, const QDomElement &element, const Read &read);

    LossReport *m_losses;
    int m_slide = 0;
    QHash<Kind, int> m_kinds;
    QVector<Answer> m_answers; // by the index of a kind
    QVector<Step> m_steps; // to the elements of the one that is examined
    QJsonObject m_unchanged; // the JSON of the element that is examined, empty until it is needed
};

} // namespace lessonhost

#endif // CARRIEDCHECK_H

// SPDX-License-Identifier: MIT
#ifndef SLIDELOSSES_H
#define SLIDELOSSES_H

#include "sentences/sentence.h"

#include <QJsonObject>
#include <QSet>
#include <QString>

namespace lessonhost {

class LossReport;

/*!
 * Whose loss it is: an item, a slide, the presentation, or what a note speaks of.
 */
struct LossOwner
{
    LossOwner(const QString &ownerType, const QString &ownerId = {})
        : type(ownerType)
        , id(ownerId)
    {
    }
    //! An item by its Type and ID.
    LossOwner(const QJsonObject &item);

    QString type; //!< item type, tag of an element, "slide" or "presentation"
    QString id;
};

/*!
 * Takes what can't be brought over of one slide, or of the presentation, and passes it on to the report; one that was
 * made without a report, or for a slide that was told before, drops it.
 */
class SlideLosses
{
public:
    SlideLosses() = default;
    //! slide is counted from 1; 0 for the presentation. report: null for nobody who listens.
    SlideLosses(LossReport *report, int slide);

    //! False where everything is dropped, so that nothing has to be looked for.
    bool isHeard() const { return m_report; }

    //! True where everything is only told of what other boards show.
    bool isElsewhere() const { return m_isElsewhere; }
    //! The same slide, where everything is only told of what other boards show.
    SlideLosses elsewhere() const;
    //! The same slide, told to another report; null for nobody who listens.
    SlideLosses in(LossReport *report) const;

    //! A value that did not survive.
    void value(const LossOwner &owner, const QString &key, const Sentence &detail = {}) const;
    //! A value without which all looks as it did.
    void unseenValue(const LossOwner &owner, const QString &key, const Sentence &detail) const;
    //! An item that isn't there.
    void item(const LossOwner &owner, const Sentence &why = {}) const;
    //! An item that became a picture.
    void picture(const LossOwner &owner) const;
    //! An item that became elements which show the same, so that other boards have it as it is.
    void outlined(const LossOwner &owner) const;
    //! A container whose items stand by themselves.
    void takenApart(const LossOwner &owner) const;
    //! A slide with items, none of which is there.
    void emptied(const LossOwner &owner) const;
    //! What the lesson itself hasn't, so that an item shows nothing.
    void absent(const LossOwner &owner, const QString &key, const Sentence &what) const;
    //! An item that nobody can convert and that goes over as it came.
    void kept(const LossOwner &owner) const;
    //! A file that isn't there or can't be taken.
    void file(const LossOwner &owner, const QString &reference, const Sentence &why) const;
    //! What another program has done to an item or a slide since the lesson was written.
    void changed(const LossOwner &owner, const Sentence &how) const;
    //! What is done otherwise than one would expect, and loses nothing.
    void note(const LossOwner &owner, const Sentence &detail, const QString &key = {}) const;

    //! True if that file of the owner was told through this object or a copy of it.
    bool hasFile(const LossOwner &owner, const QString &reference) const;
    //! True if any item or element that isn't there was told through this object or a copy of it.
    bool hasItem() const;

private:
    void add(int kind, const LossOwner &owner, const QString &key, const Sentence &detail, bool isShown = false) const;

    LossReport *m_report = nullptr;
    int m_slide = 0;
    bool m_isElsewhere = false;
    int m_first = 0; // entry of the report that may be this object's
};

/*!
 * What a reader or writer tells of a lesson. Slides are read as often as anybody likes and told once.
 */
class LessonLosses
{
public:
    //! report: null for nobody who listens.
    explicit LessonLosses(LossReport *report)
        : m_report(report)
    {
    }

    //! For what belongs to no slide.
    SlideLosses presentation() const { return {m_report, 0}; }
    //! slide is counted from 1. The second for a slide is one that drops.
    SlideLosses slide(int number);

    //! What the summary calls the format being written, such as "IWB".
    void setFormat(const QString &name) const;

private:
    LossReport *m_report;
    QSet<int> m_told;
};

} // namespace lessonhost

#endif // SLIDELOSSES_H

// SPDX-License-Identifier: MIT
#include "losses/slidelosses.h"

#include "lesson/itemkeys.h"
#include "lesson/itemvalues.h"
#include "losses/lossreport.h"

#include <algorithm>

namespace lessonhost {

LossOwner::LossOwner(const QJsonObject &item)
    : type(item.value(ItemKeys::type).toString())
    , id(valueText(item.value(ItemKeys::id)))
{
}

SlideLosses::SlideLosses(LossReport *report, int slide)
    : m_report(report)
    , m_slide(slide)
    , m_first(report ? report->entries().size() : 0)
{
}

SlideLosses SlideLosses::elsewhere() const
{
    SlideLosses losses = *this;
    losses.m_isElsewhere = true;
    return losses;
}

SlideLosses SlideLosses::in(LossReport *report) const
{
    SlideLosses losses(report, m_slide);
    losses.m_isElsewhere = m_isElsewhere;
    return losses;
}

void SlideLosses::value(const LossOwner &owner, const QString &key, const Sentence &detail) const
{
    add(m_isElsewhere ? Loss::Otherwise : Loss::Value, owner, key, detail);
}

void SlideLosses::unseenValue(const LossOwner &owner, const QString &key, const Sentence &detail) const
{
    add(m_isElsewhere ? Loss::Otherwise : Loss::Value, owner, key, detail, true);
}

void SlideLosses::item(const LossOwner &owner, const Sentence &why) const
{
    add(m_isElsewhere ? Loss::NotShown : Loss::Item, owner, {}, why);
}

void SlideLosses::picture(const LossOwner &owner) const
{
    m_isElsewhere ? add(Loss::AsPicture, owner, {}, {}) : add(Loss::Item, owner, {}, say("as a picture"), true);
}

void SlideLosses::outlined(const LossOwner &owner) const
{
    if (!m_isElsewhere) {
        add(Loss::Item, owner, {}, say("as outlines"), true);
    }
}

void SlideLosses::takenApart(const LossOwner &owner) const
{
    add(m_isElsewhere ? Loss::NotShown : Loss::Item, owner, {},
        say("taken apart, its items stand on the page by themselves"), true);
}

void SlideLosses::emptied(const LossOwner &owner) const
{
    add(m_isElsewhere ? Loss::EmptiedElsewhere : Loss::Emptied, owner, {}, {});
}

void SlideLosses::absent(const LossOwner &owner, const QString &key, const Sentence &what) const
{
    add(Loss::Absent, owner, key, what);
}

void SlideLosses::kept(const LossOwner &owner) const
{
    add(Loss::Kept, owner, {}, {});
}

void SlideLosses::file(const LossOwner &owner, const QString &reference, const Sentence &why) const
{
    if (m_report) {
        m_report->add({m_isElsewhere ? Loss::Otherwise : Loss::File, m_slide, owner.type, owner.id, reference, why,
                       false, m_isElsewhere});
    }
}

void SlideLosses::changed(const LossOwner &owner, const Sentence &how) const
{
    add(Loss::Changed, owner, {}, how);
}

void SlideLosses::note(const LossOwner &owner, const Sentence &detail, const QString &key) const
{
    add(Loss::Note, owner, key, detail);
}

bool SlideLosses::hasFile(const LossOwner &owner, const QString &reference) const
{
    return m_report
        && std::any_of(m_report->entries().begin() + m_first, m_report->entries().end(), [&](const Loss &loss) {
               return (loss.kind == Loss::File || loss.kind == Loss::Otherwise) && loss.slide == m_slide
                   && loss.itemType == owner.type && loss.key == reference
                   && (owner.id.isEmpty() || loss.itemId.isEmpty() || loss.itemId == owner.id);
           });
}

bool SlideLosses::hasItem() const
{
    return m_report
        && std::any_of(m_report->entries().begin() + m_first, m_report->entries().end(), [this](const Loss &loss) {
               const bool isElement = loss.kind == Loss::Value && loss.key.isEmpty();
               return (loss.kind == Loss::Item || isElement) && loss.slide == m_slide;
           });
}

void SlideLosses::add(int kind, const LossOwner &owner, const QString &key, const Sentence &detail, bool isShown) const
{
    if (m_report) {
        m_report->add({Loss::Kind(kind), m_slide, owner.type, owner.id, key, detail, isShown});
    }
}

SlideLosses LessonLosses::slide(int number)
{
    if (m_told.contains(number)) {
        return {};
    }
    m_told.insert(number);
    return {m_report, number};
}

void LessonLosses::setFormat(const QString &name) const
{
    if (m_report) {
        m_report->setFormat(name);
    }
}

} // namespace lessonhost

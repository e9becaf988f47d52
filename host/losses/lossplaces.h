// SPDX-License-Identifier: MIT
#ifndef LOSSPLACES_H
#define LOSSPLACES_H

#include "losses/lossreport.h"

#include <memory>
#include <vector>

namespace lessonhost {

/*!
 * Keeps places in a report for what other threads find while more is told: each gets a report of its own, and at the
 * end all entries stand where they would if they had been found at once.
 */
class LossPlaces
{
public:
    //! report: null for nobody who listens. Until finish(), nobody takes entries out of it.
    explicit LossPlaces(LossReport *report)
        : m_report(report)
    {
    }

    //! Whom to tell what belongs behind the entries that are there now. Null for nobody who listens.
    LossReport *next();
    //! When nobody tells anything more.
    void finish() { finish(int(m_places.size())); }
    //! The same, where what is told in all but the first so many places is dropped.
    void finish(int count);

private:
    struct Place
    {
        int before; // entries of the report
        std::unique_ptr<LossReport> told;
    };

    LossReport *m_report;
    std::vector<Place> m_places; // ascending
};

} // namespace lessonhost

#endif // LOSSPLACES_H

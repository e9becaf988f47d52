// SPDX-License-Identifier: MIT
#include "losses/lossplaces.h"

#include <algorithm>
#include <utility>

namespace lessonhost {

LossReport *LossPlaces::next()
{
    if (!m_report) {
        return nullptr;
    }
    m_places.push_back({m_report->entries().size(), std::make_unique<LossReport>(m_report->another())});
    return m_places.back().told.get();
}

void LossPlaces::finish(int count)
{
    std::vector<Place> places = std::move(m_places);
    m_places.clear();
    places.resize(std::min(places.size(), std::size_t(count)));
    const auto isEmpty = [](const Place &place) { return place.told->isEmpty(); };
    if (std::all_of(places.begin(), places.end(), isEmpty)) {
        return;
    }
    const LossList told = m_report->takeEntries();
    int done = 0;
    for (const Place &place : places) {
        m_report->add(told.mid(done, place.before - done));
        m_report->add(place.told->takeEntries());
        done = place.before;
    }
    m_report->add(told.mid(done));
}

} // namespace lessonhost

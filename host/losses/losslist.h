// SPDX-License-Identifier: MIT
#ifndef LOSSLIST_H
#define LOSSLIST_H

#include "losses/loss.h"

#include <QString>

#include <cstddef>
#include <deque>
#include <functional>
#include <iterator>
#include <memory>

namespace lessonhost {

/*!
 * Losses in the order in which they were found, for as many of them as a large lesson has: these differ in little but
 * their places, and the rest is kept once.
 */
class LossList
{
public:
    class Iterator;

    LossList();
    //! An empty one for what is found by the way, maybe by another thread: the two keep together what they share.
    LossList another() const;

    void append(const Loss &loss);
    void append(const LossList &losses);
    //! All of them, which it has no longer.
    LossList takeAll();

    int size() const { return int(m_entries.size()); }
    bool isEmpty() const { return m_entries.empty(); }
    Loss at(int index) const;
    Loss last() const { return at(size() - 1); }
    //! Those from an index on, at most count of them or all.
    LossList mid(int index, int count = -1) const;
    //! Those of which it is true.
    LossList filtered(const std::function<bool(const Loss &loss)> &isOne) const;

    Iterator begin() const;
    Iterator end() const;

private:
    class Shared;
    struct Entry
    {
        const Loss *loss; // without its place
        QString itemId;
        int slide;
    };

    explicit LossList(const std::shared_ptr<Shared> &shared);

    std::shared_ptr<Shared> m_shared;
    std::deque<Entry> m_entries; // which needn't move to become more
};

/*!
 * Goes through losses, which are put together on the way.
 */
class LossList::Iterator
{
public:
    using iterator_category = std::input_iterator_tag;
    using value_type = Loss;
    using difference_type = std::ptrdiff_t;
    using pointer = const Loss *;
    using reference = Loss;

    Iterator(const LossList &list, int index)
        : m_list(&list)
        , m_index(index)
    {
    }

    Loss operator*() const { return m_list->at(m_index); }
    Iterator &operator++()
    {
        ++m_index;
        return *this;
    }
    Iterator operator+(int count) const { return {*m_list, m_index + count}; }
    bool operator==(const Iterator &other) const { return m_index == other.m_index; }
    bool operator!=(const Iterator &other) const { return m_index != other.m_index; }

private:
    const LossList *m_list;
    int m_index;
};

inline LossList::Iterator LossList::begin() const
{
    return {*this, 0};
}

inline LossList::Iterator LossList::end() const
{
    return {*this, size()};
}

} // namespace lessonhost

#endif // LOSSLIST_H

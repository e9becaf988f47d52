// SPDX-License-Identifier: MIT
#include "losses/losslist.h"

#include <QHash>
#include <QSet>

#include <algorithm>
#include <mutex>
#include <unordered_set>
#include <utility>

namespace lessonhost {

/*!
 * What losses say but for their places, each once. Any thread may add to it; what is there stays where it is.
 */
class LossList::Shared
{
public:
    const Loss *add(Loss loss)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        loss.slide = 0;
        loss.itemId.clear();
        const auto known = m_losses.find(loss);
        if (known != m_losses.end()) {
            return &*known;
        }
        loss.itemType = *m_texts.insert(loss.itemType);
        loss.key = *m_texts.insert(loss.key);
        return &*m_losses.insert(loss).first;
    }

private:
    struct Hash
    {
        std::size_t operator()(const Loss &loss) const
        {
            return qHash(loss.detail.english(), qHash(loss.key, qHash(loss.itemType, uint(loss.kind))));
        }
    };
    struct Same
    {
        bool operator()(const Loss &one, const Loss &other) const
        {
            return one.kind == other.kind && one.itemType == other.itemType && one.key == other.key
                && one.detail.english() == other.detail.english() && one.isShown == other.isShown
                && one.isFile == other.isFile;
        }
    };

    std::mutex m_mutex;
    std::unordered_set<Loss, Hash, Same> m_losses;
    QSet<QString> m_texts; // names, which many of them have
};

LossList::LossList()
    : LossList(std::make_shared<Shared>())
{
}

LossList::LossList(const std::shared_ptr<Shared> &shared)
    : m_shared(shared)
{
}

LossList LossList::another() const
{
    return LossList(m_shared);
}

void LossList::append(const Loss &loss)
{
    const bool isOfLast = !isEmpty() && m_entries.back().itemId == loss.itemId;
    m_entries.push_back({m_shared->add(loss), isOfLast ? m_entries.back().itemId : loss.itemId, loss.slide});
}

void LossList::append(const LossList &losses)
{
    if (losses.m_shared == m_shared) {
        m_entries.insert(m_entries.end(), losses.m_entries.begin(), losses.m_entries.end());
    } else {
        for (const Loss &loss : losses) {
            append(loss);
        }
    }
}

LossList LossList::takeAll()
{
    return std::exchange(*this, another());
}

Loss LossList::at(int index) const
{
    const Entry &entry = m_entries.at(std::size_t(index));
    Loss loss = *entry.loss;
    loss.slide = entry.slide;
    loss.itemId = entry.itemId;
    return loss;
}

LossList LossList::mid(int index, int count) const
{
    LossList part = another();
    const int end = count < 0 ? size() : qMin(index + count, size());
    part.m_entries.assign(m_entries.begin() + index, m_entries.begin() + end);
    return part;
}

LossList LossList::filtered(const std::function<bool(const Loss &loss)> &isOne) const
{
    LossList part = another();
    for (int i = 0; i < size(); ++i) {
        if (isOne(at(i))) {
            part.m_entries.push_back(m_entries.at(std::size_t(i)));
        }
    }
    return part;
}

} // namespace lessonhost

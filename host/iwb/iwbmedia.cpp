// SPDX-License-Identifier: MIT
#include "iwb/iwbmedia.h"

namespace lessonhost {

QString IwbMedia::place(const QString &folder, const File &file, const QString &wantedName)
{
    const QString reference = folder + QLatin1Char('/') + m_files.nameIn(folder, file.source, wantedName);
    if (!m_placed.contains(reference)) {
        m_placed.insert(reference, file);
        m_new.append(reference);
        if (!file.isConverted) {
            m_unchanged[file.source].append(reference);
        }
    }
    return reference;
}

void IwbMedia::storeNew(const std::function<void(const QString &, const File &)> &store)
{
    QStringList references;
    references.swap(m_new);
    for (const QString &reference : qAsConst(references)) {
        File &file = m_placed[reference];
        store(reference, file);
        file.picture = {};
    }
}

QStringList IwbMedia::unchanged(const QString &relativePath) const
{
    return m_unchanged.value(m_files.source(relativePath));
}

QStringList IwbMedia::made() const
{
    QStringList references;
    for (auto it = m_placed.cbegin(); it != m_placed.cend(); ++it) {
        if (it->isMade) {
            references.append(it.key());
        }
    }
    references.sort();
    return references;
}

} // namespace lessonhost

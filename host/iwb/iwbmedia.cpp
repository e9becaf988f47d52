// SPDX-License-Identifier: MIT
#include "iwb/iwbmedia.h"

namespace lessonhost {

void IwbMedia::add(const QString &relativePath, const QString &sourceFile)
{
    m_files.add(relativePath, sourceFile);
    m_newFiles.append({relativePath, sourceFile});
}

QString IwbMedia::place(const QString &folder, const File &file, const QString &wantedName)
{
    const QString reference = folder + QLatin1Char('/') + m_files.nameIn(folder, file.source, wantedName);
    if (!m_placed.contains(reference)) {
        m_placed.insert(reference, file);
        m_newReferences.append(reference);
        if (!file.isConverted) {
            m_unchanged[file.source].append(reference);
        }
    }
    return reference;
}

IwbMedia::Additions IwbMedia::takeAdditions()
{
    Additions additions{std::exchange(m_newFiles, {}), {}};
    const QStringList references = std::exchange(m_newReferences, {});
    for (const QString &reference : references) {
        File &file = m_placed[reference];
        additions.placed.append({reference, file});
        file.picture = {};
    }
    return additions;
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

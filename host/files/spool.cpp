// SPDX-License-Identifier: MIT
#include "files/spool.h"

namespace lessonhost {

namespace {

// Most lessons of a run over many are smaller, and a file costs more than all of their bytes.
constexpr qint64 mostHeld = qint64(512) * 1024;

} // namespace

Spool::Spool(const QString &file, const QString &shownName, OutputFile::Use use)
    : m_path(file)
    , m_shownName(shownName)
    , m_use(use)
{
}

void Spool::put(Pieces &pieces, const QByteArray &bytes)
{
    if (!m_file && m_held.size() + bytes.size() > mostHeld) {
        m_file = std::make_unique<OutputFile>(m_path, m_shownName, m_use);
        m_file->put(m_held);
        m_held = {};
    }
    const qint64 begin = m_file ? m_file->size() : m_held.size();
    if (m_file) {
        m_file->put(bytes);
    } else {
        m_held += bytes;
    }
    if (!pieces.isEmpty() && pieces.last().begin + pieces.last().size == begin) {
        pieces.last().size += bytes.size();
    } else {
        pieces.append({begin, bytes.size()});
    }
}

QByteArray Spool::bytes(const Pieces &pieces, qint64 begin, qint64 size)
{
    QByteArray found;
    for (const Piece &piece : pieces) {
        const qint64 skipped = qMin(begin, piece.size);
        const qint64 count = qMin(size, piece.size - skipped);
        if (count > 0) {
            found += part(piece.begin + skipped, count);
        }
        begin -= skipped;
        size -= count;
        if (size == 0) {
            break;
        }
    }
    return found;
}

QByteArray Spool::part(qint64 begin, qint64 size)
{
    if (!m_file) {
        return m_held.mid(int(begin), int(size));
    }
    if (!m_read) {
        m_file->check();
        m_read = std::make_unique<InputFile>(m_path, m_shownName);
    }
    return m_read->bytes(begin, size);
}

} // namespace lessonhost

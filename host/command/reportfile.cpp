// SPDX-License-Identifier: MIT
#include "command/reportfile.h"

#include "files/outputfile.h"
#include "files/packagetarget.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace lessonhost {

ReportFile::ReportFile(const QString &path)
    : m_target(path.isNull() ? nullptr : std::make_unique<PackageTarget>(path))
{
}

ReportFile::~ReportFile() = default;

void ReportFile::put(const QByteArray &piece)
{
    if (m_target) {
        m_target->file().put(piece);
    }
}

void ReportFile::commit()
{
    if (m_target) {
        m_target->commit();
    }
}

void ReportFile::write(const QJsonObject &report)
{
    if (m_target) {
        put(QJsonDocument(report).toJson());
        commit();
    }
}

} // namespace lessonhost

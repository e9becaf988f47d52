// SPDX-License-Identifier: MIT
#ifndef REPORTFILE_H
#define REPORTFILE_H

#include <QByteArray>
#include <QString>

#include <memory>

class QJsonObject;

namespace lessonhost {

class PackageTarget;

/*!
 * The file for what was lost, if one is asked for. That it can't be written is found before anything else is.
 * Functions throw LessonError.
 */
class ReportFile
{
public:
    //! path: null where no report is asked for.
    explicit ReportFile(const QString &path);
    ~ReportFile();

    //! A part of its text; commit() when all is there.
    void put(const QByteArray &piece);
    void commit();
    //! All of it.
    void write(const QJsonObject &report);

private:
    std::unique_ptr<PackageTarget> m_target;
};

} // namespace lessonhost

#endif // REPORTFILE_H

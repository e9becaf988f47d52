// SPDX-License-Identifier: MIT
#include "render/pagefiles.h"

#include "files/inputfile.h"
#include "files/packagenames.h"

#include <QFileInfo>
#include <QMimeDatabase>
#include <QStringList>

namespace lessonhost {

namespace {

// What browsers play, show as it is, or hand on to another program. All other files count as texts if they begin like
// markup, which browsers look for in files that they don't know.
bool isHarmless(const QString &suffix)
{
    static const QStringList suffixes =
        QStringLiteral("wav mp3 ogg oga opus m4a aac flac wma amr mid midi mp4 m4v webm ogv avi mov wmv mkv mpg mpeg flv "
                       "3gp swf pdf doc docx ppt pptx xls xlsx odt odp ods rtf txt csv zip png jpg jpeg gif webp bmp ggb")
            .split(QLatin1Char(' '));
    return suffixes.contains(suffix);
}

bool isActive(const QString &suffix)
{
    static const QStringList suffixes =
        QStringLiteral("html htm xhtml xht shtml mht mhtml svg svgz xml xsl xslt js mjs hta url desktop exe bat cmd com "
                       "scr ps1 vbs jar lnk sh")
            .split(QLatin1Char(' '));
    return suffixes.contains(suffix);
}

bool beginsLikeMarkup(const QString &source, const QString &name)
{
    InputFile file(source, name);
    const QByteArray start = file.read(1024);
    file.check();
    return start.contains('<');
}

} // namespace

int PageFiles::add(const QString &source, const QString &reference)
{
    const auto known = m_numbers.constFind(source);
    if (known != m_numbers.constEnd()) {
        return *known;
    }
    File file;
    file.source = source;
    QString path = reference;
    path.replace(QLatin1Char('\\'), QLatin1Char('/'));
    file.name = QFileInfo(path).fileName();
    const QString suffix = QFileInfo(file.name).suffix().toLower();
    const QString ending = isActive(suffix) || (!isHarmless(suffix) && beginsLikeMarkup(source, file.name))
        ? QStringLiteral(".txt")
        : QString();
    file.stored = file.name + ending;
    if (!problemWithFileName(file.stored).isEmpty() || m_stored.contains(file.stored.toLower())) {
        file.stored = QStringLiteral("file%1").arg(m_files.size() + 1)
            + (ending.isEmpty() && isHarmless(suffix) ? QLatin1Char('.') + suffix : ending);
    }
    file.type = QMimeDatabase().mimeTypeForFile(file.stored, QMimeDatabase::MatchExtension).name();
    m_stored.insert(file.stored.toLower());
    m_numbers.insert(source, m_files.size());
    m_files.append(file);
    return m_files.size() - 1;
}

QString filesFolderOfPage(const QString &page)
{
    return QFileInfo(page).completeBaseName() + QLatin1String("_files");
}

} // namespace lessonhost

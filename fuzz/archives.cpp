#include "fuzzsupport.h"
#include "hostsupport.h"

#include <QFile>

// Any bytes as a package in one file, read as the command reads it. Nothing may be unpacked outside of the folder.

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    startApplication();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    plugin();
    const QString archive = workFolder() + QLatin1String("/lesson.zip");
    QFile file(archive);
    if (file.open(QIODevice::WriteOnly)) {
        file.write(reinterpret_cast<const char *>(data), qint64(size));
        file.close();
        for (const char *format : {"zqtx", "iwb"}) {
            guarded("reading an archive", size, [&archive, format] { readLesson(QLatin1String(format), archive); });
        }
    }
    return 0;
}

#include "fuzzsupport.h"
#include "hostsupport.h"
#include "mutation.h"

#include <QFile>

// Any document as the content of an IWB package, read as the command reads it.

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    startApplication();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QString package = workFolder() + QLatin1String("/package");
    QFile content(package + QLatin1String("/content.xml"));
    if (content.open(QIODevice::WriteOnly)) {
        content.write(reinterpret_cast<const char *>(data), qint64(size));
        content.close();
        guarded("importing a package", size, [&package] { readLesson(QStringLiteral("iwb"), package); });
    }
    return 0;
}

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t *data, std::size_t size, std::size_t maxSize, unsigned seed)
{
    return mutateText(data, size, maxSize, seed);
}

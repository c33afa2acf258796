#include "platform/late/LateParts.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

#include <dlfcn.h>

#include "platform/Guarded.h"

namespace {

/// Where an installation has it, and where the build has it for the program, and for the tests.
constexpr const char *placesFromBin[] = {OMK_LATE_FROM_BIN, "../lib", "../../lib"};

QString findModule()
{
    const QDir bin(QCoreApplication::applicationDirPath());
    for (const char *place : placesFromBin)
        if (const QString file = bin.filePath(QLatin1String(place) + u"/" OMK_LATE_NAME); QFile::exists(file))
            return file;
    throw RuntimeFailure(Failure::CouldNotFindFile,
                         QStringLiteral("Charts, printouts and the help need " OMK_LATE_NAME ", which belongs into %1.")
                             .arg(QDir::cleanPath(bin.filePath(QStringLiteral(OMK_LATE_FROM_BIN)))));
}

const LateParts &load()
{
    void *module = ::dlopen(QFile::encodeName(findModule()).constData(), RTLD_NOW);
    const void *parts = module ? ::dlsym(module, "ostrelmarkLateParts") : nullptr;
    if (!parts)
        throw RuntimeFailure(Failure::CouldNotFindFile, QString::fromLocal8Bit(::dlerror()));
    const auto &late = *static_cast<const LateParts *>(parts);
    late.begin(showFailure);
    return late;
}

} // namespace

const LateParts &Late()
{
    static const LateParts &parts = load();
    return parts;
}

#include "Figure.h"

#include <stdexcept>

#include <QFile>
#include <QProcess>

#include "BigOldFile.h"
#include "OwnProcess.h"
#include "platform/core/Files.h"

namespace {

constexpr int times = 500; ///< the 200 water tests of the file

/// The time of a program, from its start to its end; its output is discarded.
Sample run(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    const auto begin = nowNanoseconds();
    process.start(program, arguments);
    if (!process.waitForFinished(-1) || process.exitCode() != 0)
        throw std::runtime_error(program.toStdString() + " failed");
    return {millisecondsSince(begin)};
}

} // namespace

Figure oldFileFigure(const QString &folder)
{
    const QString file = folder + u"/old.MDB", draft = folder + u"/draft";
    WriteBigOldFile(QStringLiteral(OMK_OLD_FILES "/OM-1.0-jet4.MDB"), file, times);
    return {.name = QStringLiteral("An old file with 100,000 tests, ms"),
            .target = 3,
            .ours =
                [=] {
                    QFile empty(draft);
                    if (!empty.open(QIODevice::WriteOnly))
                        throw std::runtime_error("no draft");
                    return run(PrivateProgram(QStringLiteral("ostrelmark-read-old")), {file, draft});
                },
            .floor =
                [=] {
                    return run(QStringLiteral("mdb-export"), {file, QStringLiteral("WATERLOG")});
                },
            .repetitions = 7};
}

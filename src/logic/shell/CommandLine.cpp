#include "logic/shell/CommandLine.h"

#include <algorithm>

#include <QFile>

namespace {

constexpr int wrongUse = 2;

constexpr char help[] = "Usage: ostrelmark [FOLDER]\n"
                        "The logbook of your aquariums and ponds.\n"
                        "\n"
                        "FOLDER holds your data. Without it, that is the current directory if it holds\n"
                        "an OM.MDB, else ostrelmark in $XDG_DATA_HOME or in ~/.local/share. A new folder\n"
                        "gets an empty logbook and the lists of names; what is there already is never\n"
                        "overwritten. A folder that was used before and has lost its OM.MDB is left alone.\n"
                        "\n"
                        "  --help     print this and end\n"
                        "  --version  print the version and end\n"
                        "  --         FOLDER follows, even if its name begins with \"-\"\n";

/// Options of Qt, each with a value, which session managers and testers pass. Qt removes them itself.
constexpr const char *toolkitOptions[] = {"-display", "-platform", "-session", "-style"};

CommandLine wrong(const QString &why)
{
    return {{}, wrongUse, QStringLiteral("ostrelmark: %1 Try \"ostrelmark --help\".\n").arg(why)};
}

} // namespace

CommandLine ReadCommandLine(std::span<char *const> arguments)
{
    CommandLine line;
    bool mayBeOption = true;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const QString argument = QFile::decodeName(arguments[i]);
        if (mayBeOption && argument == u"--help")
            return {{}, 0, QLatin1String(help)};
        if (mayBeOption && argument == u"--version")
            return {{}, 0, QStringLiteral("Ostrelmark " OMK_REVISION "\n")};
        if (mayBeOption && argument == u"--")
            mayBeOption = false;
        else if (mayBeOption && std::ranges::count(toolkitOptions, argument, [](auto o) { return QLatin1String(o); }))
            ++i;
        else if (mayBeOption && argument.startsWith(u'-'))
            return wrong(QStringLiteral("there is no option \"%1\".").arg(argument));
        else if (argument.isEmpty())
            return wrong(QStringLiteral("the name of the folder is empty."));
        else if (!line.folder.isEmpty())
            return wrong(QStringLiteral("more than one folder was given."));
        else
            line.folder = argument;
    }
    return line;
}

#include "datacommand/DataCommand.h"

#include <cstdio>
#include <functional>

#include <CLI/CLI.hpp>
#include <QFile>

#include "datacommand/Calendar.h"
#include "datacommand/Check.h"
#include "datacommand/KeepersData.h"
#include "datacommand/Restore.h"
#include "datacommand/TerminalDoors.h"
#include "datacommand/Upcoming.h"
#include "platform/core/RuntimeFailure.h"

namespace {

/// What a verb does once the command line has been read. Returns a DataStatus.
using Work = std::function<int(KeepersData &)>;

struct Verb
{
    const char *name;
    const char *summary;
    /// Adds the verb's arguments and options, and returns its work, which shares
    /// them with the command line.
    Work (*offer)(CLI::App &line);
};

QString fileName(const std::string &argument) { return QFile::decodeName(argument.c_str()); }

/// A check for options that are dates.
const CLI::Validator isoDate(
    [](std::string &text) {
        const QDate date = QDate::fromString(QString::fromStdString(text), Qt::ISODate);
        return date.isValid() ? std::string() : "\"" + text + "\" is not a date such as 2026-11-24";
    },
    "DATE");

QDate dateOf(const std::string &text) { return QDate::fromString(QString::fromStdString(text), Qt::ISODate); }

Work offerCalendar(CLI::App &line)
{
    struct Options
    {
        std::string file, from, to;
    };
    const auto options = std::make_shared<Options>();
    line.add_option("FILE", options->file, "The file to write, such as reminders.ics")->required();
    line.add_option("--from", options->from, "The first day; today if it is left out")->check(isoDate);
    line.add_option("--to", options->to, "The last day; two years after the first if it is left out")->check(isoDate);
    return [options](KeepersData &data) {
        return WriteCalendar(data, fileName(options->file), dateOf(options->from), dateOf(options->to));
    };
}

Work offerCheck(CLI::App &)
{
    return [](KeepersData &data) { return CheckData(data); };
}

Work offerRestore(CLI::App &line)
{
    const auto copy = std::make_shared<std::string>();
    line.add_option("COPY", *copy,
                    "The copy to put in place: a file, a name of the list, or "
                    "the date of a daily copy. Without it, "
                    "the copies are listed.");
    return [copy](KeepersData &data) { return copy->empty() ? ListCopies(data) : RestoreCopy(data, fileName(*copy)); };
}

Work offerUpcoming(CLI::App &line)
{
    const auto days = std::make_shared<int>(7);
    line.add_option("--days", *days, "How many days to look at; the first is today")
        ->check(CLI::Range(1, 731))
        ->capture_default_str();
    return [days](KeepersData &data) { return TellUpcoming(data, *days); };
}

constexpr Verb verbs[] = {
    {"calendar", "Write the dates of the reminders for any calendar program (iCalendar)", offerCalendar},
    {"check",
     "Look for damage in the file, and for entries that no window would have "
     "taken",
     offerCheck},
    {"restore", "List the copies of the database, or put one in its place", offerRestore},
    {"upcoming", "Print the reminders of the next days, a line each", offerUpcoming},
};

/// One line, whatever the failure says.
QString lineOf(const RuntimeFailure &failure)
{
    return failure.description().split(u'\n', Qt::SkipEmptyParts).join(u' ');
}

} // namespace

int RunDataCommand(std::span<char *const> arguments)
{
    CLI::App app("Takes the data of Ostrelmark out and brings it back, on a terminal.", "ostrelmark-data");
    app.set_version_flag("--version", "Ostrelmark " OMK_REVISION);
    app.require_subcommand(0, 1); // a wrong verb is named, which the parser does not do where one is required
    std::string folder;
    app.add_option("--folder", folder,
                   "The folder of your data. Without it, that is the current "
                   "directory if it holds an OM.MDB, else "
                   "ostrelmark in $XDG_DATA_HOME or in ~/.local/share.");
    Work work;
    for (const Verb &verb : verbs) {
        CLI::App *line = app.add_subcommand(verb.name, verb.summary)->fallthrough();
        line->callback([&work, chosen = verb.offer(*line)] { work = chosen; });
    }
    try {
        app.parse(int(arguments.size()), arguments.data());
    } catch (const CLI::ParseError &error) {
        return app.exit(error) == 0 ? DataDone : DataWrongUse;
    }
    if (!work) {
        Complain(QStringLiteral("say what to do. \"ostrelmark-data --help\" lists the verbs."));
        return DataWrongUse;
    }
    try {
        KeepersData data(fileName(folder));
        const int status = work(data);
        if (std::fflush(stdout) == 0)
            return status;
        Complain(QStringLiteral("The output could not be written."));
    } catch (const RuntimeFailure &failure) {
        Complain(lineOf(failure));
    }
    return DataFault;
}

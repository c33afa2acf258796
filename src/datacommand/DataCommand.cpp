#include "datacommand/DataCommand.h"

#include <cstdio>
#include <functional>

#include <CLI/CLI.hpp>
#include <QFile>

#include "data/CsvReader.h"
#include "datacommand/Calendar.h"
#include "datacommand/Check.h"
#include "datacommand/KeepersData.h"
#include "datacommand/Restore.h"
#include "datacommand/Spreadsheets.h"
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
    /// Adds the verb's arguments and options, and returns its work, which shares them with the command line.
    Work (*offer)(CLI::App &line);
};

QString fileName(const std::string &argument) { return QFile::decodeName(argument.c_str()); }

/// Checks an option that is a date.
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
    line.add_option("FILE", options->file, "The file to write, such as reminders.ics")->required()->type_name("");
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

Work offerExport(CLI::App &line)
{
    struct Options
    {
        std::string folder, tank;
        bool force = false;
    };
    const auto options = std::make_shared<Options>();
    line.add_option("DIR", options->folder,
                    "The folder for tanks.csv, water.csv, livestock.csv, maintenance.csv and "
                    "reminders.csv; it is made if it does not exist")
        ->required();
    line.add_option("--tank", options->tank, "Only this tank, without the reminders");
    line.add_flag("--force", options->force, "Replace files of these names");
    return [options](KeepersData &data) {
        return ExportData(data, {fileName(options->folder), QString::fromStdString(options->tank), options->force});
    };
}

/// Checks the delimiter of a file and replaces its name by the character. Used as a transformation: a check of CLI11
/// changes nothing.
const CLI::Validator delimiter(
    [](std::string &text) {
        if (text == "tab" || text == "\\t")
            text = "\t";
        return text.size() == 1 && CsvReader::canDelimit(text[0])
                   ? std::string()
                   : "\"" + text + "\" is not a delimiter such as \";\" or tab";
    },
    "CHARACTER");

const CLI::Validator columnMap(
    [](std::string &text) {
        return ReadMap(QString::fromStdString(text)) ? std::string()
                                                     : "\"" + text + "\" is not like \"pH=ph,NO3=nitrate\"";
    },
    "NAME=COLUMN,...");

const std::map<std::string, DateOrder> dateOrders = {
    {"DMY", DateOrder::DDMMYY}, {"MDY", DateOrder::MMDDYY}, {"YMD", DateOrder::YYMMDD}};

Work offerImport(CLI::App &line)
{
    struct Options
    {
        std::string file, map, delimiter = ",", tank;
        ImportOptions import;
    };
    const auto options = std::make_shared<Options>();
    line.add_option("FILE", options->file, "The CSV file; its first line names the columns")->required();
    line.add_option("--map", options->map,
                    "What the names in the file stand for; a name with nothing after its = is left out")
        ->check(columnMap);
    line.add_option("--tank", options->tank, "The tank of all rows, if the file has no column for it");
    line.add_option("--date-order", options->import.dateOrder, "The order of dates that are not like 2026-11-24")
        ->transform(CLI::CheckedTransformer(dateOrders, CLI::ignore_case).description("DMY, MDY or YMD"));
    line.add_option("--delimiter", options->delimiter,
                    "What separates the values: one character, or tab; a comma if it is left out")
        ->transform(delimiter);
    line.add_flag("--decimal-comma", options->import.decimalComma, "Numbers are written like 7,8");
    line.add_flag("--replace", options->import.replaces, "Change rows that already exist to those of the file");
    line.add_flag("--dry-run", options->import.isDryRun, "Check the file and store nothing");
    return [options](KeepersData &data) {
        ImportOptions import = options->import;
        import.map = *ReadMap(QString::fromStdString(options->map));
        import.tank = QString::fromStdString(options->tank);
        import.delimiter = options->delimiter[0];
        return ImportData(data, fileName(options->file), import);
    };
}

Work offerRestore(CLI::App &line)
{
    const auto copy = std::make_shared<std::string>();
    line.add_option("COPY", *copy,
                    "The copy to put in place: a file, a name from the list, or "
                    "the date of a daily copy. Without it, "
                    "the copies are listed.")
        ->type_name("");
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
     "accepted",
     offerCheck},
    {"export", "Write all data as CSV files for any spreadsheet", offerExport},
    {"import", "Read a CSV file: one that export wrote, or any whose first line names the columns", offerImport},
    {"restore", "List the copies of the database, or put one in its place", offerRestore},
    {"upcoming", "Print the reminders of the next days, one on each line", offerUpcoming},
};

/// The description of a failure on one line.
QString lineOf(const RuntimeFailure &failure)
{
    return failure.description().split(u'\n', Qt::SkipEmptyParts).join(u' ');
}

} // namespace

int RunDataCommand(std::span<char *const> arguments)
{
    CLI::App app("Exports, imports, checks and restores the data of Ostrelmark on a terminal.", "ostrelmark-data");
    app.set_version_flag("--version", "Ostrelmark " OMK_REVISION);
    app.get_formatter()->label("SUBCOMMAND", "VERB");
    app.require_subcommand(0, 1); // not 1, because then the parser's message for a wrong verb would not name it
    std::string folder;
    app.add_option("--folder", folder,
                   "The folder of your data. Without it, that is the current "
                   "directory if it holds an OM.MDB, else "
                   "ostrelmark in $XDG_DATA_HOME or in ~/.local/share.")
        ->type_name("DIR");
    Work work;
    for (const Verb &verb : verbs) {
        CLI::App *line = app.add_subcommand(verb.name, verb.summary)->fallthrough()->group("Verbs");
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

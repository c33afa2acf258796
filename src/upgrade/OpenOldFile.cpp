#include "upgrade/OpenOldFile.h"

#include <csignal>

#include <sys/prctl.h>
#include <sys/stat.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QProcess>

#include "oldengine/OldFile.h"
#include "oldengine/OldOutcome.h"
#include "platform/controls/HourGlass.h"
#include "platform/core/Doors.h"
#include "platform/core/Files.h"
#include "platform/core/RuntimeFailure.h"
#include "store/Backup.h"
#include "store/Draft.h"
#include "upgrade/frm_OMKupgrade.h"

namespace {

const QString readerName = QStringLiteral("ostrelmark-read-old");
const QString boxTitle = QStringLiteral("Old Database");
constexpr int pollMilliseconds = 50;
constexpr int mostNotesInBox = 8;

/// SQLite would apply such a journal to the new file.
void requireNoJournal(const QString &path)
{
    const QString journal = FindFile(path + QStringLiteral("-journal"));
    if (!journal.isEmpty())
        throw RuntimeFailure(Failure::PermissionDenied,
                             QStringLiteral("This file belongs to a newer database than the one beside it, which comes "
                                            "from an early release:\n%1\n%2\nPut one of the two into another folder.")
                                 .arg(journal, path));
}

class Reading
{
public:
    Reading(const QString &from, const QString &draft) : m_from(from), m_draft(draft) {}

    /// Runs the program that reads, and shows its progress. Throws the failure that it reports, or another one if it
    /// ends without a report.
    OldOutcome run(frm_OMKupgrade &window)
    {
        const HourGlass waiting;
        window.Show(QStringLiteral("Reading the old database"), 0);
        QProcess reader;
        reader.setStandardErrorFile(QProcess::nullDevice()); // messages of the library about pages
        // The reader is killed when this program ends for any reason.
        reader.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGKILL); });
        reader.start(PrivateProgram(readerName), {m_from, m_draft}, QIODevice::ReadOnly);
        if (!reader.waitForStarted())
            throw RuntimeFailure(
                Failure::CouldNotFindFile,
                QStringLiteral("The program %1, which reads such files, cannot be started. Install Ostrelmark again.")
                    .arg(PrivateProgram(readerName)));
        while (reader.state() != QProcess::NotRunning || reader.canReadLine()) {
            if (!reader.canReadLine())
                reader.waitForReadyRead(pollMilliseconds);
            while (reader.canReadLine())
                take(reader.readLine(), window);
            window.Show(m_percent);
        }
        if (m_failure)
            throw RuntimeFailure(*m_failure);
        if (!m_outcome || reader.exitStatus() != QProcess::NormalExit)
            throw RuntimeFailure(Failure::UnrecognizedFormat,
                                 QStringLiteral("The file is damaged so much that it cannot be read."));
        return *m_outcome;
    }

private:
    void take(const QByteArray &text, frm_OMKupgrade &window)
    {
        const auto line = ReadOldLine(text);
        if (!line)
            return;
        if (const auto *progress = std::get_if<OldProgress>(&*line)) {
            m_percent = progress->percent;
            window.Show(QStringLiteral("Reading the old database: %1").arg(WordsForRows(progress->table, 2)),
                        m_percent);
        } else if (const auto *failure = std::get_if<RuntimeFailure>(&*line)) {
            m_failure = *failure;
        } else {
            m_outcome = std::get<OldOutcome>(*line);
        }
    }

    QString m_from, m_draft;
    int m_percent = 0;
    std::optional<OldOutcome> m_outcome;
    std::optional<RuntimeFailure> m_failure;
};

/// Only the first lines, so that the box fits on the screen.
QString listOf(const QStringList &lines)
{
    QString list;
    for (const QString &line : lines.first(std::min<qsizetype>(lines.size(), mostNotesInBox)))
        list += u"\n- " + line;
    return lines.size() > mostNotesInBox ? list + u"\n- ..." : list;
}

QString detailsOf(const QStringList &lines) { return lines.size() > mostNotesInBox ? lines.join(u'\n') : QString(); }

bool keeperWantsTheRest(const OldOutcome &outcome, const QString &path)
{
    if (outcome.unread.empty())
        return true;
    return MsgBox(QStringLiteral(
                      "This old database is damaged:\n%1\n\nThis could not be read:\n%2\n\nOpen the logbook with "
                      "all the rest? The old file is kept as it is.\nIf you have another copy of it, answer "
                      "No and put that copy in its place.")
                      .arg(path, listOf(outcome.unread)),
                  vbYesNo + vbExclamation + vbDefaultButton2, boxTitle, detailsOf(outcome.unread)) == MsgBoxAnswer::Yes;
}

/// Gives the new file the permissions of the old one, and lets its owner write to it: an old file that was copied from
/// a CD is read-only.
void setMode(const QString &draft, const QString &old)
{
    struct stat status = {};
    if (::stat(QFile::encodeName(old).constData(), &status) == 0)
        ::chmod(QFile::encodeName(draft).constData(), (status.st_mode & 0777) | S_IRUSR | S_IWUSR);
}

/// Copies the old file to its other name, and renames the draft to the old name. Returns the other name.
QString exchange(Draft &draft, const QString &path)
{
    const QDir folder = QFileInfo(path).absoluteDir();
    const QStringList before = folder.entryList(QDir::Files | QDir::Hidden);
    const QString kept = KeepOldFile(path, QStringLiteral("-old-engine"));
    try {
        draft.replace();
    } catch (const RuntimeFailure &) {
        if (!before.contains(QFileInfo(kept).fileName()))
            QFile::remove(kept);
        throw;
    }
    return kept;
}

void tellOutcome(const OldOutcome &outcome, const QString &kept)
{
    QString counts;
    for (const OldRowWords &words : oldRowWords)
        for (const OldCount &count : outcome.counts)
            if (count.table == QLatin1String(words.table))
                counts += QStringLiteral("\n%1 %2").arg(QLocale(QLocale::English).toString(count.rows),
                                                        WordsForRows(count.table, count.rows));
    QStringList notes = outcome.changed;
    for (const QString &line : outcome.unread)
        notes << QStringLiteral("Could not be read: %1").arg(line);
    MsgBox(
        QStringLiteral("Your database of an early release was read into a new one. These came over:\n%1%2\n\nThe old "
                       "file is kept as it was:\n%3")
            .arg(counts, notes.empty() ? QString() : QStringLiteral("\n\nPlease note:") + listOf(notes), kept),
        vbInformation, boxTitle, detailsOf(notes));
}

} // namespace

bool OpenOldFile(const QString &databaseName)
{
    const QString path = FindFile(databaseName);
    if (path.isEmpty() || !IsOldEngineFile(path))
        return true;
    try {
        requireNoJournal(path);
        Draft draft(QFileInfo(path).canonicalFilePath(), QStringLiteral("Making a new database beside it."));
        OldOutcome outcome;
        frm_OMKupgrade([&](frm_OMKupgrade &window) { outcome = Reading(path, draft.path()).run(window); }).Run();
        if (!keeperWantsTheRest(outcome, path))
            return false;
        setMode(draft.path(), path);
        tellOutcome(outcome, exchange(draft, path));
    } catch (const RuntimeFailure &failure) {
        throw RuntimeFailure(
            failure.number(),
            QStringLiteral("This database comes from an early release and could not be read into a new "
                           "one:\n%1\nIt has not been changed.\n%2")
                .arg(path, failure.description().section(u'\n', 1)));
    }
    return true;
}

#include "store/Copies.h"

#include <algorithm>

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <sqlite3.h>

#include "platform/core/Doors.h"
#include "platform/core/RuntimeFailure.h"
#include "store/Connection.h"
#include "store/Draft.h"

namespace {

int daysToKeep()
{
    bool isNumber = false;
    const int days = GetSetting(QStringLiteral("Keep_Copies"), {}).trimmed().toInt(&isNumber);
    return isNumber ? std::max(days, 0) : DailyCopies::daysAtFirst;
}

bool holdsAnything(const std::shared_ptr<Connection> &connection, const QString &doing)
{
    Statement query(connection,
                    QStringLiteral("SELECT EXISTS (SELECT 1 FROM TANKLST) OR "
                                   "EXISTS (SELECT 1 FROM MAINTSCHED) OR "
                                   "EXISTS (SELECT 1 FROM WATERLOG) OR EXISTS "
                                   "(SELECT 1 FROM LIVESTOCK) OR "
                                   "EXISTS (SELECT 1 FROM MAINTLOG)"),
                    doing);
    return query.step() && sqlite3_column_int(query.handle(), 0) != 0;
}

/// Copies with the engine's own backup into an empty file. No other program uses the draft, and it is synced as a
/// whole, so the engine needs no journal for it.
void copyInto(const Draft &draft, const Connection &source, const QString &doing)
{
    Connection target(draft.path());
    target.run("PRAGMA journal_mode = OFF; PRAGMA synchronous = OFF", doing);
    sqlite3_backup *backup = sqlite3_backup_init(target.handle(), "main", source.handle(), "main");
    if (!backup)
        target.fail(sqlite3_extended_errcode(target.handle()), doing);
    const int copied = sqlite3_backup_step(backup, -1);
    const int finished = sqlite3_backup_finish(backup); // does not report that the source was locked
    if (copied != SQLITE_DONE)
        target.fail(finished == SQLITE_OK ? copied : finished, doing);
}

/// Removes the oldest copies, but never the one that was just made: if the clock was wrong once, some copies may have
/// later dates.
void removeOldCopies(const QString &newest, int daysToKeep)
{
    const QFileInfo copy(newest);
    const QString start = copy.completeBaseName().chopped(10); // without its date
    const QRegularExpression form(u'^' + QRegularExpression::escape(start) + u"\\d{4}-\\d\\d-\\d\\d\\." +
                                      QRegularExpression::escape(copy.suffix()) + u'$',
                                  QRegularExpression::CaseInsensitiveOption);
    QDir folder = copy.absoluteDir();
    QStringList others = folder.entryList(QDir::Files | QDir::Hidden, QDir::Name).filter(form);
    others.removeAll(copy.fileName());
    for (const QString &old : others.first(std::max<qsizetype>(0, others.size() - (daysToKeep - 1))))
        folder.remove(old);
}

} // namespace

DailyCopies::DailyCopies(const QString &database, std::function<void(const QString &)> failed) :
    m_database(database), m_failed(std::move(failed))
{
}

void DailyCopies::beforeChange(const std::shared_ptr<Connection> &connection)
{
    const QDate today = Now().date();
    if (today == m_lastDay)
        return;
    m_lastDay = today;
    const int days = daysToKeep();
    if (days == 0)
        return;
    try {
        makeCopy(connection, today, days);
    } catch (const RuntimeFailure &failure) {
        m_failed(u"No copy of the logbook was made today: " + failure.description().split(u'\n').join(u' '));
    }
}

void DailyCopies::makeCopy(const std::shared_ptr<Connection> &connection, const QDate &day, int daysToKeep)
{
    const QFileInfo database(m_database);
    const QDir folder(database.absoluteDir().filePath(QLatin1String(folderName)));
    const QString copy =
        folder.filePath(database.completeBaseName() + u'-' + day.toString(Qt::ISODate) + u'.' + database.suffix());
    const QString doing = QStringLiteral("Copying the database to \"%1\".").arg(copy);
    if (QFileInfo::exists(copy) || !holdsAnything(connection, doing))
        return;
    if (!folder.mkpath(QStringLiteral(".")))
        throw RuntimeFailure(Failure::PermissionDenied,
                             QStringLiteral("The folder %1 could not be made.").arg(folder.path()));
    RemoveStrayDrafts(folder);
    Draft draft(copy, doing);
    copyInto(draft, *connection, doing);
    draft.complete(m_database);
    draft.giveName();
    removeOldCopies(copy, daysToKeep);
}

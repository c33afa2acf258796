#include "oldengine/OldOutcome.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

QJsonObject objectOf(const OldProgress &progress) { return {{"table", progress.table}, {"percent", progress.percent}}; }

QJsonObject objectOf(const OldOutcome &outcome)
{
    QJsonArray counts;
    for (const OldCount &count : outcome.counts)
        counts << QJsonObject{{"table", count.table}, {"rows", count.rows}};
    return {{"counts", counts},
            {"changed", QJsonArray::fromStringList(outcome.changed)},
            {"unread", QJsonArray::fromStringList(outcome.unread)}};
}

/// Leaves out the standard words of the number, because the constructor of RuntimeFailure adds them again.
QJsonObject objectOf(const RuntimeFailure &failure)
{
    return {{"failure", int(failure.number())}, {"words", failure.description().section(u'\n', 1)}};
}

QStringList textsOf(const QJsonValue &array)
{
    QStringList texts;
    for (const QJsonValue &text : array.toArray())
        texts << text.toString();
    return texts;
}

} // namespace

QString WordsForRows(const QString &table, qint64 rows)
{
    for (const OldRowWords &words : oldRowWords)
        if (table == QLatin1String(words.table))
            return QLatin1String(rows == 1 ? words.one : words.several);
    return table;
}

QByteArray WriteOldLine(const OldLine &line)
{
    const QJsonObject object = std::visit([](const auto &what) { return objectOf(what); }, line);
    return QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
}

std::optional<OldLine> ReadOldLine(const QByteArray &line)
{
    const QJsonObject object = QJsonDocument::fromJson(line).object();
    if (object.contains(u"percent"))
        return OldProgress{object[u"table"].toString(), object[u"percent"].toInt()};
    if (object.contains(u"failure"))
        return RuntimeFailure(Failure(object[u"failure"].toInt()), object[u"words"].toString());
    if (!object.contains(u"counts"))
        return std::nullopt;
    OldOutcome outcome{{}, textsOf(object[u"changed"]), textsOf(object[u"unread"])};
    for (const QJsonValue &count : object[u"counts"].toArray())
        outcome.counts.push_back({count[u"table"].toString(), count[u"rows"].toInteger()});
    return outcome;
}

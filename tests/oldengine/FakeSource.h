// A file of the old engine that a test makes up: complete and empty, of the version wanted, then changed at will.
#pragma once

#include <map>

#include <QtEndian>

#include "oldengine/OldCopy.h"
#include "oldengine/OldFile.h"

template <class Number> QByteArray bytesOf(Number number)
{
    QByteArray bytes(sizeof number, '\0');
    qToLittleEndian(number, bytes.data());
    return bytes;
}

/// UTF-16, as the later format keeps texts.
inline QByteArray utf16(const QString &text)
{
    QByteArray bytes;
    for (const QChar c : text)
        bytes += bytesOf(c.unicode());
    return bytes;
}

class FakeSource : public OldSource
{
public:
    /// A cell is Null where its column is not named, and cannot be read where its bytes are "?".
    using FakeRow = std::map<QString, QByteArray>;

    explicit FakeSource(const QString &version = QStringLiteral("2.0 "))
    {
        const auto text = [](const char *names) {
            std::vector<OldColumn> columns;
            for (const QString &name : QString(names).split(' '))
                columns.push_back({name, OldType::Text, 0});
            return columns;
        };
        add("TANKLST", text("tankname Tankdesc tanknotes tankid"), {{"tanksize", OldType::Single, 0}});
        add("WATERLOG", text("tankname Comment"),
            {{"logdate", OldType::Date, 0}, {"logtime", OldType::Date, 0}, {"ph", OldType::Single, 0}});
        for (const char *name : {"Ammonia", "nitrite", "nitrate", "orp", "temp", "oxygen", "dkh", "calcium", "copper",
                                 "sg", "custom1", "custom2"})
            table("WATERLOG").columns.push_back({name, OldType::Integer, 0});
        add("MAINTLOG", text("mainttankname maintlogtask maintlogdesc maintlogunit maintlognote"),
            {{"maintlogdate", OldType::Date, 0},
             {"maintlogtime", OldType::Date, 0},
             {"maintlogqty", OldType::Byte, 0}});
        add("LIVESTOCK", text("tankname animalname Comment Status where_purch"),
            {{"dateadded", OldType::Date, 0},
             {"timeadded", OldType::Date, 0},
             {"quantity", OldType::Long, 0},
             {"price_paid", OldType::Currency, 0},
             {"price_sold", OldType::Decimal, 2},
             {"datelost", OldType::Date, 0}});
        add("MAINTSCHED", text("SchedTask schedcomment schedtankname"),
            {{"SchedStartDate", OldType::Date, 0},
             {"SchedInterval", OldType::Integer, 0},
             {"schedyears", OldType::Double, 0}});
        add("CONFIG", text("user_fieldname1 user_fieldname2"),
            {{"default_salt", OldType::Boolean, 0}, {"default_fresh", OldType::Boolean, 0}});
        add("ANIMALLIST", text("animalname"), {});
        if (version != "0.0 ")
            for (const char *name : {"CONFIG db_version", "TANKLST TankWaterType", "ANIMALLIST AnimalType"})
                addColumn(name, OldType::Text);
        if (version == "2.0 ") {
            for (const char *name : {"SchedRtype", "SchedRSubtype"})
                addColumn(QString("MAINTSCHED ") + name, OldType::Integer);
            for (const char *name : {"SchedDetailText", "SchedEnglishDesc"})
                addColumn(QString("MAINTSCHED ") + name, OldType::Text);
            addColumn("MAINTSCHED SchedEndDate", OldType::Date);
        }
        row("CONFIG", version == "0.0 " ? FakeRow{{"default_salt", "\1"}} : FakeRow{{"db_version", utf16(version)}});
    }

    int codePage() const override { return 0; }
    const std::vector<OldTable> &tables() const override { return m_tables; }
    qint64 readRows(const OldTable &of, const std::function<void(std::span<const OldCell>)> &take) override
    {
        for (const FakeRow &row : m_rows[of.name.toUpper()]) {
            std::vector<OldCell> cells;
            for (const OldColumn &column : of.columns) {
                const auto cell = row.find(column.name);
                if (cell == row.end())
                    cells.emplace_back();
                else if (cell->second == "?")
                    cells.push_back({OldCell::State::Unreadable, {}});
                else
                    cells.push_back({OldCell::State::Present, cell->second});
            }
            take(cells);
        }
        return lost[of.name];
    }

    OldTable &table(const QString &name)
    {
        return *std::ranges::find(m_tables, name, [](const OldTable &table) { return table.name; });
    }
    void removeTable(const QString &name)
    {
        std::erase_if(m_tables, [&](const OldTable &table) { return table.name == name; });
    }
    /// Named "TABLE column".
    void addColumn(const QString &name, OldType type)
    {
        table(name.section(' ', 0, 0)).columns.push_back({name.section(' ', 1), type, 0});
    }
    void removeColumn(const QString &name)
    {
        std::erase_if(table(name.section(' ', 0, 0)).columns,
                      [&](const OldColumn &column) { return column.name == name.section(' ', 1); });
    }
    void row(const QString &name, const FakeRow &row)
    {
        m_rows[name].push_back(row);
        ++table(name).rows;
    }
    void add(const QString &name, std::vector<OldColumn> columns, const std::vector<OldColumn> &more)
    {
        columns.insert(columns.end(), more.begin(), more.end());
        m_tables.push_back({name, columns, 0});
    }
    void clearRows(const QString &name)
    {
        m_rows[name].clear();
        table(name).rows = 0;
    }

    std::map<QString, qint64> lost; ///< rows of a table that could not be read

private:
    std::vector<OldTable> m_tables;
    std::map<QString, std::vector<FakeRow>> m_rows;
};

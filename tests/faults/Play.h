// A keeper's work as a sequence of moves. It is played twice: through the real windows, in a process that may be
// killed, and in a Book, which then says what must be in the file. The same seed gives the same moves.
#pragma once

#include <map>
#include <random>

#include "platform/controls/Guarded.h"
#include "platform/controls/MaskedBox.h"
#include "windows/Hands.h"
#include "windows/logbook/frm_LivesAddEdit.h"
#include "windows/logbook/frm_LivesMove.h"
#include "windows/logbook/frm_MaintAddEdit.h"
#include "windows/logbook/frm_WaterAddEdit.h"

/// The expected entries: "kind|tank|moment" with the number in the entry, and "T|tank|" with 0 for each tank. The kinds
/// are W, L and M, in the order of the tabs of the logbook.
using Book = std::map<QString, int>;

inline const QString kinds = "WLM";
inline const char *const momentPicture = "yyyy-MM-dd HH:mm:ss";

struct Move
{
    enum What { Add, Change, Remove, MoveTank, RemoveTank } what;
    QString key; ///< of the entry, or of the tank
    int number = 0;
    QString to = {}; ///< the tank that an animal moves to
    QChar kind() const { return key[0]; }
    QString tank() const { return key.section('|', 1, 1); }
    QString moment() const { return key.section('|', 2); }
    QString keyThere() const { return key.section('|', 0, 0) + '|' + to + '|' + moment(); }
};

inline QString keyOf(QChar kind, const QString &tank, const QString &moment)
{
    return kind + QString("|%1|%2").arg(tank, moment);
}

inline Move nextMove(const Book &book, std::minstd_rand &random, const QDateTime &moment)
{
    const auto pick = [&random](qsizetype n) { return int(random() % std::size_t(n)); };
    QStringList tanks, entries;
    for (const auto &[key, number] : book)
        (key.startsWith('T') ? tanks : entries) << key;
    const int number = 1 + pick(90);
    if (tanks.size() == 2 && pick(12) == 0)
        return {Move::RemoveTank, tanks[pick(2)]};
    if (entries.size() < 5 || (entries.size() < 25 && pick(3) == 0))
        return {Move::Add,
                keyOf(kinds[pick(3)], tanks[pick(tanks.size())].section('|', 1, 1), moment.toString(momentPicture)),
                number};
    const QString key = entries[pick(entries.size())];
    const int choices = key[0] == 'L' && tanks.size() == 2 ? 3 : 2;
    return {Move::What(Move::Change + pick(choices)), key, number, key.section('|', 1, 1) == "A" ? "B" : "A"};
}

inline void note(Book &book, const Move &move)
{
    switch (move.what) {
    case Move::Add:
    case Move::Change: book[move.key] = move.number; break;
    case Move::Remove: book.erase(move.key); break;
    case Move::MoveTank:
        book[move.keyThere()] = book.at(move.key);
        book.erase(move.key);
        break;
    case Move::RemoveTank:
        std::erase_if(book, [&move](const auto &row) { return row.first.section('|', 1, 1) == move.tank(); });
    }
}

/// The content of the file as a Book. An entry that is there twice fails the test.
inline Book bookOf(Database &database)
{
    Book book;
    RowStream rows = database.OpenForwardOnly(
        "SELECT 'W|' || tankname || '|' || logdate || ' ' || logtime AS k, nitrate AS n FROM WATERLOG UNION ALL "
        "SELECT 'L|' || tankname || '|' || dateadded || ' ' || timeadded, quantity FROM LIVESTOCK UNION ALL "
        "SELECT 'M|' || mainttankname || '|' || maintlogdate || ' ' || maintlogtime, maintlogqty FROM MAINTLOG UNION "
        "ALL "
        "SELECT 'T|' || tankname || '|', 0 FROM TANKLST");
    for (; !rows.EOF_(); rows.MoveNext())
        EXPECT_TRUE(book.emplace(rows.text("k"), int(rows.value("n").toDouble())).second)
            << rows.text("k").toStdString();
    return book;
}

/// Plays moves through the windows of a running program. The name of a tank is also its id.
class Player
{
public:
    explicit Player(Keeper &keeper) :
        m_keeper(keeper), m_main(keeper.startProgram()), m_logbook(hand::openLogbook(m_main))
    {
        m_keeper.told();
    }

    /// Called in an entry window when it is filled; presses OK unless a test changes it.
    std::function<void(QPushButton &ok)> confirm = [](QPushButton &ok) { ok.click(); };

    /// Plays a move as a menu or button would: a failure is shown and not thrown.
    void play(const Move &move)
    {
        guarded([this, &move] { carryOut(move); })();
    }

private:
    void carryOut(const Move &move)
    {
        hand::clickTank(m_logbook, move.tank());
        if (move.what == Move::RemoveTank) {
            m_keeper.doors.answers = {MsgBoxAnswer::OK};
            m_main.mnu_TankDelete_Click();
            return;
        }
        m_logbook.tab_logtype->setCurrentIndex(int(kinds.indexOf(move.kind())));
        if (move.what != Move::Add)
            select(move);
        switch (move.what) {
        case Move::Add: expectEntryWindow(move); return m_logbook.Add_Entries();
        case Move::Change: expectEntryWindow(move); return m_logbook.Change_Entries();
        case Move::Remove: m_keeper.doors.answers = {MsgBoxAnswer::OK}; return m_logbook.Delete_Entries();
        default:
            m_keeper.inNext<frm_LivesMove>([this, to = move.to](frm_LivesMove &window) {
                window.lst_tanklist->setCurrentItem(window.lst_tanklist->findItems(to, Qt::MatchExactly).at(0));
                confirm(*window.cmd_ok);
            });
            return m_logbook.Move_Entries();
        }
    }

    void select(const Move &move)
    {
        auto &list = static_cast<ListView &>(*m_logbook.tab_logtype->currentWidget());
        const QString key =
            QLocale::c().toString(QDateTime::fromString(move.moment(), momentPicture), "MM/dd/yy - hh:mm:ss AP");
        for (int row = 1; row <= list.Count(); ++row)
            if (list.Key(row).startsWith(key, Qt::CaseInsensitive))
                return list.Select(row);
        ADD_FAILURE() << key.toStdString() << " is not in the list.";
    }
    void expectEntryWindow(const Move &move)
    {
        const QString number = QString::number(move.number);
        if (move.kind() == 'W')
            fillNext<frm_WaterAddEdit>([number](auto &w) { control<MaskedBox>(w, "txt_nitrate").setText(number); });
        else if (move.kind() == 'L')
            fillNext<frm_LivesAddEdit>([number](auto &w) {
                w.lst_AnimalList->setEditText("Tang - Yellow");
                w.txt_quantity->setText(number);
            });
        else
            fillNext<frm_MaintAddEdit>([number](auto &w) {
                w.lst_mainttasklist->setEditText("Water Change");
                w.txt_quantity->setText(number);
            });
    }
    template <class Window> void fillNext(const std::function<void(Window &)> &fill)
    {
        m_keeper.inNext<Window>([this, fill](Window &window) {
            fill(window);
            confirm(*window.cmd_OK);
        });
    }

    Keeper &m_keeper;
    frm_OMKMDIMain &m_main;
    frm_Waterlog &m_logbook;
};

// A year in which a keeper tests water, buys an animal and does some work each month. The program is restarted in the
// middle and at the end, and must then show what was done, in its order. The test runs once for each date order.
#include "text/Dates.h"
#include "windows/AllWindows.h"
#include "windows/Desk.h"

class Year : public Desk, public ::testing::WithParamInterface<std::pair<const char *, const char *>>
{
protected:
    /// Adds an entry whose row must then have that moment and, in the next two columns, those texts.
    template <class F> void add(LogTab log, const QStringList &boxes, const QStringList &texts, const QDateTime &moment)
    {
        hand::clickTab(*logbook->tab_logtype, log);
        give<F>("addentries", 0, [&](F &w) {
            for (int i = 0; i < boxes.size(); ++i)
                hand::type(control<QWidget>(w, boxes[i]), texts[i]);
            mouse::click(w.cmd_OK);
        });
        year[log][moment] = texts[0] + '|' + texts[1];
    }
    void liveThrough(int month)
    {
        const QDateTime now(QDate(2026, month, month % 2 ? 5 : 20), QTime(8 + month, 7, month));
        keeper.doors.clock = now;
        const QString number = QString::number(month);
        add<frm_WaterAddEdit>(WaterTab, {"txt_ph", "txt_ammonia"}, {"8.25", "0.125"}, now);
        add<frm_LivesAddEdit>(LivestockTab, {"lst_AnimalList", "txt_quantity"}, {"Fish " + number, number}, now);
        // The date of a work is read month first if that gives a date.
        const QDate worked = order == DateOrder::DDMMYY && month % 2 ? QDate(2026, 5, month) : now.date();
        add<frm_MaintAddEdit>(MaintenanceTab, {"lst_mainttasklist", "txt_quantity"}, {"Test " + number, number},
                              {worked, now.time()});
    }

    const DateOrder order = ReadDateOrder(GetParam().first);
    std::map<QDateTime, QString> year[3]; ///< the rows of each log by their moments
};

TEST_P(Year, TheLogbookShowsWhatWasDone)
{
    startWith(GetParam().first, GetParam().second);
    for (int month = 1; month <= 12; ++month) {
        liveThrough(month);
        if (month % 6 == 0) {
            hand::choose(*main, *main->mnu_File, "mnu_Exit");
            keeper.restart();
            open("Reef");
        }
    }
    const QString picture = MakeDatePicture(order, GetParam().second);
    for (const LogTab log : {WaterTab, LivestockTab, MaintenanceTab}) {
        QStringList rows, expected;
        for (const auto &[moment, texts] : year[log])
            expected << Format(moment.date(), picture) + Format(moment.time(), " - hh:mm:ss AM/PM|") + texts;
        hand::clickTab(*logbook->tab_logtype, log);
        for (int row = 1; row <= list().Count(); ++row)
            rows << list().Text(row, 0).toUpper() + '|' + list().Text(row, 1) + '|' + list().Text(row, 2);
        EXPECT_EQ(rows, expected) << "tab " << log;
    }
    EXPECT_EQ(keeper.told(), "0");
}

INSTANTIATE_TEST_SUITE_P(Orders, Year,
                         ::testing::Values(std::pair("MMDDYY", "-"), std::pair("DDMMYY", "."),
                                           std::pair("YYMMDD", "/")));

// A keeper at the desk, with the logbook open at a tab of a tank: the start of most tests of windows. The tank "Reef"
// has the id "r1", and the id of "Same" is its name; their water types differ.
#pragma once

#include "Hands.h"
#include "logic/logbook/LogKinds.h"
#include "platform/controls/MaskedBox.h"

class Desk : public ::testing::Test
{
protected:
    explicit Desk(LogTab tab = WaterTab) : m_tab(tab)
    {
        const char *const tanks[][3] = {
            {"Reef", "r1", "3"}, {"Same", "Same", "2"}, {"Bowl", "b1", "1"}, {"Marsh", "k1", "4"}, {"Pond", "p1", "5"}};
        Database::Transaction whole(*keeper.g().gDatabase);
        for (const auto &[name, id, water] : tanks)
            keeper.addTank(name, id, water);
        whole.commit();
        open("Reef");
    }
    void open(const QString &tank)
    {
        main = &Form<frm_OMKMDIMain>();
        if (!main->isVisible())
            keeper.startProgram();
        logbook = &hand::openLogbook(*main);
        hand::clickTank(*logbook, tank);
        hand::clickTab(*logbook->tab_logtype, m_tab);
        keeper.doors.beeps = 0;
    }
    void startWith(const char *order, const char *delimiter, const QString &tank = "Reef")
    {
        keeper.restart();
        SaveSetting("Date_Order", order);
        SaveSetting("Date_Delim", delimiter);
        open(tank);
    }
    ListView &list() const { return static_cast<ListView &>(*logbook->tab_logtype->currentWidget()); }
    QString column(int subItem) const { return hand::column(list(), subItem); }
    void push(const char *button) { hand::click<QToolButton>(*logbook, button); }
    /// Selects a row (0: none), presses a button that opens a window, and does something in it.
    template <class F> void give(const char *button, int row, const std::function<void(F &)> &action)
    {
        keeper.inNext<F>(action);
        if (row > 0)
            hand::clickRow(list(), row);
        push(button);
        EXPECT_TRUE(isInFront(*main));
    }
    int execute(const QString &sql, const Parameters &values = {})
    {
        return keeper.g().gDatabase->Execute(sql, values);
    }
    /// Adds an entry to the file, at a moment like "2026-04-05 09:30:00", with more columns and their values.
    void addEntry(LogTab log, const char *tankId, QString moment, const char *columns, const QString &values)
    {
        const char *const tables[] = {"WATERLOG (tankname, logdate, logtime",
                                      "LIVESTOCK (tankname, dateadded, timeadded",
                                      "MAINTLOG (mainttankname, maintlogdate, maintlogtime"};
        execute(QString("INSERT INTO %1, %2) VALUES ('%3', '%4', %5)")
                    .arg(tables[log], columns, tankId, moment.replace(' ', "', '"), values));
    }

    Keeper keeper;
    frm_OMKMDIMain *main = nullptr;
    frm_Waterlog *logbook = nullptr;

private:
    LogTab m_tab;
};

/// The texts of a window's boxes, joined by bars.
inline QString shown(QWidget &window, const QStringList &boxes)
{
    QStringList texts;
    for (const QString &name : boxes) {
        const auto &box = control<QWidget>(window, name);
        for (const char *property : {"text", "currentText", "plainText"})
            if (const QVariant text = box.property(property); text.isValid())
                texts << text.toString();
    }
    return texts.join(u'|');
}

/// The lines of a list or a combo box, joined by bars.
inline QString lines(const QAbstractItemModel &model)
{
    QStringList texts;
    for (int row = 0; row < model.rowCount(); ++row)
        texts << model.index(row, 0).data().toString();
    return texts.join(u'|');
}

// What the tests of ostrelmark-data share: a keeper's folder with a new database, and a function that runs the command
// in this process as a shell would. The clock stands still on 14 March 2026.
#pragma once

#include "datacommand/DataCommand.h"
#include "store/StoreFixture.h"

struct Told
{
    int status = 0;
    QString out, err;
};

inline void PrintTo(const Told &told, std::ostream *out)
{
    *out << told.status << "\n" << told.out.toStdString() << told.err.toStdString();
}

struct CommandTest : StoreTest
{
    CommandTest() { db->Close(); }

    /// Runs "ostrelmark-data --folder FOLDER" with these arguments, which may name another folder.
    Told run(const QStringList &arguments)
    {
        QList<QByteArray> texts{"ostrelmark-data"};
        if (!arguments.contains("--folder"))
            texts << "--folder" << folder.path().toLocal8Bit();
        for (const QString &argument : arguments)
            texts << argument.toLocal8Bit();
        std::vector<char *> argv;
        for (QByteArray &text : texts)
            argv.push_back(text.data());
        testing::internal::CaptureStdout();
        testing::internal::CaptureStderr();
        Told told;
        told.status = RunDataCommand(argv);
        told.out = QString::fromStdString(testing::internal::GetCapturedStdout());
        told.err = QString::fromStdString(testing::internal::GetCapturedStderr());
        return told;
    }
    /// The command must fail and say these words.
    void expectFailure(const QStringList &arguments, const QString &words)
    {
        const Told told = run(arguments);
        EXPECT_EQ(told.status, 1) << words.toStdString();
        EXPECT_TRUE(told.err.contains(words)) << testing::PrintToString(told);
    }
    /// Changes the file as another program would.
    void change(const QString &sql) { EXPECT_EQ(asked(sql), ""); }
    void addTank(const QString &name)
    {
        change("INSERT INTO TANKLST (tankname, tankid, TankWaterType) VALUES ('" + name + "', 'id " + name + "', '1')");
    }
    /// Adds a reminder for every so many days.
    void addReminder(const QString &task, const QString &start, const QString &end, int days)
    {
        change(QString("INSERT INTO MAINTSCHED (SchedTask, SchedStartDate, SchedEndDate, SchedInterval, SchedRtype, "
                       "SchedRSubtype, SchedDetailText, SchedEnglishDesc) VALUES ('%1', '%2', '%3', %4, 0, 0, '', "
                       "'Every %4 days.')")
                   .arg(task, start, end)
                   .arg(days));
    }
};

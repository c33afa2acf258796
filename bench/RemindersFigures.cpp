#include "Figure.h"

#include <memory>
#include <stdexcept>

#include <QComboBox>
#include <QPushButton>

#include "BareReminders.h"
#include "Desk.h"
#include "OwnProcess.h"
#include "platform/controls/ListView.h"
#include "store/NewDatabase.h"
#include "windows/reminders/frm_Schedule.h"
#include "windows/shell/frm_OMKMDIMain.h"

namespace {

/// A thousand reminders in a database of their own, which the windows use while they are measured.
class ReminderDesk
{
public:
    ReminderDesk(Desk &desk, const QString &folder) :
        m_globals(desk.globals()), m_rules(bare::sampleRules()), m_range(TwoYearsFrom(Now().date()))
    {
        const QString file = folder + u"/REMINDERS.MDB";
        CreateDatabase(file);
        m_database = Database::OpenDatabase(file);
        bare::writeRules(*m_database, m_rules);
    }

    Sample fillToolbar()
    {
        return onOwnDatabase([] {
            auto &main = Form<frm_OMKMDIMain>();
            const std::int64_t start = nowNanoseconds();
            main.Top20List();
            const Sample sample{millisecondsSince(start)};
            if (main.cbo_Reminders->count() != 20)
                throw std::runtime_error("there are no twenty reminders");
            return sample;
        });
    }
    Sample generate()
    {
        return onOwnDatabase([] {
            Form<frm_OMKMDIMain>().ShowChild(Form<frm_Schedule>());
            auto &window = Form<frm_Schedule>();
            window.lstv_Reminders->Clear();
            settle(window.cmd_Generate);
            const std::int64_t start = nowNanoseconds();
            PaintWatch watch(window.lstv_Reminders->viewport());
            window.cmd_Generate->click();
            watch.wait();
            const Sample sample{millisecondsSince(start), double(window.lstv_Reminders->Count())};
            window.parentWidget()->close();
            return sample;
        });
    }
    template <class Work> Sample barely(Work work)
    {
        const std::int64_t start = nowNanoseconds();
        const auto found = work(m_rules, m_range);
        return {millisecondsSince(start), double(found.size())};
    }

private:
    template <class Work> Sample onOwnDatabase(Work work)
    {
        std::swap(m_globals.gDatabase, m_database);
        const Sample sample = work();
        std::swap(m_globals.gDatabase, m_database);
        return sample;
    }

    Globals &m_globals;
    std::vector<RecurrenceRule> m_rules;
    DateRange m_range;
    std::unique_ptr<Database> m_database;
};

} // namespace

std::vector<Figure> reminderFigures(Desk &desk, const QString &folder)
{
    const auto reminders = std::make_shared<ReminderDesk>(desk, folder);
    const auto toolbar = [reminders] { return reminders->fillToolbar(); };
    return {{.name = QStringLiteral("The next twenty of 1,000 reminders, ms"),
             .target = 1.5,
             .ours = toolbar,
             .floor = [reminders] { return reminders->barely(bare::soonestTwenty); }},
            {.name = QStringLiteral("The same beside a calendar library, ms"),
             .target = 1,
             .ours = toolbar,
             .floor = [reminders] { return reminders->barely(bare::soonestTwentyByLibical); },
             .repetitions = 3},
            {.name = QStringLiteral("Their schedule of two years, ms"),
             .target = 3,
             .ours = [reminders] { return reminders->generate(); },
             .floor = [reminders] { return reminders->barely(bare::scheduleTexts); },
             .extraName = QStringLiteral("rows"),
             .extraTarget = 1}};
}

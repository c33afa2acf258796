#include "Figure.h"

#include <deque>
#include <memory>

#include <QDialog>
#include <QHBoxLayout>
#include <QListWidget>
#include <QMainWindow>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include "Desk.h"
#include "OwnProcess.h"
#include "windows/advisers/frm_Compat.h"
#include "windows/advisers/frm_FantAddAnimal.h"
#include "windows/advisers/frm_Fantasy.h"
#include "windows/shell/frm_OMKMDIMain.h"

namespace {

constexpr int repetitions = 51;

/// Doors of the desktop for as long as this lives, except that every message box is answered without being shown.
class NoBoxes : public DesktopDoors
{
public:
    NoBoxes() : m_former(Doors::install(this)) {}
    ~NoBoxes() override { Doors::install(m_former); }
    MsgBoxAnswer msgBox(const MsgBoxRequest &) override { return MsgBoxAnswer::OK; }
    void beep() override {}

private:
    Doors *m_former;
};

void waitForPaint(std::deque<PaintWatch> &watches)
{
    for (PaintWatch &watch : watches)
        watch.wait();
}

QStringList linesOf(const QListWidget &list)
{
    QStringList lines;
    for (int i = 0; i < list.count(); ++i)
        lines << list.item(i)->text();
    return lines;
}

/// Plain list widgets side by side, each as large as one of ours and filled with the same lines.
class PlainLists
{
public:
    explicit PlainLists(const std::vector<QListWidget *> &ours)
    {
        auto *row = new QHBoxLayout(&m_window);
        for (const QListWidget *list : ours) {
            auto *plain = new QListWidget;
            plain->setFixedSize(list->size());
            row->addWidget(plain);
            m_lists.push_back({plain, linesOf(*list)});
        }
    }
    Sample operator()()
    {
        for (const auto &[list, lines] : m_lists)
            list->clear();
        m_window.show();
        settle(&m_window);
        std::deque<PaintWatch> watches;
        const std::int64_t start = nowNanoseconds();
        for (const auto &[list, lines] : m_lists) {
            list->addItems(lines);
            watches.emplace_back(list->viewport());
        }
        waitForPaint(watches);
        const Sample sample{millisecondsSince(start)};
        m_window.hide();
        return sample;
    }

private:
    QWidget m_window;
    std::vector<std::pair<QListWidget *, QStringList>> m_lists;
};

/// Opens the window, or shows it again, for one measurement, and hides it afterwards so that it does not disturb other
/// figures.
template <class Window> class OnDesk
{
public:
    explicit OnDesk(void (frm_OMKMDIMain::*open)())
    {
        (Form<frm_OMKMDIMain>().*open)();
        settle(&window());
    }
    ~OnDesk() { window().parentWidget()->hide(); }
    Window &window() const { return Form<Window>(); }

private:
    NoBoxes m_noBoxes;
};

std::vector<QListWidget *> answerLists(const frm_Compat &window)
{
    return {window.lst_compatable, window.lst_maybe, window.lst_incompatable};
}

Sample chooseAnimal()
{
    const OnDesk<frm_Compat> desk(&frm_OMKMDIMain::mnu_ToolsCompatibility_Click);
    frm_Compat &window = desk.window();
    window.lst_Select->setCurrentIndex(-1);
    settle(window.lst_Select);
    std::deque<PaintWatch> watches;
    for (QListWidget *list : answerLists(window))
        watches.emplace_back(list->viewport());
    const std::int64_t start = nowNanoseconds();
    QTest::keyClick(window.lst_Select, Qt::Key_Down);
    waitForPaint(watches);
    return {millisecondsSince(start)};
}

/// Times the painting of these widgets alone, in milliseconds; other pending painting is done first.
double paint(std::initializer_list<QWidget *> widgets)
{
    settle(*widgets.begin());
    const std::int64_t start = nowNanoseconds();
    for (QWidget *widget : widgets)
        widget->repaint();
    return millisecondsSince(start);
}

/// Clicks a button in a dialog that is about to open, and notes the time of the release.
void pressInDialog(std::int64_t &released, const std::function<QPushButton *()> &button)
{
    QTimer::singleShot(0, [&released, button] {
        QPushButton *found = button();
        settle(found);
        press(found, found->rect().center());
        released = nowNanoseconds();
        release(found, found->rect().center());
    });
}

/// Drops in the last animal of the list, which lives with its own kind and causes no warning. Returns the time from the
/// click on "Drop It In", in milliseconds.
double drop(frm_Fantasy &window)
{
    std::int64_t released = 0;
    window.lst_select->setCurrentRow(window.lst_select->count() - 1);
    pressInDialog(released, [] { return Form<frm_FantAddAnimal>().cmd_Addit; });
    window.cmd_AddAnimal->click();
    return millisecondsSince(released);
}

/// Brings the plan to 49 rows, then times dropping in one more and painting what that changes. The painting of the
/// whole main window, which follows the closing of any dialog, is not included.
Sample dropAnimal()
{
    const OnDesk<frm_Fantasy> desk(&frm_OMKMDIMain::mnu_ToolsFantasy_Click);
    frm_Fantasy &window = desk.window();
    window.parentWidget()->move(0, 0); // fully visible
    window.opt_Fresh->setChecked(true);
    while (window.lst_Fantank->count() < 49)
        drop(window);
    while (window.lst_Fantank->count() > 49) {
        window.lst_Fantank->setCurrentRow(49);
        window.cmd_RemoveAnimal->click();
    }
    settle(&window);
    const double added = drop(window);
    return {added + paint({window.lst_Fantank->viewport(), window.pb_StockingRatio, window.lbl_pctfull})};
}

/// Puts the same rows into a plain list after a plain dialog over an empty main window was closed.
class PlainDrop
{
public:
    explicit PlainDrop(const QListWidget &ours) : m_lines(linesOf(ours))
    {
        m_window.setCentralWidget(new QWidget);
        m_list = new QListWidget(m_window.centralWidget());
        m_list->resize(ours.size());
        m_window.resize(ours.window()->size());
    }
    Sample operator()()
    {
        m_list->clear();
        m_window.show();
        settle(&m_window);
        QDialog dialog(&m_window);
        QPushButton button(QStringLiteral("OK"), &dialog);
        QObject::connect(&button, &QPushButton::clicked, &dialog, &QDialog::accept);
        std::int64_t released = 0;
        pressInDialog(released, [&button] { return &button; });
        dialog.exec();
        m_window.activateWindow();
        m_list->addItems(m_lines);
        const double filled = millisecondsSince(released);
        return {filled + paint({m_list->viewport()})};
    }

private:
    QMainWindow m_window;
    QListWidget *m_list;
    QStringList m_lines;
};

} // namespace

Figure chooseAnimalFigure()
{
    chooseAnimal();
    return {.name = QStringLiteral("An animal chosen, its lists shown, ms"),
            .target = 1.5,
            .ours = chooseAnimal,
            .floor = [plain = std::make_shared<PlainLists>(answerLists(Form<frm_Compat>()))] { return (*plain)(); },
            .repetitions = repetitions};
}

Figure dropAnimalFigure()
{
    dropAnimal();
    return {.name = QStringLiteral("An animal dropped into 49 rows, ms"),
            .target = 1.5,
            .ours = dropAnimal,
            .floor = [plain = std::make_shared<PlainDrop>(*Form<frm_Fantasy>().lst_Fantank)] { return (*plain)(); },
            .repetitions = repetitions};
}

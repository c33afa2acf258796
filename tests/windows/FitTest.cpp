// What a control says fits into it, with small and with large letters, in the first size of its window and in the
// smallest one that the window can get. What does not fit on the screen can be scrolled to.
#include "AllWindows.h"
#include "Desk.h"
#include "platform/controls/WindowSize.h"
#include "windows/common/frm_Caltool.h"

namespace {

QStyleOptionComboBox optionOf(const QComboBox &box)
{
    QStyleOptionComboBox option;
    option.initFrom(&box);
    option.editable = box.isEditable();
    return option;
}

/// How many pixels each of these lacks in width for its longest text; 0 or less if it fits.
int lacks(const QComboBox &box)
{
    if (box.isEditable() || box.sizeAdjustPolicy() == QComboBox::AdjustToMinimumContentsLengthWithIcon)
        return 0; // its texts are the keeper's own; dots and a tool tip tell that one is longer
    const auto option = optionOf(box);
    const QRect room = box.style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &box);
    int widest = 0;
    for (int i = 0; i < box.count(); ++i)
        widest = std::max(widest, box.fontMetrics().horizontalAdvance(box.itemText(i)));
    return widest - room.width();
}

int lacks(const QLineEdit &box)
{
    constexpr int shortText = 12; // a number, a date or a time, which must be seen whole
    QStyleOptionFrame option;
    option.initFrom(&box);
    option.lineWidth = box.style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, &box);
    const int room = box.style()->subElementRect(QStyle::SE_LineEditContents, &option, &box).width() - 4;
    const QString longest(box.maxLength() <= shortText ? box.maxLength() : 1, u'0');
    return std::max(box.fontMetrics().horizontalAdvance(longest),
                    box.fontMetrics().horizontalAdvance(box.displayText())) -
           room;
}

int lacks(const QHeaderView &header)
{
    int most = 0;
    for (int i = 0; i < header.count(); ++i)
        if (!header.isSectionHidden(i))
            most = std::max(most, header.sectionSizeHint(i) - header.sectionSize(i));
    return header.orientation() == Qt::Horizontal ? most : 0;
}

/// A label, button, option, check box or frame knows what it needs. One without a text needs nothing.
int lacks(const QWidget &control)
{
    if (control.property(qobject_cast<const QGroupBox *>(&control) ? "title" : "text").toString().isEmpty())
        return 0;
    const QSize needs = control.minimumSizeHint();
    const int high = control.hasHeightForWidth() ? control.heightForWidth(control.width()) : needs.height();
    return std::max(needs.width() - control.width(), high - control.height());
}

template <class... T> int lacksAs(const QWidget &control)
{
    int most = 0;
    const auto look = [&](const auto *as) { most = as ? lacks(*as) : most; };
    (look(qobject_cast<const T *>(&control)), ...);
    return most;
}

/// Whether a part of a control is outside of something that holds it and that cannot be scrolled.
bool isCut(const QWidget &control, const QWidget &window)
{
    for (const QWidget *around = &control; around != &window;) {
        around = around->parentWidget();
        if (qobject_cast<const QAbstractScrollArea *>(around->parentWidget()))
            return false;
        if (!around->rect().contains(QRect(control.mapTo(around, QPoint()), control.size())))
            return true;
    }
    return false;
}

bool isLeaf(const QWidget &control)
{
    return qobject_cast<const QLabel *>(&control) || qobject_cast<const QAbstractButton *>(&control) ||
           qobject_cast<const QComboBox *>(&control) || qobject_cast<const QLineEdit *>(&control) ||
           qobject_cast<const QAbstractScrollArea *>(&control);
}

bool isUnderAnother(const QWidget &control)
{
    return std::ranges::any_of(control.parentWidget()->children(), [&control](QObject *object) {
        auto *other = qobject_cast<QWidget *>(object);
        return other && other != &control && other->isVisible() && isLeaf(*other) &&
               other->geometry().intersects(control.geometry());
    });
}

QStringList misfits(const QWidget &window)
{
    QStringList found;
    for (const QWidget *control : window.findChildren<QWidget *>()) {
        const bool ofToolkit = qobject_cast<const QTabBar *>(control->parentWidget()); // tabs without room scroll
        if (ofToolkit || !control->isVisible() || control->window() != window.window() || control->size().isEmpty())
            continue;
        const int lack = lacksAs<QLabel, QAbstractButton, QGroupBox, QComboBox, QLineEdit, QHeaderView>(*control);
        const QString name =
            control->objectName().isEmpty() ? control->metaObject()->className() : control->objectName();
        if (lack > 0)
            found << QString("%1 lacks %2").arg(name).arg(lack);
        if (isLeaf(*control) && isCut(*control, window))
            found << name + " is cut";
        if (isLeaf(*control) && isUnderAnother(*control))
            found << name + " is under another";
    }
    return found;
}

void lookThrough(QWidget &window)
{
    auto *tabs = window.findChild<QTabWidget *>();
    auto *panels = window.findChild<QStackedWidget *>("panels");
    for (int page = 0; page < (tabs ? tabs->count() : panels ? panels->count() : 1); ++page) {
        if (tabs)
            tabs->setCurrentIndex(page);
        if (panels)
            panels->setCurrentIndex(page);
        QCoreApplication::processEvents();
        EXPECT_EQ(misfits(window).join(", "), "")
            << "page " << page << " of a window of " << window.width() << " x " << window.height();
    }
}

void setPoints(int points)
{
    QFont letters = QApplication::font();
    letters.setPointSize(points);
    QApplication::setFont(letters);
}

} // namespace

class Fit : public ::testing::TestWithParam<int>
{
protected:
    Fit() { setPoints(GetParam()); }
    ~Fit() override { QApplication::setFont(m_before); }

private:
    const QFont m_before = QApplication::font();
};

TEST_P(Fit, WhatAControlSaysFitsIntoIt)
{
    Keeper keeper;
    keeper.addTank("Reef", "1");
    auto &main = keeper.startProgram();
    const QSize room = RoomOn(*main.screen());
    for (const auto window : allWindows) {
        QWidget &shown = *window(main);
        SCOPED_TRACE(shown.objectName().toStdString());
        if (auto *preview = shown.findChild<QPushButton *>("cmd_PreviewSchedule"))
            preview->click();
        lookThrough(shown);
        EXPECT_TRUE(!shown.isWindow() || shown.size().boundedTo(room) == shown.size());
        (shown.isWindow() ? shown : *shown.parentWidget()).resize(1, 1);
        lookThrough(shown);
        Unload(shown);
    }
    keeper.inNext<frm_Caltool>([](auto &calendar) {
        lookThrough(calendar);
        calendar.close();
    });
    Form<frm_Caltool>().ShowCalendar(0, 0);
    lookThrough(main);
}

INSTANTIATE_TEST_SUITE_P(Points, Fit, ::testing::Values(9, 14), ::testing::PrintToStringParamName());

TEST(FitOfWindows, FirstSizesFollowTheFontUpToTheScreen)
{
    const auto sizesIn = [](int points) {
        setPoints(points);
        Keeper keeper;
        const auto &reminders = Form<frm_Maintsched>();
        const auto &tanks = Form<frm_TankMaint>();
        ListView &list = *reminders.lstv_MaintSched;
        EXPECT_EQ(list.columnLayout(), "1:200 2:240 3:80 4");
        list.setSort(true, 2, 0);
        EXPECT_GE(list.columnWidth(2), list.horizontalHeader()->sectionSizeHint(2)) << "with its arrow";
        return std::tuple(tanks.size(), list.columnWidth(0), reminders.width());
    };
    const double larger = 1.5;
    const auto [tanks, column, reminders] = sizesIn(9);
    const auto [largeTanks, largeColumn, largeReminders] = sizesIn(14);
    EXPECT_GT(largeTanks.width(), tanks.width() * larger);
    EXPECT_GT(largeTanks.height(), tanks.height() * larger);
    EXPECT_GT(largeColumn, column * larger);
    EXPECT_LE(largeReminders, RoomOn(*QGuiApplication::primaryScreen()).width());
    setPoints(9);
}

TEST(FitOfWindows, ADialogThatGrowsBeyondTheScreenScrollsToTheControlThatHasTheFocus)
{
    QDialog dialog;
    auto *column = new QVBoxLayout(&dialog);
    auto *first = new QLineEdit, *last = new QLineEdit;
    column->addWidget(first);
    FitToScreen(dialog);
    dialog.move(300, 300);
    dialog.show();
    EXPECT_TRUE(isInFront(dialog));
    first->setFocus();
    for (int i = 0; i < 60; ++i)
        column->addWidget(new QLineEdit);
    column->addWidget(last);
    EXPECT_TRUE(QTest::qWaitFor([&] { // after several rounds of layout
        return dialog.findChild<QScrollArea *>() && dialog.screen()->availableGeometry().contains(dialog.geometry());
    }));
    EXPECT_TRUE(first->hasFocus());
    last->setFocus(); // by code, as when a box is refused; Tab scrolls by itself
    EXPECT_EQ(last->visibleRegion().boundingRect(), last->rect());
}

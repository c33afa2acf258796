// What a control says fits into it, with small and with large letters, in the first size of its window and in the
// smallest one that the window can get. What does not fit on the screen can be scrolled to.
#include "AllWindows.h"
#include "platform/controls/WindowSize.h"

namespace {

/// How many pixels a control lacks in width or height for what it says; 0 or less if it fits.
int lacks(const QWidget &control)
{
    if (const auto *box = qobject_cast<const QComboBox *>(&control))
        return box->isEditable() || box->sizeAdjustPolicy() == QComboBox::AdjustToMinimumContentsLengthWithIcon
                   ? 0 // its texts are the keeper's own; dots and a tool tip tell that one is longer
                   : box->sizeHint().width() - box->width();
    if (const auto *box = qobject_cast<const QLineEdit *>(&control)) {
        constexpr int shortText = 12; // a number, a date or a time, which must be seen whole
        constexpr int frameAndMargins = 8;
        const QString longest(box->maxLength() <= shortText ? box->maxLength() : 1, u'0');
        return box->fontMetrics().horizontalAdvance(longest) + frameAndMargins - box->width();
    }
    if (const auto *heads = qobject_cast<const QHeaderView *>(&control)) {
        int most = 0;
        for (int section = 0; section < heads->count(); ++section)
            most = std::max(most, heads->sectionSizeHint(section) - heads->sectionSize(section));
        return most;
    }
    const QVariant text = control.property(qobject_cast<const QGroupBox *>(&control) ? "title" : "text");
    if (text.toString().isEmpty() || qobject_cast<const QProgressBar *>(&control))
        return 0;
    const QSize needs = control.minimumSizeHint();
    const int high = control.hasHeightForWidth() ? control.heightForWidth(control.width()) : needs.height();
    return std::max(needs.width() - control.width(), high - control.height());
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

/// Whether two controls that show something lie over each other.
bool isUnderAnother(const QWidget &control)
{
    const auto shows = [](const QWidget *widget) {
        return qobject_cast<const QLabel *>(widget) || qobject_cast<const QAbstractButton *>(widget) ||
               qobject_cast<const QComboBox *>(widget) || qobject_cast<const QLineEdit *>(widget) ||
               qobject_cast<const QAbstractScrollArea *>(widget);
    };
    const auto others = control.parentWidget()->findChildren<QWidget *>(Qt::FindDirectChildrenOnly);
    return shows(&control) && std::ranges::any_of(others, [&](const QWidget *other) {
               return other != &control && other->isVisible() && shows(other) &&
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
        const QString name = control->objectName() + u'/' + QLatin1String(control->metaObject()->className());
        if (const int lack = lacks(*control); lack > 0)
            found << QString("%1 lacks %2").arg(name).arg(lack);
        if (isCut(*control, window))
            found << name + " is cut";
        if (isUnderAnother(*control))
            found << name + " is under another";
    }
    return found;
}

void lookThrough(QWidget &window)
{
    auto *pages = window.findChild<QStackedWidget *>(); // of tabs or of panels
    for (int page = 0; page < (pages ? pages->count() : 1); ++page) {
        if (pages)
            pages->setCurrentIndex(page);
        QCoreApplication::processEvents();
        EXPECT_EQ(misfits(window).join(", "), "")
            << "page " << page << " of a window of " << window.width() << " x " << window.height();
    }
}

} // namespace

using Fit = ::testing::TestWithParam<int>; // points of the letters

TEST_P(Fit, WhatAControlSaysFitsIntoIt)
{
    const QFont before = QApplication::font();
    QFont letters = before;
    letters.setPointSize(GetParam());
    QApplication::setFont(letters);
    Keeper keeper;
    keeper.addTank("Reef", "1");
    auto &main = keeper.startProgram();
    const QSize room = RoomOn(*main.screen());
    forEachWindow(main, [&room](QWidget &shown) {
        SCOPED_TRACE(shown.objectName().toStdString());
        if (auto *preview = shown.findChild<QPushButton *>("cmd_PreviewSchedule"))
            preview->click();
        lookThrough(shown);
        EXPECT_TRUE(!shown.isWindow() || shown.size().boundedTo(room) == shown.size());
        (shown.isWindow() ? shown : *shown.parentWidget()).resize(1, 1);
        lookThrough(shown);
    });
    lookThrough(main);
    QApplication::setFont(before);
}

INSTANTIATE_TEST_SUITE_P(Points, Fit, ::testing::Values(9, 14), ::testing::PrintToStringParamName());

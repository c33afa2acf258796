#include "windows/logbook/EntryForm.h"

#include <QComboBox>
#include <QCompleter>
#include <QLabel>
#include <QListView>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStyle>
#include <QTabWidget>
#include <QVBoxLayout>

#include "platform/controls/Icons.h"
#include "platform/controls/MaskedBox.h"
#include "platform/controls/WindowSize.h"
#include "platform/core/Doors.h"
#include "platform/core/RuntimeFailure.h"
#include "text/Dates.h"
#include "windows/common/DateBoxes.h"

EntryForm::EntryForm(const FormContext &context) : DialogForm(context), m_checks(this) {}

MaskedBox *EntryForm::makeDateBox(const char *name, const char *toolTip)
{
    auto *box = new MaskedBox;
    box->setObjectName(QLatin1String(name));
    box->setMask(QStringLiteral("##/##/##"));
    box->setToolTip(QLatin1String(toolTip));
    box->setMinimumWidth(fontMetrics().horizontalAdvance(u'0') * 12);
    return box;
}

MaskedBox *EntryForm::makeTimeBox(const char *name, const char *toolTip)
{
    auto *box = new MaskedBox;
    box->setObjectName(QLatin1String(name));
    box->setMask(QStringLiteral("##:##:## ??"));
    box->setToolTip(QLatin1String(toolTip));
    box->setFixedWidth(fontMetrics().horizontalAdvance(u'0') * 15);
    return box;
}

QPushButton *EntryForm::makeCalendarButton(const char *name, const QString &whatFor)
{
    auto *button = new QPushButton(Icon("calendar"), QString());
    button->setObjectName(QLatin1String(name));
    button->setAccessibleName(whatFor);
    button->setToolTip(whatFor);
    button->setAutoDefault(false);
    m_checks.exempt(button);
    return button;
}

QBoxLayout *EntryForm::withCalendar(MaskedBox *date, QPushButton *calendar)
{
    auto *row = new QHBoxLayout;
    row->setSpacing(style()->pixelMetric(QStyle::PM_LayoutHorizontalSpacing)); // inside a grid it would be 0
    row->addWidget(date);
    row->addWidget(calendar);
    row->addStretch(1);
    return row;
}

QPushButton *EntryForm::makeButton(const char *name, const char *caption, bool isDefault)
{
    auto *button = new QPushButton(QLatin1String(caption));
    button->setObjectName(QLatin1String(name));
    button->setDefault(isDefault);
    button->setAutoDefault(isDefault);
    return button;
}

QPlainTextEdit *EntryForm::makeNotes(const char *name, const char *toolTip)
{
    auto *notes = new QPlainTextEdit;
    notes->setObjectName(QLatin1String(name));
    notes->setToolTip(QLatin1String(toolTip));
    notes->setTabChangesFocus(true);
    notes->setMinimumHeight(fontMetrics().lineSpacing() * 6);
    return notes;
}

QComboBox *EntryForm::makeCombo(const char *name)
{
    auto *combo = new QComboBox;
    combo->setObjectName(QLatin1String(name));
    combo->setEditable(true);
    combo->setInsertPolicy(QComboBox::NoInsert);
    combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    combo->setMinimumContentsLength(24);
    combo->setMinimumWidth(combo->sizeHint().width() / 2);               // on a small screen
    qobject_cast<QListView *>(combo->view())->setUniformItemSizes(true); // fast, even for tens of thousands of names
    // Otherwise the combo box would replace a typed text by an item that differs from it only in case.
    QObject::disconnect(combo->lineEdit(), SIGNAL(editingFinished()), combo, nullptr);
    combo->completer()->setCompletionMode(QCompleter::PopupCompletion);
    combo->completer()->setFilterMode(Qt::MatchContains);
    return combo;
}

QLabel *EntryForm::makeLabel(const char *caption, QWidget *buddy)
{
    auto *label = new QLabel(QLatin1String(caption));
    label->setBuddy(buddy);
    return label;
}

void EntryForm::arrange(QWidget *page, const char *tabCaption, QPushButton *ok, QPushButton *cancel)
{
    auto *tabs = new QTabWidget;
    tabs->setObjectName(QStringLiteral("SSTab1"));
    tabs->addTab(page, QLatin1String(tabCaption));
    tabs->setFocusPolicy(Qt::NoFocus); // there is only one tab
    auto *buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(ok);
    buttons->addWidget(cancel);
    m_checks.exempt(cancel);
    auto *outer = new QVBoxLayout(this);
    outer->addWidget(tabs);
    outer->addLayout(buttons);
    resize((outer->sizeHint() / FontScale(font())).expandedTo(QSize(640, 0)));
}

void EntryForm::setToNow(MaskedBox &date, MaskedBox &time) const
{
    const QDateTime now = Now();
    date.setText(Format(now.date(), g.options.DatePicture));
    time.setText(Format(now.time(), QStringLiteral("hh:mm:ss am/pm")));
}

void EntryForm::pickDate(MaskedBox &box)
{
    const DateConventions dates{g.options.DateOrder, g.options.DatePicture};
    const auto held = ReadDate(NormalizeDateText(box.Text(), dates.order));
    const auto chosen = AskCalendar(g, held);
    PutDay(box, chosen.value_or(held.value_or(Now().date())), dates); // an empty box gets a date anyway
}

bool EntryForm::isDate(const MaskedBox &box) const
{
    return IsDate(NormalizeDateText(box.Text(), g.options.DateOrder));
}

void EntryForm::beginAgain(Recordset &row)
{
    if (row.isEmpty()) // it was opened for adding
        row.AddNew();
    else
        row.Edit();
}

void EntryForm::put(Recordset &row, const char *column, const QWidget &box) const
{
    if (m_shown.isEdited(box))
        row[QLatin1String(column)].setValue(BoxText(box));
}

void EntryForm::putDate(Recordset &row, const char *column, const MaskedBox &box) const
{
    if (m_shown.isEdited(box))
        row[QLatin1String(column)].setValue(NormalizeDateText(box.Text(), g.options.DateOrder));
}

bool EntryForm::stored(const std::function<void()> &store, const QString &ifTaken, QWidget *box)
{
    try {
        store();
        return true;
    } catch (const RuntimeFailure &failure) {
        if (failure.number() != Failure::DuplicateKey)
            throw;
    }
    return refuse(ifTaken, box);
}

void EntryForm::showFor(const Recordset &row, const QString &tankId, QWidget *first)
{
    m_row = row;
    m_tankId = tankId;
    main.disablePrint();
    first->setFocus();
    ShowModal();
}

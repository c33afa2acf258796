#include "windows/common/DateBoxes.h"

#include "platform/controls/FocusAtFault.h"
#include "platform/controls/MaskedBox.h"
#include "platform/core/Doors.h"
#include "text/Dates.h"
#include "windows/common/frm_Caltool.h"

void UseDateOrder(MaskedBox &box, const OptionsMembers &options)
{
    const QString &delimiter = options.DateDelimiter;
    box.setMask(u"##" + delimiter + u"##" + delimiter + u"##");
    box.setFixedWidth(box.fontMetrics().horizontalAdvance(u'0') * 12);
}

std::optional<QDate> AskCalendar(Globals &globals, const std::optional<QDate> &shown)
{
    globals.calendar.SelectedDate = shown ? Format(*shown, QStringLiteral("mm/dd/yyyy")) : QString();
    return Form<frm_Caltool>().ShowCalendar(0, 0);
}

void PutDay(MaskedBox &box, const QDate &day, const DateConventions &dates)
{
    const QString text = Format(day, dates.picture);
    if (ReadDate(NormalizeDateText(text, dates.order)) == day) {
        box.setText(text);
        return;
    }
    QString wholeYear = dates.picture;
    wholeYear.replace(QStringLiteral("YY"), QStringLiteral("YYYY"));
    const int last = lastTypedYear();
    MsgBox(QStringLiteral("This date box cannot hold %1. It has two digits for the year, which mean a year from %2 to "
                          "%3. The box keeps what it had.")
               .arg(Format(day, wholeYear))
               .arg(last - 99)
               .arg(last),
           vbInformation, QStringLiteral("Oops!"));
    FocusAtFault(box);
}

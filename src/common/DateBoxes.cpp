#include "common/DateBoxes.h"

#include "common/frm_Caltool.h"
#include "platform/MaskedBox.h"
#include "text/Dates.h"

void UseDateOrder(MaskedBox &box, const OptionsMembers &options)
{
    const QString &delimiter = options.DateDelimiter;
    box.setMask(u"##" + delimiter + u"##" + delimiter + u"##");
    box.setFixedWidth(box.fontMetrics().horizontalAdvance(u'0') * 12);
}

QDate AskCalendar(Globals &globals, const QString &monthFirst)
{
    globals.calendar.SelectedDate = monthFirst;
    Form<frm_Caltool>().ShowCalendar(0, 0);
    return *ReadDate(globals.calendar.SelectedDate); // the picker always leaves a date there
}

// The headers of all windows, and a way to look at each of them except the main one.
#pragma once

#include "Keeper.h"

#include "windows/advisers/frm_Compat.h"
#include "windows/advisers/frm_DiagDiagnosis.h"
#include "windows/advisers/frm_DiagnosisQA.h"
#include "windows/advisers/frm_FantAddAnimal.h"
#include "windows/advisers/frm_Fantasy.h"
#include "windows/common/CalendarControls.h"
#include "windows/common/frm_Caltool.h"
#include "windows/graph/frm_WaterGraph.h"
#include "windows/logbook/frm_LivesAddEdit.h"
#include "windows/logbook/frm_LivesMove.h"
#include "windows/logbook/frm_MaintAddEdit.h"
#include "windows/logbook/frm_OMKLogPrint.h"
#include "windows/logbook/frm_WaterAddEdit.h"
#include "windows/logbook/frm_Waterlog.h"
#include "windows/reference/frm_Conversions.h"
#include "windows/reference/frm_LatintoCommon.h"
#include "windows/reminders/frm_Maintsched.h"
#include "windows/reminders/frm_SchedNewAddEdit.h"
#include "windows/reminders/frm_Schedule.h"
#include "windows/shell/frm_OMKCredits.h"
#include "windows/shell/frm_OMKMDIMain.h"
#include "windows/shell/frm_OMKOptions.h"
#include "windows/shell/frm_OMKtod.h"
#include "windows/tanks/frm_TankAddNew.h"
#include "windows/tanks/frm_TankMaint.h"

/// Shows a window as it opens, without waiting for it if it is a dialog.
template <class F> QWidget *makeShown(frm_OMKMDIMain &main)
{
    auto &form = Form<F>();
    if constexpr (requires { form.setDefaults(); })
        form.setDefaults();
    if constexpr (requires { form.setDefaults(QString()); })
        form.setDefaults({});
    if constexpr (F::isDialog)
        form.setVisible(true);
    else
        main.ShowChild(form);
    return &form;
}
inline constexpr QWidget *(*allWindows[])(frm_OMKMDIMain &) = {
    makeShown<frm_TankMaint>,    makeShown<frm_TankAddNew>,      makeShown<frm_Waterlog>,
    makeShown<frm_WaterAddEdit>, makeShown<frm_LivesAddEdit>,    makeShown<frm_LivesMove>,
    makeShown<frm_MaintAddEdit>, makeShown<frm_OMKLogPrint>,     makeShown<frm_WaterGraph>,
    makeShown<frm_Maintsched>,   makeShown<frm_SchedNewAddEdit>, makeShown<frm_Schedule>,
    makeShown<frm_Compat>,       makeShown<frm_Fantasy>,         makeShown<frm_FantAddAnimal>,
    makeShown<frm_DiagnosisQA>,  makeShown<frm_DiagDiagnosis>,   makeShown<frm_LatintoCommon>,
    makeShown<frm_Conversions>,  makeShown<frm_OMKOptions>,      makeShown<frm_OMKtod>,
    makeShown<frm_OMKCredits>,
};

/// Shows each window in turn, the calendar last.
inline void forEachWindow(frm_OMKMDIMain &main, const std::function<void(QWidget &)> &look)
{
    for (const auto show : allWindows) {
        QWidget &shown = *show(main);
        shown.window()->activateWindow();
        look(shown);
        Unload(shown);
    }
    Keeper::inNext<frm_Caltool>([&look](frm_Caltool &calendar) {
        look(calendar);
        calendar.close();
    });
    Form<frm_Caltool>().ShowCalendar(0, 0);
}

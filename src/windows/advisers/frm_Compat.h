// Quick compatibility: the keeper picks an animal, and three lists say which others it should live with, may have
// problems with, and will probably have problems with. The window holds nothing beyond its lists.
#pragma once

#include "ui_frm_Compat.h"
#include "windows/shell/ChildForm.h"

class frm_Compat : public ChildForm, public Ui::frm_Compat
{
    Q_OBJECT
public:
    explicit frm_Compat(const FormContext &context);

    /// Shows the window, and over it a reminder.
    void Form_Load();

private:
    void but_salt_click();
    void but_fresh_click();
    void lst_select_Click();

    void clearLists();
    void offer(const QStringList &animals);
};

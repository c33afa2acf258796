// A modal window. Esc and the title bar do what its Cancel does; a window without Cancel names its closing button
// there.
#pragma once

#include <QDialog>

#include "platform/controls/FocusAtFault.h"
#include "platform/core/Doors.h"
#include "windows/shell/Forms.h"

class DialogForm : public QDialog
{
public:
    static constexpr bool isDialog = true;

    void Form_Load() {} ///< runs when the window has been made; a window that has one hides this one
    void reject() final { Cancel(); }

protected:
    explicit DialogForm(const FormContext &context) : QDialog(context.parent), g(context.globals), main(context.main) {}

    /// Leaves without storing.
    virtual void Cancel() = 0;
    /// A beep and a warning; the focus goes to the box. False, so that a check can end with it.
    bool refuse(const QString &text, QWidget *box, const QString &title = QStringLiteral("Oops!"))
    {
        Beep();
        MsgBox(text, vbExclamation, title);
        FocusAtFault(*box);
        return false;
    }
    void ShowModal() { Forms::current().showModal(*this); }

    Globals &g;
    MainWindow &main;
};

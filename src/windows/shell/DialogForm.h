// A modal window. Esc and the title bar's button call Cancel(); a window without a Cancel button calls the handler of
// its closing button there.
#pragma once

#include <QDialog>

#include "platform/controls/FocusAtFault.h"
#include "platform/core/Doors.h"
#include "windows/shell/Forms.h"

class DialogForm : public QDialog
{
public:
    static constexpr bool isDialog = true;

    void Form_Load() {} ///< runs once the window is made; a window with a Form_Load of its own hides this one
    void reject() final { Cancel(); }

protected:
    explicit DialogForm(const FormContext &context) : QDialog(context.parent), g(context.globals), main(context.main) {}

    /// Closes the window without storing.
    virtual void Cancel() = 0;
    /// Beeps, shows a warning and moves the focus to the box. Returns false, so that a check can return its result.
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

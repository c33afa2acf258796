// A child window of the main window. The main window tells it when it becomes the active child and when another child
// does, but not when a dialog or another program comes to the front. Closing it unloads it.
#pragma once

#include <QCloseEvent>
#include <QWidget>

#include "platform/controls/Guarded.h"
#include "windows/shell/Forms.h"

/// The frame adds this to the size of a child.
inline constexpr QSize childFrame(12, 36);

class ChildForm : public QWidget
{
public:
    static constexpr bool isDialog = false;

    void Form_Load() {} ///< runs once the window is made; a window with a Form_Load of its own hides this one
    virtual void Form_Activate() {}
    virtual void Form_LostFocus() {}
    virtual void Form_Unload() {}
    virtual void Print() {} ///< runs on "Print" while the child is in front

    /// True also while the child is minimised.
    bool isShown() const { return parentWidget() && parentWidget()->isVisible(); }
    /// Gives the focus to the window's first control.
    void takeFocus() { (m_first ? m_first : this)->setFocus(); }

protected:
    explicit ChildForm(const FormContext &context) : QWidget(context.parent), g(context.globals), main(context.main) {}

    /// Not a focus proxy: that would add a stop for Tab, and the controls before it would not be reached.
    void beginWith(QWidget *control) { m_first = control; }

    void closeEvent(QCloseEvent *event) override
    {
        guarded([this] { Form_Unload(); })(); // the window closes even if it could not store something
        Unload(*this);
        event->accept();
    }

    Globals &g;
    MainWindow &main;

private:
    QWidget *m_first = nullptr;
};

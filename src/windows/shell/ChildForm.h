// A child of the main window. The main window tells it when it becomes the active child and when another child does; a
// dialog or another program in front is neither. Closing it unloads it.
#pragma once

#include <QCloseEvent>
#include <QWidget>

#include "platform/controls/Guarded.h"
#include "windows/shell/Forms.h"

/// What is added to a child's size for its frame.
inline constexpr QSize childFrame(12, 36);

class ChildForm : public QWidget
{
public:
    static constexpr bool isDialog = false;

    void Form_Load() {} ///< runs when the window has been made; a window that has one hides this one
    virtual void Form_Activate() {}
    virtual void Form_LostFocus() {}
    virtual void Form_Unload() {}
    virtual void Print() {} ///< what "Print" does while the child is in front

    /// On the screen, if only as an icon.
    bool isShown() const { return parentWidget() && parentWidget()->isVisible(); }
    /// Gives the focus to the control that the window begins with.
    void takeFocus() { (m_first ? m_first : this)->setFocus(); }

protected:
    explicit ChildForm(const FormContext &context) : QWidget(context.parent), g(context.globals), main(context.main) {}

    /// No focus proxy: as such it would be one more stop of Tab, and the controls before it would not be reached.
    void beginWith(QWidget *control) { m_first = control; }

    void closeEvent(QCloseEvent *event) override
    {
        guarded([this] { Form_Unload(); })(); // the window goes whatever it could not store
        Unload(*this);
        event->accept();
    }

    Globals &g;
    MainWindow &main;

private:
    QWidget *m_first = nullptr;
};

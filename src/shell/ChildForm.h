// A child of the main window. The main window tells it when it becomes the active child and when another child does; a
// dialog or another program in front is neither. Closing it unloads it.
#pragma once

#include <QCloseEvent>
#include <QWidget>

#include "platform/Guarded.h"
#include "shell/Forms.h"

class ChildForm : public QWidget
{
public:
    static constexpr bool isDialog = false;

    virtual void Form_Activate() {}
    virtual void Form_LostFocus() {}
    virtual void Form_Unload() {}

protected:
    ChildForm(Globals &globals, QWidget *parent) : QWidget(parent), g(globals) {}

    void closeEvent(QCloseEvent *event) override
    {
        guarded([this] { Form_Unload(); })(); // the window goes whatever it could not store
        Unload(*this);
        event->accept();
    }

    Globals &g;
};

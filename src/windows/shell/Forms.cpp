#include "windows/shell/Forms.h"

#include <QApplication>
#include <QMdiSubWindow>

namespace {

Forms *inUse = nullptr;

/// What goes away with a window: an MDI child's frame takes its window with it.
QWidget *frameOf(QWidget *form)
{
    auto *frame = qobject_cast<QMdiSubWindow *>(form->parentWidget());
    return frame ? frame : form;
}

} // namespace

Forms::Forms(Globals &globals) : m_globals(globals), m_previous(std::exchange(inUse, this)) {}

Forms::~Forms()
{
    // Dialogs first, the main window last: the others may speak to it while they go.
    for (auto &[type, form] : m_forms)
        if (form && form != m_main)
            delete frameOf(form);
    delete m_main;
    inUse = m_previous;
}

Forms &Forms::current()
{
    if (!inUse)
        qFatal("no window registry is in use");
    return *inUse;
}

MainWindow &Forms::mainWindow()
{
    if (!m_main)
        qFatal("a window is made before the main window");
    return *m_mainWindow;
}

void Forms::unload(QWidget &form)
{
    std::erase_if(m_forms, [&form](const auto &entry) { return entry.second == &form; });
    if (auto *dialog = qobject_cast<QDialog *>(&form); dialog && dialog->isVisible())
        dialog->done(QDialog::Rejected);
    QWidget *frame = frameOf(&form);
    frame->hide();
    const auto hold = m_holds.find(&form);
    if (hold != m_holds.end())
        hold->second.unloaded = true;
    else
        frame->deleteLater();
}

void Forms::showModal(QDialog &dialog)
{
    const Pin pin(dialog);
    const QPointer<QWidget> before = QApplication::activeWindow();
    dialog.exec();
    // Without a window manager nobody else gives the activity back. Before it there may have been a menu, or no window.
    QWidget *back = before && before->isVisible() ? before.data() : dialog.parentWidget();
    if (back && back->isVisible())
        back->activateWindow();
}

Forms::Pin::Pin(QWidget &form) : m_form(&form) { ++current().m_holds[&form].pins; }

Forms::Pin::~Pin()
{
    if (!m_form || !inUse)
        return;
    const auto hold = inUse->m_holds.find(m_form.data());
    if (hold == inUse->m_holds.end() || --hold->second.pins > 0)
        return;
    const bool unloaded = hold->second.unloaded;
    inUse->m_holds.erase(hold);
    if (unloaded)
        frameOf(m_form)->deleteLater();
}

#include "windows/shell/Forms.h"

#include <QApplication>
#include <QMdiSubWindow>

namespace {

Forms *inUse = nullptr;

/// The widget to hide or delete for a window: the frame of an MDI child, which owns it, or else the window itself.
QWidget *frameOf(QWidget *form)
{
    auto *frame = qobject_cast<QMdiSubWindow *>(form->parentWidget());
    return frame ? frame : form;
}

} // namespace

Forms::Forms(Globals &globals) : m_globals(globals), m_previous(std::exchange(inUse, this)) {}

Forms::~Forms()
{
    // The main window is deleted last, because the others may use it in their destructors.
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
    whileModal(dialog, [&dialog] { dialog.exec(); });
}

void Forms::whileModal(QDialog &dialog, const std::function<void()> &wait)
{
    const Pin pin(dialog);
    const QPointer<QWidget> before = QApplication::activeWindow();
    wait();
    // Without a window manager, nothing else makes the former window active again. The former window may have been a
    // menu, or there may have been none.
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

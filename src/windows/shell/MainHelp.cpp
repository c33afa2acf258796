// Opens the help: at its contents, at its search, or, for F1, at the page of the window in front.
#include <QApplication>
#include <QKeyEvent>

#include "platform/controls/Guarded.h"
#include "platform/core/Doors.h"
#include "platform/core/RuntimeFailure.h"
#include "windows/shell/ChildForm.h"
#include "windows/shell/frm_OMKMDIMain.h"

void frm_OMKMDIMain::showHelp(const HelpRequest &request)
{
    try {
        if (!Doors::current().showHelp(request))
            MsgBox(QStringLiteral("Unable to display Help Contents. There is no Help associated with this project."),
                   vbInformation, windowTitle());
    } catch (const RuntimeFailure &failure) {
        MsgBox(failure.description(), vbOKOnly, windowTitle());
    }
}

void frm_OMKMDIMain::mnu_HelpContents_Click() { showHelp({HelpRequest::At::Contents}); }

void frm_OMKMDIMain::mnu_HelpSearch_Click() { showHelp({HelpRequest::At::Search}); }

QString frm_OMKMDIMain::formInFront() const
{
    // A message box or a file dialog has no page of its own, so the page of the window below it is shown.
    for (const QWidget *window = QApplication::activeWindow(); window; window = window->parentWidget()) {
        if (window == this)
            return m_activeChild ? m_activeChild->objectName() : objectName();
        if (window->objectName().startsWith(u"frm_"))
            return window->objectName();
    }
    return {};
}

bool frm_OMKMDIMain::helpKey(const QKeyEvent &key)
{
    if (key.key() != Qt::Key_F1 || key.modifiers() != Qt::NoModifier || key.isAutoRepeat())
        return false;
    if (QWidget *menu = QApplication::activePopupWidget())
        menu->close(); // a menu grabs the mouse and the keyboard
    guarded([this] { showHelp({HelpRequest::At::Window, formInFront()}); })();
    return true;
}

// The program's real windows, off-screen, on the database in a folder, with the logbook open and no tank chosen. Clicks
// and keys enter through the window system, and their effect is measured up to the painted screen.
#pragma once

#include <memory>

#include <QObject>
#include <QString>

#include "platform/desktop/DesktopDoors.h"
#include "windows/shell/Forms.h"

class frm_Waterlog;
class ListView;
class QWidget;

class Desk
{
public:
    /// Changes the current directory to the folder.
    explicit Desk(const QString &folder);
    ~Desk();

    /// Clicks on the first tank in the tree and returns when its list is painted.
    void openFirstTank();
    ListView &waterList();
    Globals &globals() { return m_globals; }
    /// What the list shows, read once more.
    std::shared_ptr<const Rows> waterRows() const;

private:
    DesktopDoors m_doors;
    Globals m_globals;
    std::unique_ptr<Forms> m_forms;
    frm_Waterlog *m_logbook;
};

/// Notices whether a widget was painted since this object was made.
class PaintWatch : public QObject
{
public:
    explicit PaintWatch(QWidget *widget);
    /// Runs the event loop until it was painted; throws std::runtime_error after half a minute.
    void wait();

protected:
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    bool m_painted = false;
};

/// Presses and releases the left button at a place in the widget's coordinates.
void press(QWidget *widget, const QPoint &place);
void release(QWidget *widget, const QPoint &place);
/// Activates the widget's window, gives the widget the focus, and lets pending painting finish.
void settle(QWidget *widget);

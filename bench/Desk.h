// The program's real windows off-screen, on the database of a folder, with the logbook open and no tank chosen; and the
// hands of a keeper: clicks and keys that come through the window system, each followed to the painted screen.
#pragma once

#include <memory>

#include <QObject>
#include <QString>

#include "platform/DesktopDoors.h"
#include "shell/Forms.h"

class frm_Waterlog;
class ListView;
class QWidget;

class Desk
{
public:
    /// Changes the current directory to the folder.
    explicit Desk(const QString &folder);
    ~Desk();

    /// Clicks on the first tank in the tree; back when its list is painted.
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

/// Sees whether a widget was painted since the watch began.
class PaintWatch : public QObject
{
public:
    explicit PaintWatch(QWidget *widget);
    /// Runs the event loop until it was; throws std::runtime_error after half a minute.
    void wait();

protected:
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    bool m_painted = false;
};

/// The left button on a place that is given in the widget's coordinates.
void press(QWidget *widget, const QPoint &place);
void release(QWidget *widget, const QPoint &place);
/// Puts a window in front, gives the widget the focus, and lets everything be painted that waits for it.
void settle(QWidget *widget);

// The window for long work at the start, shown before any other: the upgrade of a database of an earlier version, and
// the reading of a file of the old engine. It shows what is being done and the progress, and cannot be closed by hand.
// The work is passed in.
#pragma once

#include <functional>
#include <optional>

#include <QDialog>

#include "platform/core/RuntimeFailure.h"

class QLabel;
class QProgressBar;
class QTimer;

class frm_OMKupgrade : public QDialog
{
    Q_OBJECT
public:
    using Work = std::function<void(frm_OMKupgrade &)>;
    explicit frm_OMKupgrade(Work work);

    /// Shows the window, does the work once it is on the screen, and closes the window. Throws the RuntimeFailure that
    /// ended the work.
    void Run();
    /// Shows what is being done and the progress, 0 to 100, and repaints at once.
    void Show(const QString &text, int bar);
    void Show(int bar);
    void reject() override {} // the work cannot be interrupted

    QLabel *Label1;
    QProgressBar *ProgressBar1;
    QTimer *Timerx;

private:
    void Form_Load();
    void Timerx_Timer();

    Work m_work;
    std::optional<RuntimeFailure> m_failure;
};

// The about box: picture, version, revision. While gSplashMode is true it is the splash screen of the start, without a
// frame, and only its timer closes it. Otherwise a click, Esc or Enter closes it, and Ctrl+Shift+T opens the thank-you
// page.
#pragma once

#include "windows/shell/DialogForm.h"

class QTimer;

class frm_OMKaboutbox : public DialogForm
{
    Q_OBJECT
public:
    explicit frm_OMKaboutbox(const FormContext &context);

    /// Shows the box or, if gSplashMode is true, the splash screen, and waits until it is closed.
    void ShowBox();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void Cancel() override;
    void keyPressEvent(QKeyEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    void tim_splash_Timer();
    void Form_Click();

    QTimer *tim_splash;
};

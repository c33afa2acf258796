// The application object: the last net for a failure that no guard caught, and the looks that all windows share.
#pragma once

#include <QApplication>

class Application : public QApplication
{
    Q_OBJECT
public:
    Application(int &argc, char **argv);
    bool notify(QObject *receiver, QEvent *event) override;
};

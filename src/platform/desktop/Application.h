// The application object: the last net for a failure that no guard caught, and what all windows share: the looks, and
// that a box of one line takes one line.
#pragma once

#include <QApplication>

class Application : public QApplication
{
    Q_OBJECT
public:
    Application(int &argc, char **argv);
    bool notify(QObject *receiver, QEvent *event) override;
};

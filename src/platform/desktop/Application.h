// The application object. It shows failures that no guard has caught, and gives all windows what they share: their
// style, and that text pasted into a box with one line is cut at its first line break.
#pragma once

#include <QApplication>

class Application : public QApplication
{
    Q_OBJECT
public:
    Application(int &argc, char **argv);
    bool notify(QObject *receiver, QEvent *event) override;
};

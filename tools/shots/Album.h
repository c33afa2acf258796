// What omk_shots works with: the album that takes the pictures, the doors that answer the program, and a way into its
// dialogs.
#pragma once

#include <cstdio>
#include <functional>

#include <QApplication>
#include <QDir>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <QWidget>

#include "platform/core/SettingsStore.h"
#include "platform/desktop/DesktopDoors.h"

class Album
{
public:
    explicit Album(const QString &folder) : m_folder(folder) { QDir().mkpath(folder); }
    void take(QWidget &window, const QString &name)
    {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
        const QString file = m_folder.filePath(name + u".png");
        if (window.grab().save(file))
            std::printf("%s\n", qPrintable(file));
        else
            m_failed = true;
    }
    /// The path for a printout, with a file name made of its name; prints the path, as take() does for a picture.
    QString path(QString name) const
    {
        const QString file = m_folder.filePath(name.replace(u' ', u'-').toLower());
        std::printf("%s\n", qPrintable(file));
        return file;
    }
    bool failed() const { return m_failed; }

private:
    QDir m_folder;
    bool m_failed = false;
};

/// Doors of the desktop with a clock that stands still and settings of their own. Each message box is photographed and
/// answered with its default button.
class ShotDoors : public DesktopDoors
{
public:
    ShotDoors(Album &album, const QString &settingsFile) : m_album(album), m_settings(settingsFile) {}
    QDateTime clock{QDate(2026, 6, 20), QTime(18, 30)};
    QDateTime now() override { return clock; }
    SettingsStore &settings() override { return m_settings; }
    double random() override { return 0.5; }
    void beep() override {}
    std::optional<QString> saveDialog(const SaveDialogRequest &request) override
    {
        return m_album.path(request.fileName);
    }
    std::optional<PrintDialogAnswer> printDialog(const PrintDialogRequest &request) override
    {
        PrintDialogAnswer answer;
        answer.target.fileName = m_album.path(request.documentName + u".pdf");
        return answer;
    }
    MsgBoxAnswer msgBox(const MsgBoxRequest &request) override
    {
        const QString name = QStringLiteral("box-%1").arg(++m_boxes, 2, 10, QLatin1Char('0'));
        QTimer::singleShot(0, [this, name] {
            if (auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
                m_album.take(*box, name);
                box->defaultButton()->click();
            }
        });
        return DesktopDoors::msgBox(request);
    }

private:
    Album &m_album;
    SettingsStore m_settings;
    int m_boxes = 0;
};

/// Runs `inside` in the dialog that `start` opens and waits for.
inline void inDialog(const std::function<void()> &start, const std::function<void()> &inside)
{
    QTimer::singleShot(0, inside);
    start();
}

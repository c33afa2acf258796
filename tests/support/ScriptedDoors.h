// The world as a script: answers in, a record of boxes, beeps and dialogs out. The clock stands where the test set it,
// the random numbers come from a list, and the settings live in a temporary file. A box that nobody expected gets its
// default answer and is in the record; expectNoBoxes() and takeBoxes() look at it.
#pragma once

#include <deque>
#include <functional>
#include <memory>
#include <ostream>
#include <vector>

#include <QTemporaryDir>

#include "platform/Doors.h"
#include "platform/RuntimeFailure.h"
#include "platform/SettingsStore.h"
#include "support/RecordedPages.h"

inline void PrintTo(const QString &text, std::ostream *out) { *out << '"' << text.toStdString() << '"'; }

class ScriptedDoors : public Doors
{
public:
    /// Installs itself; the destructor takes itself out again. `settingsFile` keeps settings over a restart.
    explicit ScriptedDoors(const QString &settingsFile = {});
    ~ScriptedDoors() override;

    // In: what the world will answer.
    std::deque<MsgBoxAnswer> answers;         ///< of the next boxes with a choice; else the default button's
    std::deque<std::optional<QString>> files; ///< of the next save dialogs; else cancelled
    std::deque<std::optional<PrintDialogAnswer>> printers;
    std::deque<bool> endAnswers; ///< of the next failure boxes: true for End; else Return
    QDateTime clock{QDate(2026, 3, 14), QTime(9, 26, 53)};
    bool helpIsThere = true;
    std::deque<double> randoms;                              ///< else 0.5
    std::function<void(const MsgBoxRequest &)> whileBoxIsUp; ///< what happens while a box is on the screen

    // Out: what was shown since last taken.
    std::vector<MsgBoxRequest> boxes;
    std::vector<RuntimeFailure> failures;
    std::vector<SaveDialogRequest> saveDialogs;
    std::vector<PrintDialogRequest> printDialogs;
    std::vector<PageTarget> targets;        ///< of the documents printed
    std::vector<PrintedDocument> documents; ///< printed, and previewed
    std::vector<HelpRequest> helps;
    int previews = 0;
    int beeps = 0;

    std::vector<MsgBoxRequest> takeBoxes() { return std::exchange(boxes, {}); }
    /// The text of the only box shown since last taken; what else was shown instead, as a sentence.
    QString takeText();

    MsgBoxAnswer msgBox(const MsgBoxRequest &request) override;
    bool failureBox(const RuntimeFailure &failure, bool mayReturn) override;
    void beep() override { ++beeps; }
    std::optional<QString> saveDialog(const SaveDialogRequest &request) override;
    std::optional<PrintDialogAnswer> printDialog(const PrintDialogRequest &request) override;
    std::unique_ptr<PageSink> openPages(const PageTarget &target) override;
    void preview(const PreviewRequest &request) override;
    bool showHelp(const HelpRequest &request) override;
    QDateTime now() override { return clock; }
    double random() override;
    SettingsStore &settings() override { return *m_settings; }

private:
    QTemporaryDir m_folder;
    std::unique_ptr<SettingsStore> m_settings;
    Doors *m_previous;
};

// Doors for tests: they answer from a script and record boxes, beeps and dialogs. The clock stands still at the time
// that the test has set, random() returns a half, and the settings are in a temporary file. A box without an answer in
// the script gets its default answer. told() returns what was recorded.
#pragma once

#include <deque>
#include <functional>
#include <memory>
#include <ostream>
#include <vector>

#include <QTemporaryDir>

#include "platform/core/Doors.h"
#include "platform/core/RuntimeFailure.h"
#include "platform/core/SettingsStore.h"
#include "support/RecordedPages.h"

inline void PrintTo(const QString &text, std::ostream *out) { *out << '"' << text.toStdString() << '"'; }

class ScriptedDoors : public Doors
{
public:
    /// Installs these doors; the destructor puts the former ones back. `settingsFile` keeps the settings over a
    /// restart.
    explicit ScriptedDoors(const QString &settingsFile = {}) :
        m_settings(settingsFile.isEmpty() ? m_folder.filePath(QStringLiteral("OMK.ini")) : settingsFile),
        m_previous(Doors::install(this))
    {
    }
    ~ScriptedDoors() override { Doors::install(m_previous); }

    // Input: what the doors will answer.
    std::deque<MsgBoxAnswer> answers;         ///< to the next boxes with a choice; if empty, the default button's
    std::deque<std::optional<QString>> files; ///< from the next save dialogs; if empty, they are cancelled
    std::deque<std::optional<PrintDialogAnswer>> printers;
    QDateTime clock{QDate(2026, 3, 14), QTime(9, 26, 53)};
    int secondsAReading = 0; ///< how far the clock advances each time it is read
    bool helpIsThere = true;
    std::function<void(const MsgBoxRequest &)> whileBoxIsUp; ///< called while a box is on the screen

    // Output: what was shown since it was last taken.
    std::vector<MsgBoxRequest> boxes;
    std::vector<RuntimeFailure> failures;
    std::vector<SaveDialogRequest> saveDialogs;
    std::vector<PrintDialogRequest> printDialogs;
    std::vector<PageTarget> targets;        ///< of the documents printed
    std::vector<PrintedDocument> documents; ///< printed or previewed
    std::vector<HelpRequest> helps;
    int previews = 0;
    int beeps = 0;

    /// Returns and clears what was recorded: how many beeps, each box as title/flags/text, and each failure.
    QString told()
    {
        QStringList all{QString::number(std::exchange(beeps, 0))};
        for (const MsgBoxRequest &box : std::exchange(boxes, {}))
            all << box.title + u'/' + QString::number(box.flags) + u'/' + box.text;
        for (const RuntimeFailure &failure : std::exchange(failures, {}))
            all << QStringLiteral("failure %1").arg(static_cast<int>(failure.number()));
        return all.join(u'|');
    }

    MsgBoxAnswer msgBox(const MsgBoxRequest &request) override
    {
        boxes.push_back(request);
        if (whileBoxIsUp)
            whileBoxIsUp(request);
        return request.buttons() == vbOKOnly ? MsgBoxAnswer::OK : takeNext(answers, defaultAnswer(request));
    }
    bool failureBox(const RuntimeFailure &failure, bool mayReturn) override
    {
        failures.push_back(failure);
        return !mayReturn;
    }
    void beep() override { ++beeps; }
    std::optional<QString> saveDialog(const SaveDialogRequest &request) override
    {
        saveDialogs.push_back(request);
        return takeNext(files);
    }
    std::optional<PrintDialogAnswer> printDialog(const PrintDialogRequest &request) override
    {
        printDialogs.push_back(request);
        return takeNext(printers);
    }
    std::unique_ptr<PageSink> openPages(const PageTarget &target) override
    {
        targets.push_back(target);
        return std::make_unique<RecordedPages>(documents);
    }
    std::optional<PrintDialogAnswer> preview(const PreviewRequest &request) override
    {
        ++previews;
        RecordedPages pages(documents);
        pages.setLandscape(request.printing.landscape);
        request.print(pages);
        return std::nullopt;
    }
    bool showHelp(const HelpRequest &request) override
    {
        helps.push_back(request);
        return helpIsThere;
    }
    QDateTime now() override { return std::exchange(clock, clock.addSecs(secondsAReading)); }
    double random() override { return 0.5; }
    SettingsStore &settings() override { return m_settings; }

private:
    template <class T> static T takeNext(std::deque<T> &script, T otherwise = {})
    {
        if (script.empty())
            return otherwise;
        T next = std::move(script.front());
        script.pop_front();
        return next;
    }
    static MsgBoxAnswer defaultAnswer(const MsgBoxRequest &request)
    {
        if (request.buttons() == omkSkipDelete)
            return MsgBoxAnswer::Skip;
        if (request.buttons() == vbYesNo || request.buttons() == vbYesNoCancel)
            return request.secondIsDefault() ? MsgBoxAnswer::No : MsgBoxAnswer::Yes;
        return request.secondIsDefault() ? MsgBoxAnswer::Cancel : MsgBoxAnswer::OK;
    }

    QTemporaryDir m_folder;
    SettingsStore m_settings;
    Doors *m_previous;
};

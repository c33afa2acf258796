// The world as a script: answers in, a record of boxes, beeps and dialogs out. The clock stands where the test set it,
// chance is a half, and the settings live in a temporary file. A box that nobody expected gets its default answer and
// is in the record, which told() tells.
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
    explicit ScriptedDoors(const QString &settingsFile = {}) :
        m_settings(std::make_unique<SettingsStore>(settingsFile.isEmpty() ? m_folder.filePath(QStringLiteral("OMK.ini"))
                                                                          : settingsFile)),
        m_previous(Doors::install(this))
    {
    }
    ~ScriptedDoors() override { Doors::install(m_previous); }

    // In: what the world will answer.
    std::deque<MsgBoxAnswer> answers;         ///< of the next boxes with a choice; else the default button's
    std::deque<std::optional<QString>> files; ///< of the next save dialogs; else cancelled
    std::deque<std::optional<PrintDialogAnswer>> printers;
    QDateTime clock{QDate(2026, 3, 14), QTime(9, 26, 53)};
    int secondsAReading = 0; ///< that the clock goes on when it is asked
    bool helpIsThere = true;
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

    /// What was told since last asked: how many beeps, and each box as title/flags/text.
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
        return takeNext(files, std::optional<QString>());
    }
    std::optional<PrintDialogAnswer> printDialog(const PrintDialogRequest &request) override
    {
        printDialogs.push_back(request);
        return takeNext(printers, std::optional<PrintDialogAnswer>());
    }
    std::unique_ptr<PageSink> openPages(const PageTarget &target) override
    {
        targets.push_back(target);
        return std::make_unique<RecordedPages>(documents);
    }
    void preview(const PreviewRequest &request) override
    {
        ++previews;
        RecordedPages pages(documents);
        request.print(pages);
    }
    bool showHelp(const HelpRequest &request) override
    {
        helps.push_back(request);
        return helpIsThere;
    }
    QDateTime now() override { return std::exchange(clock, clock.addSecs(secondsAReading)); }
    double random() override { return 0.5; }
    SettingsStore &settings() override { return *m_settings; }

private:
    template <class T> static T takeNext(std::deque<T> &script, T otherwise)
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
    std::unique_ptr<SettingsStore> m_settings;
    Doors *m_previous;
};

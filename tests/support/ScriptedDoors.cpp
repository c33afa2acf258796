#include "support/ScriptedDoors.h"

namespace {

template <class T> T takeNext(std::deque<T> &script, T otherwise)
{
    if (script.empty())
        return otherwise;
    T next = std::move(script.front());
    script.pop_front();
    return next;
}

MsgBoxAnswer defaultAnswer(const MsgBoxRequest &request)
{
    if (request.buttons() == omkSkipDelete)
        return MsgBoxAnswer::Skip;
    if (request.buttons() == vbYesNo || request.buttons() == vbYesNoCancel)
        return request.secondIsDefault() ? MsgBoxAnswer::No : MsgBoxAnswer::Yes;
    return request.secondIsDefault() ? MsgBoxAnswer::Cancel : MsgBoxAnswer::OK;
}

} // namespace

ScriptedDoors::ScriptedDoors(const QString &settingsFile) :
    m_settings(std::make_unique<SettingsStore>(settingsFile.isEmpty() ? m_folder.filePath(QStringLiteral("OMK.ini"))
                                                                      : settingsFile)),
    m_previous(Doors::install(this))
{
}

ScriptedDoors::~ScriptedDoors() { Doors::install(m_previous); }

QString ScriptedDoors::takeText()
{
    const auto shown = takeBoxes();
    if (shown.size() == 1)
        return shown.front().text;
    QString sentence = QStringLiteral("%1 boxes:").arg(shown.size());
    for (const auto &box : shown)
        sentence += u" [" + box.text + u']';
    return sentence;
}

MsgBoxAnswer ScriptedDoors::msgBox(const MsgBoxRequest &request)
{
    boxes.push_back(request);
    if (whileBoxIsUp)
        whileBoxIsUp(request);
    if (request.buttons() == vbOKOnly)
        return MsgBoxAnswer::OK;
    return takeNext(answers, defaultAnswer(request));
}

bool ScriptedDoors::failureBox(const RuntimeFailure &failure, bool mayReturn)
{
    failures.push_back(failure);
    return takeNext(endAnswers, !mayReturn);
}

std::optional<QString> ScriptedDoors::saveDialog(const SaveDialogRequest &request)
{
    saveDialogs.push_back(request);
    return takeNext(files, std::optional<QString>());
}

std::optional<PrintDialogAnswer> ScriptedDoors::printDialog(const PrintDialogRequest &request)
{
    printDialogs.push_back(request);
    return takeNext(printers, std::optional<PrintDialogAnswer>());
}

std::unique_ptr<PageSink> ScriptedDoors::openPages(const PageTarget &target)
{
    targets.push_back(target);
    return std::make_unique<RecordedPages>(documents);
}

void ScriptedDoors::preview(const PreviewRequest &request)
{
    ++previews;
    RecordedPages pages(documents);
    request.print(pages);
}

bool ScriptedDoors::showHelp(const HelpRequest &request)
{
    helps.push_back(request);
    return helpIsThere;
}

double ScriptedDoors::random() { return takeNext(randoms, 0.5); }

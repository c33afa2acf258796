#include "platform/desktop/DesktopDoors.h"

#include <map>

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QMessageBox>
#include <QPointer>
#include <QPrinter>
#include <QPushButton>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QScreen>

#include "platform/controls/Guarded.h"
#include "platform/core/Files.h"
#include "platform/core/RuntimeFailure.h"
#include "platform/core/SettingsStore.h"
#include "platform/desktop/HelpViewer.h"
#include "platform/desktop/PaintedPages.h"
#include "platform/desktop/Paper.h"
#include "platform/desktop/Preview.h"

namespace {

/// After a box has closed, activates the window that was active before; without a window manager, nobody else does.
/// Replaces the hourglass while the box is open, because the program is waiting for the keeper.
class ActivityKeeper
{
public:
    ActivityKeeper() : m_window(QApplication::activeWindow()), m_waits(QApplication::overrideCursor() != nullptr)
    {
        if (m_waits)
            QApplication::setOverrideCursor(Qt::ArrowCursor);
    }
    ~ActivityKeeper()
    {
        if (m_waits)
            QApplication::restoreOverrideCursor();
        if (m_window && m_window->isVisible())
            m_window->activateWindow();
    }
    /// Null if the window is not on the screen: a window that was just hidden may still be the active one.
    QWidget *window() const { return m_window && m_window->isVisible() ? m_window.data() : nullptr; }

private:
    QPointer<QWidget> m_window;
    const bool m_waits;
};

QMessageBox::Icon iconOf(int icon)
{
    switch (icon) {
    case vbCritical: return QMessageBox::Critical;
    case vbQuestion: return QMessageBox::Question;
    case vbExclamation: return QMessageBox::Warning;
    case vbInformation: return QMessageBox::Information;
    default: return QMessageBox::NoIcon;
    }
}

constexpr int roomAroundText = 80; // for the icon and the margins of a box
constexpr int lettersInFailure = 60;

struct BoxButton
{
    int of; ///< the part of the flags that says which buttons there are
    QMessageBox::StandardButton standard;
    const char *caption; ///< used if the button is not a standard one
    QMessageBox::ButtonRole role;
    MsgBoxAnswer answer;
    bool leaves; ///< Esc and the close button of the title bar do the same as this button
};

constexpr BoxButton boxButtons[] = {
    {vbOKOnly, QMessageBox::Ok, "", QMessageBox::AcceptRole, MsgBoxAnswer::OK, true},
    {vbOKCancel, QMessageBox::Ok, "", QMessageBox::AcceptRole, MsgBoxAnswer::OK, false},
    {vbOKCancel, QMessageBox::Cancel, "", QMessageBox::RejectRole, MsgBoxAnswer::Cancel, true},
    {vbYesNoCancel, QMessageBox::Yes, "", QMessageBox::YesRole, MsgBoxAnswer::Yes, false},
    {vbYesNoCancel, QMessageBox::No, "", QMessageBox::NoRole, MsgBoxAnswer::No, false},
    {vbYesNoCancel, QMessageBox::Cancel, "", QMessageBox::RejectRole, MsgBoxAnswer::Cancel, true},
    {vbYesNo, QMessageBox::Yes, "", QMessageBox::YesRole, MsgBoxAnswer::Yes, false},
    {vbYesNo, QMessageBox::No, "", QMessageBox::NoRole, MsgBoxAnswer::No, true},
    {omkSkipDelete, QMessageBox::NoButton, "&Skip", QMessageBox::RejectRole, MsgBoxAnswer::Skip, true},
    {omkSkipDelete, QMessageBox::NoButton, "&Delete", QMessageBox::DestructiveRole, MsgBoxAnswer::Delete, false},
};

/// Gives the file in the dialog the suffix of a filter such as "Spreadsheet (*.csv)". "All files (*)" has none.
void useSuffixOf(QFileDialog &dialog, const QString &filter)
{
    static const QRegularExpression pattern(QStringLiteral("\\(\\*\\.(\\w+)\\)"));
    const QString suffix = pattern.match(filter).captured(1);
    if (suffix.isEmpty())
        return;
    const QStringList files = dialog.selectedFiles();
    dialog.setDefaultSuffix(suffix);
    if (!files.isEmpty())
        dialog.selectFile(QFileInfo(files.constFirst()).completeBaseName() + u'.' + suffix);
}

/// Makes a label of a box wide enough for its paths, which have lines of their own, and for so many letters in a line
/// if the text is as long.
void makeRoom(QMessageBox &box, const char *labelName, int letters)
{
    auto *label = box.findChild<QLabel *>(QLatin1String(labelName));
    if (!label)
        return;
    const QFontMetrics font = label->fontMetrics();
    int width = qMin(letters * font.averageCharWidth(), font.size(0, label->text()).width());
    for (const QString &line : label->text().split(u'\n'))
        if (line.startsWith(u'/'))
            width = qMax(width, font.horizontalAdvance(line) + 1);
    // The toolkit makes a box as wide as its text up to the first of these, where it begins to break lines, and for a
    // label that demands it up to the second.
    const int screen = box.screen()->size().width();
    const int breaksAt = qMin(screen / 2, 500), widest = qMin(screen - 480, 1000);
    if (!label->wordWrap() && width <= breaksAt - roomAroundText)
        return; // a demand for less than the text would cut it off
    label->setMinimumWidth(qMin(label->wordWrap() ? width : qMax(width, breaksAt), widest - roomAroundText));
}

} // namespace

DesktopDoors::DesktopDoors() : m_settings(std::make_unique<SettingsStore>(SettingsStore::userFileName())) {}
DesktopDoors::~DesktopDoors() = default;

MsgBoxAnswer DesktopDoors::msgBox(const MsgBoxRequest &request)
{
    const ActivityKeeper keeper;
    QMessageBox box(keeper.window());
    box.setIcon(iconOf(request.icon()));
    box.setWindowTitle(request.title.isEmpty() ? QStringLiteral("Ostrelmark") : request.title);
    box.setTextFormat(Qt::PlainText);
    box.setText(request.text);
    box.setDetailedText(request.details);
    makeRoom(box, "qt_msgbox_label", 0);
    std::map<const QAbstractButton *, MsgBoxAnswer> meaning;
    MsgBoxAnswer answerOfLeaving = MsgBoxAnswer::OK;
    for (const BoxButton &row : boxButtons) {
        if (row.of != request.buttons())
            continue;
        auto *button = row.standard != QMessageBox::NoButton ? box.addButton(row.standard)
                                                             : box.addButton(QLatin1String(row.caption), row.role);
        if (row.leaves) {
            box.setEscapeButton(button);
            answerOfLeaving = row.answer;
        }
        if (meaning.empty() || (meaning.size() == 1 && request.secondIsDefault()))
            box.setDefaultButton(button); // the first button, unless the second is to be the default
        meaning.emplace(button, row.answer);
    }
    box.exec();
    const auto clicked = meaning.find(box.clickedButton());
    return clicked == meaning.end() ? answerOfLeaving : clicked->second;
}

bool DesktopDoors::failureBox(const RuntimeFailure &failure, bool mayReturn)
{
    const ActivityKeeper keeper;
    QMessageBox box(keeper.window());
    box.setIcon(QMessageBox::Critical);
    box.setWindowTitle(QStringLiteral("Ostrelmark"));
    box.setTextFormat(Qt::PlainText);
    box.setText(QStringLiteral("Run-time error '%1':").arg(int(failure.number())));
    box.setInformativeText(failure.description());
    makeRoom(box, "qt_msgbox_informativelabel", lettersInFailure);
    const QPushButton *end = box.addButton(QStringLiteral("&End"), QMessageBox::DestructiveRole);
    box.setDefaultButton(const_cast<QPushButton *>(end));
    QPushButton *back = mayReturn ? box.addButton(QStringLiteral("&Return"), QMessageBox::RejectRole) : nullptr;
    if (back)
        box.setEscapeButton(back);
    box.exec();
    return !back || box.clickedButton() == end;
}

void DesktopDoors::beep() { QApplication::beep(); }

std::optional<QString> DesktopDoors::saveDialog(const SaveDialogRequest &request)
{
    const ActivityKeeper keeper;
    QFileDialog dialog(keeper.window(), request.title, {}, request.filter);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(request.defaultSuffix);
    dialog.setOption(QFileDialog::DontConfirmOverwrite, !request.askOverwrite);
    dialog.selectFile(request.fileName);
    QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog,
                     guarded([&dialog](const QString &filter) { useSuffixOf(dialog, filter); }));
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return {};
    return dialog.selectedFiles().constFirst();
}

std::optional<PrintDialogAnswer> DesktopDoors::printDialog(const PrintDialogRequest &request)
{
    return askWhere(request, PrinterFor(request));
}

std::optional<PrintDialogAnswer> DesktopDoors::askWhere(const PrintDialogRequest &request,
                                                        const std::shared_ptr<QPrinter> &printer)
{
    if (HasPrinters()) {
        const ActivityKeeper keeper;
        return AskPrinter(keeper.window(), request, printer);
    }
    const auto name = saveDialog(AskForPrintFile(QStringLiteral("No printer is set up: save in a file"), request));
    return name ? std::optional(PrintDialogAnswer{1, 0, 0, {{}, *name}}) : std::nullopt;
}

std::unique_ptr<PageSink> DesktopDoors::openPages(const PageTarget &target)
{
    if (target.fileName.isEmpty())
        return PagesOnPrinter(target.printer);
    return PagesInPdf(target.fileName, target.printer ? std::optional(target.printer->pageLayout()) : std::nullopt);
}

std::optional<PrintDialogAnswer> DesktopDoors::preview(const PreviewRequest &request)
{
    const ActivityKeeper keeper;
    return ShowPreview(keeper.window(), request,
                       [&](const std::shared_ptr<QPrinter> &printer) { return askWhere(request.printing, printer); });
}

bool DesktopDoors::showHelp(const HelpRequest &request)
{
    const QString file = QDir(DataFolder()).absoluteFilePath(QStringLiteral("ostrelmark.qch"));
    if (!QFileInfo(file).isFile())
        return false;
    if (!m_help)
        m_help = std::make_unique<HelpViewer>(file);
    m_help->open(request);
    return true;
}

QDateTime DesktopDoors::now() { return QDateTime::currentDateTime(); }

double DesktopDoors::random() { return QRandomGenerator::global()->generateDouble(); }

// The interface between the program and the outside world: message boxes, beeps, file and print dialogs, the help, the
// clock, random numbers and the settings. All of these are reached only through here, so that tests can replace the
// world with a script. DesktopDoors.h implements it for a real desktop, tests/support/ScriptedDoors.h for the tests.
#pragma once

#include <functional>
#include <memory>
#include <optional>

#include <QDateTime>
#include <QString>

class PageSink;
class QPrinter;
class RuntimeFailure;
class SettingsStore;

/// Flags of a message box: their sum gives its buttons, its icon and its default button. The numbers are the
/// traditional ones.
enum MsgBoxFlag : int {
    vbOKOnly = 0,
    vbOKCancel = 1,
    vbYesNoCancel = 3,
    vbYesNo = 4,
    omkSkipDelete = 7, ///< our own: "Skip" (the default button, which Esc presses) and "Delete"
    vbCritical = 16,
    vbQuestion = 32,
    vbExclamation = 48, ///< the warning icon
    vbInformation = 64,
    vbDefaultButton2 = 256,
};

enum class MsgBoxAnswer { OK = 1, Cancel = 2, Yes = 6, No = 7, Skip = 101, Delete = 102 };

struct MsgBoxRequest
{
    QString text;
    int flags = vbOKOnly; ///< sum of MsgBoxFlag
    QString title;
    QString details = {}; ///< a longer text that is shown on demand; empty for none
    int buttons() const { return flags & 15; }
    int icon() const { return flags & 0x70; }
    bool secondIsDefault() const { return (flags & vbDefaultButton2) != 0; }
};

struct SaveDialogRequest
{
    QString title;
    QString fileName;      ///< the name that the dialog offers; may be a path
    QString filter;        ///< such as "Database files (*.MDB);;All files (*)"
    QString defaultSuffix; ///< without the dot
    bool askOverwrite = true;
};

struct PrintDialogRequest
{
    QString title;
    bool landscape = false;
    QString documentName;           ///< offered as the name of a file if there is no printer
    bool offersSpreadsheet = false; ///< besides a PDF, if a file is asked for
};

/// The request for a dialog that asks in which file a printout is to be saved.
SaveDialogRequest AskForPrintFile(const QString &title, const PrintDialogRequest &request);

/// Where printed pages go: to a PDF if there is a file name, otherwise to a printer.
struct PageTarget
{
    std::shared_ptr<QPrinter> printer; ///< as the dialog has set it up; null means the default printer
    QString fileName;                  ///< the file has the paper and orientation of `printer`, if there is one
    bool keepsOrientation = false;     ///< keeps the orientation of the preview, whatever the report itself sets
};

struct PrintDialogAnswer
{
    int copies = 1;
    int fromPage = 0; ///< 0: all pages
    int toPage = 0;
    PageTarget target = {};
};

struct PreviewRequest
{
    PrintDialogRequest printing; ///< used if the keeper prints from the preview
    /// Prints the whole document; may be called again and again.
    std::function<void(PageSink &)> print;
};

struct HelpRequest
{
    enum class At { Contents, Search, Window };
    At at = At::Contents;
    QString window = {}; ///< objectName of the window whose page is wanted; one without a page gets the contents
};

class Doors
{
public:
    virtual ~Doors() = default;
    virtual MsgBoxAnswer msgBox(const MsgBoxRequest &request) = 0;
    /// Shows the box of a failure. Returns true for its button "End" and false for "Return". If `mayReturn` is false,
    /// as at start-up, "End" is the only button.
    virtual bool failureBox(const RuntimeFailure &failure, bool mayReturn) = 0;
    virtual void beep() = 0;
    /// Returns the absolute path of the chosen file, or nothing if the dialog was cancelled.
    virtual std::optional<QString> saveDialog(const SaveDialogRequest &request) = 0;
    virtual std::optional<PrintDialogAnswer> printDialog(const PrintDialogRequest &request) = 0;
    /// Opens pages to print on. A PDF file appears only when its document has ended, and is complete then.
    virtual std::unique_ptr<PageSink> openPages(const PageTarget &target) = 0;
    /// Shows a document on the screen and waits until the keeper closes it. The pages have the requested orientation
    /// until the keeper changes it. Returns an answer if the document is to be printed.
    virtual std::optional<PrintDialogAnswer> preview(const PreviewRequest &request) = 0;
    /// Opens the help beside the window in front and does not wait. Returns false if there is no help file; throws
    /// RuntimeFailure if it cannot be shown.
    virtual bool showHelp(const HelpRequest &request) = 0;
    virtual QDateTime now() = 0;
    /// A random number from 0 up to but not including 1.
    virtual double random() = 0;
    virtual SettingsStore &settings() = 0;

    /// The doors in use. Calling this before install() is a programming error and aborts the program.
    static Doors &current();
    /// Makes these the doors in use and returns the former ones (null at first). The caller keeps ownership.
    static Doors *install(Doors *doors);
};

/// Shows a message box and waits for its answer. The text is shown as plain text.
MsgBoxAnswer MsgBox(const QString &text, int flags = vbOKOnly, const QString &title = {}, const QString &details = {});
void Beep();
QDateTime Now();
/// Reads a setting of section SETTINGS; returns the default if it is not set.
QString GetSetting(const QString &key, const QString &defaultValue);
/// Writes a setting to the file at once. Throws RuntimeFailure if it cannot be written.
void SaveSetting(const QString &key, const QString &value);

// The doors through which the program meets the world: boxes, beeps, file and print dialogs, the help, the clock,
// random numbers and the settings. Everything outside goes through here and nowhere else, so that a test can put a
// script in the place of the world. The desktop's own doors are in DesktopDoors.h; those of the tests in
// tests/support/ScriptedDoors.h.
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

/// Buttons and icon of a message box, added up; the numbers are the traditional ones.
enum MsgBoxFlag : int {
    vbOKOnly = 0,
    vbOKCancel = 1,
    vbYesNoCancel = 3,
    vbYesNo = 4,
    omkSkipDelete = 7, ///< ours: "Skip", the default and what Esc does, and "Delete"
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
    QString details = {}; ///< a long list, shown on demand; empty for none
    int buttons() const { return flags & 15; }
    int icon() const { return flags & 0x70; }
    bool secondIsDefault() const { return (flags & vbDefaultButton2) != 0; }
};

struct SaveDialogRequest
{
    QString title;
    QString fileName;      ///< offered name, may be a path
    QString filter;        ///< as "Database files (*.MDB);;All files (*)"
    QString defaultSuffix; ///< without the dot
    bool askOverwrite = true;
};

/// The dialog that names a PDF.
SaveDialogRequest AskForPdf(const QString &title, const QString &documentName);

struct PrintDialogRequest
{
    QString title;
    bool landscape = false;
    QString documentName; ///< offered as the name of a PDF where there is no printer
};

/// Where printed pages go: to a printer, or to a PDF where a file name is given.
struct PageTarget
{
    std::shared_ptr<QPrinter> printer; ///< as the dialog left it; null: the one that is the default
    QString pdfFileName;               ///< its pages lie as those of the printer, where there is one
    bool keepsOrientation = false;     ///< the keeper saw in a preview how the pages lie, and so they are printed
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
    PrintDialogRequest printing; ///< what the preview shows, and is asked where the keeper prints it from there
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
    /// The box of a failure; true for its button "End", false for "Return". At start-up "End" is the only button.
    virtual bool failureBox(const RuntimeFailure &failure, bool mayReturn) = 0;
    virtual void beep() = 0;
    /// Absolute path of the file chosen, or nothing if the dialog was cancelled.
    virtual std::optional<QString> saveDialog(const SaveDialogRequest &request) = 0;
    virtual std::optional<PrintDialogAnswer> printDialog(const PrintDialogRequest &request) = 0;
    /// Pages to print on. A PDF is complete when its document has ended, or not there at all.
    virtual std::unique_ptr<PageSink> openPages(const PageTarget &target) = 0;
    /// Shows a document on the screen, its pages as the request says until the keeper turns them, and waits until it is
    /// closed. An answer where the keeper then wants it printed.
    virtual std::optional<PrintDialogAnswer> preview(const PreviewRequest &request) = 0;
    /// Opens the help beside whatever is in front, and does not wait. False where there is no help file; throws
    /// RuntimeFailure where it cannot be shown.
    virtual bool showHelp(const HelpRequest &request) = 0;
    virtual QDateTime now() = 0;
    /// A random number from 0 up to, and without, 1.
    virtual double random() = 0;
    virtual SettingsStore &settings() = 0;

    /// The doors in use. There are none before install() was called: a call then is a programming fault and aborts.
    static Doors &current();
    /// Puts doors in place, owned by the caller, and returns those that were there (null at first).
    static Doors *install(Doors *doors);
};

/// Shows a message box and waits for its answer. The text is shown as plain text.
MsgBoxAnswer MsgBox(const QString &text, int flags = vbOKOnly, const QString &title = {}, const QString &details = {});
void Beep();
QDateTime Now();
/// Reads a setting of section SETTINGS; the default comes back where there is none.
QString GetSetting(const QString &key, const QString &defaultValue);
/// Writes a setting at once; throws RuntimeFailure where the store cannot be written.
void SaveSetting(const QString &key, const QString &value);

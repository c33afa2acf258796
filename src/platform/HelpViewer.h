// The window of the help: contents, index and search beside the page. One for the whole program, held by the desktop's
// doors; it belongs to no window, and where a dialog is open it stands over that dialog, so that both can be used. The
// help file is read only; what Qt Help must write (its collection and search index) is made afresh in a temporary
// folder each time and goes with the viewer, so that nothing of another version or of another user is ever met.
#pragma once

#include <memory>

#include <QTemporaryDir>
#include <QWidget>

class QHelpEngine;
class QLineEdit;
class QTabWidget;
class QTextBrowser;
struct HelpRequest;

class HelpViewer : public QWidget
{
    Q_OBJECT
public:
    /// Throws RuntimeFailure where the file is no help file, or where there is no room for the index.
    explicit HelpViewer(const QString &helpFile);
    ~HelpViewer() override;

    /// Shows itself at what is asked for, in front.
    void open(const HelpRequest &request);
    /// Lists the pages that hold all these words, as soon as they have been gathered.
    void searchFor(const QString &words);
    /// How many pages the last search found.
    int hits() const;

signals:
    void searched();

protected:
    bool event(QEvent *event) override;
    bool eventFilter(QObject *dialog, QEvent *event) override;

private:
    void makePage();
    void makeTabs();
    QWidget *makeIndexTab();
    QWidget *makeSearchTab();
    void arrange();
    void showPage(const QUrl &url);
    /// The way to the page, in the contents.
    void markInContents();
    /// A dialog blocks every window but those that stand over it.
    void standOverDialog();
    void dialogsChanged();

    QTemporaryDir m_folder;
    std::unique_ptr<QHelpEngine> m_engine; ///< goes before the window does, and takes its lists out of it
    QTextBrowser *m_page = nullptr;
    QTabWidget *m_tabs = nullptr;
    QLineEdit *m_searchBox = nullptr;
    QString m_waiting; ///< words looked for before the index was ready
    bool m_isIndexed = false;
    bool m_isMarking = false; ///< the contents follow the page, and not the page the contents
};

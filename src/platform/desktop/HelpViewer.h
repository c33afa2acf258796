// The help window: contents, index and search beside the page. There is one for the whole program, owned by its doors.
// It has no parent window, but while a dialog is open it is made transient for that dialog, so that both can be used.
// The help file is only read. The files that Qt Help must write (its collection and search index) are made anew in a
// temporary folder and removed with the viewer, so that files of another version or another user are never used.
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
    /// Throws RuntimeFailure if the file is not a help file or the temporary folder cannot be made.
    explicit HelpViewer(const QString &helpFile);
    ~HelpViewer() override;

    /// Shows the window in front, with what was requested.
    void open(const HelpRequest &request);
    /// Lists the pages that contain all these words, as soon as the search index is ready.
    void searchFor(const QString &words);

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
    /// Selects the entry of the current page in the contents.
    void markInContents();
    /// Makes the window transient for the open dialog, because a dialog blocks all other windows.
    void standOverDialog();
    void dialogsChanged();

    QTemporaryDir m_folder;
    std::unique_ptr<QHelpEngine> m_engine; ///< destroyed before the window's children; removes its own lists from them
    QTextBrowser *m_page = nullptr;
    QTabWidget *m_tabs = nullptr;
    QLineEdit *m_searchBox = nullptr;
    QString m_waiting; ///< words to search for when the index is ready
    bool m_isIndexed = false;
    bool m_isMarking = false; ///< the contents follow the page, so the page must not follow them
};

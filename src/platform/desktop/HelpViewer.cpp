#include "platform/desktop/HelpViewer.h"

#include <QAction>
#include <QApplication>
#include <QHelpContentWidget>
#include <QHelpEngine>
#include <QHelpIndexWidget>
#include <QHelpLink>
#include <QHelpSearchEngine>
#include <QHelpSearchResultWidget>
#include <QLineEdit>
#include <QScopedValueRollback>
#include <QShortcut>
#include <QSplitter>
#include <QTabWidget>
#include <QTextBrowser>
#include <QToolBar>
#include <QVBoxLayout>
#include <QWindow>

#include "platform/controls/Guarded.h"
#include "platform/controls/WindowSize.h"
#include "platform/core/Doors.h"
#include "platform/core/RuntimeFailure.h"

namespace {

const QUrl firstPage(QStringLiteral("qthelp://ostrelmark.help/doc/index.html"));

enum Tab { ContentsTab, IndexTab, SearchTab };

/// Loads pages, styles and pictures from the help file only.
class HelpPage : public QTextBrowser
{
public:
    explicit HelpPage(const QHelpEngine &engine) : m_engine(engine) {}

protected:
    QVariant loadResource(int, const QUrl &name) override
    {
        const QUrl url = firstPage.resolved(name); // all pages are in one folder
        return url.scheme() == u"qthelp" ? QVariant(m_engine.fileData(url)) : QVariant();
    }

private:
    const QHelpEngine &m_engine;
};

std::unique_ptr<QHelpEngine> openHelp(const QString &helpFile, const QTemporaryDir &folder)
{
    auto engine = std::make_unique<QHelpEngine>(folder.filePath(QStringLiteral("ostrelmark.qhc")));
    engine->setReadOnly(false);
    if (!folder.isValid() || !engine->setupData())
        throw RuntimeFailure(
            Failure::PermissionDenied,
            QStringLiteral("The help needs a temporary folder for its index, and could not make one."));
    if (!engine->registerDocumentation(helpFile))
        throw RuntimeFailure(Failure::UnrecognizedFormat,
                             QStringLiteral("The help file \"%1\" cannot be read.").arg(helpFile));
    return engine;
}

} // namespace

HelpViewer::HelpViewer(const QString &helpFile) : m_engine(openHelp(helpFile, m_folder))
{
    setObjectName(QStringLiteral("HelpViewer"));
    setWindowTitle(QStringLiteral("Ostrelmark Help"));
    setAttribute(Qt::WA_QuitOnClose, false); // the program ends with its main window
    makePage();
    makeTabs();
    arrange();
    QHelpSearchEngine &search = *m_engine->searchEngine();
    on(&search, &QHelpSearchEngine::searchingFinished, this, &HelpViewer::searched);
    connect(&search, &QHelpSearchEngine::indexingFinished, this, guarded([this] {
        m_isIndexed = true;
        if (!m_waiting.isEmpty())
            searchFor(std::exchange(m_waiting, {}));
    }));
    search.scheduleIndexDocumentation();
}

HelpViewer::~HelpViewer() = default;

void HelpViewer::makePage()
{
    m_page = new HelpPage(*m_engine);
    m_page->setObjectName(QStringLiteral("page"));
    m_page->setAccessibleName(QStringLiteral("Page"));
    m_page->setOpenExternalLinks(false);
    QFont letters = m_page->font();
    letters.setPointSizeF(letters.pointSizeF() * 1.1);
    m_page->setFont(letters);
    m_page->document()->setDocumentMargin(14);
    // Queued, because the browser emits this before its own source() is the new page.
    connect(m_page, &QTextBrowser::sourceChanged, this, guarded([this] { markInContents(); }), Qt::QueuedConnection);
}

void HelpViewer::makeTabs()
{
    QHelpContentWidget *contents = m_engine->contentWidget();
    contents->setObjectName(QStringLiteral("contents"));
    contents->setAccessibleName(QStringLiteral("Contents"));
    connect(contents->selectionModel(), &QItemSelectionModel::currentChanged, this,
            guarded([this](const QModelIndex &entry) {
                const QHelpContentItem *item = m_engine->contentModel()->contentItemAt(entry);
                if (item && !m_isMarking)
                    showPage(item->url());
            }));
    connect(m_engine->contentModel(), &QHelpContentModel::contentsCreated, this, guarded([this, contents] {
                contents->expandAll();
                markInContents();
            }));
    m_tabs = new QTabWidget;
    m_tabs->setObjectName(QStringLiteral("tabs"));
    m_tabs->addTab(contents, QStringLiteral("&Contents"));
    m_tabs->addTab(makeIndexTab(), QStringLiteral("&Index"));
    m_tabs->addTab(makeSearchTab(), QStringLiteral("&Search"));
}

QWidget *HelpViewer::makeIndexTab()
{
    auto *box = new QLineEdit;
    box->setPlaceholderText(QStringLiteral("Part of a keyword"));
    box->setAccessibleName(QStringLiteral("Keyword"));
    box->setClearButtonEnabled(true);
    QHelpIndexWidget *index = m_engine->indexWidget();
    index->setAccessibleName(QStringLiteral("Keywords"));
    connect(box, &QLineEdit::textChanged, this, guarded([index](const QString &text) { index->filterIndices(text); }));
    connect(box, &QLineEdit::returnPressed, this, guarded([index] { index->activateCurrentItem(); }));
    connect(index, &QListView::clicked, this, guarded([index] { index->activateCurrentItem(); }));
    connect(index, &QHelpIndexWidget::documentActivated, this,
            guarded([this](const QHelpLink &link) { showPage(link.url); }));
    auto *tab = new QWidget;
    auto *column = new QVBoxLayout(tab);
    column->addWidget(box);
    column->addWidget(index, 1);
    return tab;
}

QWidget *HelpViewer::makeSearchTab()
{
    m_searchBox = new QLineEdit;
    m_searchBox->setObjectName(QStringLiteral("search"));
    m_searchBox->setPlaceholderText(QStringLiteral("Words to look for, then Enter"));
    m_searchBox->setAccessibleName(QStringLiteral("Words to look for"));
    m_searchBox->setClearButtonEnabled(true);
    QHelpSearchResultWidget *results = m_engine->searchEngine()->resultWidget();
    connect(m_searchBox, &QLineEdit::returnPressed, this, guarded([this] { searchFor(m_searchBox->text()); }));
    connect(results, &QHelpSearchResultWidget::requestShowLink, this,
            guarded([this](const QUrl &url) { showPage(url); }));
    auto *tab = new QWidget;
    auto *column = new QVBoxLayout(tab);
    column->addWidget(m_searchBox);
    column->addWidget(results, 1);
    return tab;
}

void HelpViewer::arrange()
{
    auto *bar = new QToolBar;
    const auto add = [bar](const char *name, const QString &caption, const QKeySequence &key) {
        auto *action = bar->addAction(caption);
        action->setObjectName(QLatin1String(name));
        action->setShortcut(key);
        return action;
    };
    QAction *back = add("back", QStringLiteral("< Back"), QKeySequence::Back);
    QAction *forward = add("forward", QStringLiteral("Forward >"), QKeySequence::Forward);
    QAction *first = add("first", QStringLiteral("First page"), Qt::ALT | Qt::Key_Home);
    on(back, &QAction::triggered, m_page, &QTextBrowser::backward);
    on(forward, &QAction::triggered, m_page, &QTextBrowser::forward);
    connect(first, &QAction::triggered, this, guarded([this] { showPage(firstPage); }));
    for (const auto &[action, changed] :
         {std::pair{back, &QTextBrowser::backwardAvailable}, {forward, &QTextBrowser::forwardAvailable}}) {
        action->setEnabled(false);
        connect(m_page, changed, action, &QAction::setEnabled);
    }
    on(new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, this, &QWidget::hide);

    auto *splitter = new QSplitter;
    splitter->addWidget(m_tabs);
    splitter->addWidget(m_page);
    splitter->setChildrenCollapsible(false);
    splitter->setStretchFactor(1, 1);
    splitter->setSizes({qRound(270 * FontScale(font())), qRound(690 * FontScale(font()))});
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(6, 2, 6, 6);
    column->addWidget(bar);
    column->addWidget(splitter, 1);
    resize(960, 680);
    FitToScreen(*this);
}

void HelpViewer::open(const HelpRequest &request)
{
    if (request.at == HelpRequest::At::Window) {
        const QList<QHelpLink> pages = m_engine->documentsForIdentifier(request.window);
        showPage(pages.isEmpty() ? firstPage : pages.constFirst().url);
    } else if (request.at == HelpRequest::At::Contents || m_page->source().isEmpty()) {
        showPage(firstPage);
    }
    m_tabs->setCurrentIndex(request.at == HelpRequest::At::Search ? SearchTab : ContentsTab);
    standOverDialog();
    isMinimized() ? showNormal() : show();
    raise();
    activateWindow();
    if (request.at == HelpRequest::At::Search) {
        m_searchBox->setFocus();
        m_searchBox->selectAll();
    } else {
        m_page->setFocus();
    }
}

void HelpViewer::searchFor(const QString &words)
{
    m_searchBox->setText(words);
    if (m_isIndexed)
        m_engine->searchEngine()->search(words);
    else
        m_waiting = words;
}

void HelpViewer::showPage(const QUrl &url)
{
    if (m_page->source() != url)
        m_page->setSource(url);
}

void HelpViewer::markInContents()
{
    QHelpContentWidget *contents = m_engine->contentWidget();
    const QHelpContentItem *present = m_engine->contentModel()->contentItemAt(contents->currentIndex());
    if (present && present->url().path() == m_page->source().path())
        return; // several entries may lead to the page; the chosen one stays selected
    const QModelIndex entry = contents->indexOf(m_page->source());
    // An entry leads to the top of its page, but the page may be shown further down and must not move.
    const QScopedValueRollback marking(m_isMarking, true);
    if (entry.isValid())
        contents->setCurrentIndex(entry);
}

void HelpViewer::standOverDialog()
{
    winId(); // otherwise windowHandle() may still be null
    QWidget *dialog = QApplication::activeModalWidget();
    windowHandle()->setTransientParent(dialog ? dialog->window()->windowHandle() : nullptr);
    if (dialog)
        dialog->installEventFilter(this);
}

/// Queued, because Qt is still informing its windows about the dialog that opened or closed.
void HelpViewer::dialogsChanged()
{
    QMetaObject::invokeMethod(this, guarded([this] { standOverDialog(); }), Qt::QueuedConnection);
}

bool HelpViewer::event(QEvent *event)
{
    if (event->type() == QEvent::WindowBlocked) // a dialog opened while the help was open
        dialogsChanged();
    return QWidget::event(event);
}

bool HelpViewer::eventFilter(QObject *, QEvent *event)
{
    if (event->type() == QEvent::Hide) // the dialog was closed; another one may still be open
        dialogsChanged();
    return false;
}

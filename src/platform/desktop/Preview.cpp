#include "platform/desktop/Preview.h"

#include <cmath>

#include <QAction>
#include <QActionGroup>
#include <QComboBox>
#include <QCoreApplication>
#include <QDialog>
#include <QElapsedTimer>
#include <QLabel>
#include <QLineEdit>
#include <QPageSetupDialog>
#include <QPainter>
#include <QPrinter>
#include <QScopedValueRollback>
#include <QSpinBox>
#include <QToolBar>
#include <QVBoxLayout>

#include "platform/controls/Guarded.h"
#include "platform/controls/HourGlass.h"
#include "platform/controls/Icons.h"
#include "platform/core/PageSpool.h"
#include "platform/core/RuntimeFailure.h"
#include "platform/desktop/PageView.h"
#include "platform/desktop/Paper.h"
#include "platform/desktop/ScreenPage.h"

namespace {

constexpr qint64 milliseconds = 40; // between two looks at what the keeper does
constexpr double zoomStep = 1.25;
constexpr int zooms[] = {25, 50, 75, 100, 125, 150, 200, 400, 800};

/// Thrown to stop a report whose pages are no longer needed.
struct NoLongerWanted
{
};

/// Calls a function after each complete page.
class GrowingDocument : public PageSpool
{
public:
    GrowingDocument(PageSink &paper, std::function<void()> grown) : PageSpool(paper, true), m_grown(std::move(grown)) {}
    void newPage() override
    {
        PageSpool::newPage();
        m_grown();
    }
    void endDocument() override
    {
        PageSpool::endDocument();
        m_grown();
    }

private:
    std::function<void()> m_grown;
};

class Preview : public QDialog
{
public:
    Preview(QWidget *parent, const PreviewRequest &request, const AskWhere &where);

    std::optional<PrintDialogAnswer> ask();
    void done(int result) override
    {
        m_closed = true;
        QDialog::done(result);
    }

private:
    using Command = void (Preview::*)();
    struct Tool
    {
        const char *image; ///< empty for a gap in the toolbar
        const char *text;
        const char *keys;
        Command run;
        bool isChoice; ///< one of a group that is checked; a gap ends the group
    };
    static const Tool tools[];

    void addTools(QToolBar &bar);
    void addBoxes(QToolBar &bar, QAction *pageBefore, QAction *zoomBefore);
    void makePages();
    void grown();
    void paintPage(QPainter &painter, int page, const QRectF &place);
    void fail(const RuntimeFailure &failure);
    void showPlace();

    void turn(QPageLayout::Orientation orientation);
    void portrait() { turn(QPageLayout::Portrait); }
    void landscape() { turn(QPageLayout::Landscape); }
    void fitWidth() { m_view->setFit(PageView::Fit::Width); }
    void fitPage() { m_view->setFit(PageView::Fit::Page); }
    void zoomIn() { m_view->zoomTo(m_view->zoom() * zoomStep); }
    void zoomOut() { m_view->zoomTo(m_view->zoom() / zoomStep); }
    void firstPage() { m_view->goTo(1); }
    void previousPage() { m_view->goTo(m_view->page() - 1); }
    void nextPage() { m_view->goTo(m_view->page() + 1); }
    void lastPage() { m_view->goTo(m_view->pages()); }
    void single() { m_view->arrange(PageView::Arrangement::Single); }
    void facing() { m_view->arrange(PageView::Arrangement::Facing); }
    void overview() { m_view->arrange(PageView::Arrangement::Overview); }
    void setUpPage();
    void print();
    QAction *action(Command run) const { return m_actions.at(std::size_t(indexOf(run))); }
    static int indexOf(Command run);

    const PreviewRequest &m_request;
    const AskWhere &m_where;
    std::shared_ptr<QPrinter> m_printer;
    QPageLayout m_layout; ///< of the pages that are shown
    std::unique_ptr<PageSink> m_paper;
    std::unique_ptr<PageSpool> m_document;
    PageView *m_view;
    std::vector<QAction *> m_actions; ///< in the order of `tools`
    QSpinBox *m_page = nullptr;
    QLabel *m_pages = nullptr;
    QComboBox *m_zoom = nullptr;
    QElapsedTimer m_sinceLooked;
    bool m_making = false;
    bool m_again = false;
    bool m_closed = false;
    std::optional<PrintDialogAnswer> m_answer;
    std::optional<RuntimeFailure> m_failure;
};

const Preview::Tool Preview::tools[] = {
    {"fitwidth", "Fit width", "", &Preview::fitWidth, true},
    {"fitpage", "Fit page", "", &Preview::fitPage, true},
    {"", "", "", nullptr, false},
    {"zoomout", "Zoom out", "Ctrl+-", &Preview::zoomOut, false},
    {"zoomin", "Zoom in", "Ctrl++", &Preview::zoomIn, false},
    {"", "", "", nullptr, false},
    {"portrait", "Portrait", "", &Preview::portrait, true},
    {"landscape", "Landscape", "", &Preview::landscape, true},
    {"", "", "", nullptr, false},
    {"firstpage", "First page", "Ctrl+Home", &Preview::firstPage, false},
    {"previouspage", "Previous page", "Ctrl+PgUp", &Preview::previousPage, false},
    {"nextpage", "Next page", "Ctrl+PgDown", &Preview::nextPage, false},
    {"lastpage", "Last page", "Ctrl+End", &Preview::lastPage, false},
    {"", "", "", nullptr, false},
    {"singlepage", "Show single page", "", &Preview::single, true},
    {"facingpages", "Show facing pages", "", &Preview::facing, true},
    {"overview", "Show overview of all pages", "", &Preview::overview, true},
    {"", "", "", nullptr, false},
    {"pagesetup", "Page setup", "", &Preview::setUpPage, false},
    {"printentries", "Print", "Ctrl+P", &Preview::print, false},
};

int Preview::indexOf(Command run)
{
    return int(std::find_if(std::begin(tools), std::end(tools), [run](const Tool &tool) { return tool.run == run; }) -
               std::begin(tools));
}

Preview::Preview(QWidget *parent, const PreviewRequest &request, const AskWhere &where) :
    QDialog(parent), m_request(request), m_where(where), m_printer(PrinterFor(request.printing)),
    m_view(new PageView([this](QPainter &painter, int page, const QRectF &place) { paintPage(painter, page, place); }))
{
    setWindowTitle(request.printing.documentName);
    m_view->setObjectName(QStringLiteral("pages"));
    m_view->setAccessibleName(QStringLiteral("Pages"));
    auto *bar = new QToolBar;
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->setSpacing(0);
    column->addWidget(bar);
    column->addWidget(m_view);
    addTools(*bar);
    addBoxes(*bar, action(&Preview::nextPage), action(&Preview::zoomIn));
    action(&Preview::single)->setChecked(true);
    action(request.printing.landscape ? &Preview::landscape : &Preview::portrait)->setChecked(true);
    connect(m_view, &PageView::moved, this, &Preview::showPlace);
    resize(900, 700);
    m_view->setFocus();
}

void Preview::addTools(QToolBar &bar)
{
    QActionGroup *group = nullptr;
    for (const Tool &tool : tools) {
        if (!tool.run) {
            m_actions.push_back(bar.addSeparator());
            group = nullptr;
            continue;
        }
        const QString text = QLatin1String(tool.text);
        auto *action = bar.addAction(text);
        action->setIcon(Icon(tool.image));
        action->setShortcut(QKeySequence(QLatin1String(tool.keys)));
        if (tool.isChoice) {
            group = group ? group : new QActionGroup(this);
            action->setActionGroup(group);
            action->setCheckable(true);
        }
        on(action, &QAction::triggered, this, tool.run);
        m_actions.push_back(action);
    }
    // A zoom of the keeper's own fits neither the width nor the page.
    action(&Preview::fitWidth)->actionGroup()->setExclusionPolicy(QActionGroup::ExclusionPolicy::ExclusiveOptional);
}

void Preview::addBoxes(QToolBar &bar, QAction *pageBefore, QAction *zoomBefore)
{
    m_page = new QSpinBox;
    m_page->setObjectName(QStringLiteral("page"));
    m_page->setAccessibleName(QStringLiteral("Page"));
    m_page->setButtonSymbols(QAbstractSpinBox::NoButtons);
    m_page->setKeyboardTracking(false);
    m_pages = new QLabel;
    m_pages->setObjectName(QStringLiteral("pageCount"));
    m_pages->setMinimumWidth(m_pages->fontMetrics().horizontalAdvance(QStringLiteral(" of 0000... ")));
    bar.insertWidget(pageBefore, m_page);
    bar.insertWidget(pageBefore, m_pages);
    connect(m_page, &QSpinBox::valueChanged, this, [this](int page) { m_view->goTo(page); });

    m_zoom = new QComboBox;
    m_zoom->setObjectName(QStringLiteral("zoom"));
    m_zoom->setAccessibleName(QStringLiteral("Zoom"));
    m_zoom->setEditable(true);
    m_zoom->setInsertPolicy(QComboBox::NoInsert);
    for (const int zoom : zooms)
        m_zoom->addItem(QStringLiteral("%1%").arg(zoom));
    bar.insertWidget(zoomBefore, m_zoom);
    const auto zoomToText = [this] {
        const double percent = m_zoom->currentText().remove(u'%').toDouble();
        if (percent > 0)
            m_view->zoomTo(percent / 100);
        showPlace(); // puts an unreadable text back
    };
    connect(m_zoom, &QComboBox::activated, this, zoomToText);
    connect(m_zoom->lineEdit(), &QLineEdit::editingFinished, this, [this, zoomToText] {
        if (m_zoom->lineEdit()->isModified())
            zoomToText();
    });
}

void Preview::showPlace()
{
    m_pages->setText(QStringLiteral(" of %1%2 ").arg(m_view->pages()).arg(QLatin1String(m_making ? "..." : "")));
    const QSignalBlocker quiet(m_page);
    if (!m_page->hasFocus() || m_view->page() != m_page->value()) {
        m_page->setRange(1, qMax(1, m_view->pages()));
        m_page->setValue(m_view->page());
    }
    if (!m_zoom->lineEdit()->isModified() || !m_zoom->hasFocus())
        m_zoom->setEditText(QStringLiteral("%1%").arg(std::lround(m_view->zoom() * 100)));
    action(&Preview::fitWidth)->setChecked(m_view->fit() == PageView::Fit::Width);
    action(&Preview::fitPage)->setChecked(m_view->fit() == PageView::Fit::Page);
    for (const Command back : {&Preview::firstPage, &Preview::previousPage})
        action(back)->setEnabled(m_view->page() > 1);
    for (const Command onward : {&Preview::nextPage, &Preview::lastPage})
        action(onward)->setEnabled(m_view->page() < m_view->pages());
}

std::optional<PrintDialogAnswer> Preview::ask()
{
    QMetaObject::invokeMethod(
        this, [this] { makePages(); }, Qt::QueuedConnection); // when the window is there
    exec();
    if (m_failure)
        throw RuntimeFailure(*m_failure);
    return m_answer;
}

void Preview::makePages()
{
    m_again = true;
    if (m_making)
        return; // the report that is being made stops at its next page
    while (m_again && !m_closed) {
        m_again = false;
        const HourGlass working(Qt::BusyCursor);
        const QScopedValueRollback making(m_making, true);
        m_paper = PagesOnPrinter(m_printer);
        m_layout = m_printer->pageLayout();
        m_document = std::make_unique<GrowingDocument>(*m_paper, [this] { grown(); });
        m_view->setPaper(m_layout.fullRect(QPageLayout::Point).size());
        m_sinceLooked.invalidate();
        try {
            m_request.print(*m_document);
        } catch (const NoLongerWanted &) {
            continue;
        } catch (const RuntimeFailure &failure) {
            fail(failure);
        }
    }
    m_view->setPages(m_document->pages());
}

/// Shows the new page and lets the keeper use the preview, a few times a second.
void Preview::grown()
{
    if (!m_sinceLooked.isValid() || m_sinceLooked.elapsed() >= milliseconds) {
        m_view->setPages(m_document->pages());
        QCoreApplication::processEvents();
        m_sinceLooked.restart();
    }
    if (m_again || m_closed)
        throw NoLongerWanted();
}

void Preview::paintPage(QPainter &painter, int page, const QRectF &place)
{
    const QRect paper = m_layout.fullRectPixels(m_printer->resolution());
    painter.translate(place.topLeft());
    painter.scale(place.width() / paper.width(), place.height() / paper.height());
    painter.translate(m_layout.paintRectPixels(m_printer->resolution()).topLeft());
    ScreenPage on(painter, m_printer->resolution());
    try {
        m_document->draw(page, on);
    } catch (const RuntimeFailure &failure) {
        fail(failure);
    }
}

/// Closes the preview, after the painting that is going on.
void Preview::fail(const RuntimeFailure &failure)
{
    m_failure = failure;
    QMetaObject::invokeMethod(
        this, [this] { reject(); }, Qt::QueuedConnection);
}

void Preview::turn(QPageLayout::Orientation orientation)
{
    if (m_printer->pageLayout().orientation() == orientation)
        return;
    m_printer->setPageOrientation(orientation);
    makePages();
}

void Preview::setUpPage()
{
    QPageSetupDialog dialog(m_printer.get(), this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    const bool landscape = m_printer->pageLayout().orientation() == QPageLayout::Landscape;
    action(landscape ? &Preview::landscape : &Preview::portrait)->setChecked(true);
    makePages();
}

void Preview::print()
{
    m_answer = m_where(m_printer);
    if (!m_answer)
        return;
    m_answer->target.printer = m_printer;
    m_answer->target.keepsOrientation = true;
    accept();
}

} // namespace

std::optional<PrintDialogAnswer> ShowPreview(QWidget *parent, const PreviewRequest &request, const AskWhere &where)
{
    return Preview(parent, request, where).ask();
}

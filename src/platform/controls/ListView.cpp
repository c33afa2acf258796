#include "platform/controls/ListView.h"

#include <algorithm>
#include <set>
#include <utility>

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QRegularExpression>
#include <QScrollBar>
#include <QStyle>
#include <QStyledItemDelegate>
#include <QTextDocument>
#include <QToolTip>

#include "platform/controls/ListKeys.h"
#include "platform/controls/ListModel.h"
#include "platform/controls/Style.h"
#include "platform/controls/WindowSize.h"
#include "platform/core/RuntimeFailure.h"

namespace {

QString onOneLine(QString text)
{
    text.replace(QLatin1String("\r\n"), QLatin1String(" "));
    text.replace(u'\n', u' ');
    text.replace(u'\r', u' ');
    return text;
}

} // namespace

/// Draws a cell as part of its row: one line of text without a focus rectangle. The tool tip shows the whole text if it
/// is cut off, otherwise that of the list.
class ListView::RowDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QString displayText(const QVariant &value, const QLocale &) const override { return onOneLine(value.toString()); }

    /// Paints a background and one line of text. The style would be slower: it would lay the text out as a paragraph
    /// (twice if it is cut off) and look for an icon, a check box and a frame.
    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        QStyleOptionViewItem cell = option;
        initStyleOption(&cell, index);
        const QStyle &style = *cell.widget->style();
        style.drawPrimitive(QStyle::PE_PanelItemViewItem, &cell, painter, cell.widget);
        const int margin = style.pixelMetric(QStyle::PM_FocusFrameHMargin, &cell, cell.widget) + 1;
        const QRect place = cell.rect.adjusted(margin, 0, -margin, 0);
        const bool enabled = cell.state & QStyle::State_Enabled;
        const bool selected = cell.state & QStyle::State_Selected;
        style.drawItemText(painter, place, int(cell.displayAlignment) | Qt::TextSingleLine, cell.palette, enabled,
                           cell.fontMetrics.elidedText(cell.text, cell.textElideMode, place.width()),
                           selected ? QPalette::HighlightedText : QPalette::Text);
    }

    bool helpEvent(QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option,
                   const QModelIndex &index) override
    {
        if (event->type() != QEvent::ToolTip)
            return QStyledItemDelegate::helpEvent(event, view, option, index);
        const QString text = index.data(Qt::ToolTipRole).toString();
        const bool cut = text.contains(u'\n') || sizeHint(option, index).width() > option.rect.width();
        // Converted to rich text, so that a long text is broken into lines and its characters are not read as tags.
        QToolTip::showText(event->globalPos(), cut ? Qt::convertFromPlainText(text) : view->toolTip(), view);
        return true;
    }

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        option->state &= ~QStyle::State_HasFocus;
    }
};

ListView::ListView(QWidget *parent) : QTableView(parent), m_model(new ListModel(this))
{
    setModel(m_model);
    setItemDelegate(new RowDelegate(this));
    setAutoFillBackground(true); // otherwise its scroll bars would repaint what lies behind the list
    setShowGrid(false);
    setWordWrap(false);
    setTextElideMode(Qt::ElideRight);
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false);
    setHorizontalScrollMode(ScrollPerPixel);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setSectionsClickable(true);
    horizontalHeader()->setStretchLastSection(true);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setSectionsMovable(true);
    horizontalHeader()->setFirstSectionMovable(true);
    connect(horizontalHeader(), &QHeaderView::sectionClicked, this, [this](int section) {
        showSortArrow(); // the header has changed its arrow by itself
        emit ColumnClick(section + 1);
    });
    MoveByKeys(*this, [this] { return isSortShown() ? m_sortKey : firstColumn(); });
    fitToFont();
}

ListView::~ListView() = default;

void ListView::setColumns(const std::vector<ListColumn> &columns)
{
    m_model->setColumns(columns);
    for (int i = 0; i < int(columns.size()); ++i)
        setColumnWidth(i, std::max(qRound(columns[size_t(i)].width * m_scale), horizontalHeader()->sectionSizeHint(i)));
}

QString ListView::columnLayout() const
{
    QStringList layout;
    bool fills = true;
    for (int place = columnCount() - 1; place >= 0; --place) {
        const int column = horizontalHeader()->logicalIndex(place);
        const bool shown = !isColumnHidden(column);
        const int width = qRound(columnWidth(column) / m_scale);
        layout.prepend(shown && !fills ? QStringLiteral("%1:%2").arg(column + 1).arg(width)
                                       : QString::number(column + 1));
        fills = fills && !shown;
    }
    return layout.join(u' ');
}

void ListView::setColumnLayout(const QString &layout)
{
    static const QRegularExpression entry(QStringLiteral("^([1-9][0-9]?)(?::([0-9]{1,4}))?$"));
    std::vector<std::pair<int, int>> columns; // from left to right; a width of 0 changes nothing
    std::set<int> seen;
    for (const QString &text : layout.split(u' ')) {
        const auto match = entry.match(text);
        const int column = match.captured(1).toInt() - 1;
        if (!match.hasMatch() || column >= columnCount() || !seen.insert(column).second)
            return;
        columns.emplace_back(column, match.captured(2).toInt());
    }
    if (int(columns.size()) != columnCount())
        return;
    for (int place = 0; place < columnCount(); ++place) {
        const auto [column, width] = columns[size_t(place)];
        horizontalHeader()->moveSection(horizontalHeader()->visualIndex(column), place);
        if (width > 0 && !isColumnHidden(column))
            setColumnWidth(column, qRound(width * m_scale));
    }
}

int ListView::columnCount() const { return m_model->columnCount(); }

void ListView::setSource(std::shared_ptr<const ListSource> source)
{
    m_model->setSource(std::move(source));
    showSortArrow();
    scrollToTop();
}

void ListView::Add(const QString &key, const QStringList &texts) { m_model->append(key, texts); }

void ListView::Clear() { setSource(ListModel::noRows()); }

int ListView::Count() const { return m_model->rowCount(); }

void ListView::checkRow(int item) const
{
    if (item < 1 || item > Count())
        throw RuntimeFailure(Failure::SubscriptOutOfRange,
                             QStringLiteral("The list \"%1\" has no row %2.").arg(objectName()).arg(item));
}

QString ListView::Text(int item, int subItem) const
{
    checkRow(item);
    return subItem < columnCount() ? m_model->text(item - 1, subItem) : QString();
}

QString ListView::Key(int item) const
{
    checkRow(item);
    return m_model->key(item - 1);
}

int ListView::SourceRow(int item) const
{
    checkRow(item);
    return m_model->sourceRow(item - 1);
}

void ListView::Select(int item)
{
    if (item == 0) {
        selectionModel()->clear();
        return;
    }
    checkRow(item);
    const QModelIndex index = m_model->index(item - 1, 0);
    const bool wholeRow = selectionBehavior() == SelectRows;
    selectionModel()->setCurrentIndex(index,
                                      QItemSelectionModel::ClearAndSelect |
                                          (wholeRow ? QItemSelectionModel::Rows : QItemSelectionModel::NoUpdate));
    scrollTo(index);
}

int ListView::SelectedItem() const
{
    const QItemSelection selection = selectionModel()->selection();
    return selection.isEmpty() ? 0 : selection.first().top() + 1;
}

void ListView::setSort(bool sorted, int sortKey, int sortOrder)
{
    m_sorted = sorted;
    m_sortKey = sortKey;
    m_sortOrder = sortOrder;
    if (sorted && sortKey >= 0 && sortKey < columnCount())
        m_model->sortBy(sortKey, sortOrder == 0 ? Qt::AscendingOrder : Qt::DescendingOrder);
    showSortArrow();
}

bool ListView::isSortShown() const { return m_sorted && m_model->isSorted(); }

void ListView::showSortArrow()
{
    if (isSortShown())
        horizontalHeader()->setSortIndicator(m_sortKey, m_sortOrder == 0 ? Qt::AscendingOrder : Qt::DescendingOrder);
    horizontalHeader()->setSortIndicatorShown(isSortShown());
    if (isSortShown()) // the arrow needs room beside the heading
        setColumnWidth(m_sortKey, std::max(columnWidth(m_sortKey), horizontalHeader()->sectionSizeHint(m_sortKey)));
}

void ListView::setFullRowSelect(bool on) { setSelectionBehavior(on ? SelectRows : SelectItems); }

void ListView::setHeaderDragDrop(bool on) { horizontalHeader()->setSectionsMovable(on); }

/// Gives all rows the height of the font and scales the columns with it; widths that were dragged keep their
/// proportion.
void ListView::fitToFont()
{
    const int height = RowHeight(fontMetrics());
    verticalHeader()->setMinimumSectionSize(height);
    verticalHeader()->setDefaultSectionSize(height);
    const double scale = FontScale(font());
    const double ratio = scale / std::exchange(m_scale, scale);
    if (!qFuzzyCompare(ratio, 1.0))
        for (int i = 0; i < columnCount(); ++i)
            setColumnWidth(i, qRound(columnWidth(i) * ratio));
}

void ListView::changeEvent(QEvent *event)
{
    QTableView::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        fitToFont();
}

/// Scrolls vertically only: the keeper moves through rows, so the columns stay where they are.
void ListView::scrollTo(const QModelIndex &index, ScrollHint hint)
{
    const int left = horizontalScrollBar()->value();
    QTableView::scrollTo(index, hint);
    horizontalScrollBar()->setValue(left);
}

QModelIndex ListView::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers)
{
    const int column = qMax(0, currentIndex().column());
    switch (action) {
    case MoveHome: return m_model->index(0, column);
    case MoveEnd: return m_model->index(Count() - 1, column);
    default: return QTableView::moveCursor(action, modifiers);
    }
}

void ListView::mousePressEvent(QMouseEvent *event)
{
    m_doubleClicked = false;
    QTableView::mousePressEvent(event);
}

void ListView::mouseReleaseEvent(QMouseEvent *event)
{
    const QPointer<ListView> alive = this;
    QTableView::mouseReleaseEvent(event);
    const bool clicked = event->button() == Qt::LeftButton && !std::exchange(m_doubleClicked, false) &&
                         viewport()->rect().contains(event->position().toPoint());
    if (clicked)
        emit Click();
    if (alive)
        emit MouseUp(event->button(), event->globalPosition().toPoint());
}

void ListView::mouseDoubleClickEvent(QMouseEvent *event)
{
    QTableView::mouseDoubleClickEvent(event);
    m_doubleClicked = true;
    if (event->button() == Qt::LeftButton)
        emit DblClick();
}

void ListView::keyPressEvent(QKeyEvent *event)
{
    const bool plain = (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    const QModelIndex current = currentIndex();
    if ((event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) && plain && current.isValid()) {
        Select(current.row() + 1);
        emit DblClick();
    } else if (event->key() == Qt::Key_F10 && event->modifiers() == Qt::ShiftModifier) {
        menuByKey();
    } else {
        QTableView::keyPressEvent(event);
        if (event->key() == Qt::Key_Left || event->key() == Qt::Key_Right)
            QTableView::scrollTo(currentIndex()); // sideways as well: the keeper moves through the cells of a row
    }
}

/// The first visible column from the left.
int ListView::firstColumn() const
{
    int place = 0;
    while (isColumnHidden(horizontalHeader()->logicalIndex(place)))
        ++place;
    return horizontalHeader()->logicalIndex(place);
}

/// Handles the keyboard only: with the mouse, the menu opens when the button is released (MouseUp).
void ListView::contextMenuEvent(QContextMenuEvent *event)
{
    if (event->reason() == QContextMenuEvent::Keyboard)
        menuByKey();
}

void ListView::menuByKey()
{
    QPoint place(0, 0);
    if (currentIndex().isValid()) {
        scrollTo(currentIndex());
        place = QPoint(rowHeight(currentIndex().row()), rowRect(currentIndex().row()).bottom());
    }
    emit MouseUp(Qt::RightButton, viewport()->mapToGlobal(place));
}

QRect ListView::rowRect(int row) const
{
    return {-horizontalOffset(), rowViewportPosition(row), horizontalHeader()->length(), rowHeight(row)};
}

/// Draws a frame around the current row while the list has the focus, because a row may be current without being
/// selected, and around its current cell once Left and Right or the mouse have moved it.
void ListView::paintEvent(QPaintEvent *event)
{
    QTableView::paintEvent(event);
    if (!hasFocus() || !currentIndex().isValid())
        return;
    // Plain filled lines: the style's own frame has a gradient, which is slow to paint on a whole row.
    QPainter painter(viewport());
    const auto drawFrame = [&painter](const QRect &frame, const QColor &colour) {
        for (const QRect &edge : QRegion(frame).subtracted(frame.adjusted(1, 1, -1, -1)))
            painter.fillRect(edge, colour);
    };
    const QColor colour = palette().color(QPalette::Highlight).darker(140);
    drawFrame(rowRect(currentIndex().row()), colour);
    if (currentIndex().column() != firstColumn())
        drawFrame(visualRect(currentIndex()), SelectedItem() ? palette().color(QPalette::HighlightedText) : colour);
}

void ListView::currentChanged(const QModelIndex &current, const QModelIndex &previous)
{
    QTableView::currentChanged(current, previous);
    for (const QModelIndex &index : {current, previous})
        if (index.isValid())
            viewport()->update(rowRect(index.row()));
}

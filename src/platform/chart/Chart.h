// The chart control: a grid of cells that is filled through a selected row and column, drawn as one of twelve types.
// Moving the mouse with Ctrl held, or an arrow key, turns a chart with depth; a tool tip tells the row, the column and
// the value under the pointer. The picture is drawn anew once, when the event loop comes round, however many cells were
// written.
#pragma once

#include <memory>
#include <optional>

#include <QWidget>

#include "platform/chart/ChartData.h"

class ChartPlot;

class Chart : public QWidget
{
    Q_OBJECT
public:
    explicit Chart(QWidget *parent = nullptr);

    int ColumnCount() const { return m_data.columns(); }
    int RowCount() const { return m_data.rows(); }
    /// New rows and columns are blank and without labels.
    void setColumnCount(int count);
    void setRowCount(int count);

    int chartType() const { return m_type; }
    /// 0, 2, 4, 6, 8: bars, lines, areas, steps, combination with depth; 1, 3, 5, 7, 9: the same flat; 14 pies; 16 XY.
    void setChartType(int code);

    /// Selects the cell that is written, from 1; throws SubscriptOutOfRange where there is none. It stays selected.
    void setRow(int row);
    void setColumn(int column);
    void setRowLabel(const QString &label);
    void setColumnLabel(const QString &label);
    /// The value of the selected cell, as text; one that is no number leaves it blank.
    void setData(const QString &text);

    void setTitleText(const QString &title);
    QString TitleText() const { return m_title; }

    /// Puts a picture of the chart on the clipboard, as on paper, twice as fine as on the screen.
    void EditCopy() const;
    /// Paints it on paper, as vectors, in a rectangle from 0, 0 on. Letters are as large as on a chart 1000 wide.
    void paintOn(QPainter &painter, const QSizeF &size) const;

    /// Where a cell's value is drawn, row and column from 1; empty for a blank one.
    QRectF place(int row, int column) const;
    /// What stands at a place, as the tool tip tells it; empty where nothing does.
    QString tip(const QPointF &place) const;

signals:
    void MouseUp(Qt::MouseButton button, const QPoint &globalPosition);

protected:
    bool event(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    QSize sizeHint() const override { return {640, 400}; }
    QSize minimumSizeHint() const override { return {120, 90}; }

private:
    void changed();
    void drawNow() const;
    std::unique_ptr<ChartPlot> onPaper() const;
    void turnBy(const QPointF &moved);

    ChartData m_data;
    int m_type = 1;
    int m_row = 0; ///< selected; from 1
    int m_column = 0;
    QString m_title;
    ChartPlot *m_plot;
    mutable bool m_stale = false;    ///< the plot is not yet what the cells say
    std::optional<QPointF> m_turned; ///< where the pointer was when it turned the chart last
};

// The chart control: a grid of cells that is filled through a selected row and column, drawn as one of twelve types.
// Moving the mouse with Ctrl held, or an arrow key, turns a chart with depth; a tool tip shows the row, the column and
// the value under the pointer. In other charts the arrow keys walk from value to value, in charts with depth they do so
// with Shift held: the current value is framed, named beside the frame, and told to a screen reader, to which the chart
// is a table (ChartTable.h). However many cells are written, the picture is redrawn once, when control returns to the
// event loop.
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
    /// 0, 2, 4, 6, 8 are bars, lines, areas, steps and combination with depth; 1, 3, 5, 7, 9 the same without depth; 14
    /// is pies, 16 is XY.
    void setChartType(int code);

    /// Selects the cell that is written, from 1, until another is selected. Throws SubscriptOutOfRange if there is
    /// none.
    void setRow(int row);
    void setColumn(int column);
    void setRowLabel(const QString &label);
    void setColumnLabel(const QString &label);
    /// The unit of the selected column, for the titles of the axes; may be empty.
    void setColumnUnit(const QString &unit);
    /// What the labels of the rows are, such as "Date": the title of their axis.
    void setRowsTitle(const QString &title);
    /// Sets the value of the selected cell as text; a text that is not a number makes it blank.
    void setData(const QString &text);

    void setTitleText(const QString &title);
    QString TitleText() const { return m_title; }

    /// Copies a picture of the chart to the clipboard, in the colours for paper and at twice the resolution of the
    /// screen.
    void EditCopy() const;
    /// Paints the chart as vectors in the colours for paper, into a rectangle of that size at 0, 0. Its text is as
    /// large as on a chart 1000 pixels wide.
    void paintOn(QPainter &painter, const QSizeF &size) const;

    /// Where a cell's value is drawn, row and column from 1; empty if the cell is blank.
    QRectF place(int row, int column) const;
    /// The tool tip for a place in the chart; empty if no value is drawn there.
    QString tip(const QPointF &place) const;

    const ChartData &data() const { return m_data; }
    /// The cell whose value is drawn at a place in the chart; no cell if none is.
    ChartCell cellAt(const QPointF &place) const;
    /// The cell that was reached by the arrow keys; no cell until they are used.
    const ChartCell &current() const { return m_current; }

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
    ChartCell firstDrawn() const;
    void walk(ChartCell from, const QPoint &way);
    void showMark();

    ChartData m_data;
    int m_type = 1;
    int m_row = 0; ///< of the selected cell; from 1
    int m_column = 0;
    ChartCell m_current;
    QString m_title;
    ChartPlot *m_plot;
    mutable bool m_stale = false;    ///< the plot does not show the present cells yet
    std::optional<QPointF> m_turned; ///< where the pointer was when it last turned the chart
};

// The bar that shows how full a planned tank is, from 0 to 125 percent: what fits is green up to a mark at 100, what is
// too much is red beyond it. A screen reader hears the percentage as its name, because its position within 0 to 125
// would be another number.
#pragma once

#include <QProgressBar>

class StockingBar : public QProgressBar
{
    Q_OBJECT
public:
    explicit StockingBar(QWidget *parent = nullptr);

    /// Any number: the bar is empty below 0 and stops at 125.
    void setPercent(double percent);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    float m_percent = 0; ///< within the bar's range
};

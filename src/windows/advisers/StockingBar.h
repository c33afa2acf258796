// The bar that shows how full a planned tank is, from 0 to 125 percent: green up to a mark at 100, red beyond it. Its
// accessible name is the percentage, because a screen reader would otherwise read its position within 0 to 125.
#pragma once

#include <QProgressBar>

class StockingBar : public QProgressBar
{
    Q_OBJECT
public:
    explicit StockingBar(QWidget *parent = nullptr);

    /// Accepts any number: the bar is empty below 0 and stops at 125.
    void setPercent(double percent);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    float m_percent = 0; ///< within the bar's range
};

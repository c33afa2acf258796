// A pair of arrows that steps a whole number within bounds. It knows nothing of the box beside it but through Change(),
// unless it is bound: then it steps from the number that the box holds and writes into it. Change() fires in code too,
// when the value changes, and at a step that changes the text of a bound box. setKeyBox() lets the arrow keys and the
// wheel in a box step it.
#pragma once

#include <QPointer>
#include <QWidget>

class QLineEdit;
class QToolButton;

class UpDown : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(int min READ Min WRITE setMin)
    Q_PROPERTY(int max READ Max WRITE setMax)
    Q_PROPERTY(int increment READ Increment WRITE setIncrement)
public:
    explicit UpDown(QWidget *parent = nullptr);

    int Value() const { return m_value; }
    /// A position beyond the range stays at the bound. A bound box keeps its text.
    void setValue(int value);
    int Min() const { return m_min; }
    int Max() const { return m_max; }
    int Increment() const { return m_increment; }
    void setMin(int min);
    void setMax(int max);
    void setIncrement(int increment) { m_increment = increment; }

    /// Up and down keys, page keys for ten steps, and the wheel while it has the focus, in that box step this value.
    void setKeyBox(QWidget *box);
    /// Binds the box: each step starts from the number it holds, and its text becomes the new value. Also sets the key
    /// box.
    void setBoundBox(QLineEdit *box);
    void stepBy(int steps);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

signals:
    void Change();

protected:
    bool eventFilter(QObject *object, QEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    int clamped(double value) const;
    void clickArrow(QToolButton &arrow, int steps);
    void nameButtons();

    QToolButton *m_up;
    QToolButton *m_down;
    QPointer<QWidget> m_keyBox;
    QPointer<QLineEdit> m_boundBox;
    int m_value = 0;
    int m_min = 0;
    int m_max = 100;
    int m_increment = 1;
    int m_wheel = 0; ///< eighths of a degree that make no whole step yet
};

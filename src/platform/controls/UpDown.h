// A pair of arrow buttons that steps a whole number within bounds. A window connects it to the box beside it through
// Change(), or binds the box with setBoundBox(): then a step starts from the number in the box and writes the result
// into it. Change() is emitted whenever the value changes, even by code, and at a step that changes only the text of a
// bound box. With setKeyBox() the arrow keys and the wheel in a box step the value.
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
    /// A value beyond the range becomes the nearest bound. The text of a bound box does not change.
    void setValue(int value);
    int Min() const { return m_min; }
    int Max() const { return m_max; }
    int Increment() const { return m_increment; }
    void setMin(int min);
    void setMax(int max);
    void setIncrement(int increment) { m_increment = increment; }

    /// Lets these step the value while they are used in that box: Up and Down, Page Up and Page Down (ten steps), and
    /// the wheel if the box has the focus.
    void setKeyBox(QWidget *box);
    /// Binds the box: each step starts from the number in the box and writes the new value into it. Also makes it the
    /// key box.
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
    int m_wheel = 0; ///< eighths of a degree that do not add up to a step yet
};

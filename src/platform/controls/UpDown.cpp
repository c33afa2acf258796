#include "platform/controls/UpDown.h"

#include <cmath>
#include <utility>

#include <QAccessible>
#include <QApplication>
#include <QEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QToolButton>
#include <QVBoxLayout>
#include <QWheelEvent>

#include "platform/controls/MaskedBox.h"
#include "platform/controls/ShownTexts.h"
#include "text/Numbers.h"

namespace {

QToolButton *arrowButton(UpDown *parent, Qt::ArrowType arrow, const char *name)
{
    auto *button = new QToolButton(parent);
    button->setObjectName(QLatin1String(name));
    button->setArrowType(arrow);
    button->setAutoRepeat(true);
    button->setFocusPolicy(Qt::NoFocus);
    button->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    return button;
}

int stepsOfKey(int key)
{
    switch (key) {
    case Qt::Key_Up: return 1;
    case Qt::Key_Down: return -1;
    case Qt::Key_PageUp: return 10;
    case Qt::Key_PageDown: return -10;
    default: return 0;
    }
}

void write(QLineEdit *box, const QString &text)
{
    if (auto *masked = qobject_cast<MaskedBox *>(box))
        masked->setText(text);
    else
        box->setText(text);
}

} // namespace

UpDown::UpDown(QWidget *parent) :
    QWidget(parent), m_up(arrowButton(this, Qt::UpArrow, "up")), m_down(arrowButton(this, Qt::DownArrow, "down"))
{
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(m_up);
    column->addWidget(m_down);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    connect(m_up, &QToolButton::clicked, this, [this] { clickArrow(*m_up, 1); });
    connect(m_down, &QToolButton::clicked, this, [this] { clickArrow(*m_down, -1); });
    nameButtons();
}

int UpDown::clamped(double value) const { return static_cast<int>(qMax(double(m_min), qMin(value, double(m_max)))); }

void UpDown::setValue(int value)
{
    const int held = std::exchange(m_value, clamped(value));
    if (m_value != held)
        emit Change();
}

void UpDown::setMin(int min)
{
    m_min = min;
    setValue(m_value);
}

void UpDown::setMax(int max)
{
    m_max = max;
    setValue(m_value);
}

void UpDown::stepBy(int steps)
{
    double from = m_value;
    if (m_boundBox) { // between two whole numbers a step goes to the next one
        const double held = Val(BoxText(*m_boundBox));
        from = steps > 0 ? std::floor(held) : std::ceil(held);
    }
    const int value = clamped(from + double(steps) * m_increment);
    // A box that was typed in may come back to the value that was held all the time.
    const bool mended = m_boundBox && value == m_value && BoxText(*m_boundBox) != PlainText(value);
    if (m_boundBox)
        write(m_boundBox, PlainText(value));
    setValue(value);
    if (mended)
        emit Change();
}

/// An arrow repeats while it is held down. If a step opens a message box, the box receives the release of the mouse,
/// and the arrow would stay down and go on stepping behind the box and after it.
void UpDown::clickArrow(QToolButton &arrow, int steps)
{
    const QWidget *modal = QApplication::activeModalWidget();
    if (modal && modal != window())
        arrow.setDown(false);
    else
        stepBy(steps);
}

void UpDown::setKeyBox(QWidget *box)
{
    if (m_keyBox)
        m_keyBox->removeEventFilter(this);
    m_keyBox = box;
    if (box)
        box->installEventFilter(this);
    nameButtons();
    updateGeometry();
}

void UpDown::setBoundBox(QLineEdit *box)
{
    m_boundBox = box;
    setKeyBox(box);
}

bool UpDown::eventFilter(QObject *object, QEvent *event)
{
    if (object != m_keyBox || !isEnabled())
        return false;
    if (event->type() == QEvent::KeyPress) {
        const auto *key = static_cast<QKeyEvent *>(event);
        const int steps = (key->modifiers() & ~Qt::KeypadModifier) == 0 ? stepsOfKey(key->key()) : 0;
        if (steps != 0)
            stepBy(steps);
        return steps != 0;
    }
    if (event->type() == QEvent::Wheel && m_keyBox->hasFocus()) {
        m_wheel += static_cast<QWheelEvent *>(event)->angleDelta().y();
        const int steps = m_wheel / QWheelEvent::DefaultDeltasPerStep;
        m_wheel -= steps * QWheelEvent::DefaultDeltasPerStep;
        if (steps != 0)
            stepBy(steps);
        return true;
    }
    return false;
}

/// As high as the box beside it, and wide enough for an arrow.
QSize UpDown::sizeHint() const
{
    const int height = m_keyBox ? m_keyBox->sizeHint().height() : QLineEdit().sizeHint().height();
    return {qMax(height * 3 / 4, 16), height};
}

void UpDown::showEvent(QShowEvent *event)
{
    nameButtons();
    QWidget::showEvent(event);
}

void UpDown::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        updateGeometry();
}

/// Names the arrows, for screen readers, after the box beside them. The box may have got its name from its label since
/// the last call.
void UpDown::nameButtons()
{
    QString box;
    if (QAccessibleInterface *interface = m_keyBox ? QAccessible::queryAccessibleInterface(m_keyBox) : nullptr)
        box = interface->text(QAccessible::Name);
    m_up->setAccessibleName(QStringLiteral("Up %1").arg(box).trimmed());
    m_down->setAccessibleName(QStringLiteral("Down %1").arg(box).trimmed());
}

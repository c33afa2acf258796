// The controls of the calendar: the cell of a day, the labels that open a menu, and the scroll bars. They are painted
// in the colours of the palette, for any font and scale. Only frm_Caltool and its tests use them.
#pragma once

#include <QDate>
#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>
#include <QPushButton>
#include <QScrollBar>

#include "text/Dates.h"

/// One cell of the month. It passes the keys that move between days on to its window.
class DayButton : public QPushButton
{
public:
    DayButton()
    {
        setAutoDefault(false);
        setAttribute(Qt::WA_Hover);
        setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    }

    /// Day 0 makes an empty cell. `date` gives its accessible name.
    void showDay(int day, const QDate &date, bool selected, bool today)
    {
        setText(day > 0 ? QString::number(day) : QString());
        setEnabled(day > 0);
        setAccessibleName(Format(date, QStringLiteral("dddd mm/dd/yyyy")));
        setAccessibleDescription(today ? QStringLiteral("Today") : QString());
        setFocusPolicy(selected ? Qt::StrongFocus : Qt::NoFocus); // Tab stops only once in the month
        m_selected = selected;
        m_today = today;
        update();
    }

    QSize sizeHint() const override
    {
        const QFontMetrics metrics(font());
        return {metrics.horizontalAdvance(QStringLiteral("00")) + 22, metrics.height() + 14};
    }
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void keyPressEvent(QKeyEvent *event) override
    {
        switch (event->key()) {
        case Qt::Key_Left:
        case Qt::Key_Right:
        case Qt::Key_Up:
        case Qt::Key_Down: event->ignore(); break;
        default: QPushButton::keyPressEvent(event);
        }
    }

    void paintEvent(QPaintEvent *) override
    {
        if (text().isEmpty())
            return;
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        const QRectF cell = QRectF(rect()).adjusted(3, 3, -3, -3);
        const auto outline = [&](const QColor &color, double width, double outwards) {
            painter.setPen(QPen(color, width));
            painter.setBrush(Qt::NoBrush);
            painter.drawRoundedRect(cell.adjusted(-outwards, -outwards, outwards, outwards), 5, 5);
        };
        QColor fill = palette().color(QPalette::Highlight);
        if (!m_selected)
            fill.setAlpha(isDown() ? 110 : underMouse() ? 55 : 0);
        painter.setPen(Qt::NoPen);
        painter.setBrush(fill);
        painter.drawRoundedRect(cell, 5, 5);
        const QColor ink = palette().color(m_selected ? QPalette::HighlightedText : QPalette::WindowText);
        if (m_today)
            outline(m_selected ? ink : palette().color(QPalette::Highlight), 1.5, -1.5);
        if (hasFocus())
            outline(palette().color(QPalette::WindowText), 1.2, 1.8);
        QFont letters = font();
        letters.setBold(m_today);
        painter.setFont(letters);
        painter.setPen(ink);
        painter.drawText(cell, Qt::AlignCenter, text());
    }

private:
    bool m_selected = false;
    bool m_today = false;
};

/// A label; a click or the space bar opens a menu below it.
class MenuPanel : public QPushButton
{
public:
    MenuPanel(const QString &name, const QString &description)
    {
        setObjectName(name);
        setAccessibleDescription(description);
        setToolTip(description);
        setAutoDefault(false);
        setAttribute(Qt::WA_Hover);
        QFont letters = font();
        letters.setBold(true);
        setFont(letters);
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        QColor fill = palette().color(QPalette::Highlight);
        fill.setAlpha(isDown() ? 110 : underMouse() ? 55 : 0);
        painter.setPen(hasFocus() ? QPen(palette().color(QPalette::Highlight), 1.5) : QPen(Qt::NoPen));
        painter.setBrush(fill);
        painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 5, 5);

        const int arrow = fontMetrics().height() / 2;
        const int width = fontMetrics().horizontalAdvance(text());
        const QRect words((this->width() - width - arrow - 6) / 2, 0, width + 1, height());
        painter.setPen(palette().color(QPalette::WindowText));
        painter.drawText(words, Qt::AlignVCenter | Qt::AlignLeft, text());
        QPainterPath chevron(QPointF(words.right() + 6, height() / 2. - arrow / 4.));
        chevron.lineTo(words.right() + 6 + arrow / 2., height() / 2. + arrow / 4.);
        chevron.lineTo(words.right() + 6 + arrow, height() / 2. - arrow / 4.);
        painter.setPen(QPen(palette().color(QPalette::WindowText), 1.5));
        painter.setBrush(Qt::NoBrush);
        painter.drawPath(chevron);
    }
};

/// A scroll bar that shows whether it has the focus.
class MonthBar : public QScrollBar
{
public:
    MonthBar(const QString &name, const QString &accessibleName, int min, int max, int pageStep) :
        QScrollBar(Qt::Horizontal)
    {
        setObjectName(name);
        setAccessibleName(accessibleName);
        setRange(min, max);
        setPageStep(pageStep);
        setFocusPolicy(Qt::TabFocus); // a click leaves the focus on the day
        setTracking(false);           // months passed on the way must not shorten the day
    }

protected:
    void paintEvent(QPaintEvent *event) override
    {
        QScrollBar::paintEvent(event);
        if (!hasFocus())
            return;
        QPainter painter(this);
        painter.setPen(QPen(palette().color(QPalette::Highlight), 1.5));
        painter.drawRect(QRectF(rect()).adjusted(1, 1, -1, -1));
    }
};

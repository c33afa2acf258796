// A sentence in the middle of an empty place that says what to do there, in the grey of a placeholder. It is painted
// over the place and is no control. A screen reader finds it as the description of the place.
#pragma once

#include <functional>

#include <QAbstractItemView>

class EmptyText : public QObject
{
    Q_OBJECT
public:
    /// For a list: shows the text while the list has no rows. The list owns it.
    explicit EmptyText(QAbstractItemView &list, const QString &text = {});
    /// For any other place, which owns it. It is painted on `canvas`, the place itself or its viewport, and is checked
    /// again when a child of the canvas comes or goes, and by refresh().
    EmptyText(QWidget &place, QWidget &canvas, std::function<bool()> isEmpty, const QString &text = {});

    void setText(const QString &text);
    /// Follows the place after its content has changed.
    void refresh();

protected:
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    void paint() const;

    QWidget &m_place;
    QWidget &m_canvas;
    std::function<bool()> m_isEmpty;
    QString m_text;
    QString m_shown; ///< what a screen reader finds; empty while the place has something else to show
    bool m_painting = false;
};

// Shows in a panel how far long work has come, while no other event runs. A text that grows dot by dot is painted at
// each tenth: painting it costs as much as reading a hundred names.
#pragma once

#include <QLabel>

inline void ShowProgress(QLabel &panel, const QString &text)
{
    constexpr qsizetype dotsOfARepaint = 10; // as long as "Loading...", with which such work begins
    panel.setText(text);
    if (text.size() % dotsOfARepaint == 0)
        panel.repaint();
}

// Shows the progress of long work in a panel, without processing other events. A text that grows dot by dot is
// repainted only at every tenth character, because painting it costs as much as reading a hundred names.
#pragma once

#include <QLabel>

inline void ShowProgress(QLabel &panel, const QString &text)
{
    constexpr qsizetype dotsOfARepaint = 10; // also the length of "Loading...", which is shown first
    panel.setText(text);
    if (text.size() % dotsOfARepaint == 0)
        panel.repaint();
}

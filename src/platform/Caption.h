// A name that a keeper gave, as the caption of a control or a menu entry: its "&" is a sign like any other and makes no
// mnemonic.
#pragma once

#include <QString>

inline QString Caption(QString name) { return name.replace(u'&', QStringLiteral("&&")); }

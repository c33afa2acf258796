// Makes a name that a keeper entered the caption of a control or menu entry: an "&" is shown as it is and does not make
// a mnemonic.
#pragma once

#include <QString>

inline QString Caption(QString name) { return name.replace(u'&', QStringLiteral("&&")); }

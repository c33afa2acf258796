// Database files as versions 1.0 and 1.1 left them, filled with made-up entries: what the upgrade is tested and
// photographed on. The same file at every call.
#pragma once

#include <QString>

/// Writes a new file of version "1.0" or "1.1" with so many water tests, works, animals and reminders, and a tank for
/// every hundred; with 0 there is no animal in the word list either. Throws RuntimeFailure as CreateDatabase does.
void WriteOldDatabase(const QString &fileName, const QString &version, int rows);

// Writes database files as versions 1.0 and 1.1 left them, with made-up entries, for the tests and pictures of the
// upgrade. Every call writes the same.
#pragma once

#include <QString>

/// Writes a new file of version "1.0" or "1.1" with `rows` water tests, maintenance entries, animals and reminders
/// each, and one tank for every hundred of them. With 0 rows the list of animal names is empty too. Throws
/// RuntimeFailure as CreateDatabase does.
void WriteOldDatabase(const QString &fileName, const QString &version, int rows);

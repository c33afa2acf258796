// A file of the old engine with as many water tests as wanted, for measuring. Nothing of ours writes such files, so one
// of the tests' files is multiplied: the pages with its water tests are appended again and again, each time with later
// days.
#pragma once

#include <QString>

/// Writes `to` from a file of the later format, `times` times its water tests. Throws std::runtime_error.
void WriteBigOldFile(const QString &from, const QString &to, int times);

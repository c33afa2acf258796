// Makes a file of the old engine with many water tests, for measuring. We cannot write such files, so this copies one
// of the files of the tests and appends the pages with its water tests again and again, each time with later days.
#pragma once

#include <QString>

/// Writes `to`, with `times` times the water tests of `from`, which must have the later format. Throws
/// std::runtime_error.
void WriteBigOldFile(const QString &from, const QString &to, int times);

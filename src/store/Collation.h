// Internal to the store: the sort order of every list that a person sees. It is registered on each connection as
// CASEBLIND, for ORDER BY only: an index in the file must not depend on it, because other programs do not know it.
#pragma once

#include <string_view>

struct sqlite3;

/// Compares two UTF-8 texts by their case-folded letters. Texts that differ only in case are compared byte by byte, so
/// that the order is always the same.
int compareCaseBlind(std::string_view a, std::string_view b);

/// Returns the engine's result code.
int registerCaseBlind(sqlite3 *handle);

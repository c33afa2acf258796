// Inside of the store: the order of every list that a person sees. Registered on each connection under the name
// CASEBLIND, for ORDER BY only: an index in the file must not depend on it, as other programs do not have it.
#pragma once

#include <string_view>

struct sqlite3;

/// Compares two UTF-8 texts by their case-folded letters; texts that differ in case alone follow their bytes, so that
/// the order is total and the same each time.
int compareCaseBlind(std::string_view a, std::string_view b);

/// Returns the engine's result code.
int registerCaseBlind(sqlite3 *handle);

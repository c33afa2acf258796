// The keeper's preferences as values: read at the start and before each dialog, without a window. Most of them are
// texts of the settings store; the default water type and the names of the two user-defined measurements stand in the
// one row of CONFIG, so that they travel with the data.
#pragma once

#include <array>

#include "shell/Globals.h"

/// What may stand between the numbers of a date; the first is the default.
inline constexpr std::array dateDelimiters = {"/", "-", "."};

/// Brings what is stored into force: options, gDefaultWaterType, gUserFieldName1 and 2. A text of the wrong form gives
/// its default. Returns the row of CONFIG, for a later change. Throws RuntimeFailure where CONFIG cannot be read.
Recordset ReadOptions(Globals &g);
/// Writes all texts of the settings store. Throws RuntimeFailure where they cannot be written.
void SaveOptionSettings(const OptionsMembers &options);

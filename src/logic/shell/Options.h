// The keeper's preferences as values: read at the start and before each dialog, without a window. Most of them are
// texts of the settings store; the default water type and the names of the two user-defined measurements stand in the
// one row of CONFIG, so that they travel with the data.
#pragma once

#include <array>

#include "logic/shell/Globals.h"

/// What may stand between the numbers of a date; the first is the default.
inline constexpr std::array dateDelimiters = {"/", "-", "."};

/// Brings what is stored into force: options, gDefaultWaterType, gUserFieldName1 and 2. A text of the wrong form gives
/// its default. Returns the row of CONFIG, for a later change. Throws RuntimeFailure where CONFIG cannot be read.
Recordset ReadOptions(Globals &g);

/// What the dialog changes in the row of CONFIG.
struct ConfigValues
{
    bool salt = true; ///< the default water type
    QString user_fieldname1;
    QString user_fieldname2;
};
/// Stores g.options in the settings and those values in the row, all of it or nothing, and brings it into force. Where
/// `formerOrder` is another date order, the reminders that depend on it are written so that they keep their days.
/// Throws RuntimeFailure where anything cannot be written.
void StoreOptions(Globals &g, Recordset &config, const ConfigValues &values, DateOrder formerOrder);

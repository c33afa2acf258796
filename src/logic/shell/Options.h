// The keeper's preferences as values, without a window. They are read at the start and before each showing of the
// dialog. Most are texts in the settings; the default water type and the names of the two user-defined measurements are
// in the one row of CONFIG, so that they stay with the data.
#pragma once

#include <array>

#include "logic/shell/Globals.h"

/// The possible delimiters of a date; the first is the default.
inline constexpr std::array dateDelimiters = {"/", "-", "."};

/// Reads the stored preferences into options, gDefaultWaterType, gUserFieldName1 and gUserFieldName2. A text of the
/// wrong form gives its default. Returns the row of CONFIG, for a later change. Throws RuntimeFailure if CONFIG cannot
/// be read.
Recordset ReadOptions(Globals &g);

/// The values that the dialog changes in the row of CONFIG.
struct ConfigValues
{
    bool salt = true; ///< the default water type
    QString user_fieldname1;
    QString user_fieldname2;
};
/// Stores g.options in the settings and `values` in the row, all or nothing, and makes them take effect. If the date
/// order differs from `formerOrder`, the reminders that depend on it are rewritten so that they keep their days. Throws
/// RuntimeFailure if anything cannot be written.
void StoreOptions(Globals &g, Recordset &config, const ConfigValues &values, DateOrder formerOrder);

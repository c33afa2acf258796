// Looks through the whole database for what should not be in it: damage, a
// schema that is not ours, values that no window would have taken, entries of
// tanks that are gone, and reminders without dates. Nothing is changed.
#pragma once

class KeepersData;

/// Prints what was found, a line each, and after each kind what the keeper can
/// do. Returns DataFault if anything was.
int CheckData(KeepersData &data);

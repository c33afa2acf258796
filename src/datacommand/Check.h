// Searches the whole database for what should not be in it: damage, a foreign schema, values that no window would have
// accepted, entries of tanks that no longer exist, and reminders without dates. Changes nothing.
#pragma once

class KeepersData;

/// Prints one line for each finding, and after each kind what the keeper can do. Returns DataFault if there were any.
int CheckData(KeepersData &data);

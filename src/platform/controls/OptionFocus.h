// Moves the focus in a group of options to the checked one. When a window opens or Tab enters a group, Qt gives the
// focus to the first option, where one press of Space would check it. Application calls this for each event.
#pragma once

class QEvent;
class QObject;

/// True if the event gave the focus to an unchecked option and the focus was passed on to the checked one. Does nothing
/// for a click or a mnemonic, which check the option that gets the focus, or if no option of the group is checked.
bool PassesFocusToSetOption(QObject &receiver, const QEvent &event);

// The focus of a group of options is on the one that is set. The toolkit gives it to the first of the group where the
// window opens or Tab enters the group, and then one press of Space sets that one. Asked by Application for each event.
#pragma once

class QEvent;
class QObject;

/// True where the event gave the focus to an option that is not set, and the focus went on to the one that is. A click
/// or a mnemonic sets the option that it goes to, and a group of which none is set is entered anywhere.
bool PassesFocusToSetOption(QObject &receiver, const QEvent &event);

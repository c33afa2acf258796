// Handles failures in event handlers. Unwinding Qt's own stack frames would leak, so every connection to code that can
// fail goes through guarded(), which catches a RuntimeFailure at the edge of the handler and shows its box there.
#pragma once

#include <concepts>
#include <functional>
#include <optional>
#include <utility>

#include <QObject>

#include "platform/core/RuntimeFailure.h"

/// Writes the failure to stderr and shows its box. "End" runs the end hook and makes all event loops end with status 1;
/// after "Return" the program goes on.
void showFailure(const RuntimeFailure &failure);

/// Does the same for a failure at start-up, where "End" is the only button.
[[noreturn]] void endWithFailure(const RuntimeFailure &failure);

/// Sets what "End" runs before the program ends: it rolls back and closes the database.
void setEndHook(std::function<void()> hook);

template <class F> auto guarded(F handler)
{
    return [handler =
                std::move(handler)](auto &&...arguments) requires std::invocable<const F &, decltype(arguments)...>
    {
        std::optional<RuntimeFailure> failure;
        try {
            handler(std::forward<decltype(arguments)>(arguments)...);
            return;
        } catch (const RuntimeFailure &e) {
            failure = e;
        }
        showFailure(*failure); // outside the catch block, because it runs a nested event loop
    };
}

/// Connects a handler without arguments through guarded(), as in on(cmd_OK, &QPushButton::clicked, this,
/// &frm_X::cmd_OK_Click).
template <class Sender, class Signal, class Receiver, class Result, class Class>
void on(Sender *sender, Signal signal, Receiver *receiver, Result (Class::*handler)())
{
    QObject::connect(sender, signal, receiver, guarded([receiver, handler] { (receiver->*handler)(); }));
}

/// True after "End" was pressed: from then on the program only leaves its event loops.
bool isEnding();

// Failures out of handlers. Qt's own frames cannot be unwound without leaks, so every connection to code that can fail
// goes through guarded(): it catches a RuntimeFailure at the slot's border and shows its box there.
#pragma once

#include <concepts>
#include <functional>
#include <optional>
#include <utility>

#include <QObject>

#include "platform/RuntimeFailure.h"

/// A line on stderr, then the box. "End" closes the database (the hook below) and ends the program with status 1;
/// "Return" comes back here.
void showFailure(const RuntimeFailure &failure);

/// A failure at start-up: the same with "End" alone.
[[noreturn]] void endWithFailure(const RuntimeFailure &failure);

/// What "End" runs before the process ends: closes the database, rolled back.
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
        showFailure(*failure); // outside the catch: a nested event loop runs in there
    };
}

/// Connects a handler without arguments, guarded: on(cmd_OK, &QPushButton::clicked, this, &frm_X::cmd_OK_Click).
template <class Sender, class Signal, class Receiver, class Result, class Class>
void on(Sender *sender, Signal signal, Receiver *receiver, Result (Class::*handler)())
{
    QObject::connect(sender, signal, receiver, guarded([receiver, handler] { (receiver->*handler)(); }));
}

/// True once "End" was pressed: the program only unwinds from then on.
bool isEnding();

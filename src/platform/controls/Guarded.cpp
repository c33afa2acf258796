#include "platform/controls/Guarded.h"

#include <cstdio>
#include <cstdlib>

#include <QCoreApplication>

#include "platform/core/Doors.h"

namespace {

std::function<void()> endHook;
bool ending = false;

void report(const RuntimeFailure &failure)
{
    std::fprintf(stderr, "Run-time error '%d': %s\n", static_cast<int>(failure.number()), failure.what());
}

} // namespace

void setEndHook(std::function<void()> hook) { endHook = std::move(hook); }

void showFailure(const RuntimeFailure &failure)
{
    report(failure);
    if (!Doors::current().failureBox(failure, true))
        return;
    ending = true;
    if (endHook)
        endHook();
    QCoreApplication::exit(1); // ends nested event loops too; code after an exec() acts only if it was accepted
}

void endWithFailure(const RuntimeFailure &failure)
{
    report(failure);
    Doors::current().failureBox(failure, false);
    if (endHook)
        endHook();
    std::fflush(nullptr);
    std::_Exit(1);
}

bool isEnding() { return ending; }

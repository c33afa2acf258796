#include "logic/shell/ErrorHandler.h"

#include <gtest/gtest.h>

#include "logic/shell/Globals.h"
#include "support/Failures.h"
#include "support/ScriptedDoors.h"

TEST(ErrorHandler, HasATextOfItsOwnForAFewFailures)
{
    ScriptedDoors doors;
    Globals globals;
    for (const auto &[number, text] : {std::pair(Failure::DeviceUnavailable, "ERROR 68: Drive : not available."),
                                       {Failure::PathNotFound, "ERROR 76: That path doesn't exist."},
                                       {Failure::DuplicateKey, "There is one."},
                                       {Failure::DiskFull, "ERROR 61 occurred."}}) {
        HandleError(globals, RuntimeFailure(number), "There is one.", vbExclamation, "Oops");
        EXPECT_EQ(doors.told(), QString("1|Oops/48/") + text);
        EXPECT_EQ(globals.gMessage, text) << "which the diagnosis may show later";
    }
}

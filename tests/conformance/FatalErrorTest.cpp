// Fatal errors: the end of the application.

#include "CATFatalError.h"

#include "Samples.h"

namespace {

class FatalErrorDeathTest : public PlatformTest {};

} // namespace

ASSUMED(FatalErrorDeathTest, AFatalErrorStopsTheApplicationAndTellsWhere,
        "open: the call is given; that it ends the process with its text is the choice") {
    EXPECT_DEATH(CATFatalError("the model is gone", "Hole.cpp", 12), "the model is gone .Hole.cpp:12.");
}

ASSUMED(FatalErrorDeathTest, AFatalErrorWithoutTextStopsTheApplicationToo,
        "open: null texts count as empty") {
    EXPECT_DEATH(CATFatalError(nullptr, nullptr, 0), ":0");
}

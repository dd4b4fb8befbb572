// Functions of other libraries, looked up at run time.

#include "CATGetFunctionAddress.h"

#include "Samples.h"

namespace {

class FunctionLookUps : public PlatformTest {};

} // namespace

ASSUMED(FunctionLookUps, AMissingLibraryGivesNoAddress,
        "open: the call and its arguments are given; null for missing is the choice") {
    CATLibraryHandle library;
    EXPECT_EQ(nullptr, CATGetFunctionAddress("NoSuchLibrary", "NoSuchEntry", nullptr, 1, 1, 0, &library));
    EXPECT_EQ(nullptr, library.library);
}

ASSUMED(FunctionLookUps, NullNamesGiveNoAddress, "open: refused rather than crashed on") {
    EXPECT_EQ(nullptr, CATGetFunctionAddress(nullptr, "Entry", nullptr, 1, 1, 0, nullptr));
    EXPECT_EQ(nullptr, CATGetFunctionAddress("Library", nullptr, nullptr, 1, 1, 0, nullptr));
}

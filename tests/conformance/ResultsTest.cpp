// Result codes: values, sign, and the two tests SUCCEEDED and FAILED.

#include "CATErrorDef.h"

#include "Samples.h"

#include <type_traits>

namespace {

class Results : public PlatformTest {};

// The code as the 32 bits in which it is documented.
unsigned int Bits(HRESULT iResult) {
    return static_cast<unsigned int>(static_cast<int>(iResult));
}

} // namespace

CERTAIN(Results, AResultIsALong) {
    EXPECT_TRUE((std::is_same<HRESULT, long>::value));
}

CERTAIN(Results, SuccessIsZeroAndFalseIsOne) {
    EXPECT_EQ(0, S_OK);
    EXPECT_EQ(1, S_FALSE);
}

CERTAIN(Results, TheGeneralFailureHasItsDocumentedBits) {
    EXPECT_EQ(0x80004005U, Bits(E_FAIL));
}

CERTAIN(Results, AFailureIsNegativeWhateverTheWidthOfLong) {
    EXPECT_LT(E_FAIL, 0);
    EXPECT_LT(E_NOINTERFACE, 0);
}

CERTAIN(Results, SucceededAndFailedLookAtTheSign) {
    EXPECT_TRUE(SUCCEEDED(S_OK));
    EXPECT_TRUE(SUCCEEDED(S_FALSE));
    EXPECT_FALSE(SUCCEEDED(E_FAIL));
    EXPECT_FALSE(FAILED(S_OK));
    EXPECT_FALSE(FAILED(S_FALSE));
    EXPECT_TRUE(FAILED(E_FAIL));
    EXPECT_TRUE(FAILED(E_NOINTERFACE));
}

ASSUMED(Results, AMissingInterfaceHasTheBitsOfTheComponentModel,
        "recalled: the usual code of the component model; the panels only look at the sign") {
    EXPECT_EQ(0x80004002U, Bits(E_NOINTERFACE));
}

ASSUMED(Results, AMissingImplementationHasTheBitsOfTheComponentModel,
        "recalled: the usual code of the component model; the panels never meet it") {
    EXPECT_EQ(0x80004001U, Bits(E_NOTIMPL));
}

ASSUMED(Results, ABooleanIsAnIntegerOfZeroOrOne, "recalled: TRUE and FALSE as in C") {
    EXPECT_TRUE((std::is_same<CATBoolean, int>::value));
    EXPECT_EQ(1, TRUE);
    EXPECT_EQ(0, FALSE);
}

CERTAIN(Results, VisibilityAndStyleTravelAsUnsignedLong) {
    EXPECT_TRUE((std::is_same<CATULong, unsigned long>::value));
}

// Failing results and the error behind them.

#include "CATError.h"

#include "Samples.h"

namespace {

class LastErrors : public PlatformTest {
  protected:
    static HRESULT Fail(CATError* iError) {
        return CATError::GetReturn(2, iError, nullptr, __FILE__, __LINE__);
    }
    static HRESULT Succeed() { return CATError::GetReturn(1, nullptr, nullptr, __FILE__, __LINE__); }
    static Owned<CATError> Last(HRESULT iResult) {
        return Owned<CATError>(CATError::CATGetLastError(iResult));
    }

    static HRESULT ShortSuccess() { CATReturnSuccess; }
    static HRESULT ShortFailure() { CATReturnFailure; }
    static HRESULT ShortError(CATError* iError) { CATReturnError(iError); }
};

} // namespace

CERTAIN(LastErrors, KindOneSucceedsAndAttachesNothing) {
    EXPECT_EQ(S_OK, Succeed());
    EXPECT_EQ(nullptr, Last(S_OK));
    EXPECT_EQ(nullptr, Last(E_FAIL));
}

CERTAIN(LastErrors, KindTwoFailsAndAttachesTheError) {
    auto* error = new SampleError("Key");
    const HRESULT result = Fail(error);
    EXPECT_LT(result, 0);
    EXPECT_EQ(error, Last(result).get());
}

ASSUMED(LastErrors, KindTwoGivesTheGeneralFailure, "open: negative is given, the value is not") {
    EXPECT_EQ(E_FAIL, Fail(new SampleError));
}

ASSUMED(LastErrors, AnyOtherKindFailsWithoutAnError, "open: a failure that nobody explains") {
    EXPECT_EQ(E_FAIL, CATError::GetReturn(0, nullptr, nullptr, __FILE__, __LINE__));
    EXPECT_EQ(nullptr, Last(E_FAIL));
}

CERTAIN(LastErrors, TheReturnTakesTheErrorOver) {
    Fail(new SampleError);
    EXPECT_EQ(1, SampleError::living);
    CATError::CATCleanLastError();
    EXPECT_EQ(0, SampleError::living);
}

CERTAIN(LastErrors, WhoAsksGetsAReferenceOfHisOwn) {
    const HRESULT result = Fail(new SampleError);
    CATError* const error = CATError::CATGetLastError(result);
    error->Release();
    EXPECT_EQ(1, SampleError::living);
    Owned<CATError> kept(CATError::CATGetLastError(result));
    CATError::CATCleanLastError();
    EXPECT_EQ(1, SampleError::living);
    kept.reset();
    EXPECT_EQ(0, SampleError::living);
}

CERTAIN(LastErrors, ASuccessHasNoErrorBehindIt) {
    const HRESULT result = Fail(new SampleError);
    EXPECT_EQ(nullptr, Last(S_OK));
    EXPECT_EQ(nullptr, Last(S_FALSE));
    EXPECT_NE(nullptr, Last(result));
}

ASSUMED(LastErrors, AFailingCodeOfAnotherValueHasNoErrorBehindIt,
        "open: errors are attached to the general failure alone") {
    Fail(new SampleError);
    EXPECT_EQ(nullptr, Last(E_NOINTERFACE));
    EXPECT_EQ(nullptr, Last(E_NOTIMPL));
    EXPECT_NE(nullptr, Last(E_FAIL));
}

CERTAIN(LastErrors, CleaningForgetsTheError) {
    const HRESULT result = Fail(new SampleError);
    CATError::CATCleanLastError();
    EXPECT_EQ(nullptr, Last(result));
    CATError::CATCleanLastError();
    EXPECT_EQ(nullptr, Last(result));
}

ASSUMED(LastErrors, OneErrorIsKeptAndTheNextReplacesIt,
        "open: all failing results have one value, so there is one last error") {
    const HRESULT first = Fail(new SampleError("First"));
    Fail(new SampleError("Second"));
    EXPECT_EQ(1, SampleError::living);
    EXPECT_STREQ("Second", Last(first)->GetMsgId());
}

ASSUMED(LastErrors, ASuccessLeavesTheLastErrorAlone,
        "open: a caller may still ask for the error of a failure after a call that worked") {
    const HRESULT result = Fail(new SampleError("First"));
    Succeed();
    ASSERT_NE(nullptr, Last(result));
    EXPECT_STREQ("First", Last(result)->GetMsgId());
}

CERTAIN(LastErrors, ReturningTheSameErrorAgainIsSafe) {
    const HRESULT result = Fail(new SampleError("Same"));
    Fail(CATError::CATGetLastError(result));
    EXPECT_EQ(1, SampleError::living);
    EXPECT_STREQ("Same", Last(result)->GetMsgId());
    CATError::CATCleanLastError();
    EXPECT_EQ(0, SampleError::living);
}

CERTAIN(LastErrors, TheShortFormsReturnTheThreeKinds) {
    EXPECT_EQ(S_OK, ShortSuccess());
    EXPECT_TRUE(FAILED(ShortFailure()));
    EXPECT_EQ(nullptr, Last(E_FAIL));
    auto* error = new SampleError;
    const HRESULT result = ShortError(error);
    EXPECT_TRUE(FAILED(result));
    EXPECT_EQ(error, Last(result).get());
}

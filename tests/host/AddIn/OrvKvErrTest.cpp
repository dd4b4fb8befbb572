#include "OrvKvErr.h"

#include "CATError.h"
#include "CATErrorMacros.h"
#include "CATInputError.h"
#include "CATUnicodeString.h"
#include "host/ErrorInspection.h"
#include "host/LiveObjects.h"

#include <functional>
#include <gtest/gtest.h>

namespace {

class OrvKvErrTest : public testing::Test {
  protected:
    ~OrvKvErrTest() override {
        CATError::CATCleanLastError();
        EXPECT_EQ(host::LiveObjects::CountByClass(), _before) << "errors are left";
    }

    // The error that iAction raises, with the catcher's reference; null when it raises none.
    static CATError* Caught(const std::function<void()>& iAction) {
        CATError* caught = nullptr;
        CATTry {
            iAction();
        }
        CATCatch(CATError, error) {
            caught = error;
        }
        CATEndTry;
        return caught;
    }
    // "class key catalogue [parameters]" of the error that iAction raises.
    static std::string Raised(const std::function<void()>& iAction) {
        CATError* const error = Caught(iAction);
        if (error == nullptr)
            return "nothing";
        std::string text = std::string(error->IsA()) + " " + error->GetMsgId() + " " + error->GetMsgCatalog();
        for (const std::string& parameter : host::ErrorInspection::Parameters(*error))
            text += " [" + parameter + "]";
        error->Release();
        return text;
    }

  private:
    std::map<std::string, int> _before = host::LiveObjects::CountByClass();
};

TEST_F(OrvKvErrTest, RaisesTheErrorAttachedToAFailingCode) {
    CATError* const attached = new CATInputError("Error_BadName", "SomeCatalog");
    const HRESULT code = CATError::GetReturn(CATReturnKindError, attached, nullptr, __FILE__, __LINE__);
    CATError* const caught = Caught([code] { OrvKvErr::Throw(code); });
    EXPECT_EQ(caught, attached);
    EXPECT_EQ(host::ErrorInspection::LastError(), attached) << "it stays the last error";
    ASSERT_NE(caught, nullptr);
    EXPECT_EQ(caught->Release(), 1U) << "the reference of the last error is left";
}

TEST_F(OrvKvErrTest, RaisesAFreshErrorForACodeWithoutOne) {
    const std::string fresh = "CATInternalError Error_UnknownError OrvKv_ErrorCatalog "
                              "[An operation failed without saying why.]";
    EXPECT_EQ(Raised([] { OrvKvErr::Throw(E_FAIL); }), fresh);
    CATError::GetReturn(CATReturnKindError, new CATInputError("Key"), nullptr, __FILE__, __LINE__);
    EXPECT_EQ(Raised([] { OrvKvErr::Throw(S_OK); }), fresh) << "a success has no error";
    EXPECT_EQ(Raised([] { OrvKvErr::Throw(S_FALSE); }), fresh);
}

TEST_F(OrvKvErrTest, RaisesAMissingInterface) {
    EXPECT_EQ(Raised([] { OrvKvErr::Throw_NoInterface(); }),
              "CATInternalError Error_NoInterface OrvKv_ErrorCatalog");
}

TEST_F(OrvKvErrTest, RaisesADescriptionWithItsTextForAParameter) {
    EXPECT_EQ(Raised([] { OrvKvErr::Throw_Description("NULL_var == _hIMaxLiteral"); }),
              "CATInternalError Error_Description OrvKv_ErrorCatalog [NULL_var == _hIMaxLiteral]");
    EXPECT_EQ(Raised([] { OrvKvErr::Throw_Description(CATUnicodeString()); }),
              "CATInternalError Error_Description OrvKv_ErrorCatalog []");
}

TEST_F(OrvKvErrTest, TellsItsTextWithoutAnyCatalogue) {
    CATError* const error = Caught([] { OrvKvErr::Throw_Description("what went wrong"); });
    ASSERT_NE(error, nullptr);
    EXPECT_STREQ(error->GetNLSMessage().ConvertToChar(), "what went wrong");
    error->Release();
}

} // namespace

#include "OrvKvErr.h"

#include "CATError.h"
#include "CATErrorMacros.h"
#include "CATInputError.h"
#include "CATUnicodeString.h"
#include "host/ErrorInspection.h"
#include "host/LiveObjects.h"
#include "host/MessageCatalogs.h"
#include "support/ResourceFolder.h"

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
    EXPECT_EQ(Raised([] { OrvKvErr::Throw(E_NOINTERFACE); }), fresh) << "only a general failure has one";
}

TEST_F(OrvKvErrTest, NeverRaisesAnErrorOfAnOlderFailure) {
    const auto failWithoutReason = []() -> HRESULT { CATReturnFailure; };
    CATError::GetReturn(CATReturnKindError, new CATInputError("Error_Older"), nullptr, __FILE__, __LINE__);
    const HRESULT code = failWithoutReason();
    for (int time = 0; time < 2; ++time)
        EXPECT_EQ(Raised([code] { OrvKvErr::Throw(code); }),
                  "CATInternalError Error_UnknownError OrvKv_ErrorCatalog "
                  "[An operation failed without saying why.]");
    EXPECT_EQ(host::ErrorInspection::LastError(), nullptr) << "what is raised is nobody's last error yet";
}

TEST_F(OrvKvErrTest, RaisesTwoFreshErrorsForTwoFailures) {
    CATError* const first = Caught([] { OrvKvErr::Throw(E_FAIL); });
    CATError* const second = Caught([] { OrvKvErr::Throw(E_FAIL); });
    ASSERT_NE(first, nullptr);
    ASSERT_NE(second, nullptr);
    EXPECT_NE(first, second);
    EXPECT_EQ(first->Release(), 0U) << "the catcher owns it alone";
    EXPECT_EQ(second->Release(), 0U);
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

struct Spoken {
    const char* language;
    const char* message;
    const char* title;
};

void PrintTo(const Spoken& iSpoken, std::ostream* ioStream) {
    *ioStream << "'" << iSpoken.language << "'";
}

class OrvKvErrLanguageTest : public OrvKvErrTest, public testing::WithParamInterface<Spoken> {
  protected:
    OrvKvErrLanguageTest() {
        support::UseLibraryResources();
        host::MessageCatalogs::SetLanguage(GetParam().language);
    }
    ~OrvKvErrLanguageTest() override { host::MessageCatalogs::Reset(); }
};

TEST_P(OrvKvErrLanguageTest, SaysInTheUsersLanguageThatNoReasonIsKnown) {
    CATError* const error = Caught([] { OrvKvErr::Throw(E_FAIL); });
    ASSERT_NE(error, nullptr);
    EXPECT_STREQ(error->GetNLSMessage().ConvertToChar(), GetParam().message);
    EXPECT_STREQ(error->GetNLSSource().ConvertToChar(), GetParam().title);
    error->Release();
}

INSTANTIATE_TEST_SUITE_P(
    In, OrvKvErrLanguageTest,
    testing::Values(Spoken{"",
                           "The action could not be carried out.\nAn operation failed without saying why.\n"
                           "Check the input and try again.",
                           "Kelvane Feature"},
                    Spoken{"German",
                           "Die Aktion konnte nicht ausgeführt werden.\nEin Vorgang ist fehlgeschlagen, ohne "
                           "einen Grund zu nennen.\nPrüfen Sie die Eingabe und versuchen Sie es erneut.",
                           "Kelvane-Feature"},
                    Spoken{"French",
                           "L'action n'a pas pu être effectuée.\nUne opération a échoué sans en donner la "
                           "raison.\nVérifiez la saisie et réessayez.",
                           "Fonction Kelvane"},
                    Spoken{"Japanese",
                           "操作を実行できませんでした。\n処理に失敗しましたが、原因は報告されていません。\n"
                           "入力を確認して、もう一度実行してください。",
                           "Kelvane フィーチャー"}),
    [](const testing::TestParamInfo<Spoken>& iSpoken) {
        const std::string name = iSpoken.param.language;
        return name.empty() ? std::string("English") : name;
    });

} // namespace

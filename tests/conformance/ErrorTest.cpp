// Error objects and their texts.

#include "CATError.h"
#include "CATInputError.h"
#include "CATInternalError.h"
#include "CATMfErrUpdate.h"
#include "CATResourceError.h"

#include "MessageFolder.h"
#include "Samples.h"

namespace {

class Errors : public PlatformTest {
  protected:
    static Owned<CATError> Make(const char* iKey, const char* iCatalog) {
        return Owned<CATError>(new CATInputError(iKey, iCatalog));
    }
};

} // namespace

CERTAIN(Errors, TheErrorClassesAreKindsOfError) {
    EXPECT_STREQ("CATError", CATError::ClassName());
    for (const CATMetaClass* meta : {CATInternalError::MetaObject(), CATInputError::MetaObject(),
                                     CATResourceError::MetaObject(), CATMfErrUpdate::MetaObject()}) {
        EXPECT_NE(0, meta->IsAKindOf("CATError"));
        EXPECT_NE(0, meta->IsAKindOf("CATBaseUnknown"));
    }
    EXPECT_EQ(0, CATInputError::MetaObject()->IsAKindOf("CATInternalError"));
}

CERTAIN(Errors, AnUpdateErrorTellsItsKind) {
    const Owned<CATError> update(new CATMfErrUpdate("Key", "NoSuchCatalogue"));
    const Owned<CATError> other = Make("Key", "NoSuchCatalogue");
    EXPECT_NE(0, update->IsAKindOf("CATMfErrUpdate"));
    EXPECT_EQ(0, other->IsAKindOf("CATMfErrUpdate"));
}

CERTAIN(Errors, AnErrorIsMadeFromKeyThenCatalogue) {
    MessageFolder::Write("ErrorOrder.CATNls", "ErrorKey.Diagnostic = \"found\";\n");
    EXPECT_STREQ("found", Make("ErrorKey", "ErrorOrder")->GetNLSDiagnostic().ConvertToChar());
}

CERTAIN(Errors, ThePartsOfTheMessageHaveSuffixes) {
    MessageFolder::Write("ErrorParts.CATNls", "Full.Request = \"What was wanted\";\n"
                                              "Full.Diagnostic = \"What is wrong\";\n"
                                              "Full.Advice = \"What to do\";\n");
    const Owned<CATError> error = Make("Full", "ErrorParts");
    EXPECT_STREQ("What was wanted", error->GetNLSRequest().ConvertToChar());
    EXPECT_STREQ("What is wrong", error->GetNLSDiagnostic().ConvertToChar());
    EXPECT_STREQ("What to do", error->GetNLSAdvice().ConvertToChar());
}

ASSUMED(Errors, TheMessageJoinsThePartsThatExist, "recalled: request, diagnostic, advice, a line for each") {
    MessageFolder::Write("ErrorJoined.CATNls", "Full.Request = \"What was wanted\";\n"
                                               "Full.Diagnostic = \"What is wrong\";\n"
                                               "Full.Advice = \"What to do\";\n"
                                               "Short.Diagnostic = \"What is wrong\";\n");
    EXPECT_STREQ("What was wanted\nWhat is wrong\nWhat to do",
                 Make("Full", "ErrorJoined")->GetNLSMessage().ConvertToChar());
    EXPECT_STREQ("What is wrong", Make("Short", "ErrorJoined")->GetNLSMessage().ConvertToChar());
}

ASSUMED(Errors, APlainKeyGivesTheMessage,
        "open: the panels' own error catalogue has keys without suffix, so both forms are read") {
    MessageFolder::Write("ErrorPlain.CATNls", "Plain = \"Not possible\";\n");
    const Owned<CATError> error = Make("Plain", "ErrorPlain");
    EXPECT_STREQ("Not possible", error->GetNLSMessage().ConvertToChar());
    EXPECT_STREQ("", error->GetNLSRequest().ConvertToChar());
    EXPECT_STREQ("", error->GetNLSDiagnostic().ConvertToChar());
    EXPECT_STREQ("", error->GetNLSAdvice().ConvertToChar());
}

CERTAIN(Errors, ParametersFillTheirPlaces) {
    MessageFolder::Write("ErrorParameters.CATNls", "Key.Diagnostic = \"The value /p1 of /p2 is not /p3\";\n");
    const Owned<CATError> error = Make("Key", "ErrorParameters");
    CATUnicodeString value("12");
    CATUnicodeString name("Depth");
    CATUnicodeString wanted("positive");
    error->SetNLSParameters(3, &value, &name, &wanted);
    EXPECT_STREQ("The value 12 of Depth is not positive", error->GetNLSDiagnostic().ConvertToChar());
}

ASSUMED(Errors, ParametersAreCopied, "open: the texts behind the addresses are often temporary") {
    MessageFolder::Write("ErrorCopies.CATNls", "Key = \"/p1\";\n");
    const Owned<CATError> error = Make("Key", "ErrorCopies");
    CATUnicodeString value("before");
    error->SetNLSParameters(1, &value);
    value = CATUnicodeString("after");
    EXPECT_STREQ("before", error->GetNLSMessage().ConvertToChar());
}

ASSUMED(Errors, WithoutCatalogueTheMessageIsTheParametersOrTheKey,
        "open: a message must stay readable when its catalogue is missing") {
    const Owned<CATError> error = Make("SomeKey", "NoSuchCatalogue");
    EXPECT_STREQ("SomeKey", error->GetNLSMessage().ConvertToChar());
    CATUnicodeString first("first");
    CATUnicodeString second("second");
    error->SetNLSParameters(2, &first, &second);
    EXPECT_STREQ("first\nsecond", error->GetNLSMessage().ConvertToChar());
}

ASSUMED(Errors, TheSourceIsTheCataloguesTextOrTheClassName,
        "open: the title of a message window must never be empty") {
    MessageFolder::Write("ErrorSource.CATNls", "Key.Source = \"Hole\";\n");
    EXPECT_STREQ("Hole", Make("Key", "ErrorSource")->GetNLSSource().ConvertToChar());
    EXPECT_STREQ("CATInputError", Make("Other", "ErrorSource")->GetNLSSource().ConvertToChar());
}

ASSUMED(Errors, TheMessageIdentifierIsTheKey, "open: its use is given, its content is not") {
    EXPECT_STREQ("SomeKey", Make("SomeKey", "NoSuchCatalogue")->GetMsgId());
}

CERTAIN(Errors, AnErrorKeepsItsSeverity) {
    const Owned<CATError> error = Make("Key", "NoSuchCatalogue");
    error->SetType(CATErrorTypeWarning);
    EXPECT_EQ(CATErrorTypeWarning, error->GetType());
    error->SetType(CATErrorTypeCritical);
    EXPECT_EQ(CATErrorTypeCritical, error->GetType());
}

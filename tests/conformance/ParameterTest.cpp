// Parameters: values, units, texts, who may change them.

#include "CATICkeParm.h"

#include "DecimalComma.h"
#include "ParameterFacts.h"

#include <functional>
#include <limits>

namespace {

class Parameters : public ParameterFixture {
  protected:
    std::string Shown(double iStored) {
        CATIParmAsStored_var(length)->SetValue(iStored);
        return length->Show().ConvertToChar();
    }

    const double infinity = std::numeric_limits<double>::infinity();
    const double nan = std::numeric_limits<double>::quiet_NaN();
};

} // namespace

CERTAIN(Parameters, LengthsAreMadeInMetresAndStoredInMillimetres) {
    EXPECT_DOUBLE_EQ(10.0, Stored(length));
    EXPECT_DOUBLE_EQ(0.01, length->AsReal());
}

CERTAIN(Parameters, AnglesAreMadeInRadiansAndStoredInDegrees) {
    EXPECT_DOUBLE_EQ(90.0, Stored(angle));
    EXPECT_DOUBLE_EQ(1.5707963267948966, angle->AsReal());
}

CERTAIN(Parameters, OtherNumbersHaveNoUnit) {
    EXPECT_EQ(2.5, Stored(real));
    EXPECT_EQ(2.5, real->AsReal());
    EXPECT_EQ(3.0, Stored(integer));
    EXPECT_EQ(3.0, integer->AsReal());
}

CERTAIN(Parameters, AStoredTenthOfAMillimetreReadsAsATenThousandthOfAMetre) {
    EXPECT_EQ(S_OK, CATIParmAsStored_var(length)->SetValue(0.1));
    EXPECT_EQ(0.1, Stored(length));
    EXPECT_EQ(0.0001, length->AsReal());
}

CERTAIN(Parameters, ANewValueIsGivenInMetresAndRadians) {
    EXPECT_EQ(S_OK, length->Valuate(0.25));
    EXPECT_DOUBLE_EQ(250.0, Stored(length));
    EXPECT_EQ(S_OK, length->Valuate(2));
    EXPECT_DOUBLE_EQ(2000.0, Stored(length));
    EXPECT_EQ(S_OK, angle->Valuate(3.141592653589793));
    EXPECT_DOUBLE_EQ(180.0, Stored(angle));
}

CERTAIN(Parameters, EveryParameterHasItsName) {
    EXPECT_STREQ("DIAMETER", length->Name().ConvertToChar());
    EXPECT_STREQ("THREAD", string->Name().ConvertToChar());
}

ASSUMED(Parameters, TheNameSeenFromNoPublisherIsTheBareName, "open: recalled operation with a null handle") {
    EXPECT_STREQ("DIAMETER", length->RelativeName(CATIParmPublisher_var()).ConvertToChar());
}

CERTAIN(Parameters, LengthsAndAnglesAreNamedSo) {
    EXPECT_STREQ("LENGTH", length->Type()->Name().ConvertToChar());
    EXPECT_STREQ("ANGLE", angle->Type()->Name().ConvertToChar());
}

ASSUMED(Parameters, TheOtherMagnitudesHaveTheseNames, "recalled") {
    EXPECT_STREQ("REAL", real->Type()->Name().ConvertToChar());
    EXPECT_STREQ("INTEGER", integer->Type()->Name().ConvertToChar());
    EXPECT_STREQ("BOOLEAN", boolean->Type()->Name().ConvertToChar());
    EXPECT_STREQ("STRING", string->Type()->Name().ConvertToChar());
}

ASSUMED(Parameters, AValueIsShownInItsStorageUnitWithoutABlank, "open: recalled look of a displayed value") {
    EXPECT_STREQ("10mm", length->Show().ConvertToChar());
    EXPECT_STREQ("90deg", angle->Show().ConvertToChar());
    EXPECT_STREQ("2.5", real->Show().ConvertToChar());
    EXPECT_STREQ("3", integer->Show().ConvertToChar());
    EXPECT_STREQ("true", boolean->Show().ConvertToChar());
    EXPECT_STREQ("M10", string->Show().ConvertToChar());
}

ASSUMED(Parameters, AShownNumberHasSixDigitsThatCount, "open: as the panels write numbers themselves") {
    EXPECT_EQ("0.1mm", Shown(0.1));
    EXPECT_EQ("-0.05mm", Shown(-0.05));
    EXPECT_EQ("12.3457mm", Shown(12.345678));
    EXPECT_EQ("1e+06mm", Shown(1000000.0));
    EXPECT_EQ("1e-07mm", Shown(1e-7));
    EXPECT_EQ("0mm", Shown(0.0));
}

ASSUMED(Parameters, MinusZeroIsShownAsZero, "open: nobody means minus zero") {
    EXPECT_EQ("0mm", Shown(-0.0));
    EXPECT_EQ(S_OK, length->Valuate(-0.0));
    EXPECT_STREQ("0mm", length->Show().ConvertToChar());
}

ASSUMED(Parameters, AWholeNumberIsShownInFull, "open: a count has no unit that could be larger") {
    EXPECT_EQ(S_OK, integer->Valuate(12345678));
    EXPECT_STREQ("12345678", integer->Show().ConvertToChar());
}

ASSUMED(Parameters, TheDecimalSignIsThePointWhateverTheLocale, "open: shown texts are compared and kept") {
    const DecimalComma comma;
    if (!DecimalComma::IsThere())
        GTEST_SKIP() << "this machine has no locale with a decimal comma";
    EXPECT_EQ("0.5mm", Shown(0.5));
}

ASSUMED(Parameters, TheValueIsAnObjectOfTheParameter, "recalled") {
    const CATICkeInst_var value = length->Value();
    ASSERT_FALSE(!value);
    EXPECT_DOUBLE_EQ(0.01, value->AsReal());
    EXPECT_STREQ("LENGTH", value->Type()->Name().ConvertToChar());
    EXPECT_TRUE(value == length);
}

ASSUMED(Parameters, AWholeNumberIsCutOffTowardsZero, "open: as a conversion in the language") {
    EXPECT_EQ(2, real->AsInteger());
    EXPECT_EQ(S_OK, real->Valuate(-2.9));
    EXPECT_EQ(-2, real->AsInteger());
    EXPECT_EQ(S_OK, real->Valuate(1e30));
    EXPECT_EQ(std::numeric_limits<int>::max(), real->AsInteger());
    EXPECT_EQ(S_OK, real->Valuate(-1e30));
    EXPECT_EQ(std::numeric_limits<int>::min(), real->AsInteger());
}

ASSUMED(Parameters, EveryTypeReadsAsNumberAndAsText, "open: a conversion that has no sense gives zero") {
    EXPECT_EQ(1.0, boolean->AsReal());
    EXPECT_EQ(1, boolean->AsInteger());
    EXPECT_STREQ("true", boolean->AsString().ConvertToChar());
    EXPECT_EQ(0.0, string->AsReal());
    EXPECT_EQ(0, string->AsInteger());
    EXPECT_STREQ("M10", string->AsString().ConvertToChar());
    EXPECT_STREQ("10mm", length->AsString().ConvertToChar());
}

ASSUMED(Parameters, ATextIsTakenByAStringAlone, "open: refused rather than read") {
    EXPECT_EQ(S_OK, string->Valuate(CATUnicodeString("M12")));
    EXPECT_STREQ("M12", string->AsString().ConvertToChar());
    for (const CATICkeParm_var& parameter : {length, angle, real, integer, boolean}) {
        const CATUnicodeString before = parameter->Show();
        EXPECT_TRUE(FAILED(parameter->Valuate(CATUnicodeString("1"))));
        EXPECT_TRUE(parameter->Show() == before);
    }
}

ASSUMED(Parameters, ANumberIsNotTakenByAString, "open: refused rather than written") {
    EXPECT_TRUE(FAILED(string->Valuate(1.0)));
    EXPECT_TRUE(FAILED(string->Valuate(1)));
    EXPECT_STREQ("M10", string->AsString().ConvertToChar());
}

ASSUMED(Parameters, ANumberThatTheTypeCannotHaveIsRefused, "open: an invalid value is never kept") {
    for (const double number : {infinity, -infinity, nan, 1e306}) {
        EXPECT_TRUE(FAILED(length->Valuate(number))) << number;
        EXPECT_EQ(10.0, Stored(length));
    }
    for (const double number : {infinity, -infinity, nan, 0.5, 1e10, -1e10}) {
        EXPECT_TRUE(FAILED(integer->Valuate(number))) << number;
        EXPECT_TRUE(FAILED(CATIParmAsStored_var(integer)->SetValue(number))) << number;
        EXPECT_EQ(3.0, Stored(integer));
    }
    for (const double number : {infinity, nan, 0.5, 2.0, -1.0}) {
        EXPECT_TRUE(FAILED(boolean->Valuate(number))) << number;
        EXPECT_TRUE(FAILED(CATIParmAsStored_var(boolean)->SetValue(number))) << number;
        EXPECT_EQ(1.0, Stored(boolean));
    }
    EXPECT_EQ(S_OK, length->Valuate(1e300));
    EXPECT_EQ(S_OK, integer->Valuate(-7.0));
    EXPECT_EQ(S_OK, boolean->Valuate(0));
    EXPECT_EQ(0.0, Stored(boolean));
}

ASSUMED(Parameters, ARefusedValueHasNoErrorOfAnOlderFailureBehindIt,
        "open: nobody may take what went wrong before for the reason") {
    const CATIParmTolerance_var tolerance(length);
    const std::function<HRESULT()> refused[] = {
        [&] { return length->Valuate(infinity); }, [&] { return length->Valuate(CATUnicodeString("wide")); },
        [&] { return CATIParmAsStored_var(length)->SetValue(infinity); },
        [&] { return tolerance->SetMaxTolerance(infinity); },
        [&] { return tolerance->SetMinTolerance(-infinity); }};
    for (const std::function<HRESULT()>& write : refused) {
        CATError::GetReturn(2, new SampleError("Older"), nullptr, __FILE__, __LINE__);
        EXPECT_EQ(nullptr, Owned<CATError>(CATError::CATGetLastError(write())));
    }
}

ASSUMED(Parameters, AStringHasNoStoredNumber, "open: there is none to give") {
    EXPECT_TRUE(!CATIParmAsStored_var(string));
    for (const CATICkeParm_var& parameter : {length, angle, real, integer, boolean})
        EXPECT_FALSE(!CATIParmAsStored_var(parameter));
}

CERTAIN(Parameters, AModeOfOneMakesItReadOnlyAndThreeEditable) {
    length->SetUserAccessMode(1);
    EXPECT_EQ(1, length->GetUserAccessMode());
    length->SetUserAccessMode(3);
    EXPECT_EQ(3, length->GetUserAccessMode());
}

ASSUMED(Parameters, ANewOneIsEditable, "open") {
    EXPECT_EQ(3, length->GetUserAccessMode());
}

ASSUMED(Parameters, OtherModesChangeNothing, "open: no other value is known") {
    length->SetUserAccessMode(1);
    for (const int mode : {0, 2, 4, -1}) {
        length->SetUserAccessMode(mode);
        EXPECT_EQ(1, length->GetUserAccessMode());
    }
}

ASSUMED(Parameters, AProgramWritesReadOnlyOnesToo, "open: the mode is about the user") {
    length->SetUserAccessMode(1);
    EXPECT_EQ(S_OK, length->Valuate(0.02));
    EXPECT_EQ(S_OK, CATIParmAsStored_var(length)->SetValue(30.0));
    EXPECT_EQ(30.0, Stored(length));
}

CERTAIN(Parameters, TheirOtherInterfacesAreReachedByHandles) {
    const CATIParmAsStored_var stored(length);
    const CATIParmTolerance_var tolerance(stored);
    const CATIParmEvents_var events(tolerance);
    const CATICkeParm_var back(events);
    ASSERT_FALSE(!back);
    EXPECT_STREQ("DIAMETER", back->Name().ConvertToChar());
    EXPECT_TRUE(stored == length);
    EXPECT_TRUE(tolerance == events);
    EXPECT_TRUE(CATBaseUnknown_var(events) == CATBaseUnknown_var(length));
    EXPECT_FALSE(stored == angle);
    EXPECT_TRUE(!CATIParmPublisher_var(length));
}

CERTAIN(Parameters, AnyOfItsInterfacesKeepsAParameterAlive) {
    CATIParmTolerance_var tolerance(factory->CreateLength("DEPTH", 0.005));
    const CATICkeParm_var parameter(tolerance);
    tolerance = CATIParmTolerance_var();
    EXPECT_STREQ("DEPTH", parameter->Name().ConvertToChar());
}

ASSUMED(Parameters, InterfacesAreFoundByTheirNamesToo, "recalled") {
    CATBaseUnknown* const found = length->QueryInterface("CATIParmTolerance");
    ASSERT_NE(nullptr, found);
    EXPECT_TRUE(found->IsEqual(length) != 0);
    CATBaseUnknown* const back = found->QueryInterface("CATICkeParm");
    EXPECT_EQ(static_cast<CATBaseUnknown*>(length), back);
    back->Release();
    found->Release();
    EXPECT_EQ(nullptr, length->QueryInterface("CATIParmPublisher"));
}

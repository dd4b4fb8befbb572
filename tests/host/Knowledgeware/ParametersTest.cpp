// Parameters as a model makes them.

#include "host/Parameters.h"

#include "CATCkeGlobalFunctions.h"
#include "CATIParmAsStored.h"
#include "host/LiveObjects.h"
#include "support/AuditedTest.h"

#include <limits>

using host::LiveObjects;
using host::Parameters;

namespace {

class ParametersTest : public support::AuditedTest {
  protected:
    static double Stored(const CATICkeParm_var& iParameter) {
        return CATIParmAsStored_var(iParameter)->GetValue();
    }
};

TEST_F(ParametersTest, AreMadeWithValuesAsDocumentsKeepThem) {
    const CATICkeParm_var length = Parameters::NewLength("T", 12.5);
    EXPECT_EQ(Stored(length), 12.5);
    EXPECT_DOUBLE_EQ(length->AsReal(), 0.0125);
    EXPECT_STREQ(length->Type()->Name().ConvertToChar(), "LENGTH");
    const CATICkeParm_var angle = Parameters::NewAngle("A", 118.0);
    EXPECT_EQ(Stored(angle), 118.0);
    EXPECT_STREQ(angle->Show().ConvertToChar(), "118deg");
    EXPECT_STREQ(Parameters::NewReal("R", 0.1)->Show().ConvertToChar(), "0.1");
    EXPECT_STREQ(Parameters::NewInteger("N", -4)->Show().ConvertToChar(), "-4");
    EXPECT_STREQ(Parameters::NewBoolean("C", true)->Show().ConvertToChar(), "true");
    EXPECT_STREQ(Parameters::NewBoolean("C", false)->Show().ConvertToChar(), "false");
    EXPECT_STREQ(Parameters::NewString("S", "M10")->Show().ConvertToChar(), "M10");
}

TEST_F(ParametersTest, TakeANumberThatIsNotFiniteAsZero) {
    for (const double number :
         {std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity(),
          std::numeric_limits<double>::quiet_NaN()}) {
        EXPECT_STREQ(Parameters::NewLength("T", number)->Show().ConvertToChar(), "0mm");
        EXPECT_STREQ(Parameters::NewAngle("A", number)->Show().ConvertToChar(), "0deg");
        EXPECT_STREQ(Parameters::NewReal("R", number)->Show().ConvertToChar(), "0");
    }
}

TEST_F(ParametersTest, ShowAnOddNameAsItIs) {
    for (const char* name : {"", "a\\b", "\xC3\x98 10", "a name that is longer than a short text"})
        EXPECT_STREQ(Parameters::NewLength(name, 1.0)->Name().ConvertToChar(), name);
}

TEST_F(ParametersTest, LiveAsLongAsTheirLastHandle) {
    CATICkeParm_var length = Parameters::NewLength("T", 12.5);
    EXPECT_EQ(LiveObjects::Count("Parameter"), 1);
    CATIParmAsStored_var stored(length);
    length = CATICkeParm_var();
    EXPECT_EQ(LiveObjects::Count("Parameter"), 1);
    EXPECT_EQ(stored->GetValue(), 12.5);
    stored = CATIParmAsStored_var();
    EXPECT_EQ(LiveObjects::Count("Parameter"), 0);
}

TEST_F(ParametersTest, GiveOneTypeObjectForEachMagnitude) {
    const CATICkeType_var type = Parameters::NewLength("T", 1.0)->Type();
    EXPECT_TRUE(type == Parameters::NewLength("U", 2.0)->Type());
    EXPECT_FALSE(type == Parameters::NewAngle("A", 2.0)->Type());
    EXPECT_STREQ(type->Name().ConvertToChar(), "LENGTH");
    EXPECT_EQ(LiveObjects::Count("Magnitude"), 6);
}

// A type of somebody else: its name decides.
class ForeignType : public CATICkeType {
  public:
    explicit ForeignType(const char* iName) : _name(iName) {}
    CATUnicodeString Name() override { return _name; }

  private:
    const char* _name;
};

TEST_F(ParametersTest, AreMadeOfAForeignTypeByItsName) {
    const CATICkeParmFactory_var factory = CATCkeGlobalFunctions::GetVolatileFactory();
    ForeignType angle("ANGLE");
    EXPECT_STREQ(factory->CreateParameter(&angle, "A")->Show().ConvertToChar(), "0deg");
    ForeignType volume("VOLUME");
    EXPECT_TRUE(!factory->CreateParameter(&volume, "V"));
    EXPECT_TRUE(!factory->CreateDimension(&volume, "V", 1.0));
}

} // namespace

// Temporary modifications of a feature's parameters.

#include "host/FeatureParameters.h"

#include "IsTempParameterModified.h"
#include "host/FaultPoints.h"
#include "host/LiveObjects.h"

#include <gtest/gtest.h>

namespace {

class FeatureParametersTest : public testing::Test {
  protected:
    // The answer; -1 when the call fails.
    static int IsModified(const OrvIKvFeatureParameters_var& iFeature, const char* iName) {
        unsigned char modified = 7;
        const HRESULT result = IsTempParameterModified(iFeature, iName, modified);
        EXPECT_TRUE(modified == 0 || (modified == 1 && SUCCEEDED(result)));
        return SUCCEEDED(result) ? modified : -1;
    }

    const OrvIKvFeatureParameters_var feature = host::NewFeatureParameters();
};

TEST_F(FeatureParametersTest, HaveNoModificationAtFirst) {
    EXPECT_EQ(IsModified(feature, "DEPTH"), 0);
    EXPECT_EQ(IsModified(feature, ""), 0);
}

TEST_F(FeatureParametersTest, AreModifiedByNameUntilTakenBack) {
    feature->SetTemporarilyModified("DEPTH", 1);
    EXPECT_EQ(IsModified(feature, "DEPTH"), 1);
    EXPECT_EQ(IsModified(feature, "DEPTH2"), 0);
    EXPECT_EQ(IsModified(feature, "depth"), 0);
    feature->SetTemporarilyModified("DEPTH", 1);
    feature->SetTemporarilyModified("DEPTH", 0);
    EXPECT_EQ(IsModified(feature, "DEPTH"), 0);
    feature->SetTemporarilyModified("DEPTH", 0);
    EXPECT_EQ(IsModified(feature, "DEPTH"), 0);
}

TEST_F(FeatureParametersTest, TakeAnyNumberButZeroForAModification) {
    feature->SetTemporarilyModified("DEPTH", 255);
    EXPECT_EQ(feature->IsTemporarilyModified("DEPTH"), 1);
}

TEST_F(FeatureParametersTest, ForgetAllModificationsAtOnce) {
    feature->SetTemporarilyModified("DEPTH", 1);
    feature->SetTemporarilyModified("WIDTH", 1);
    feature->ForgetModifications();
    EXPECT_EQ(IsModified(feature, "DEPTH"), 0);
    EXPECT_EQ(IsModified(feature, "WIDTH"), 0);
}

TEST_F(FeatureParametersTest, BelongToOneFeature) {
    const OrvIKvFeatureParameters_var other = host::NewFeatureParameters();
    feature->SetTemporarilyModified("DEPTH", 1);
    EXPECT_EQ(IsModified(other, "DEPTH"), 0);
    EXPECT_FALSE(feature == other);
}

TEST_F(FeatureParametersTest, FailForANullFeature) {
    EXPECT_EQ(IsModified(OrvIKvFeatureParameters_var(), "DEPTH"), -1);
}

TEST_F(FeatureParametersTest, AreReachedFromAnyHandleAndLiveAsLongAsIt) {
    const int before = host::LiveObjects::Count("FeatureParameters");
    {
        const CATBaseUnknown_var plain = host::NewFeatureParameters();
        EXPECT_EQ(host::LiveObjects::Count("FeatureParameters"), before + 1);
        const OrvIKvFeatureParameters_var back(plain);
        ASSERT_FALSE(!back);
        back->SetTemporarilyModified("DEPTH", 1);
        EXPECT_EQ(IsModified(plain, "DEPTH"), 1);
        host::FaultPoints::FailCall(1, "interface query");
        EXPECT_TRUE(!OrvIKvFeatureParameters_var(plain));
        host::FaultPoints::Stop();
    }
    EXPECT_EQ(host::LiveObjects::Count("FeatureParameters"), before);
}

} // namespace

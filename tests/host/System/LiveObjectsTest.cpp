// The count of live objects.

#include "host/LiveObjects.h"

#include "Recorders.h"
#include "support/AuditedTest.h"

#include <memory>

namespace {

class LiveObjectsTest : public support::AuditedTest {};

} // namespace

TEST_F(LiveObjectsTest, AnObjectCountsUnderItsOwnClassFromBirthToDeath) {
    const int before = host::LiveObjects::Count("SampleNotification");
    {
        SampleNotification one;
        const SampleNotification copy(one);
        SpecialNotification special;
        EXPECT_EQ(before + 2, host::LiveObjects::Count("SampleNotification"));
        EXPECT_EQ(1, host::LiveObjects::Count("SpecialNotification"));
    }
    EXPECT_EQ(before, host::LiveObjects::Count("SampleNotification"));
    EXPECT_EQ(0, host::LiveObjects::Count("SpecialNotification"));
}

TEST_F(LiveObjectsTest, AClassNobodyMadeCountsZero) {
    EXPECT_EQ(0, host::LiveObjects::Count("NoSuchClass"));
    EXPECT_EQ(0, host::LiveObjects::Count(""));
}

TEST_F(LiveObjectsTest, AllObjectsAreListedYoungestFirst) {
    SampleNotification first;
    SpecialNotification second;
    SampleNotification third;
    const std::vector<CATBaseUnknown*> all = host::LiveObjects::All();
    ASSERT_GE(all.size(), 3U);
    EXPECT_EQ(&third, all[0]);
    EXPECT_EQ(&second, all[1]);
    EXPECT_EQ(&first, all[2]);
}

TEST_F(LiveObjectsTest, AnObjectInTheMiddleLeavesTheOthersListed) {
    SampleNotification first;
    auto second = std::make_unique<SpecialNotification>();
    SampleNotification third;
    second.reset();
    const std::vector<CATBaseUnknown*> all = host::LiveObjects::All();
    ASSERT_GE(all.size(), 2U);
    EXPECT_EQ(&third, all[0]);
    EXPECT_EQ(&first, all[1]);
}

TEST_F(LiveObjectsTest, TheTableByClassAgreesWithTheList) {
    SampleNotification one;
    SpecialNotification two;
    int sum = 0;
    for (const auto& entry : host::LiveObjects::CountByClass())
        sum += entry.second;
    EXPECT_EQ(host::LiveObjects::All().size(), static_cast<std::size_t>(sum));
}

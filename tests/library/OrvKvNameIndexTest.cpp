#include "OrvKvNameIndex.h"

#include <gtest/gtest.h>

#include <string>

namespace {

TEST(OrvKvNameIndexTest, FindsTheFirstPlaceOfAName) {
    OrvKvNameIndex index;
    EXPECT_EQ(index.Add("D", 1), 1);
    EXPECT_EQ(index.Add("T", 2), 2);
    EXPECT_EQ(index.Add("D", 3), 1);
    EXPECT_EQ(index.Find("D"), 1);
    EXPECT_EQ(index.Find("T"), 2);
}

TEST(OrvKvNameIndexTest, DoesNotFindWhatWasNeverAddedOrIsForgotten) {
    OrvKvNameIndex index;
    EXPECT_EQ(index.Find("D"), OrvKvNameIndex::Absent);
    index.Add("D", 1);
    EXPECT_EQ(index.Find("d"), OrvKvNameIndex::Absent);
    index.Clear();
    EXPECT_EQ(index.Find("D"), OrvKvNameIndex::Absent);
}

TEST(OrvKvNameIndexTest, TakesTheEmptyNameLikeAnyOther) {
    OrvKvNameIndex index;
    EXPECT_EQ(index.Find(""), OrvKvNameIndex::Absent);
    index.Add("", 7);
    EXPECT_EQ(index.Find(""), 7);
}

TEST(OrvKvNameIndexTest, ReservingRoomAddsNothing) {
    OrvKvNameIndex index;
    index.Reserve(100);
    index.Reserve(-1);
    EXPECT_EQ(index.Find(""), OrvKvNameIndex::Absent);
}

TEST(OrvKvNameIndexTest, FindsEveryNameOfALongListAndNoOther) {
    OrvKvNameIndex index;
    for (int place = 0; place < 5000; ++place)
        index.Add(std::to_string(place).c_str(), place);
    const OrvKvNameIndex copy(index);
    for (int place = 0; place < 5000; ++place)
        ASSERT_EQ(copy.Find(std::to_string(place).c_str()), place);
    EXPECT_EQ(copy.Find("5000"), OrvKvNameIndex::Absent);
}

TEST(OrvKvNameIndexTest, ForgetsALongListForAShortOne) {
    OrvKvNameIndex index;
    for (int place = 0; place < 5000; ++place)
        index.Add(std::to_string(place).c_str(), place);
    index.Clear();
    index.Add("7", 1);
    EXPECT_EQ(index.Find("7"), 1);
    for (int place = 10; place < 5000; ++place)
        ASSERT_EQ(index.Find(std::to_string(place).c_str()), OrvKvNameIndex::Absent);
}

} // namespace

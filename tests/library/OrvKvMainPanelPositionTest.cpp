// Where the main panel opens, and what it remembers of where it was put.

#include "OrvKvMainPanelTest.h"

#include "host/DialogUser.h"
#include "host/FaultPoints.h"
#include "host/Preferences.h"
#include "support/TemporaryFolder.h"

#include <limits>

namespace {

using namespace support;
using namespace mainPanel;

using Places = std::vector<Place>;
using OrvKvMainPanelPositionTest = OrvKvMainPanelTest;

constexpr int farAway = std::numeric_limits<int>::max();

TEST_F(OrvKvMainPanelPositionTest, WithNothingStoredItOpensAtTheUpperLeft) {
    EXPECT_EQ(PlaceOf(MakeBuilt()), Place({0, 0, 640, 670}));
}

TEST_F(OrvKvMainPanelPositionTest, OpensAtTheStoredPlaceWithItsOwnExtent) {
    for (const Place& stored : {Place{120, 80, 5, 7}, Place{-1300, -20, 0, 0}, Place{farAway, -farAway, 1, 1},
                                Place{0, 0, 640, 670}}) {
        StorePlace(stored);
        EXPECT_EQ(PlaceOf(MakeBuilt()), Place({stored.left, stored.top, 640, 670}));
    }
}

TEST_F(OrvKvMainPanelPositionTest, EveryMoveOfAPersonIsStored) {
    MakeBuilt();
    ASSERT_TRUE(host::DialogUser::Move(Panel(), 30, 40));
    EXPECT_EQ(StoredPlaces(), Places({{30, 40, 640, 670}}));
    ASSERT_TRUE(host::DialogUser::Move(Panel(), -50, 700));
    EXPECT_EQ(StoredPlaces(), Places({{-50, 700, 640, 670}}));
    EXPECT_EQ(Command().TakeClasses(), Classes()) << "the panel keeps it to itself";
}

TEST_F(OrvKvMainPanelPositionTest, OpensWhereItWasPutLast) {
    for (const unsigned char mode : {parameterMode, setMode}) {
        MakeBuilt(mode);
        ASSERT_TRUE(host::DialogUser::Move(Panel(), 200 + mode, 100));
        Destroy();
        EXPECT_EQ(PlaceOf(MakeBuilt(mode)), Place({200 + mode, 100, 640, 670}));
    }
}

TEST_F(OrvKvMainPanelPositionTest, FoldingAndUnfoldingKeepThePlaceAndChangeTheExtent) {
    MakeBuilt();
    ASSERT_TRUE(host::DialogUser::Move(Panel(), 30, 40));
    PressMoreLess();
    EXPECT_EQ(PlaceOf(Panel()), Place({30, 40, 340, 670}));
    EXPECT_EQ(StoredPlaces(), Places({{30, 40, 640, 670}})) << "a change by program is not stored";
    ASSERT_TRUE(host::DialogUser::Move(Panel(), 35, 45));
    EXPECT_EQ(StoredPlaces(), Places({{35, 45, 340, 670}}));
    PressMoreLess();
    EXPECT_EQ(PlaceOf(Panel()), Place({35, 45, 640, 670}));
}

TEST_F(OrvKvMainPanelPositionTest, FoldingReadsTheStoredPlaceAnew) {
    MakeBuilt();
    StorePlace({11, 12, 0, 0});
    PressMoreLess();
    EXPECT_EQ(PlaceOf(Panel()), Place({11, 12, 340, 670}));
    StorePlace({21, 22, 0, 0});
    PressMoreLess();
    EXPECT_EQ(PlaceOf(Panel()), Place({21, 22, 640, 670}));
    PressMoreLess();
    StorePlace({31, 32, 0, 0});
    EXPECT_EQ(PlaceOf(MakeBuilt()), Place({31, 32, 340, 670})) << "a panel that opens folded";
}

TEST_F(OrvKvMainPanelPositionTest, WhatTheProgramDoesIsNotStored) {
    MakeBuilt();
    Panel().SetRectDimensions(9, 9, 9, 9);
    PressMoreLess();
    PressMoreLess();
    Panel().SetVisibility(CATDlgHide);
    EXPECT_EQ(StoredPlaces(), Places());
}

TEST_F(OrvKvMainPanelPositionTest, AChangedSizeIsNotStoredByItself) {
    MakeBuilt();
    ASSERT_TRUE(host::DialogUser::Resize(Panel(), 800, 900));
    EXPECT_EQ(StoredPlaces(), Places());
    ASSERT_TRUE(host::DialogUser::Move(Panel(), 1, 2));
    EXPECT_EQ(StoredPlaces(), Places({{1, 2, 800, 900}})) << "but with the next move";
}

TEST_F(OrvKvMainPanelPositionTest, WithoutPreferencesItOpensAtTheUpperLeftAndForgetsMovesSilently) {
    StorePlace({120, 80, 640, 670});
    host::Preferences::Withdraw();
    MakeBuilt();
    EXPECT_EQ(PlaceOf(Panel()), Place({0, 0, 640, 670}));
    ASSERT_TRUE(host::DialogUser::Move(Panel(), 30, 40));
    PressMoreLess();
    EXPECT_EQ(PlaceOf(Panel()), Place({0, 0, 340, 670}));
    PressMoreLess();
    EXPECT_EQ(PlaceOf(Panel()), Place({0, 0, 640, 670}));
    EXPECT_EQ(Traces().Take(), TraceLines());
    EXPECT_EQ(TakeMessages(), ShownMessages());
}

TEST_F(OrvKvMainPanelPositionTest, WhereServiceOrReadingFailsItOpensAtTheUpperLeft) {
    StorePlace({120, 80, 640, 670});
    for (const int failing : {1, 2}) {
        host::FaultPoints::FailCall(failing, "preferences");
        MakeBuilt();
        host::FaultPoints::Stop();
        EXPECT_EQ(PlaceOf(Panel()), Place({0, 0, 640, 670})) << failing;
    }
    EXPECT_EQ(PlaceOf(MakeBuilt()), Place({120, 80, 640, 670}));
}

TEST_F(OrvKvMainPanelPositionTest, WhereServiceOrStoringFailsTheOldPlaceStaysStoredAndNobodyIsTold) {
    MakeBuilt();
    ASSERT_TRUE(host::DialogUser::Move(Panel(), 30, 40));
    for (const int failing : {1, 2}) {
        host::FaultPoints::FailCall(failing, "preferences");
        EXPECT_TRUE(host::DialogUser::Move(Panel(), 50, 60 + failing));
        host::FaultPoints::Stop();
        EXPECT_EQ(StoredPlaces(), Places({{30, 40, 640, 670}})) << failing;
        EXPECT_EQ(PlaceOf(Panel()), Place({50, 60 + failing, 640, 670})) << "the move itself stays";
    }
    EXPECT_EQ(Traces().Take(), TraceLines());
    EXPECT_EQ(TakeMessages(), ShownMessages());
}

TEST_F(OrvKvMainPanelPositionTest, APreferencesFileThatCannotBeReadCountsAsNothingStored) {
    const TemporaryFolder folder;
    folder.Write("preferences", "neither this nor that");
    host::Preferences::KeepInFile(folder.Path() / "preferences");
    MakeBuilt();
    EXPECT_EQ(PlaceOf(Panel()), Place({0, 0, 640, 670}));
    ASSERT_TRUE(host::DialogUser::Move(Panel(), 30, 40));
    PressMoreLess();
    EXPECT_EQ(folder.Read("preferences"), "neither this nor that");
    EXPECT_EQ(TakeMessages(), ShownMessages());
}

} // namespace

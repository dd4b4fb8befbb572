// Which types have a thread, and that each of their sets begins with one that exists.

#include "CatalogueFolder.h"

namespace {

using engineering::LoadResult;

class ThreadOfTypeTest : public testing::Test {
  protected:
    void SetUp() override { UseThread("THREAD"); }

    // Gives the plain hole the parameter as its thread.
    void UseThread(const std::string& parameter) const {
        folder.Write("types.csv", "key,group,sets,standard,note,thread\n"
                                  "PlainHole,Holes,PlainHole.csv,Table 1,," +
                                      parameter +
                                      "\n"
                                      "SteppedHole,Holes,SteppedHole.csv,Table 2,,\n"
                                      "Groove,Grooves,Groove.csv,Table 3,,\n");
    }

    const CatalogueFolder folder;
};

TEST_F(ThreadOfTypeTest, IsTheNamedParameterOrNone) {
    ASSERT_EQ(folder.Problems(), Lines{});
    const LoadResult loaded = folder.Load();
    EXPECT_EQ(loaded.catalogue->Type("PlainHole")->Description().thread, "THREAD");
    EXPECT_EQ(loaded.catalogue->Type("SteppedHole")->Description().thread, "");
}

TEST_F(ThreadOfTypeTest, IsNoneWithoutTheColumn) {
    const LoadResult loaded = CatalogueFolder().Load();
    ASSERT_TRUE(loaded.catalogue);
    EXPECT_EQ(loaded.catalogue->Type("PlainHole")->Description().thread, "");
}

TEST_F(ThreadOfTypeTest, MustBeAParameterOfTheType) {
    UseThread("ALPHA");
    EXPECT_EQ(folder.Problems(),
              Lines({"types.csv:2: column 'thread': type 'PlainHole' has no parameter 'ALPHA'"}));
}

TEST_F(ThreadOfTypeTest, MustBeAText) {
    UseThread("D");
    EXPECT_EQ(folder.Problems(),
              Lines({"types.csv:2: column 'thread': parameter 'D' is a LENGTH, not a STRING"}));
}

TEST_F(ThreadOfTypeTest, NeedsThreadsInTheCatalogue) {
    folder.Remove("threads.csv");
    EXPECT_EQ(folder.Problems(), Lines({"types.csv:2: column 'thread': the catalogue has no threads"}));
}

TEST_F(ThreadOfTypeTest, OfEachSetMustExist) {
    folder.Replace("sets/PlainHole.csv", "H12,M4", "H12,M11x3");
    EXPECT_EQ(folder.Problems(),
              Lines({"sets/PlainHole.csv:3: column 'THREAD': there is no thread 'M11x3'"}));
    folder.Replace("sets/PlainHole.csv", "M11x3", "m 4");
    EXPECT_EQ(folder.Problems(), Lines{});
}

TEST_F(ThreadOfTypeTest, IsNotCheckedWhereTheTypeHasNone) {
    UseThread("");
    folder.Replace("sets/PlainHole.csv", "H12,M4", "H12,M11x3");
    EXPECT_EQ(folder.Problems(), Lines{});
}

TEST_F(ThreadOfTypeTest, IsNotBlamedForThreadsThatCannotBeRead) {
    folder.Replace("threads/coarse.csv", "M4", "M3");
    EXPECT_EQ(folder.Problems(),
              Lines({"threads/coarse.csv:3: column 'designation': duplicate designation 'M3'"}));
}

TEST_F(ThreadOfTypeTest, IsNotBlamedForAParameterThatCannotBeRead) {
    folder.Replace("parameters.csv", "PlainHole,THREAD,STRING", "PlainHole,THREAD,TEXT");
    EXPECT_EQ(folder.Problems(), Lines({"parameters.csv:3: column 'magnitude': unknown magnitude 'TEXT'"}));
    folder.Replace("parameters.csv", "PlainHole,THREAD,TEXT", "PlaneHole,THREAD,STRING");
    EXPECT_EQ(folder.Problems(), Lines({"parameters.csv:3: column 'type': unknown type 'PlaneHole'"}));
}

} // namespace

#include "TextTable.h"

#include <gtest/gtest.h>
#include <random>
#include <string>
#include <utility>

namespace {

using host::TextArena;
using host::TextTable;

// A text that is unlike its neighbours, of iLength bytes.
std::string Sample(std::size_t iLength, int iSeed) {
    std::string text(iLength, ' ');
    for (std::size_t at = 0; at < iLength; ++at)
        text[at] = static_cast<char>('!' + (at * 7 + static_cast<std::size_t>(iSeed)) % 90);
    return text;
}

TEST(TextArenaTest, KeepsTextsOfEveryLength) {
    TextArena arena;
    std::vector<std::pair<const char*, std::string>> kept;
    for (const std::size_t length :
         {std::size_t(0), std::size_t(1), std::size_t(127), std::size_t(128), std::size_t(129),
          std::size_t(255), std::size_t(256), std::size_t(1024), std::size_t(16383), std::size_t(16384),
          std::size_t(16385), std::size_t(65536), std::size_t(3000000)}) {
        const std::string text = Sample(length, static_cast<int>(kept.size()));
        kept.emplace_back(arena.Keep(text), text);
    }
    for (const auto& [at, text] : kept)
        EXPECT_EQ(TextArena::Text(at), text) << text.size();
}

TEST(TextArenaTest, KeepsTextsWithZeroBytesAndHighBytes) {
    TextArena arena;
    const std::string text("a\0b\xC3\xA4\xFF", 6);
    EXPECT_EQ(TextArena::Text(arena.Keep(text)), text);
}

TEST(TextArenaTest, OverwritesWithWhatTakesNoMoreRoomAndCountsTheRest) {
    TextArena arena;
    const char* const kept = arena.Keep(Sample(200, 1));
    const char* const neighbour = arena.Keep("neighbour");
    EXPECT_FALSE(arena.Overwrite(kept, Sample(201, 2)));
    EXPECT_EQ(TextArena::Text(kept), Sample(200, 1));
    EXPECT_TRUE(arena.Overwrite(kept, Sample(200, 3)));
    EXPECT_EQ(arena.BytesAbandoned(), 0U);
    EXPECT_TRUE(arena.Overwrite(kept, Sample(127, 4)));
    EXPECT_EQ(arena.BytesAbandoned(), 74U) << "73 characters and the second byte of the length";
    EXPECT_EQ(TextArena::Text(kept), Sample(127, 4));
    EXPECT_FALSE(arena.Overwrite(kept, Sample(128, 5)));
    EXPECT_EQ(TextArena::Text(neighbour), "neighbour");
    arena.Abandon(kept);
    EXPECT_EQ(arena.BytesAbandoned(), 202U) << "the whole room of the first text";
}

TEST(TextArenaTest, GivesAllMemoryBackWhenCleared) {
    TextArena arena;
    arena.Keep(Sample(100000, 1));
    EXPECT_GE(arena.BytesTaken(), 100000U);
    arena.Clear();
    EXPECT_EQ(arena.BytesTaken(), 0U);
    EXPECT_EQ(TextArena::Text(arena.Keep("again")), "again");
}

TEST(TextTableTest, StartsEmpty) {
    const TextTable table;
    EXPECT_EQ(table.Rows(), 0);
    EXPECT_EQ(table.Columns(), 0);
    EXPECT_EQ(table.Bytes(), 0U);
    EXPECT_EQ(table.Get(0, 0), "");
}

TEST(TextTableTest, DoesNotTellAnEmptyTextFromACellNeverWritten) {
    TextTable table;
    table.SetColumns(2);
    table.AppendRow();
    table.Set(0, 0, "");
    EXPECT_EQ(table.Get(0, 0), "");
    EXPECT_EQ(table.Get(0, 1), "");
}

TEST(TextTableTest, WidensItsColumnsAfterRowsAndNeverNarrows) {
    TextTable table;
    for (int row = 0; row < 1500; ++row) {
        table.AppendRow();
        table.Set(row, 0, std::to_string(row));
    }
    table.Set(700, 3, "far right");
    EXPECT_EQ(table.Columns(), 4);
    table.SetColumns(2);
    EXPECT_EQ(table.Columns(), 4);
    table.AppendRow();
    table.Set(1500, 3, "behind");
    for (const int row : {0, 7, 8, 511, 512, 513, 1023, 1024, 1499})
        EXPECT_EQ(table.Get(row, 0), std::to_string(row));
    EXPECT_EQ(table.Get(700, 3), "far right");
    EXPECT_EQ(table.Get(699, 3), "");
    EXPECT_EQ(table.Get(1500, 3), "behind");
}

TEST(TextTableTest, OverwritesWithShorterAndLongerTexts) {
    TextTable table;
    table.AppendRow();
    table.AppendRow();
    table.Set(0, 0, "first");
    table.Set(1, 0, "second");
    for (const std::size_t length : {std::size_t(3), std::size_t(5), std::size_t(6), std::size_t(128),
                                     std::size_t(127), std::size_t(20000), std::size_t(0), std::size_t(40)}) {
        table.Set(0, 0, Sample(length, 9));
        EXPECT_EQ(table.Get(0, 0), Sample(length, 9)) << length;
        EXPECT_EQ(table.Get(1, 0), "second");
    }
}

TEST(TextTableTest, PacksItsTextsAnewOnceMostOfTheRoomIsLost) {
    TextTable table;
    table.AppendRow();
    table.AppendRow();
    table.Set(1, 0, "stays");
    for (int turn = 0; turn < 2000; ++turn)
        table.Set(0, 0, Sample(static_cast<std::size_t>(500 + turn), turn));
    EXPECT_EQ(table.Get(0, 0), Sample(2499, 1999));
    EXPECT_EQ(table.Get(1, 0), "stays");
    EXPECT_LT(table.Bytes(), 400000U) << "three megabytes were written";
}

TEST(TextTableTest, RemovesRowsFromBothEndsAndTheMiddle) {
    TextTable table;
    table.SetColumns(2);
    for (int row = 0; row < 600; ++row) {
        table.AppendRow();
        table.Set(row, 1, std::to_string(row));
    }
    table.RemoveRow(0);
    table.RemoveRow(510);
    table.RemoveRow(table.Rows() - 1);
    EXPECT_EQ(table.Rows(), 597);
    EXPECT_EQ(table.Get(0, 1), "1");
    EXPECT_EQ(table.Get(509, 1), "510");
    EXPECT_EQ(table.Get(510, 1), "512");
    EXPECT_EQ(table.Get(596, 1), "598");
    table.AppendRow();
    EXPECT_EQ(table.Get(597, 1), "") << "a new row has nothing of the removed one";
}

TEST(TextTableTest, IsCopiedWithItsColumnsAndNothingElse) {
    TextTable wide;
    wide.SetColumns(5);
    wide.AppendRow();
    wide.Set(0, 4, "old");
    TextTable narrow;
    narrow.SetColumns(2);
    narrow.AppendRow();
    narrow.Set(0, 1, "new");
    wide = narrow;
    EXPECT_EQ(wide.Columns(), 2);
    EXPECT_EQ(wide.Rows(), 1);
    EXPECT_EQ(wide.Get(0, 1), "new");
    narrow.Set(0, 1, "changed later");
    EXPECT_EQ(wide.Get(0, 1), "new");
    const TextTable& itself = wide;
    wide = itself;
    EXPECT_EQ(wide.Get(0, 1), "new");
    const TextTable copy(wide);
    EXPECT_EQ(copy.Get(0, 1), "new");
}

TEST(TextTableTest, HoldsAHundredThousandRows) {
    TextTable table;
    table.SetColumns(5);
    const int rows = 100000;
    for (int row = 0; row < rows; ++row) {
        table.AppendRow();
        for (int column = 0; column < 5; ++column)
            table.Set(row, column, std::to_string(row) + "." + std::to_string(column));
    }
    for (const int row : {0, 1, 511, 512, 51199, 51200, 65535, 65536, 99999})
        EXPECT_EQ(table.Get(row, 3), std::to_string(row) + ".3");
    table.Clear();
    EXPECT_EQ(table.Rows(), 0);
    EXPECT_EQ(table.Bytes(), 0U);
    EXPECT_EQ(table.Columns(), 5);
}

// Against a plain vector of vectors: whatever the order of operations, both tables hold the same.
TEST(TextTableTest, HoldsTheSameAsAPlainTableAfterAnyOperations) {
    std::mt19937 random(20240607);
    const auto below = [&random](std::size_t iLimit) { return random() % iLimit; };
    TextTable table;
    std::vector<std::vector<std::string>> plain;
    std::size_t columns = 0;
    for (int turn = 0; turn < 20000; ++turn) {
        const std::size_t action = below(100);
        if (plain.empty() || action < 20) {
            table.AppendRow();
            columns = std::max<std::size_t>(columns, 1);
            plain.emplace_back(columns);
        } else if (action < 25) {
            const std::size_t row = below(plain.size());
            table.RemoveRow(static_cast<int>(row));
            plain.erase(plain.begin() + static_cast<std::ptrdiff_t>(row));
        } else {
            const std::size_t row = below(plain.size());
            const std::size_t column = below(4);
            const std::string text = Sample(below(20) == 0 ? below(3000) : below(40), turn);
            table.Set(static_cast<int>(row), static_cast<int>(column), text);
            columns = std::max(columns, column + 1);
            for (std::vector<std::string>& each : plain)
                each.resize(columns);
            plain[row][column] = text;
        }
    }
    ASSERT_EQ(static_cast<std::size_t>(table.Rows()), plain.size());
    ASSERT_GT(plain.size(), 1000U);
    for (std::size_t row = 0; row < plain.size(); ++row)
        for (std::size_t column = 0; column < columns; ++column)
            ASSERT_EQ(table.Get(static_cast<int>(row), static_cast<int>(column)), plain[row][column]);
}

} // namespace

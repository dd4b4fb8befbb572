// Rows and columns of a panel become attachments to tabulation lines.

#include "OrvKvLayout.h"

#include "CATDlgDocument.h"
#include "CATDlgFrame.h"
#include "host/Inspector.h"
#include "support/ApplicationTest.h"

using namespace support;

namespace {

// The line of one side of a child: whether the line is vertical, its number and the platform's value of the
// side.
struct Line {
    bool isVertical;
    int tab;
    int side;

    bool operator==(const Line&) const = default;
};

void PrintTo(const Line& iLine, std::ostream* ioStream) {
    *ioStream << (iLine.isVertical ? "vertical " : "horizontal ") << iLine.tab << " side " << iLine.side;
}

using Lines = std::vector<Line>;

class OrvKvLayoutTest : public ApplicationTest {
  protected:
    // The columns, then the rows.
    Lines LinesOfChild() const {
        Lines lines;
        for (const host::Attachment& attachment : host::Inspector::AttachmentsOf(*_child))
            lines.push_back({attachment.vertical, attachment.tab, static_cast<int>(attachment.mode)});
        return lines;
    }

    CATDlgFrame* _container = new CATDlgFrame(MainWindow(), "container");
    CATDlgFrame* _child = new CATDlgFrame(_container, "child");
};

TEST_F(OrvKvLayoutTest, AChildWithoutAnEndHasItsLeadingSideAttachedAlone) {
    OrvKvLayout(_container).Rows(_child, OrvKvFrom(3)).Columns(_child, OrvKvFrom(2));
    EXPECT_EQ(LinesOfChild(), Lines({{true, 2, 1}, {false, 3, 1}}));
}

TEST_F(OrvKvLayoutTest, AChildWithAnEndIsAttachedToALineThatFollowsTheContent) {
    OrvKvLayout(_container).Rows(_child, OrvKvFrom(0).To(1)).Columns(_child, OrvKvFrom(2).To(5));
    EXPECT_EQ(LinesOfChild(), Lines({{true, 2, 1}, {true, 5, 3}, {false, 0, 1}, {false, 1, 3}}));
}

TEST_F(OrvKvLayoutTest, AChildThatStretchesIsAttachedToALineThatFollowsTheContainer) {
    OrvKvLayout(_container)
        .Rows(_child, OrvKvFrom(1).StretchTo(4))
        .Columns(_child, OrvKvFrom(0).StretchTo(1));
    EXPECT_EQ(LinesOfChild(), Lines({{true, 0, 1}, {true, 1, 4}, {false, 1, 1}, {false, 4, 4}}));
}

TEST_F(OrvKvLayoutTest, AChildThatHasAnEndAloneIsAttachedThereAlone) {
    OrvKvLayout(_container).Rows(_child, OrvKvUntil(6)).Columns(_child, OrvKvUntil(1));
    EXPECT_EQ(LinesOfChild(), Lines({{true, 1, 3}, {false, 6, 3}}));
}

TEST_F(OrvKvLayoutTest, AResetForgetsTheLinesOfThatChildAlone) {
    auto* const other = new CATDlgFrame(_container, "other");
    OrvKvLayout layout(_container);
    layout.Rows(_child, OrvKvFrom(0).StretchTo(1)).Columns(_child, OrvKvFrom(2)).Rows(other, OrvKvFrom(3));
    layout.Reset(nullptr).Reset(_child);
    EXPECT_EQ(LinesOfChild(), Lines());
    EXPECT_EQ(host::Inspector::AttachmentsOf(*other).size(), 1U);
    layout.Reset(_child).Rows(_child, OrvKvFrom(5));
    EXPECT_EQ(LinesOfChild(), Lines({{false, 5, 1}}));
}

TEST_F(OrvKvLayoutTest, AChildThatCouldNotBeMadeIsLeftOut) {
    OrvKvLayout(_container)
        .Rows(nullptr, OrvKvFrom(0).To(1))
        .Columns(nullptr, OrvKvFrom(0).StretchTo(1))
        .Rows(_child, OrvKvFrom(2));
    EXPECT_EQ(host::Inspector::Attachments(*_container).size(), 1U);
    EXPECT_EQ(LinesOfChild(), Lines({{false, 2, 1}}));
}

} // namespace

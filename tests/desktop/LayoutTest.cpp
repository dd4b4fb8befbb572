#include "CATDlgCheckButton.h"
#include "CATDlgCombo.h"
#include "CATDlgContainer.h"
#include "CATDlgEditor.h"
#include "CATDlgFrame.h"
#include "CATDlgLabel.h"
#include "CATDlgPushButton.h"
#include "CATDlgRadioButton.h"
#include "DesktopFixture.h"

#include <QtGui/QFont>
#include <QtTest/QTest>
#include <QtWidgets/QGroupBox>

namespace desktop_test {

namespace {

class LayoutTest : public DesktopTest {
  protected:
    static CATDlgEditor& Editor(CATDialog& ioParent, const char* iName) {
        return *new CATDlgEditor(&ioParent, iName);
    }
};

TEST_F(LayoutTest, ChildrenWithoutAttachmentStandSideBySideWithTheirTopsAligned) {
    CATDlgEditor& first = Editor(Dialog(), "First");
    CATDlgEditor& second = Editor(Dialog(), "Second");
    Open();
    EXPECT_LT(PlaceOf(first).right(), PlaceOf(second).left());
    EXPECT_EQ(PlaceOf(first).top(), PlaceOf(second).top());
}

TEST_F(LayoutTest, ChildrenStackInAVerticalContainer) {
    Dialog().SetDefaultOrientation(Vertical);
    CATDlgEditor& first = Editor(Dialog(), "First");
    CATDlgEditor& second = Editor(Dialog(), "Second");
    Open();
    EXPECT_LT(PlaceOf(first).bottom(), PlaceOf(second).top());
    EXPECT_EQ(PlaceOf(first).left(), PlaceOf(second).left());
}

TEST_F(LayoutTest, AWidgetBetweenAFixedAndAFollowingLineStretchesWithTheWindow) {
    CATDlgEditor& fixed = Editor(Dialog(), "Fixed");
    CATDlgEditor& stretching = Editor(Dialog(), "Stretching");
    Dialog().SetHorizontalAttachment(0, CATDlgTopOrLeft, &fixed, nullptr);
    Dialog().SetHorizontalAttachment(1, CATDlgTopOrLeft, &stretching, nullptr);
    Dialog().SetVerticalAttachment(0, CATDlgTopOrLeft, &fixed, &stretching, nullptr);
    Dialog().SetVerticalAttachment(1, CATDlgRightOrBottomRelative, &stretching, nullptr);
    Open();
    const int fixedWidth = PlaceOf(fixed).width();
    const int stretchingWidth = PlaceOf(stretching).width();
    const int windowWidth = Window().width();
    Dialog().SetRectDimensions(0, 0, 300, windowWidth + 200);
    Settle();
    EXPECT_EQ(PlaceOf(fixed).width(), fixedWidth);
    EXPECT_EQ(PlaceOf(stretching).width(), stretchingWidth + 200);
}

TEST_F(LayoutTest, WhereNothingStretchesTheContentStaysTogetherInALargerWindow) {
    CATDlgEditor& first = Editor(Dialog(), "First");
    CATDlgEditor& second = Editor(Dialog(), "Second");
    Open();
    const QRect firstPlace = PlaceOf(first);
    const QRect secondPlace = PlaceOf(second);
    Dialog().SetRectDimensions(0, 0, Window().height() + 200, Window().width() + 300);
    Settle();
    EXPECT_EQ(PlaceOf(first), firstPlace);
    EXPECT_EQ(PlaceOf(second), secondPlace);
}

TEST_F(LayoutTest, ABoxAcrossAllColumnsIsAsWideAsTheWindow) {
    CATDlgEditor& left = Editor(Dialog(), "Left");
    CATDlgEditor& right = Editor(Dialog(), "Right");
    auto* const box = new CATDlgFrame(&Dialog(), "ToleranceFrm");
    Editor(*box, "Inside");
    Dialog().SetHorizontalAttachment(0, CATDlgTopOrLeft, &left, &right, nullptr);
    Dialog().SetHorizontalAttachment(1, CATDlgTopOrLeft, box, nullptr);
    Dialog().SetVerticalAttachment(0, CATDlgTopOrLeft, &left, nullptr);
    Dialog().SetVerticalAttachment(1, CATDlgTopOrLeft, &right, nullptr);
    Open();
    const int width = PlaceOf(right).width();
    Dialog().SetRectDimensions(0, 0, Window().height(), Window().width() + 200);
    Settle();
    EXPECT_GE(PlaceOf(*box).right(), Window().width() - PlaceOf(left).left() - 1);
    EXPECT_EQ(PlaceOf(*box).left(), PlaceOf(left).left());
    EXPECT_EQ(PlaceOf(right).width(), width) << "what is in one column is as wide as before";
}

TEST_F(LayoutTest, TheColumnsOfATabulationLineUp) {
    auto* const shortLabel = new CATDlgLabel(&Dialog(), "A");
    auto* const longLabel = new CATDlgLabel(&Dialog(), "B");
    longLabel->SetTitle("A much longer text");
    CATDlgEditor& upper = Editor(Dialog(), "Upper");
    CATDlgEditor& lower = Editor(Dialog(), "Lower");
    Dialog().SetHorizontalAttachment(0, CATDlgTopOrLeft, shortLabel, &upper, nullptr);
    Dialog().SetHorizontalAttachment(1, CATDlgTopOrLeft, longLabel, &lower, nullptr);
    Dialog().SetVerticalAttachment(0, CATDlgTopOrLeft, shortLabel, longLabel, nullptr);
    Dialog().SetVerticalAttachment(1, CATDlgTopOrLeft, &upper, &lower, nullptr);
    Open();
    EXPECT_EQ(PlaceOf(upper).left(), PlaceOf(lower).left());
    EXPECT_GT(PlaceOf(upper).left(), PlaceOf(*longLabel).right());
    EXPECT_EQ(PlaceOf(*shortLabel).center().y(), PlaceOf(upper).center().y())
        << "the text of a label stands at the height of its field";
}

TEST_F(LayoutTest, AWideChildThatIsAttachedToARowOnlyMovesNothingInTheOtherRows) {
    auto* const label = new CATDlgLabel(&Dialog(), "A");
    CATDlgEditor& beside = Editor(Dialog(), "Beside");
    CATDlgEditor& below = Editor(Dialog(), "Below");
    auto* const wide = new CATDlgLabel(&Dialog(), "Wide");
    wide->SetTitle(std::string(300, 'm').c_str());
    wide->SetVisibility(CATDlgHide);
    Dialog().SetHorizontalAttachment(0, CATDlgTopOrLeft, label, &beside, nullptr);
    Dialog().SetHorizontalAttachment(1, CATDlgTopOrLeft, &below, nullptr);
    Dialog().SetHorizontalAttachment(2, CATDlgTopOrLeft, wide, nullptr);
    Dialog().SetVerticalAttachment(0, CATDlgTopOrLeft, label, nullptr);
    Dialog().SetVerticalAttachment(1, CATDlgTopOrLeft, &beside, &below, nullptr);
    Open();
    const QRect places[] = {PlaceOf(*label), PlaceOf(beside), PlaceOf(below)};
    const int windowWidth = Window().width();
    wide->SetVisibility(CATDlgShow);
    Settle();
    EXPECT_GT(Window().width(), windowWidth + 1000) << "the window makes room for it";
    EXPECT_EQ(PlaceOf(*wide).left(), places[0].left());
    EXPECT_GT(PlaceOf(*wide).top(), places[2].bottom());
    EXPECT_EQ(PlaceOf(*label), places[0]);
    EXPECT_EQ(PlaceOf(beside), places[1]);
    EXPECT_EQ(PlaceOf(below), places[2]);
}

TEST_F(LayoutTest, AChildThatIsAttachedToAColumnOnlyStandsBetweenItsNeighboursOfThatColumn) {
    CATDlgEditor& first = Editor(Dialog(), "First");
    CATDlgEditor& between = Editor(Dialog(), "Between");
    auto* const gap = new CATDlgContainer(&Dialog(), "GapCon");
    gap->SetRectDimensions(1, 1, 10, 10);
    CATDlgEditor& last = Editor(Dialog(), "Last");
    Dialog().SetVerticalAttachment(0, CATDlgTopOrLeft, &first, &between, &last, nullptr);
    Dialog().SetHorizontalAttachment(0, CATDlgTopOrLeft, &first, nullptr);
    Dialog().SetHorizontalAttachment(1, CATDlgTopOrLeft, gap, nullptr);
    Dialog().SetHorizontalAttachment(2, CATDlgTopOrLeft, &last, nullptr);
    Open();
    EXPECT_GT(PlaceOf(between).top(), PlaceOf(first).bottom());
    EXPECT_GT(PlaceOf(last).top(), PlaceOf(between).bottom());
    EXPECT_EQ(PlaceOf(between).left(), PlaceOf(first).left());
    EXPECT_GT(PlaceOf(*gap).left(), PlaceOf(between).right());
}

TEST_F(LayoutTest, AFrameWithoutBorderLinesItsContentUpWithWhatIsAround) {
    Dialog().SetDefaultOrientation(Vertical);
    CATDlgEditor& outer = Editor(Dialog(), "Outer");
    auto* const frame = new CATDlgFrame(&Dialog(), "InnerFrm", CATDlgFraNoFrame);
    CATDlgEditor& inner = Editor(*frame, "Inner");
    Open();
    EXPECT_EQ(PlaceOf(outer).left(), PlaceOf(inner).left());
}

TEST_F(LayoutTest, AFrameShowsItsTitleUnlessItsStyleSaysOtherwise) {
    auto* const titled = new CATDlgFrame(&Dialog(), "TitledFrm");
    titled->SetTitle("Fits & tolerances");
    auto* const untitled = new CATDlgFrame(&Dialog(), "UntitledFrm", CATDlgFraNoTitle);
    untitled->SetTitle("Nobody sees this");
    auto* const bare = new CATDlgFrame(&Dialog(), "BareFrm", CATDlgFraNoFrame);
    Open();
    EXPECT_EQ(Utf8(ShownAs<QGroupBox>(*titled).title()), "Fits && tolerances");
    EXPECT_EQ(Utf8(ShownAs<QGroupBox>(*untitled).title()), "");
    EXPECT_EQ(dynamic_cast<QGroupBox*>(&Shown(*bare)), nullptr);
}

TEST_F(LayoutTest, AHiddenChildTakesNoRoom) {
    Dialog().SetDefaultOrientation(Vertical);
    CATDlgEditor& first = Editor(Dialog(), "First");
    CATDlgEditor& middle = Editor(Dialog(), "Middle");
    CATDlgEditor& last = Editor(Dialog(), "Last");
    Open();
    const int windowHeight = Window().height();
    const int lastTop = PlaceOf(last).top();
    middle.SetVisibility(CATDlgHide);
    Settle();
    EXPECT_FALSE(Shown(middle).isVisible());
    EXPECT_LT(Window().height(), windowHeight) << "the window takes the size that its content needs";
    EXPECT_EQ(PlaceOf(last).top(), lastTop - (PlaceOf(last).top() - PlaceOf(first).top()));
    middle.SetVisibility(CATDlgShow);
    Settle();
    EXPECT_EQ(Window().height(), windowHeight);
    EXPECT_EQ(PlaceOf(last).top(), lastTop);
}

TEST_F(LayoutTest, AnEmptyBoxKeepsItsExtent) {
    auto* const gap = new CATDlgContainer(&Dialog(), "GapCon");
    gap->SetRectDimensions(1, 1, 30, 50);
    Open();
    EXPECT_EQ(PlaceOf(*gap).size(), QSize(50, 30));
}

TEST_F(LayoutTest, AnEmptyBoxBehindEverythingTakesNoRoom) {
    CATDlgEditor& upper = Editor(Dialog(), "Upper");
    CATDlgEditor& lower = Editor(Dialog(), "Lower");
    auto* const between = new CATDlgContainer(&Dialog(), "BetweenCon");
    between->SetRectDimensions(1, 1, 30, 50);
    auto* const behind = new CATDlgContainer(&Dialog(), "BehindCon");
    behind->SetRectDimensions(1, 1, 300, 50);
    Dialog().SetVerticalAttachment(0, CATDlgTopOrLeft, &upper, between, &lower, behind, nullptr);
    Dialog().SetHorizontalAttachment(0, CATDlgTopOrLeft, &upper, nullptr);
    Dialog().SetHorizontalAttachment(1, CATDlgTopOrLeft, between, nullptr);
    Dialog().SetHorizontalAttachment(2, CATDlgTopOrLeft, &lower, nullptr);
    Open();
    EXPECT_GE(PlaceOf(lower).top(), PlaceOf(upper).bottom() + 30);
    EXPECT_FALSE(Shown(*behind).isVisible());
    EXPECT_LT(Window().height(), 300);
}

TEST_F(LayoutTest, RadioButtonsInAFrameStandAtTheHeightOfTheLabelBesideIt) {
    CATDlgFrame* const row = new CATDlgFrame(&Dialog(), "RowFrm", CATDlgFraNoFrame);
    auto* const label = new CATDlgLabel(row, "DirectionLab");
    auto* const frame = new CATDlgFrame(row, "DirectionFrm", CATDlgFraNoFrame);
    auto* const left = new CATDlgRadioButton(frame, "LeftRdb");
    auto* const right = new CATDlgRadioButton(frame, "RightRdb");
    Open();
    EXPECT_LT(PlaceOf(*left).right(), PlaceOf(*right).left());
    EXPECT_NEAR(PlaceOf(*left).center().y(), PlaceOf(*label).center().y(), 1);
    EXPECT_EQ(PlaceOf(*left).center().y(), PlaceOf(*right).center().y());
}

TEST_F(LayoutTest, AChildThatFillsItsContainerFollowsItsSize) {
    auto* const frame = new CATDlgFrame(&Dialog(), "FillFrm", CATDlgFraNoFrame);
    Dialog().Attach4Sides(frame);
    auto* const text = new CATDlgEditor(frame, "TextEdt", CATDlgEdtMultiline);
    frame->Attach4Sides(text);
    Open();
    const QSize before = PlaceOf(*text).size();
    Dialog().SetRectDimensions(0, 0, Window().height() + 100, Window().width() + 80);
    Settle();
    EXPECT_EQ(PlaceOf(*text).size(), before + QSize(80, 100));
}

TEST_F(LayoutTest, FieldsAndButtonsInARowHaveOneHeight) {
    CATDlgEditor& editor = Editor(Dialog(), "NameEdt");
    auto* const combo = new CATDlgCombo(&Dialog(), "UnitCmb", CATDlgCmbDropDown);
    auto* const button = new CATDlgPushButton(&Dialog(), "NewPbt");
    Open();
    EXPECT_EQ(PlaceOf(editor).height(), PlaceOf(*combo).height());
    EXPECT_EQ(PlaceOf(editor).height(), PlaceOf(*button).height());
    EXPECT_EQ(PlaceOf(editor).top(), PlaceOf(*button).top());
}

TEST_F(LayoutTest, LinesOfDifferentHeightInARowShareTheirMiddle) {
    auto* const label = new CATDlgLabel(&Dialog(), "DepthLab");
    auto* const check = new CATDlgCheckButton(&Dialog(), "ThroughCkb");
    Open();
    QFont high = Shown(*label).font();
    high.setPointSize(3 * high.pointSize());
    Shown(*label).setFont(high);
    ASSERT_TRUE(QTest::qWaitFor([&] { return PlaceOf(*label).height() > PlaceOf(*check).height() + 4; }));
    EXPECT_NEAR(PlaceOf(*label).center().y(), PlaceOf(*check).center().y(), 1);
}

TEST_F(LayoutTest, AnArrangementThatTheProgramChangesIsShownAnew) {
    CATDlgEditor& first = Editor(Dialog(), "First");
    CATDlgEditor& second = Editor(Dialog(), "Second");
    Dialog().SetHorizontalAttachment(0, CATDlgTopOrLeft, &first, nullptr);
    Dialog().SetHorizontalAttachment(1, CATDlgTopOrLeft, &second, nullptr);
    Dialog().SetVerticalAttachment(0, CATDlgTopOrLeft, &first, &second, nullptr);
    Open();
    ASSERT_LT(PlaceOf(first).bottom(), PlaceOf(second).top());
    Dialog().ResetAttachment(&first, &second, nullptr);
    Dialog().SetHorizontalAttachment(0, CATDlgTopOrLeft, &second, nullptr);
    Dialog().SetHorizontalAttachment(1, CATDlgTopOrLeft, &first, nullptr);
    Dialog().SetVerticalAttachment(0, CATDlgTopOrLeft, &first, &second, nullptr);
    Settle();
    EXPECT_LT(PlaceOf(second).bottom(), PlaceOf(first).top());
}

} // namespace

} // namespace desktop_test

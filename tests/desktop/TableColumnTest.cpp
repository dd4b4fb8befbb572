#include "TableFixture.h"

#include "CATDlgLabel.h"

#include <QtTest/QTest>

namespace desktop_test {

namespace {

const std::string longName(300, 'W');

class TableColumnTest : public TableTest {
  protected:
    TableColumnTest() : _bare(new CATDlgMultiList(&Dialog(), "BareMul")) {}

    QHeaderView& Header() { return *Table().horizontalHeader(); }
    int WidthOf(int iColumn) { return Table().columnWidth(iColumn); }
    int TextWidth(const char* iText) { return Table().fontMetrics().horizontalAdvance(QLatin1String(iText)); }
    QTableView& Bare() { return ShownAs<QTableView>(*_bare); }

    // The divider right of a column.
    QPoint DividerOf(int iColumn) {
        return QPoint(Header().sectionViewportPosition(iColumn) + WidthOf(iColumn) - 1,
                      Header().height() / 2);
    }
    void DragDivider(int iColumn, int iDistance) {
        QWidget* const titles = Header().viewport();
        const QPoint divider = DividerOf(iColumn);
        QTest::mousePress(titles, Qt::LeftButton, Qt::NoModifier, divider);
        QTest::mouseMove(titles, divider + QPoint(iDistance, 0));
        QTest::mouseRelease(titles, Qt::LeftButton, Qt::NoModifier, divider + QPoint(iDistance, 0));
        Settle();
    }

    CATDlgMultiList* _bare; // without titles
};

TEST_F(TableColumnTest, TheTitlesStandInTheHeader) {
    Open();
    EXPECT_TRUE(Header().isVisible());
    for (int column = 0; column < 3; ++column) {
        CATUnicodeString title;
        List().GetColumnTitle(column, title);
        EXPECT_EQ(Utf8(Table().model()->headerData(column, Qt::Horizontal).toString()),
                  title.ConvertToChar());
    }
    EXPECT_EQ(Table().model()->columnCount(), 3);
    EXPECT_FALSE(Table().verticalHeader()->isVisible());
}

TEST_F(TableColumnTest, AListWithoutTitlesHasNoHeaderUntilItGetsThem) {
    _bare->SetColumnItem(0, "A");
    _bare->SetColumnItem(1, "B");
    Open();
    EXPECT_FALSE(Bare().horizontalHeader()->isVisible());
    EXPECT_EQ(Bare().model()->columnCount(), 2);
    const CATUnicodeString titles[] = {"", "Second"};
    _bare->SetColumnTitles(2, titles);
    Settle();
    EXPECT_TRUE(Bare().horizontalHeader()->isVisible());
}

TEST_F(TableColumnTest, AListWithoutTitlesGrowsAColumnWhereOneIsWritten) {
    for (int row = 0; row < 60; ++row)
        _bare->SetColumnItem(0, "A");
    int last[] = {50};
    _bare->SetSelect(last, 1);
    Open();
    const int top = Bare().rowAt(0);
    ASSERT_GT(top, 0);
    _bare->SetColumnItem(2, "late", 50, CATDlgDataModify);
    Settle();
    EXPECT_EQ(Bare().model()->columnCount(), 3);
    EXPECT_EQ(Bare().rowAt(0), top);
    EXPECT_TRUE(Bare().selectionModel()->isRowSelected(50)) << "the new cells too";
}

TEST_F(TableColumnTest, AsManyRowsAreInSightAsAskedFor) {
    List().SetVisibleTextHeight(6);
    AddRows(6);
    Open();
    for (int row = 0; row < 6; ++row)
        EXPECT_TRUE(IsRowInSight(row)) << row;
    EXPECT_FALSE(Table().verticalScrollBar()->isVisible());
    EXPECT_EQ(Table().sizeHint().height() - Table().height(), 0);
    const int six = Table().height();
    List().SetVisibleTextHeight(4);
    Settle();
    EXPECT_EQ(six - Table().height(), 2 * Table().rowHeight(0));
}

TEST_F(TableColumnTest, AllColumnsAreInSightUnlessFewerAreAskedFor) {
    AddRows(1);
    List().SetColumnItem(2, "A remark of some length", 0, CATDlgDataModify);
    Open();
    EXPECT_EQ(Table().horizontalScrollBar()->maximum(), 0);
    List().SetVisibleColumnCount(2);
    Settle();
    EXPECT_GT(Table().horizontalScrollBar()->maximum(), 0);
    EXPECT_LE(WidthOf(0) + WidthOf(1), Table().viewport()->width()) << "the first two are in sight";
    EXPECT_LT(Table().viewport()->width(), WidthOf(0) + WidthOf(1) + WidthOf(2));
    for (int row = 0; row < 5; ++row)
        EXPECT_LE(Header().height() + (row + 1) * Table().rowHeight(0),
                  Table().height() - Table().horizontalScrollBar()->height())
            << "the scroll bar takes no row";
}

TEST_F(TableColumnTest, AWidthInCharactersIsTheNaturalOneOfTheTable) {
    AddRows(1);
    List().SetVisibleTextWidth(60);
    Open();
    const int character = Table().fontMetrics().averageCharWidth();
    EXPECT_GE(Table().sizeHint().width(), 60 * character);
    EXPECT_LT(Table().sizeHint().width(), 70 * character);
    List().SetVisibleTextWidth(20);
    Settle();
    EXPECT_LT(Table().sizeHint().width(), 30 * character);
}

TEST_F(TableColumnTest, AColumnIsAsWideAsItsTitleAndTheTextsOfTheFirstRows) {
    List().SetColumnItem(0, "A rather long name");
    AddRows(300);
    List().SetColumnItem(1, longName.c_str(), 299, CATDlgDataModify);
    Open();
    EXPECT_GT(WidthOf(0), TextWidth("A rather long name"));
    EXPECT_LT(WidthOf(0), 2 * TextWidth("A rather long name"));
    EXPECT_LT(WidthOf(1), TextWidth("A rather long name")) << "the last rows do not count";
}

TEST_F(TableColumnTest, AGivenWidthIsTheLeastOneAndTheTitleCanBeRead) {
    AddRows(2);
    List().SetColumnTextWidth(0, 30);
    List().SetColumnTextWidth(1, 1);
    List().SetColumnItem(1, longName.c_str(), 0, CATDlgDataModify);
    Open();
    const int character = Table().fontMetrics().averageCharWidth();
    EXPECT_GE(WidthOf(0), 30 * character);
    EXPECT_GE(WidthOf(1), TextWidth("Value"));
    EXPECT_LT(WidthOf(1), 20 * character) << "a long text takes no room that it was not given";
}

TEST_F(TableColumnTest, TheLastColumnTakesWhatIsLeft) {
    AddRows(1);
    Open();
    Table().resize(700, Table().height());
    Settle();
    EXPECT_EQ(Header().length(), Table().viewport()->width());
    EXPECT_EQ(Table().horizontalScrollBar()->maximum(), 0);
    const int wide = WidthOf(2);
    Table().resize(600, Table().height());
    Settle();
    EXPECT_LT(WidthOf(2), wide);
    EXPECT_EQ(Header().length(), Table().viewport()->width());
}

TEST_F(TableColumnTest, AColumnIsResizedByItsDividerAndStaysSoWhenTheListIsRefilled) {
    AddRows(2);
    Open();
    const int before = WidthOf(0);
    DragDivider(0, 35);
    EXPECT_EQ(WidthOf(0), before + 35);
    Refill(5);
    Settle();
    EXPECT_EQ(WidthOf(0), before + 35);
    Refill(0);
    Settle();
    AddRows(3);
    Settle();
    EXPECT_EQ(WidthOf(0), before + 35);
    EXPECT_EQ(Command().TakeClasses(), Classes());
}

TEST_F(TableColumnTest, AColumnThatNobodyResizedFollowsARefill) {
    AddRows(2);
    Open();
    const int before = WidthOf(0);
    List().ClearLine();
    List().SetColumnItem(0, "A rather long name");
    Settle();
    EXPECT_GT(WidthOf(0), before);
}

TEST_F(TableColumnTest, ADoubleClickOnTheDividerFits) {
    List().SetColumnItem(0, "A rather long name");
    Open();
    DragDivider(0, -60);
    ASSERT_LT(WidthOf(0), TextWidth("A rather long name"));
    QTest::mouseDClick(Header().viewport(), Qt::LeftButton, Qt::NoModifier, DividerOf(0));
    Settle();
    EXPECT_GT(WidthOf(0), TextWidth("A rather long name"));
    EXPECT_LT(WidthOf(0), TextWidth("A rather long name") + 30);
    EXPECT_EQ(Command().TakeClasses(), Classes()) << "nothing was activated";
}

TEST_F(TableColumnTest, FittingNeverMakesAColumnWiderThanTheTable) {
    AddRows(1);
    List().SetColumnItem(0, std::string(100000, 'W').c_str(), 0, CATDlgDataModify);
    Open();
    QTest::mouseDClick(Header().viewport(), Qt::LeftButton, Qt::NoModifier, DividerOf(0));
    Settle();
    EXPECT_EQ(WidthOf(0), Table().viewport()->width());
}

TEST_F(TableColumnTest, AClickOnATitleSelectsNothing) {
    AddRows(3);
    Open();
    QTest::mouseClick(Header().viewport(), Qt::LeftButton, Qt::NoModifier,
                      QPoint(Header().sectionPosition(1) + WidthOf(1) / 2, Header().height() / 2));
    EXPECT_EQ(ShownSelection(), std::vector<int>());
    EXPECT_EQ(Command().TakeClasses(), Classes());
}

TEST_F(TableColumnTest, ATextOfSeveralLinesIsShownOnOne) {
    AddRows(1);
    List().SetColumnItem(0, "first\nsecond\r\nthird\tfourth", 0, CATDlgDataModify);
    List().SetColumnItem(1, "Å 穴 \xF0\x9F\x94\xA9", 0, CATDlgDataModify);
    Open();
    EXPECT_EQ(ShownCell(0, 0), "first\u21B5second\u21B5third fourth");
    EXPECT_EQ(ShownCell(0, 1), "Å 穴 \xF0\x9F\x94\xA9");
}

TEST_F(TableColumnTest, AVeryLongTextIsCutAsALineAndBetweenCharacters) {
    AddRows(1);
    std::string nuts("x"); // so that the cut falls into one
    for (int nut = 0; nut < 25000; ++nut)
        nuts += "\xF0\x9F\x94\xA9";
    List().SetColumnItem(0, nuts.c_str(), 0, CATDlgDataModify);
    Open();
    const QString shown = Table().model()->index(0, 0).data().toString();
    EXPECT_LT(shown.size(), 3000);
    EXPECT_TRUE(shown.isValidUtf16());
    EXPECT_TRUE(shown.endsWith(QChar(0x2026)));
    EXPECT_FALSE(Windows().Picture(Dialog()).isNull());
}

TEST_F(TableColumnTest, TheWholeTextIsToldWhereItDoesNotFit) {
    AddRows(2);
    List().SetShortHelp("Parameters of the feature");
    const std::string text = longName + "\n<b>end</b>";
    List().SetColumnItem(0, text.c_str(), 1, CATDlgDataModify);
    Open();
    const std::string help = HelpAt(*Table().viewport(), PlaceOfCell(1, 0));
    EXPECT_NE(help.find(longName + "\n&lt;b&gt;end"), std::string::npos) << help;
    EXPECT_EQ(HelpAt(*Table().viewport(), PlaceOfCell(0, 0)), "Parameters of the feature");
    EXPECT_EQ(HelpAt(*Table().viewport(), QPoint(5, Table().viewport()->height() - 2)),
              "Parameters of the feature");
}

TEST_F(TableColumnTest, TheWholeTitleIsToldWhereItIsCut) {
    AddRows(2);
    Open();
    const QPoint title(Header().sectionPosition(0) + 3, Header().height() / 2);
    EXPECT_EQ(HelpAt(*Header().viewport(), title), "");
    DragDivider(0, 20 - WidthOf(0));
    EXPECT_NE(HelpAt(*Header().viewport(), title).find("Name"), std::string::npos);
}

TEST_F(TableColumnTest, HasTheNameOfItsLabelOrItsShortHelp) {
    auto* const label = new CATDlgLabel(&Dialog(), "SetsLab");
    label->SetTitle("Parameter sets");
    auto* const sets = new CATDlgMultiList(&Dialog(), "SetsMul");
    List().SetShortHelp("Parameters of the feature");
    Open();
    EXPECT_EQ(Utf8(Shown(*sets).accessibleName()), "Parameter sets");
    EXPECT_EQ(Utf8(Table().accessibleName()), "Parameters of the feature");
    EXPECT_EQ(Utf8(Table().toolTip()), "Parameters of the feature");
}

} // namespace

} // namespace desktop_test

// The window in which a designer picks elements of the part, with mouse and keyboard.

#include "PartTree.h"

#include "Sign.h"
#include "engineering/PartLoader.h"
#include "host/MessageCatalogs.h"

#include <QtGui/QImage>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QToolTip>
#include <QtWidgets/QTreeWidget>

#include <algorithm>
#include <gtest/gtest.h>
#include <memory>
#include <optional>
#include <stdexcept>

namespace {

using app::PartTree;
using engineering::Element;
using engineering::ElementKind;
using engineering::Part;
using host::Outcome;
using Names = std::vector<std::string>;

const std::vector<ElementKind> everyKind{ElementKind::Point, ElementKind::Line, ElementKind::Plane};

class PartTreeTest : public testing::Test {
  protected:
    void SetUp() override {
        host::MessageCatalogs::AddFolder(KELVANE_WORKBENCH_MESSAGES);
        ASSERT_TRUE(_loaded.part);
        Open(*_loaded.part);
    }

    void TearDown() override {
        QToolTip::hideText();
        _tree.reset();
        EXPECT_EQ(host::MessageCatalogs::Missing(), Names{});
        host::MessageCatalogs::Reset();
    }

    void Open(const Part& part) {
        _tree = std::make_unique<PartTree>(part, [this](const std::string& name) {
            _picked.push_back(name);
            return _answer(name);
        });
        _tree->show();
        _tree->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(_tree.get()));
    }

    PartTree& Tree() { return *_tree; }
    QTreeWidget& View() { return *_tree->findChild<QTreeWidget*>(); }
    QLineEdit& Find() { return *_tree->findChild<QLineEdit*>(); }
    std::string Hint() { return _tree->findChild<QLabel*>()->text().toStdString(); }

    /// A branch or an element; the test fails when there is none.
    QTreeWidgetItem& Item(const std::string& name) {
        const auto found = View().findItems(QString::fromStdString(name),
                                            Qt::MatchExactly | Qt::MatchRecursive | Qt::MatchCaseSensitive);
        if (found.isEmpty())
            throw std::runtime_error("the tree has no " + name);
        return *found.front();
    }

    /// Names of what a designer can see in the tree below a branch.
    Names ShownBelow(const std::string& branch) {
        Names names;
        const QTreeWidgetItem& item = Item(branch);
        for (int i = 0; i < item.childCount() && !item.isHidden() && item.isExpanded(); ++i)
            if (!item.child(i)->isHidden())
                names.push_back(item.child(i)->text(0).toStdString());
        return names;
    }

    QPoint PlaceOf(const std::string& name) {
        View().scrollToItem(&Item(name));
        return View().visualItemRect(&Item(name)).center();
    }

    void Click(const std::string& name, Qt::MouseButton button = Qt::LeftButton) {
        QTest::mouseClick(View().viewport(), button, Qt::NoModifier, PlaceOf(name));
    }

    /// The second click of two, which the window system calls a double click wherever it is.
    void ClickAgainAtOnce(const std::string& name) {
        QWidget* const viewport = View().viewport();
        QTest::mouseDClick(viewport, Qt::LeftButton, Qt::NoModifier, PlaceOf(name));
        QTest::mouseRelease(viewport, Qt::LeftButton, Qt::NoModifier, PlaceOf(name));
    }

    void MakeCurrent(const std::string& name) {
        View().setFocus();
        View().setCurrentItem(&Item(name));
    }

    Names TakePicked() { return std::exchange(_picked, {}); }

    void Refuse(const std::string& reason) {
        _answer = [reason](const std::string&) { return Outcome::Refused(reason); };
    }

    static std::string Balloon() {
        return QToolTip::isVisible() ? QToolTip::text().toStdString() : std::string();
    }

    /// How much the most visible pixel of the item's row differs from the ground, from 0 to 255.
    int ShownContrastOf(const std::string& name) {
        View().scrollToItem(&Item(name));
        QRect place = View().visualItemRect(&Item(name));
        place.setRight(View().viewport()->width() - 1);
        const QImage row = View().viewport()->grab(place).toImage();
        const int ground = qGray(row.pixel(row.width() / 2, 1));
        int contrast = 0;
        for (int y = 2; y < row.height() - 2; ++y) // within the frame of the current row
            for (int x = 2; x < row.width() - 2; ++x)
                contrast = std::max(contrast, std::abs(qGray(row.pixel(x, y)) - ground));
        return contrast;
    }

    /// The same for an item that is not current.
    int ContrastOf(const std::string& name) {
        View().setCurrentItem(nullptr);
        return ShownContrastOf(name);
    }

    std::function<Outcome(const std::string&)> _answer = [](const std::string&) { return Outcome::Done(); };

  private:
    const engineering::PartResult _loaded = engineering::LoadPart(KELVANE_PARTS_DIR "/bracket.csv");
    Names _picked;
    std::unique_ptr<PartTree> _tree;
};

TEST_F(PartTreeTest, ShowsThePartWithItsElementsByKindInTheOrderOfTheFile) {
    EXPECT_EQ(Tree().windowTitle().toStdString(), "bracket");
    EXPECT_TRUE(Tree().isWindow());
    ASSERT_EQ(View().topLevelItemCount(), 3);
    EXPECT_EQ(View().topLevelItem(0), &Item("Points"));
    EXPECT_EQ(View().topLevelItem(1), &Item("Lines"));
    EXPECT_EQ(View().topLevelItem(2), &Item("Planes"));
    EXPECT_EQ(ShownBelow("Planes"),
              Names({"Base face", "Top face", "Front face", "Back face", "Left face", "Right face",
                     "Chamfer face", "Shoulder face", "End face", "Bore floor"}));
    EXPECT_EQ(ShownBelow("Points").front(), "Top face hole 1");
    EXPECT_EQ(ShownBelow("Lines").front(), "Pin axis");
}

TEST_F(PartTreeTest, ABalloonTellsTheCoordinates) {
    EXPECT_EQ(Item("Top face hole 1").toolTip(0).toStdString(),
              "Top face hole 1\nPoint: x -48, y -28, z 12 mm");
    EXPECT_EQ(Item("Pin axis").toolTip(0).toStdString(),
              "Pin axis\nLine through x 0, y 0, z 0 mm\nDirection: 0, 0, 1");
    EXPECT_EQ(Item("Chamfer face").toolTip(1).toStdString(),
              "Chamfer face\nPlane through x 60, y 0, z 9 mm\nNormal: 0.70710678, 0, 0.70710678");
}

TEST_F(PartTreeTest, NamesAreShownCharacterByCharacter) {
    const Part part("a[*]b", {{"<b>x</b> & y", ElementKind::Point, {1, 2, 3}, {}}});
    Open(part);
    EXPECT_EQ(Tree().windowTitle().toStdString(), "a[*][*]b") << "the way to write [*] in a title";
    const QString balloon = Item("<b>x</b> & y").toolTip(0);
    EXPECT_TRUE(balloon.contains("&lt;b&gt;x&lt;/b&gt; &amp; y")) << balloon.toStdString();
    Click("<b>x</b> & y");
    EXPECT_EQ(TakePicked(), Names({"<b>x</b> & y"}));
}

TEST_F(PartTreeTest, APartWithoutElementsHasEmptyBranches) {
    const Part part("nothing", {});
    Open(part);
    EXPECT_EQ(ShownBelow("Points"), Names{});
    View().setFocus();
    QTest::keyClick(&View(), Qt::Key_Return);
    Find().setText("x");
    EXPECT_EQ(TakePicked(), Names{});
}

TEST_F(PartTreeTest, AClickPicksAnElement) {
    Click("Top face hole 2");
    EXPECT_EQ(TakePicked(), Names({"Top face hole 2"}));
    Click("Bore floor");
    Click("Bore floor");
    EXPECT_EQ(TakePicked(), Names({"Bore floor", "Bore floor"}));
}

TEST_F(PartTreeTest, ADoubleClickPicksOnce) {
    Click("Pin axis");
    ClickAgainAtOnce("Pin axis");
    EXPECT_EQ(TakePicked(), Names({"Pin axis"}));
    Click("Pin axis");
    EXPECT_EQ(TakePicked(), Names({"Pin axis"})) << "a later click picks again";
}

TEST_F(PartTreeTest, TwoQuickClicksOnTwoElementsPickBoth) {
    Click("Hole 1 axis");
    ClickAgainAtOnce("Hole 2 axis");
    EXPECT_EQ(TakePicked(), Names({"Hole 1 axis", "Hole 2 axis"}));
}

TEST_F(PartTreeTest, WhatIsNoClickOnAnElementPicksNothing) {
    Click("Pin axis", Qt::RightButton);
    Click("Pin axis", Qt::MiddleButton);
    Click("Lines");
    QTest::mousePress(View().viewport(), Qt::LeftButton, Qt::NoModifier, PlaceOf("Hole 1 axis"));
    QTest::mouseRelease(View().viewport(), Qt::LeftButton, Qt::NoModifier, PlaceOf("Hole 2 axis"));
    EXPECT_EQ(TakePicked(), Names{});
}

TEST_F(PartTreeTest, EnterPicksTheCurrentElementAndArrowsOnlyMove) {
    MakeCurrent("Hole 1 axis");
    QTest::keyClick(&View(), Qt::Key_Down);
    EXPECT_EQ(TakePicked(), Names{});
    QTest::keyClick(&View(), Qt::Key_Return);
    QTest::keyClick(&View(), Qt::Key_Enter);
    EXPECT_EQ(TakePicked(), Names({"Hole 2 axis", "Hole 2 axis"}));
}

TEST_F(PartTreeTest, EnterFoldsABranchAndUnfoldsIt) {
    MakeCurrent("Lines");
    QTest::keyClick(&View(), Qt::Key_Return);
    EXPECT_FALSE(Item("Lines").isExpanded());
    QTest::keyClick(&View(), Qt::Key_Return);
    EXPECT_TRUE(Item("Lines").isExpanded());
    EXPECT_EQ(TakePicked(), Names{});
}

TEST_F(PartTreeTest, TypingInTheTreeFindsANameByItsBeginning) {
    MakeCurrent("Points");
    QTest::keyClicks(&View(), "shoulder face c");
    EXPECT_EQ(View().currentItem(), &Item("Shoulder face centre"));
}

TEST_F(PartTreeTest, ARefusalIsShownAsABalloonAndAPickIsNot) {
    Click("Pin axis");
    EXPECT_EQ(Balloon(), "");
    Refuse("'Pin axis' is a line");
    Click("Pin axis");
    EXPECT_EQ(Balloon(), "'Pin axis' is a line");
}

TEST_F(PartTreeTest, NothingIsWantedAtFirst) {
    EXPECT_EQ(Hint(), "No input waits for an element.");
    const int greyed = ContrastOf("Pin axis");
    Tree().ShowWanted(everyKind);
    EXPECT_GT(ContrastOf("Pin axis"), greyed + 50);
}

TEST_F(PartTreeTest, KindsThatAreNotWantedAreGreyedWithTheirBranch) {
    Tree().ShowWanted({ElementKind::Plane, ElementKind::Line});
    EXPECT_EQ(Hint(), "Can be picked: Lines, Planes");
    const int wanted = ContrastOf("Lines");
    const int greyed = ContrastOf("Points");
    EXPECT_GT(wanted, greyed + 50);
    EXPECT_NEAR(ContrastOf("Pin axis"), wanted, 20);
    EXPECT_NEAR(ContrastOf("Top face hole 1"), greyed, 20);
    EXPECT_EQ(Item("Pin axis").data(0, Qt::AccessibleDescriptionRole).toString(), "");
    EXPECT_EQ(Item("Top face hole 1").data(0, Qt::AccessibleDescriptionRole).toString(),
              "cannot be picked now");

    Tree().ShowWanted({ElementKind::Point});
    EXPECT_EQ(Hint(), "Can be picked: Points");
    EXPECT_NEAR(ContrastOf("Points"), wanted, 20);
    EXPECT_NEAR(ContrastOf("Lines"), greyed, 20);
}

TEST_F(PartTreeTest, AGreyedElementLooksGreyedWhereItIsCurrentToo) {
    Tree().ShowWanted(everyKind);
    MakeCurrent("Top face hole 3");
    const int wanted = ShownContrastOf("Top face hole 3");
    Tree().ShowWanted({});
    EXPECT_GT(wanted, ShownContrastOf("Top face hole 3") + 30);
}

TEST_F(PartTreeTest, OpensWithRoomForThirtyLines) {
    EXPECT_GT(Tree().height(), 25 * Tree().fontMetrics().lineSpacing());
    EXPECT_GT(View().columnWidth(0), Tree().fontMetrics().horizontalAdvance("Base face corner front right"));
}

TEST_F(PartTreeTest, AGreyedElementCanBeReachedAndTellsWhyItIsRefused) {
    Tree().ShowWanted({ElementKind::Point});
    Refuse("a point is wanted");
    MakeCurrent("Hole 1 axis");
    QTest::keyClick(&View(), Qt::Key_Down);
    QTest::keyClick(&View(), Qt::Key_Return);
    EXPECT_EQ(TakePicked(), Names({"Hole 2 axis"}));
    EXPECT_EQ(Balloon(), "a point is wanted");
}

TEST_F(PartTreeTest, PickedElementsAreMarkedAndOnlyThey) {
    Tree().MarkPicked({"Pin axis", "Top face", "Nothing of that name"});
    for (const char* name : {"Pin axis", "Top face"}) {
        EXPECT_TRUE(Item(name).font(0).bold()) << name;
        EXPECT_FALSE(Item(name).icon(1).isNull()) << name;
        EXPECT_EQ(Item(name).data(0, Qt::AccessibleDescriptionRole).toString(), "picked") << name;
    }
    Tree().MarkPicked({"Top face"});
    EXPECT_FALSE(Item("Pin axis").font(0).bold());
    EXPECT_TRUE(Item("Pin axis").icon(1).isNull());
    EXPECT_TRUE(Item("Top face").font(0).bold());
    Tree().ShowWanted(everyKind);
    EXPECT_TRUE(Item("Top face").font(0).bold()) << "what is wanted does not matter";
    EXPECT_FALSE(Item("Base face").font(0).bold());
}

TEST_F(PartTreeTest, ThePickMayChangeWhatIsWantedAtOnce) {
    Tree().ShowWanted({ElementKind::Point});
    _answer = [this](const std::string& name) {
        Tree().MarkPicked({name});
        Tree().ShowWanted({ElementKind::Plane});
        return Outcome::Done();
    };
    Click("Base face centre");
    EXPECT_TRUE(Item("Base face centre").font(0).bold());
    EXPECT_EQ(Hint(), "Can be picked: Planes");
}

TEST_F(PartTreeTest, TheFindFieldLeavesTheNamesThatHoldItsTextWhateverTheirCase) {
    QTest::keyClicks(&Find(), " CENTRE ");
    EXPECT_EQ(ShownBelow("Points"),
              Names({"Base face centre", "Shoulder face centre", "End face centre", "Bore floor centre"}));
    EXPECT_TRUE(Item("Lines").isHidden());
    EXPECT_TRUE(Item("Planes").isHidden());
    Find().clear();
    EXPECT_EQ(ShownBelow("Points").size(), 22U);
    EXPECT_EQ(ShownBelow("Lines").size(), 12U);
    EXPECT_EQ(ShownBelow("Planes").size(), 10U);
}

TEST_F(PartTreeTest, FoundElementsAreShownInAFoldedBranchToo) {
    Item("Planes").setExpanded(false);
    QTest::keyClicks(&Find(), "bore floor");
    EXPECT_EQ(ShownBelow("Planes"), Names({"Bore floor"}));
    Click("Bore floor");
    EXPECT_EQ(TakePicked(), Names({"Bore floor"}));
}

TEST_F(PartTreeTest, EnterDoesNotPickWhatIsNotFound) {
    MakeCurrent("Pin axis");
    QTest::keyClicks(&Find(), "grease");
    QTest::keyClick(&View(), Qt::Key_Return);
    EXPECT_EQ(TakePicked(), Names{});
    QTest::keyClicks(&Find(), " that is nowhere");
    QTest::keyClick(&Find(), Qt::Key_Return);
    QTest::keyClick(&View(), Qt::Key_Return);
    EXPECT_EQ(TakePicked(), Names{});
}

TEST_F(PartTreeTest, FromTheFindFieldTheKeyboardGoesOnToTheFirstElementFound) {
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Return, Qt::Key_Enter}) {
        Find().clear();
        Find().setFocus();
        QTest::keyClicks(&Find(), "hole 3");
        QTest::keyClick(&Find(), key);
        EXPECT_TRUE(View().hasFocus());
        EXPECT_EQ(TakePicked(), Names{}) << "finding is not picking";
        QTest::keyClick(&View(), Qt::Key_Return);
        EXPECT_EQ(TakePicked(), Names({"Top face hole 3"}));
    }
}

TEST_F(PartTreeTest, EscapeEmptiesTheFindFieldAndTheWindowStays) {
    QTest::keyClicks(&Find(), "hole");
    QTest::keyClick(&Find(), Qt::Key_Escape);
    EXPECT_TRUE(Find().text().isEmpty());
    QTest::keyClick(&Find(), Qt::Key_Escape);
    EXPECT_TRUE(Tree().isVisible());
    EXPECT_FALSE(Item("Planes").isHidden());
}

TEST_F(PartTreeTest, TabAndTheKeyForFindingLeadBetweenTreeAndField) {
    EXPECT_TRUE(View().hasFocus()) << "where a designer begins";
    QTest::keyClick(&View(), Qt::Key_F, Qt::ControlModifier);
    EXPECT_TRUE(Find().hasFocus());
    QTest::keyClick(&Find(), Qt::Key_Tab);
    EXPECT_TRUE(View().hasFocus());
    QTest::keyClick(&View(), Qt::Key_Tab);
    EXPECT_TRUE(Find().hasFocus());
}

TEST_F(PartTreeTest, AClosedWindowComesBackWhenAnElementIsWanted) {
    Tree().close();
    Tree().MarkPicked({"Pin axis"});
    Tree().ShowWanted({});
    EXPECT_FALSE(Tree().isVisible());
    Tree().ShowWanted({ElementKind::Line});
    EXPECT_TRUE(Tree().isVisible());
}

TEST_F(PartTreeTest, AWindowThatTheProgramHidesStaysHidden) {
    Tree().hide();
    Tree().ShowWanted(everyKind);
    EXPECT_FALSE(Tree().isVisible());
}

TEST_F(PartTreeTest, SignsAndNamesStandOutInADarkPaletteToo) {
    Tree().ShowWanted(everyKind);
    QPalette dark = Tree().palette();
    dark.setColor(QPalette::Base, QColor(30, 30, 30));
    for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive})
        dark.setColor(group, QPalette::Text, QColor(230, 230, 230));
    Tree().setPalette(dark);
    EXPECT_GT(ContrastOf("Pin axis"), 150);
    const QImage sign = Item("Pin axis").icon(0).pixmap(16).toImage();
    int brightest = 0;
    for (int y = 0; y < sign.height(); ++y)
        for (int x = 0; x < sign.width(); ++x)
            if (qAlpha(sign.pixel(x, y)) > 200)
                brightest = std::max(brightest, qGray(sign.pixel(x, y)));
    EXPECT_GT(brightest, 200);
}

TEST_F(PartTreeTest, EachKindHasASignOfItsOwnAtEverySize) {
    const QPalette palette = Tree().palette();
    for (const int size : {16, 24, 48}) {
        std::vector<QImage> signs;
        for (const ElementKind kind : everyKind)
            signs.push_back(app::SignOf(kind, palette).pixmap(size).toImage());
        signs.push_back(app::TickSign(palette).pixmap(size).toImage());
        for (std::size_t i = 0; i < signs.size(); ++i)
            for (std::size_t j = 0; j < i; ++j)
                EXPECT_NE(signs[i], signs[j]) << size << ": " << i << ", " << j;
    }
    const QIcon sign = app::SignOf(ElementKind::Plane, palette);
    EXPECT_NE(sign.pixmap(16, QIcon::Normal).toImage(), sign.pixmap(16, QIcon::Disabled).toImage());
    EXPECT_EQ(Item("Top face").icon(0).pixmap(16).toImage(), sign.pixmap(16).toImage());
}

struct Language {
    const char* folder;
    const char* points;
    const char* wanted;
    const char* find;
};

void PrintTo(const Language& language, std::ostream* out) {
    *out << language.folder;
}

class PartTreeLanguageTest : public PartTreeTest, public testing::WithParamInterface<Language> {};

TEST_P(PartTreeLanguageTest, ShowsItsTextsInTheLanguageOfTheDialogs) {
    host::MessageCatalogs::SetLanguage(GetParam().folder);
    const Part part("p", {{"A", ElementKind::Point, {1, 2, 3}, {}}});
    Open(part);
    EXPECT_EQ(View().topLevelItem(0)->text(0).toStdString(), GetParam().points);
    EXPECT_EQ(Find().placeholderText().toStdString(), GetParam().find);
    EXPECT_EQ(Find().accessibleName(), Find().placeholderText());
    Tree().ShowWanted({ElementKind::Point});
    EXPECT_EQ(Hint(), GetParam().wanted);
    EXPECT_TRUE(Item("A").toolTip(0).endsWith("x 1, y 2, z 3 mm"));
}

TEST_P(PartTreeLanguageTest, HasEveryText) {
    EXPECT_EQ(host::MessageCatalogs::Keys("PartTree", GetParam().folder),
              Names({"And", "Elements", "Find", "Line.Branch", "Line.Coordinates", "NotWanted",
                     "NothingWanted", "Picked", "Plane.Branch", "Plane.Coordinates", "Point.Branch",
                     "Point.Coordinates", "Wanted"}));
    EXPECT_TRUE(host::MessageCatalogs::Problems().empty());
}

INSTANTIATE_TEST_SUITE_P(Languages, PartTreeLanguageTest,
                         testing::Values(Language{"", "Points", "Can be picked: Points", "Find an element"},
                                         Language{"German", "Punkte", "Wählbar: Punkte", "Element suchen"},
                                         Language{"French", "Points", "À choisir : Points",
                                                  "Rechercher un élément"},
                                         Language{"Japanese", "点", "選択できる要素: 点", "要素を検索"}));

} // namespace

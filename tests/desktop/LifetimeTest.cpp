#include "CATDlgCheckButton.h"
#include "CATDlgCombo.h"
#include "CATDlgEditor.h"
#include "CATDlgFrame.h"
#include "CATDlgMultiList.h"
#include "CATDlgPushButton.h"
#include "DesktopFixture.h"
#include "host/EventScope.h"

#include <QtCore/QAbstractItemModel>
#include <QtCore/QPointer>
#include <QtTest/QTest>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLineEdit>

#include <memory>
#include <vector>

namespace desktop_test {

namespace {

// Counts how often a widget or a part of it is drawn.
class DrawingCounter : public QObject {
  public:
    explicit DrawingCounter(QWidget& ioWidget) {
        ioWidget.installEventFilter(this);
        for (QWidget* part : ioWidget.findChildren<QWidget*>())
            part->installEventFilter(this);
    }
    bool eventFilter(QObject*, QEvent* iEvent) override {
        count += iEvent->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
    int count = 0;
};

// Lets a widget and all its parts be drawn soon.
void AskForDrawing(QWidget& ioWidget) {
    ioWidget.update();
    for (QWidget* part : ioWidget.findChildren<QWidget*>())
        part->update();
}

class LifetimeTest : public DesktopTest {
  protected:
    template<class List>
    List& Filled(CATDlgStyle iStyle) {
        auto* const list = new List(&Dialog(), "TypeLst", iStyle);
        for (const char* text : {"A", "B", "C"})
            Append(*list, text);
        return *list;
    }
    static void Append(CATDlgCombo& ioCombo, const char* iText) { ioCombo.SetLine(iText); }
    static void Append(CATDlgMultiList& ioList, const char* iText) { ioList.SetColumnItem(0, iText); }

    // One widget of each kind that reads its texts in the host as it is drawn, and others.
    std::vector<CATDialog*> OneOfEach() {
        Dialog().SetDefaultOrientation(Vertical);
        return {&Filled<CATDlgCombo>(0),
                &Filled<CATDlgCombo>(CATDlgCmbDropDown),
                &Filled<CATDlgMultiList>(0),
                new CATDlgEditor(&Dialog(), "LineEdt"),
                new CATDlgEditor(&Dialog(), "TextEdt", CATDlgEdtMultiline),
                new CATDlgCheckButton(&Dialog(), "Ckb"),
                new CATDlgPushButton(new CATDlgFrame(&Dialog(), "Frm"), "Pbt")};
    }
};

TEST_F(LifetimeTest, DialogsThatAreThereBeforeTheDesktopAreShownToo) {
    auto* const button = new CATDlgPushButton(&Dialog(), "NewPbt");
    EXPECT_NE(Windows().WindowOf(Dialog()), nullptr) << "the fixture makes its dialog before the desktop";
    EXPECT_EQ(Windows().WidgetOf(*button), nullptr) << "made in the middle of an event";
    Settle();
    EXPECT_NE(Windows().WidgetOf(*button), nullptr);
}

TEST_F(LifetimeTest, AWindowIsHiddenUntilTheProgramShowsIt) {
    Settle();
    EXPECT_FALSE(Window().isVisible());
    Dialog().SetVisibility(CATDlgShow);
    EXPECT_FALSE(Window().isVisible()) << "windows follow at the end of the event";
    Settle();
    EXPECT_TRUE(Window().isVisible());
    Dialog().SetVisibility(CATDlgHide);
    Settle();
    EXPECT_FALSE(Window().isVisible());
}

TEST_F(LifetimeTest, AWidgetGoesWithItsHostWidget) {
    auto* const button = new CATDlgPushButton(&Dialog(), "NewPbt");
    Open();
    const QPointer<QWidget> shown(&Shown(*button));
    delete button;
    Settle();
    EXPECT_TRUE(shown.isNull());
}

TEST_F(LifetimeTest, AButtonMayDestroyItselfWhenItIsPressed) {
    auto* const button = new CATDlgPushButton(&Dialog(), "NewPbt");
    Open();
    const QPointer<QWidget> shown(&Shown(*button));
    const Reaction destroy("CATDlgPushBActivateNotification", [button] { delete button; });
    QTest::mouseClick(shown, Qt::LeftButton);
    EXPECT_EQ(destroy.Count(), 1);
    ASSERT_FALSE(shown.isNull()) << "it is still handling the click";
    EXPECT_FALSE(shown->isVisible());
    Settle();
    EXPECT_TRUE(shown.isNull());
}

TEST_F(LifetimeTest, ADialogMayBeDestroyedWhileAClickInItIsOnItsWay) {
    auto* const second = new CATDlgDialog(MainWindow(), "SecondDlg", CATDlgWndOK);
    auto* const button = new CATDlgPushButton(second, "NewPbt");
    Open();
    second->SetVisibility(CATDlgShow);
    Settle();
    const QPointer<QWidget> window(&Shown(*second));
    const Reaction destroy("CATDlgPushBActivateNotification",
                           [second] { second->RequestDelayedDestruction(); });
    QTest::mouseClick(&Shown(*button), Qt::LeftButton);
    EXPECT_EQ(destroy.Count(), 1);
    ASSERT_FALSE(window.isNull());
    EXPECT_FALSE(window->isVisible());
    Settle();
    EXPECT_TRUE(window.isNull());
}

TEST_F(LifetimeTest, AComboMayBeReplacedByOneOfTheSameNameWhenALineIsChosen) {
    auto* combo = new CATDlgCombo(&Dialog(), "DiameterCmb", CATDlgCmbDropDown);
    combo->SetLine("M8");
    combo->SetLine("M10");
    Open();
    const QPointer<QWidget> shown(&Shown(*combo));
    const Reaction replace("CATDlgComboSelectNotification", [this, &combo] {
        combo->RequestDelayedDestruction();
        combo = new CATDlgCombo(&Dialog(), "DiameterCmb", CATDlgCmbDropDown);
        combo->SetLine("G1/2");
    });
    QTest::keyClick(shown, Qt::Key_Down);
    EXPECT_EQ(replace.Count(), 1);
    EXPECT_EQ(ShownAs<QComboBox>(*combo).count(), 1);
    Settle();
    EXPECT_TRUE(shown.isNull());
    EXPECT_EQ(Utf8(ShownAs<QComboBox>(*combo).itemText(0)), "G1/2");
}

TEST_F(LifetimeTest, AListMayDestroyItselfWhenALineIsChosen) {
    auto* const combo = new CATDlgCombo(&Dialog(), "TypeCmb");
    combo->SetLine("A");
    combo->SetLine("B");
    Open();
    const QPointer<QWidget> shown(&Shown(*combo));
    const Reaction destroy("CATDlgComboSelectNotification", [combo] { delete combo; });
    QTest::keyClick(shown, Qt::Key_Down);
    EXPECT_EQ(destroy.Count(), 1);
    Settle();
    EXPECT_TRUE(shown.isNull());
}

TEST_F(LifetimeTest, AnEditorMayDestroyItselfWhenItsTextChanges) {
    auto* const editor = new CATDlgEditor(&Dialog(), "NameEdt");
    Open();
    const QPointer<QWidget> shown(&Shown(*editor));
    const Reaction destroy("CATDlgEditModifyNotification", [editor] { delete editor; });
    shown->setFocus();
    QTest::keyClicks(shown, QStringLiteral("M8"));
    QTest::keyClick(shown, Qt::Key_Return);
    EXPECT_EQ(destroy.Count(), 1);
    Settle();
    EXPECT_TRUE(shown.isNull());
}

TEST_F(LifetimeTest, ADialogIsDestroyedByItsOwnCancelButton) {
    Open();
    const QPointer<QWidget> window(&Window());
    const Reaction destroy("CATDlgDiaCANCELNotification", [this] { Dialog().RequestDelayedDestruction(); });
    QTest::keyClick(window, Qt::Key_Escape);
    EXPECT_EQ(destroy.Count(), 1);
    Settle();
    EXPECT_TRUE(window.isNull());
}

TEST_F(LifetimeTest, WhatTheProgramDestroysBetweenTwoEventsIsGoneBeforeTheNextDrawing) {
    auto* const combo = new CATDlgCombo(&Dialog(), "TypeCmb");
    combo->SetLine("A");
    Open();
    Shown(*combo).update(); // a drawing waits
    QMetaObject::invokeMethod(
        qApp, [combo] { delete combo; }, Qt::QueuedConnection);
    Settle();
    Settle();
    EXPECT_EQ(Windows().WidgetOf(*combo), nullptr);
}

TEST_F(LifetimeTest, WhatIsDestroyedOutsideAnyEventIsDrawnNoMore) {
    const std::vector<CATDialog*> widgets = OneOfEach();
    Open();
    for (CATDialog* const widget : widgets) {
        SCOPED_TRACE(std::string(widget->IsA()) + " " + widget->GetName().ConvertToChar());
        const QPointer<QWidget> shown(&Shown(*widget));
        DrawingCounter drawings(*shown);
        AskForDrawing(*shown);
        Settle();
        EXPECT_GT(drawings.count, 0) << "as long as it is there";
        drawings.count = 0;
        AskForDrawing(*shown);
        delete widget;
        EXPECT_FALSE(shown->isVisible());
        QCoreApplication::processEvents();
        EXPECT_EQ(drawings.count, 0);
        Settle();
        EXPECT_TRUE(shown.isNull());
    }
}

TEST_F(LifetimeTest, AListThatIsBeingDestroyedIsEmptyAtOnce) {
    const host::EventScope event; // so that nothing is delivered meanwhile
    CATDlgCombo& lines = Filled<CATDlgCombo>(0);
    CATDlgCombo& choice = Filled<CATDlgCombo>(CATDlgCmbDropDown);
    CATDlgMultiList& table = Filled<CATDlgMultiList>(0);
    Dialog().SetVisibility(CATDlgShow);
    host::EventScope::Flush();
    const QAbstractItemModel* const models[] = {ShownAs<QAbstractItemView>(lines).model(),
                                                ShownAs<QComboBox>(choice).model(),
                                                ShownAs<QAbstractItemView>(table).model()};
    CATDialog* const widgets[] = {&lines, &choice, &table};
    for (std::size_t list = 0; list < std::size(widgets); ++list) {
        EXPECT_EQ(models[list]->rowCount(), 3);
        delete widgets[list];
        EXPECT_EQ(models[list]->rowCount(), 0);
    }
}

TEST_F(LifetimeTest, AWidgetMayTakeTheAddressOfOneThatIsGone) {
    auto* const before = new CATDlgEditor(&Dialog(), "NameEdt");
    Open();
    const QPointer<QWidget> shown(&Shown(*before));
    {
        const host::EventScope event;
        before->~CATDlgEditor();
        ::new (static_cast<void*>(before)) CATDlgEditor(&Dialog(), "PitchEdt");
        EXPECT_EQ(Windows().WidgetOf(*before), nullptr) << "the new one is not shown yet";
    }
    EXPECT_EQ(Utf8(Shown(*before).objectName()), "PitchEdt");
    Settle();
    EXPECT_TRUE(shown.isNull());
    EXPECT_TRUE(Shown(*before).isVisible());
}

TEST_F(LifetimeTest, AFieldThatGoesPassesNoTextOnAndLosesNoneOfAnother) {
    auto* const typed = new CATDlgEditor(&Dialog(), "NameEdt");
    auto* const other = new CATDlgEditor(&Dialog(), "PitchEdt");
    Open();
    Shown(*typed).setFocus();
    QTest::keyClicks(&Shown(*typed), QStringLiteral("M8"));
    delete other;
    Settle();
    EXPECT_EQ(Utf8(ShownAs<QLineEdit>(*typed).text()), "M8") << "still being typed";
    EXPECT_EQ(Command().TakeClasses(), Classes());
    delete typed;
    Settle();
    EXPECT_EQ(Command().TakeClasses(), Classes());
}

TEST_F(LifetimeTest, ATextThatIsBeingTypedIsLostWithItsWindowWithoutHarm) {
    auto* const editor = new CATDlgEditor(&Dialog(), "NameEdt");
    Open();
    Shown(*editor).setFocus();
    QTest::keyClicks(&Shown(*editor), QStringLiteral("M8"));
    Dialog().SetVisibility(CATDlgHide);
    Settle();
    Settle();
    EXPECT_EQ(Utf8(ShownAs<QLineEdit>(*editor).text()), "") << "the host refuses what nobody can type";
    EXPECT_STREQ(editor->GetText().ConvertToChar(), "");
}

TEST_F(LifetimeTest, AFrameTakesItsContentAlong) {
    auto* const frame = new CATDlgFrame(&Dialog(), "ThreadFrm");
    auto* const editor = new CATDlgEditor(frame, "PitchEdt");
    Open();
    const QPointer<QWidget> shown(&Shown(*editor));
    frame->RequestDelayedDestruction();
    Settle();
    EXPECT_TRUE(shown.isNull());
    EXPECT_TRUE(Window().isVisible());
}

} // namespace

} // namespace desktop_test

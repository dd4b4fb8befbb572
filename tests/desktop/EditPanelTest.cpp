// The parameter edit panel in its real window: a person edits value and tolerance with mouse and keyboard.

#include "CATDlgCheckButton.h"
#include "CATDlgCombo.h"
#include "CATDlgRadioButton.h"
#include "CATIParmAsStored.h"
#include "CATIParmTolerance.h"
#include "DesktopFixture.h"
#include "FitClerk.h"
#include "OrvKvParameterEditPanel.h"
#include "OrvKvToleranceSub.h"
#include "host/DialogPath.h"
#include "host/Inspector.h"
#include "host/Parameters.h"
#include "host/ValueFrame.h"
#include "support/ResourceFolder.h"

#include <QtGui/QWindow>
#include <QtTest/QTest>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QAbstractSpinBox>
#include <QtWidgets/QApplication>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QStyleOptionComboBox>
#include <QtWidgets/QStyleOptionSpinBox>

#include <memory>
#include <sstream>

namespace desktop_test {

namespace {

const char tolerance[] = "ToleranceCkb";
const char fit[] = "ISOFittingRdb";
const char symmetric[] = "PlusMinusSymmetricalRdb";
const char plusMinus[] = "PlusMinusRdb";
const char group[] = "ToleranceGroupCmb";
const char field[] = "ToleranceFieldCmb";

// The panel for the length D of 10 mm, and a command that knows fits.
class EditPanelTest : public DesktopTest {
  protected:
    EditPanelTest() { _resources.Write("OrvKvParametersDescription.CATNls", "D = \"Diameter\";\n"); }
    ~EditPanelTest() override {
        delete _panel;
        Settle();
    }

    struct Opened {
        const char* group = "";
        const char* field = "";
        unsigned char valueEditable = 1;
        unsigned char toleranceEditable = 1;
    };
    void OpenPanel(const Opened& iOpened) {
        _panel = new OrvKvParameterEditPanel(_parameter, "D", iOpened.group, iOpened.field,
                                             iOpened.valueEditable, iOpened.toleranceEditable);
        _panel->Build();
        _clerk.Serve(_panel);
        _panel->SetVisibility(CATDlgShow);
        Settle();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&PanelWindow()));
        static_cast<void>(_clerk.TakeHeard());
    }
    void OpenPanel() { OpenPanel(Opened()); }

    QWidget& PanelWindow() { return Shown(*_panel); }
    static CATDialog& Host(const char* iName) {
        CATDialog* const widget = host::DialogPath::Find(iName).widget;
        if (widget == nullptr)
            throw std::runtime_error(std::string("there is no ") + iName);
        return *widget;
    }
    template<class QtWidget>
    QtWidget& ShownAs(const char* iName) {
        return DesktopTest::ShownAs<QtWidget>(Host(iName));
    }
    QComboBox& Combo(const char* iName) { return ShownAs<QComboBox>(iName); }
    QAbstractButton& Button(const char* iName) { return ShownAs<QAbstractButton>(iName); }
    // The area below the check button.
    QWidget& Area() { return ShownAs<QWidget>("OrvKvToleranceSub"); }
    QAbstractSpinBox& FieldIn(const CATDialog& iParent, std::size_t iIndex) {
        std::vector<const CATDialog*> frames;
        for (const CATDialog* child : host::Inspector::Children(iParent))
            if (dynamic_cast<const host::ValueFrame*>(child) != nullptr)
                frames.push_back(child);
        return *Shown(*frames.at(iIndex)).findChild<QAbstractSpinBox*>();
    }
    QAbstractSpinBox& Value() { return FieldIn(*_panel, 0); }
    QAbstractSpinBox& Maximum() { return FieldIn(Host("OrvKvToleranceSub"), 0); }
    QAbstractSpinBox& Minimum() { return FieldIn(Host("OrvKvToleranceSub"), 1); }

    // On the button's sign, which is left of its text.
    void Click(const char* iName) {
        QTest::mouseClick(&Button(iName), Qt::LeftButton, Qt::NoModifier,
                          QPoint(8, Button(iName).height() / 2));
        Settle();
    }
    void Press(const char* iStandardButton) {
        for (QPushButton* button : PanelWindow().findChildren<QPushButton*>())
            if (Utf8(button->accessibleName()) == iStandardButton)
                return QTest::mouseClick(button, Qt::LeftButton);
        ADD_FAILURE() << "there is no button " << iStandardButton;
    }
    static void PressKey(Qt::Key iKey) {
        QTest::keyClick(QApplication::focusWidget(), iKey);
        Settle();
    }
    // Types without passing the text on.
    static void TypeIn(QAbstractSpinBox& ioField, const char* iText) {
        ioField.setFocus();
        ioField.selectAll();
        QTest::keyClicks(&ioField, QString::fromUtf8(iText));
    }
    static void Enter(QAbstractSpinBox& ioField, const char* iText) {
        TypeIn(ioField, iText);
        PressKey(Qt::Key_Return);
    }
    static std::string Text(QAbstractSpinBox& iField) { return Utf8(iField.findChild<QLineEdit*>()->text()); }
    static std::string Reason(QAbstractSpinBox& iField) { return Utf8(iField.accessibleDescription()); }
    // "0.1mm -0.1mm", each in brackets when it cannot be edited.
    std::string Deviations() {
        std::string shown;
        for (QAbstractSpinBox* limit : {&Maximum(), &Minimum()})
            shown +=
                (shown.empty() ? "" : " ") + (limit->isEnabled() ? Text(*limit) : '[' + Text(*limit) + ']');
        return shown;
    }
    // "+0.1/-0.1", or "none".
    std::string Tolerance() const {
        const CATIParmTolerance_var held(_parameter);
        if (held->GetTypeOfTolerance() == 0)
            return "none";
        std::ostringstream text;
        text << std::showpos << held->GetMaxTolerance() << '/' << held->GetMinTolerance();
        return text.str();
    }
    double Nominal() const { return CATIParmAsStored_var(_parameter)->GetValue(); }
    // Names of the radio buttons that are checked, and whether the fit widgets are seen.
    std::string Mode() {
        std::string mode;
        for (const char* radio : {fit, symmetric, plusMinus})
            if (Button(radio).isChecked())
                mode += radio;
        return mode + (Combo(group).isVisible() && Combo(field).isVisible() ? " with fits" : "");
    }
    std::string Fit() { return Utf8(Combo(group).currentText()) + ' ' + Utf8(Combo(field).currentText()); }
    // Opens the list by a click and takes a line by another.
    void ChooseByMouse(QComboBox& ioBox, int iLine) {
        const int interval = QApplication::doubleClickInterval();
        QApplication::setDoubleClickInterval(0);
        QTest::mouseClick(&ioBox, Qt::LeftButton);
        Settle();
        QAbstractItemView& list = *ioBox.view();
        ASSERT_TRUE(list.isVisible());
        list.setCurrentIndex(ioBox.model()->index(iLine, 0)); // as the pointer passes over it
        QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::NoModifier,
                          list.visualRect(ioBox.model()->index(iLine, 0)).center());
        Settle();
        QApplication::setDoubleClickInterval(interval);
    }
    // Object names of the widgets that Tab visits, from the value on until it comes back there. Fields of
    // values have none of their own.
    Classes TabStops() {
        Classes names;
        Value().setFocus();
        do {
            PressKey(Qt::Key_Tab);
            const QWidget* const widget = QApplication::focusWidget();
            names.push_back(widget == &Value()               ? "value"
                            : widget == &Maximum()           ? "maximum"
                            : widget == &Minimum()           ? "minimum"
                            : widget->objectName().isEmpty() ? Utf8(widget->accessibleName())
                                                             : Utf8(widget->objectName()));
        } while (names.back() != "value" && names.size() < 20);
        return names;
    }
    Classes TakeHeard() { return _clerk.TakeHeard(); }

    support::ResourceFolder _resources; // has descriptions
    CATICkeParm_var _parameter = host::Parameters::NewLength("D", 10.0);
    FitClerk _clerk;
    OrvKvParameterEditPanel* _panel = nullptr;
};

TEST_F(EditPanelTest, OpensWithTheValueInFocusAndReadyToBeReplaced) {
    OpenPanel();
    EXPECT_EQ(QApplication::focusWidget(), &Value());
    EXPECT_EQ(Utf8(Value().findChild<QLineEdit*>()->selectedText()), "10mm");
    EXPECT_EQ(Utf8(Value().accessibleName()), "Diameter");
    EXPECT_NE(Utf8(PanelWindow().windowTitle()).find(" D"), std::string::npos) << "the key of the parameter";
    EXPECT_FALSE(Button(tolerance).isChecked());
    EXPECT_FALSE(Area().isVisible());
    QTest::keyClicks(&Value(), QStringLiteral("12,5"));
    PressKey(Qt::Key_Return);
    EXPECT_EQ(Nominal(), 12.5);
}

TEST_F(EditPanelTest, GrowsWithTheToleranceAreaAndShrinksBack) {
    OpenPanel();
    const QSize small = PanelWindow().size();
    Click(tolerance);
    EXPECT_EQ(Mode(), plusMinus);
    const QRect place(Area().mapTo(&PanelWindow(), QPoint(0, 0)), Area().size());
    EXPECT_TRUE(PanelWindow().rect().contains(place));
    EXPECT_GE(Area().height(), Area().sizeHint().height()) << "nothing is cut off";
    EXPECT_GE(Area().width(), Area().sizeHint().width());
    EXPECT_GT(PanelWindow().height(), small.height());
    const int plain = PanelWindow().height();
    Click(fit);
    EXPECT_GE(Area().width(), Area().sizeHint().width()) << "the fit widgets have room too";
    EXPECT_GE(Area().height(), Area().sizeHint().height());
    EXPECT_GE(PanelWindow().height(), plain);
    Click(tolerance);
    EXPECT_FALSE(Area().isVisible());
    EXPECT_EQ(PanelWindow().size(), small);
}

TEST_F(EditPanelTest, KeepsTheSizeThatThePersonHasGivenIt) {
    OpenPanel();
    const QSize wide(PanelWindow().width() + 150, PanelWindow().height() + 20);
    PanelWindow().windowHandle()->resize(wide);
    ASSERT_TRUE(QTest::qWaitFor([&] {
        int width = 0;
        _panel->GetRectDimensions(nullptr, nullptr, nullptr, &width);
        return width == wide.width();
    }));
    Click(tolerance);
    EXPECT_GT(PanelWindow().height(), wide.height()) << "unless that is too little";
    EXPECT_GE(Area().height(), Area().sizeHint().height());
    Click(tolerance);
    EXPECT_EQ(PanelWindow().size(), wide);
}

TEST_F(EditPanelTest, SymmetricDeviationsAreTypedOnceAndSteppedByFiveHundredths) {
    OpenPanel();
    Click(tolerance);
    Click(symmetric);
    EXPECT_EQ(Mode(), symmetric);
    EXPECT_EQ(Deviations(), "0.1mm [-0.1mm]");
    EXPECT_EQ(Tolerance(), "+0.1/-0.1");
    Enter(Maximum(), "0,2");
    EXPECT_EQ(Deviations(), "0.2mm [-0.2mm]");
    EXPECT_EQ(Tolerance(), "+0.2/-0.2");
    PressKey(Qt::Key_Up);
    EXPECT_EQ(Deviations(), "0.25mm [-0.25mm]");
    EXPECT_EQ(Tolerance(), "+0.25/-0.25");
}

TEST_F(EditPanelTest, PlusAndMinusAreTypedAndSteppedEachForItself) {
    OpenPanel();
    Click(tolerance);
    EXPECT_EQ(Mode(), plusMinus);
    EXPECT_EQ(Deviations(), "0.1mm -0.1mm");
    Enter(Maximum(), "0.3");
    Enter(Minimum(), "-0,02");
    EXPECT_EQ(Tolerance(), "+0.3/-0.02");
    Maximum().setFocus();
    PressKey(Qt::Key_Down);
    EXPECT_EQ(Tolerance(), "+0.25/-0.02");
    QStyleOptionSpinBox option;
    option.initFrom(&Minimum());
    option.frame = true;
    option.subControls = QStyle::SC_All;
    const QRect arrow =
        Minimum().style()->subControlRect(QStyle::CC_SpinBox, &option, QStyle::SC_SpinBoxDown, &Minimum());
    QTest::mouseClick(&Minimum(), Qt::LeftButton, Qt::NoModifier, arrow.center());
    Settle();
    EXPECT_EQ(Tolerance(), "+0.25/-0.07");
    EXPECT_EQ(Deviations(), "0.25mm -0.07mm");
}

TEST_F(EditPanelTest, ADeviationThatIsNoNumberStaysWithTheReasonAndHoldsEnterUp) {
    OpenPanel();
    Click(tolerance);
    Enter(Maximum(), "wide");
    EXPECT_EQ(Text(Maximum()), "wide");
    EXPECT_NE(Reason(Maximum()).find("'wide'"), std::string::npos) << Reason(Maximum());
    EXPECT_EQ(Tolerance(), "+0.1/-0.1");
    EXPECT_GE(Area().height(), Area().sizeHint().height()) << "the reason is seen whole";
    static_cast<void>(TakeHeard());
    PressKey(Qt::Key_Return);
    EXPECT_EQ(TakeHeard(), Classes()) << "the dialog is not accepted";
    PressKey(Qt::Key_Escape);
    EXPECT_EQ(Text(Maximum()), "0.1mm");
    EXPECT_EQ(Reason(Maximum()), "");
    EXPECT_EQ(TakeHeard(), Classes()) << "nor cancelled";
    PressKey(Qt::Key_Return);
    EXPECT_EQ(TakeHeard(), Classes({"CATDlgDiaOKNotification"}));
}

TEST_F(EditPanelTest, TheFitModeShowsTheDeviationsThatTheCommandKnowsGreyed) {
    OpenPanel();
    Click(tolerance);
    Click(fit);
    EXPECT_EQ(Mode(), std::string(fit) + " with fits");
    EXPECT_EQ(Fit(), "E E6");
    EXPECT_EQ(Deviations(), "[0.07mm] [0.01mm]");
    EXPECT_EQ(Tolerance(), "+0.07/+0.01");
    EXPECT_EQ(Maximum().palette().currentColorGroup(), QPalette::Disabled);
}

TEST_F(EditPanelTest, AGroupAndAFieldAreChosenWithTheKeyboard) {
    OpenPanel();
    Click(tolerance);
    Click(fit);
    Combo(group).setFocus();
    PressKey(Qt::Key_Down);
    EXPECT_EQ(Fit(), "H H6");
    EXPECT_EQ(Tolerance(), "+0.06/+0");
    EXPECT_TRUE(Combo(group).hasFocus()) << "also when both lists were filled anew";
    Combo(field).setFocus();
    PressKey(Qt::Key_End);
    EXPECT_EQ(Fit(), "H H11");
    EXPECT_EQ(Tolerance(), "+0.11/+0");
    EXPECT_EQ(Deviations(), "[0.11mm] [0mm]");
    Combo(group).setFocus();
    QTest::keyClicks(&Combo(group), QStringLiteral("Z"));
    Settle();
    EXPECT_EQ(Fit(), "ZC ZC6") << "by its first letter";
}

TEST_F(EditPanelTest, AGroupAndAFieldAreChosenWithTheMouse) {
    OpenPanel();
    Click(tolerance);
    Click(fit);
    ChooseByMouse(Combo(group), 2);
    EXPECT_EQ(Fit(), "ZC ZC6");
    EXPECT_FALSE(Combo(group).view()->isVisible());
    ChooseByMouse(Combo(field), 2);
    EXPECT_EQ(Fit(), "ZC ZC11");
    EXPECT_EQ(Tolerance(), "-0.02/-0.13");
    ChooseByMouse(Combo(group), 1);
    EXPECT_EQ(Fit(), "H H6");
}

TEST_F(EditPanelTest, TheListsHaveRoomForTheLongestClass) {
    OpenPanel();
    Click(tolerance);
    Click(fit);
    ChooseByMouse(Combo(group), 2);
    ChooseByMouse(Combo(field), 2);
    const QComboBox& box = Combo(field);
    QStyleOptionComboBox option;
    option.initFrom(&box);
    const int room =
        box.style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &box).width();
    EXPECT_GT(room, box.fontMetrics().horizontalAdvance(QStringLiteral("ZC11")));
}

TEST_F(EditPanelTest, ANewNominalValueBringsTheDeviationsOfItsFit) {
    OpenPanel();
    Click(tolerance);
    Click(fit);
    Enter(Value(), "20");
    EXPECT_EQ(Mode(), std::string(fit) + " with fits");
    EXPECT_EQ(Tolerance(), "+0.14/+0.02");
    EXPECT_EQ(Deviations(), "[0.14mm] [0.02mm]");
}

TEST_F(EditPanelTest, ANominalValueOutsideTheRangeOfFitsLeavesSymmetricDeviations) {
    OpenPanel();
    Click(tolerance);
    Click(fit);
    Button(fit).setFocus();
    Enter(Value(), "600");
    EXPECT_EQ(Mode(), symmetric);
    EXPECT_FALSE(Button(fit).isVisible());
    EXPECT_EQ(Deviations(), "0.1mm [-0.1mm]");
    EXPECT_EQ(Tolerance(), "+0.1/-0.1");
    EXPECT_EQ(TabStops(), Classes({tolerance, symmetric, "maximum", "OK", "Apply", "Cancel", "value"}));
    Enter(Value(), "500");
    EXPECT_TRUE(Button(fit).isVisible());
    EXPECT_EQ(Mode(), symmetric) << "the mode stays";
}

TEST_F(EditPanelTest, UncheckingTakesTheToleranceAwayAndCheckingBeginsAnew) {
    OpenPanel({.group = "H", .field = "H11"});
    Click(tolerance);
    EXPECT_EQ(Mode(), std::string(fit) + " with fits");
    EXPECT_EQ(Fit(), "H H11");
    Click(tolerance);
    EXPECT_FALSE(Area().isVisible());
    EXPECT_EQ(Tolerance(), "none");
    Click(tolerance);
    EXPECT_TRUE(Area().isVisible());
    EXPECT_TRUE(Button(tolerance).isChecked());
}

TEST_F(EditPanelTest, SpaceChecksAndArrowKeysChooseTheMode) {
    OpenPanel();
    PressKey(Qt::Key_Tab);
    ASSERT_EQ(QApplication::focusWidget(), &Button(tolerance));
    PressKey(Qt::Key_Space);
    EXPECT_TRUE(Area().isVisible());
    PressKey(Qt::Key_Tab);
    ASSERT_EQ(QApplication::focusWidget(), &Button(plusMinus));
    PressKey(Qt::Key_Up);
    EXPECT_EQ(Mode(), symmetric);
    PressKey(Qt::Key_Right);
    EXPECT_EQ(Mode(), std::string(fit) + " with fits");
    PressKey(Qt::Key_Left);
    EXPECT_EQ(Mode(), symmetric);
    PressKey(Qt::Key_Down);
    EXPECT_EQ(Mode(), plusMinus);
}

TEST_F(EditPanelTest, TabFollowsWhatIsSeenInEachMode) {
    OpenPanel();
    EXPECT_EQ(TabStops(), Classes({tolerance, "OK", "Apply", "Cancel", "value"}));
    Click(tolerance);
    EXPECT_EQ(TabStops(),
              Classes({tolerance, plusMinus, "maximum", "minimum", "OK", "Apply", "Cancel", "value"}));
    Click(symmetric);
    EXPECT_EQ(TabStops(), Classes({tolerance, symmetric, "maximum", "OK", "Apply", "Cancel", "value"}));
    Click(fit);
    EXPECT_EQ(TabStops(), Classes({tolerance, fit, group, field, "OK", "Apply", "Cancel", "value"}));
    Click(tolerance);
    EXPECT_EQ(TabStops(), Classes({tolerance, "OK", "Apply", "Cancel", "value"}));
}

TEST_F(EditPanelTest, EveryPartHasAName) {
    OpenPanel();
    Click(tolerance);
    Click(fit);
    EXPECT_EQ(Utf8(Maximum().accessibleName()), "Upper deviation");
    EXPECT_EQ(Utf8(Minimum().accessibleName()), "Lower deviation");
    for (const char* name : {tolerance, fit, symmetric, plusMinus, group, field}) {
        const std::string shown = Utf8(ShownAs<QWidget>(name).accessibleName());
        EXPECT_NE(shown, name);
        EXPECT_NE(shown, "");
    }
    Click(symmetric);
    EXPECT_EQ(Utf8(Maximum().accessibleName()), "Upper deviation") << "with nothing beside its label too";
}

TEST_F(EditPanelTest, WhatMayNotBeEditedIsGreyed) {
    ASSERT_EQ(CATIParmTolerance_var(_parameter)->SetMaxTolerance(0.2), S_OK);
    ASSERT_EQ(CATIParmTolerance_var(_parameter)->SetMinTolerance(-0.1), S_OK);
    OpenPanel({.valueEditable = 0, .toleranceEditable = 0});
    EXPECT_FALSE(Value().isEnabled());
    EXPECT_FALSE(Button(tolerance).isEnabled());
    EXPECT_TRUE(Button(tolerance).isChecked());
    auto& check = dynamic_cast<CATDlgCheckButton&>(Host(tolerance));
    check.SetState(CATDlgUncheck, CATDlgNoNotification); // as the command does after Build
    check.SetState(CATDlgCheck, 1);
    Settle();
    EXPECT_TRUE(Area().isVisible());
    EXPECT_EQ(Mode(), plusMinus);
    EXPECT_EQ(Deviations(), "[0.2mm] [-0.1mm]");
    EXPECT_FALSE(Button(plusMinus).isEnabled());
    Click(tolerance);
    EXPECT_EQ(Tolerance(), "+0.2/-0.1");
}

TEST_F(EditPanelTest, AnAngleHasNoFits) {
    _parameter = host::Parameters::NewAngle("A", 30);
    OpenPanel();
    Click(tolerance);
    EXPECT_FALSE(Button(fit).isVisible());
    EXPECT_EQ(Deviations(), "0.1deg -0.1deg");
    Enter(Value(), "45");
    EXPECT_FALSE(Button(fit).isVisible());
    EXPECT_EQ(TabStops(),
              Classes({tolerance, plusMinus, "maximum", "minimum", "OK", "Apply", "Cancel", "value"}));
    Click(symmetric);
    EXPECT_EQ(Deviations(), "0.1deg [-0.1deg]");
}

TEST_F(EditPanelTest, ItsButtonsReachTheCommandAndTheWindowStays) {
    OpenPanel();
    for (const auto& [button, heard] : {std::pair("OK", "CATDlgDiaOKNotification"),
                                        {"Apply", "CATDlgDiaAPPLYNotification"},
                                        {"Cancel", "CATDlgDiaCANCELNotification"}}) {
        Press(button);
        EXPECT_EQ(TakeHeard(), Classes({heard}));
    }
    EXPECT_FALSE(PanelWindow().close());
    EXPECT_EQ(TakeHeard(), Classes({"CATDlgWindCloseNotification"}));
    EXPECT_TRUE(PanelWindow().isVisible());
}

TEST_F(EditPanelTest, EnterAcceptsFromEverywhereAndEscapeCancels) {
    OpenPanel();
    Click(tolerance);
    Click(fit);
    static_cast<void>(TakeHeard());
    for (QWidget* widget : {static_cast<QWidget*>(&Value()), static_cast<QWidget*>(&Button(tolerance)),
                            static_cast<QWidget*>(&Button(fit)), static_cast<QWidget*>(&Combo(group))}) {
        widget->setFocus();
        PressKey(Qt::Key_Return);
        EXPECT_EQ(TakeHeard(), Classes({"CATDlgDiaOKNotification"}));
        PressKey(Qt::Key_Escape);
        EXPECT_EQ(TakeHeard(), Classes({"CATDlgDiaCANCELNotification"}));
    }
    EXPECT_TRUE(Button(tolerance).isChecked());
    TypeIn(Value(), "25");
    PressKey(Qt::Key_Escape);
    EXPECT_EQ(Text(Value()), "10mm");
    EXPECT_EQ(TakeHeard(), Classes()) << "what is typed goes first";
    TypeIn(Value(), "25");
    Press("Apply");
    EXPECT_EQ(Nominal(), 25);
    EXPECT_EQ(TakeHeard().back(), "CATDlgDiaAPPLYNotification") << "behind the deviations of the new value";
}

TEST_F(EditPanelTest, MayBeDestroyedByItsOwnOkButton) {
    OpenPanel();
    Click(tolerance);
    _clerk.DestroyOnOk();
    Press("OK");
    Settle();
    EXPECT_EQ(host::DialogPath::Find("OrvKvParameterEditPanel").widget, nullptr);
    _panel = nullptr;
}

} // namespace

} // namespace desktop_test

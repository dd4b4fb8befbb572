// The tree of the dialog classes, and which widget may stand in which.

#include "CATDlgCheckButton.h"
#include "CATDlgCombo.h"
#include "CATDlgContainer.h"
#include "CATDlgDialog.h"
#include "CATDlgDocument.h"
#include "CATDlgEditor.h"
#include "CATDlgFrame.h"
#include "CATDlgLabel.h"
#include "CATDlgMultiList.h"
#include "CATDlgNotify.h"
#include "CATDlgProgress.h"
#include "CATDlgPushButton.h"
#include "CATDlgRadioButton.h"
#include "CATDlgSpinner.h"
#include "CATDlgTabContainer.h"
#include "CATDlgTabPage.h"

#include "Panels.h"

#include <type_traits>

namespace {

class DialogClasses : public DialogTest {};

template<class Class, class Base>
void ExpectKind() {
    EXPECT_TRUE((std::is_base_of<Base, Class>::value)) << Class::ClassName();
    EXPECT_NE(0, Class::MetaObject()->IsAKindOf(Base::ClassName())) << Class::ClassName();
}

// One more widget of a class in iParent.
template<class Class>
void ExpectWidgetIn(CATDialog& ioParent) {
    auto* const widget = new Class(&ioParent, "Widget", 0);
    EXPECT_EQ(&ioParent, widget->GetFather()) << Class::ClassName();
    EXPECT_STREQ(Class::ClassName(), widget->IsA());
}

} // namespace

CERTAIN(DialogClasses, AWidgetIsACommand) {
    ExpectKind<CATDialog, CATCommand>();
    ExpectKind<CATDialog, CATEventSubscriber>();
}

CERTAIN(DialogClasses, DocumentsDialogsAndMessagesAreWindows) {
    ExpectKind<CATDlgWindow, CATDialog>();
    ExpectKind<CATDlgDocument, CATDlgWindow>();
    ExpectKind<CATDlgDialog, CATDlgWindow>();
    ExpectKind<CATDlgNotify, CATDlgWindow>();
}

CERTAIN(DialogClasses, FramesAndTabsAreBoxes) {
    ExpectKind<CATDlgBox, CATDialog>();
    ExpectKind<CATDlgFrame, CATDlgBox>();
    ExpectKind<CATDlgTabContainer, CATDlgBox>();
    ExpectKind<CATDlgTabPage, CATDlgBox>();
}

CERTAIN(DialogClasses, WhatShowsOrTakesOneThingIsAControl) {
    ExpectKind<CATDlgControl, CATDialog>();
    ExpectKind<CATDlgLabel, CATDlgControl>();
    ExpectKind<CATDlgEditor, CATDlgControl>();
    ExpectKind<CATDlgPushButton, CATDlgControl>();
    ExpectKind<CATDlgRadioButton, CATDlgControl>();
    ExpectKind<CATDlgCheckButton, CATDlgControl>();
    ExpectKind<CATDlgCombo, CATDlgControl>();
    ExpectKind<CATDlgSpinner, CATDlgControl>();
    ExpectKind<CATDlgMultiList, CATDlgControl>();
}

ASSUMED(DialogClasses, AContainerIsABoxAndAProgressBarAControl,
        "recalled: the pages do not place these two") {
    ExpectKind<CATDlgContainer, CATDlgBox>();
    ExpectKind<CATDlgProgress, CATDlgControl>();
}

CERTAIN(DialogClasses, EachControlIsMadeFromParentNameAndStyle) {
    auto* const frame = new CATDlgFrame(panel, "Frame", 0);
    ExpectWidgetIn<CATDlgLabel>(*frame);
    ExpectWidgetIn<CATDlgEditor>(*frame);
    ExpectWidgetIn<CATDlgPushButton>(*frame);
    ExpectWidgetIn<CATDlgRadioButton>(*frame);
    ExpectWidgetIn<CATDlgCheckButton>(*frame);
    ExpectWidgetIn<CATDlgCombo>(*frame);
    ExpectWidgetIn<CATDlgSpinner>(*frame);
    ExpectWidgetIn<CATDlgMultiList>(*frame);
    ExpectWidgetIn<CATDlgProgress>(*frame);
    ExpectWidgetIn<CATDlgContainer>(*frame);
}

CERTAIN(DialogClasses, APageStandsInItsTabContainer) {
    auto* const tabs = new CATDlgTabContainer(panel, "Tabs");
    ExpectWidgetIn<CATDlgTabPage>(*tabs);
}

CERTAIN(DialogClasses, ADialogMayStandInADialog) {
    auto* const inner = new CATDlgDialog(panel, "Inner");
    EXPECT_EQ(panel, inner->GetFather());
}

ASSUMED(DialogClasses, TheStyleIsZeroUnlessGiven, "recalled: last argument of every constructor") {
    EXPECT_EQ(panel, (new CATDlgFrame(panel, "Frame"))->GetFather());
    EXPECT_EQ(panel, (new CATDlgPushButton(panel, "Button"))->GetFather());
}

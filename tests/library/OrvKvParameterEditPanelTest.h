#pragma once

#include "OrvKvParameterEditPanel.h"

#include "PanelTest.h"
#include "ParameterListTest.h"
#include "PlatformLists.h"
#include "support/ParameterWatcher.h"
#include "support/ResourceFolder.h"

#include "CATDlgCheckButton.h"
#include "CATDlgLabel.h"
#include "CATIParmTolerance.h"
#include "OrvKvToleranceSub.h"
#include "host/DialogUser.h"
#include "host/EventScope.h"
#include "host/Inspector.h"
#include "host/Parameters.h"
#include "host/ValueFrame.h"

#include <functional>
#include <string>
#include <vector>

// What the tests of the parameter edit panel share.

namespace editPanel {

constexpr char source[] = "OrvKv9DialogWindows.m/src/OrvKvParameterEditPanel";

// What the command is told when the check button changes and nobody below answers.
constexpr char checkChanged[] = "CATDlgChkBModifyNotification";

// How a panel is opened.
struct Opened {
    CATICkeParm_var parameter = {};
    std::string key = "D";
    std::string group = "";
    std::string field = "";
    unsigned char valueEditable = 1;
    unsigned char toleranceEditable = 1;
};

// "+0.1/-0.05", or "none".
std::string ToleranceOf(const CATICkeParm_var& iParameter);

// One parameter of each magnitude but length and angle.
std::vector<CATICkeParm_var> ParametersWithoutTolerance();

} // namespace editPanel

// A panel for the length D of 10 mm, described as "Diameter".
class OrvKvParameterEditPanelTest : public PanelTest {
  protected:
    OrvKvParameterEditPanelTest();

    // Each takes the place of the panel before it.
    OrvKvParameterEditPanel& Make(const editPanel::Opened& iOpened);
    OrvKvParameterEditPanel& Make() { return Make({.parameter = _length}); }
    // Built and shown; what the command has heard of it is forgotten.
    OrvKvParameterEditPanel& MakeBuilt(const editPanel::Opened& iOpened);
    OrvKvParameterEditPanel& MakeBuilt() { return MakeBuilt({.parameter = _length}); }
    OrvKvParameterEditPanel& Panel() { return *_panel; }
    // Its end at once, as that of its father.
    void Destroy();
    // Its end as a command brings it about: when the event is over.
    void GiveUp();

    // The first child of a class; null where there is none.
    template<class Class>
    Class* Child() const {
        for (CATDialog* child : host::Inspector::Children(*_panel))
            if (auto* const found = dynamic_cast<Class*>(child))
                return found;
        return nullptr;
    }
    CATDlgLabel& Label() const { return *Child<CATDlgLabel>(); }
    host::ValueFrame& ValueEditor() const { return *Child<host::ValueFrame>(); }
    CATDlgCheckButton& CheckButton() const { return *Child<CATDlgCheckButton>(); }
    OrvKvToleranceSub& Area() const { return *Child<OrvKvToleranceSub>(); }

    // Sets the check button as a command does for a tolerance that is there already.
    void CheckAnew();
    // 1 or 0; 7 when the panel does not say.
    int HasTolerance();

    support::Report Observed(const std::function<long(OrvKvParameterEditPanel&)>& iCall);

    support::ResourceFolder _resources; // has the descriptions
    CATICkeParm_var _length = support::Length("D", 10.0);

  private:
    OrvKvParameterEditPanel* _panel = nullptr; // owned by the main window
};

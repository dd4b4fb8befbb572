#include "OrvKvMainPanelTest.h"

#include "CATDlgDocument.h"
#include "CATPixelImage.h"
#include "OrvIKvPreferencesSettings.h"
#include "host/DialogDump.h"
#include "host/DialogUser.h"
#include "host/Inspector.h"
#include "host/Preferences.h"

#include <gtest/gtest.h>
#include <ostream>

using namespace support;

namespace mainPanel {

namespace {

// The preferences service while this lives; null where there is none.
class Service {
  public:
    Service() {
        if (FAILED(OrvKvGetOrvKvPreferencesSettings(IID_OrvIKvPreferencesSettings, &_pointer)))
            _pointer = nullptr;
    }
    ~Service() {
        if (_pointer != nullptr)
            Settings().Release();
    }
    Service(const Service&) = delete;
    Service& operator=(const Service&) = delete;

    explicit operator bool() const { return _pointer != nullptr; }
    OrvIKvPreferencesSettings& Settings() { return *static_cast<OrvIKvPreferencesSettings*>(_pointer); }

  private:
    void* _pointer = nullptr;
};

// A call of a setter that gives no result.
template<class Call>
std::function<long(OrvKvMainPanel&)> Silent(Call iCall) {
    return [iCall](OrvKvMainPanel& ioPanel) -> long {
        iCall(ioPanel);
        return S_OK;
    };
}

} // namespace

void PrintTo(const Place& iPlace, std::ostream* ioStream) {
    *ioStream << iPlace.left << ", " << iPlace.top << ", " << iPlace.third << ", " << iPlace.fourth;
}

Place PlaceOf(const CATDialog& iDialog) {
    Place place;
    iDialog.GetRectDimensions(&place.left, &place.top, &place.third, &place.fourth);
    return place;
}

std::vector<Place> StoredPlaces() {
    Service service;
    Place place;
    if (!service ||
        FAILED(service.Settings().GetPanelRectangle(place.left, place.top, place.third, place.fourth)))
        return {};
    return {place};
}

void StorePlace(const Place& iPlace) {
    Service service;
    ASSERT_TRUE(service);
    ASSERT_EQ(service.Settings().SetPanelRectangle(iPlace.left, iPlace.top, iPlace.third, iPlace.fourth),
              S_OK);
}

CATDialog* FindBelow(const CATDialog& iTop, const std::string& iName) {
    for (CATDialog* child : host::Inspector::Children(iTop)) {
        if (iName == child->GetName().ConvertToChar())
            return child;
        CATDialog* const found = FindBelow(*child, iName);
        if (found != nullptr)
            return found;
    }
    return nullptr;
}

ParameterLists TwoParameters() {
    return ParameterLists::Of(
        {{.parameter = Length("D", 10, 0.1, -0.05), .name = "D"},
         {.parameter = Length("T", 20), .name = "T", .valueEditable = 0, .toleranceShown = 0}});
}

const std::vector<Setter>& AllSetters() {
    static const CATListValCATString keys = KeysOf({"Holes", "Shafts"});
    static const std::vector<Setter> setters = {
        {"SetGroups", [](auto& ioPanel) { return ioPanel.SetGroups(&keys, 1); }},
        {"SetFeatureTypes", [](auto& ioPanel) { return ioPanel.SetFeatureTypes(1, 1, &keys); }},
        {"SetFeatureDrawing",
         [](auto& ioPanel) {
             const CATPixelImage image(4, 3);
             return ioPanel.SetFeatureDrawing(&image, "");
         }},
        {"SetParameterSetNames",
         [](auto& ioPanel) {
             return ioPanel.SetParameterSetNames(TextsOf({"M6", "M8"}), 1);
         }},
        {"UnselectParameterSet", [](auto& ioPanel) { return ioPanel.UnselectParameterSet(1); }},
        {"SetParameterNames",
         [](auto& ioPanel) {
             const ParameterLists lists = TwoParameters();
             return ioPanel.SetParameterNames(lists.parameters, lists.names, lists.valueShown,
                                              lists.valueEditable, lists.toleranceShown,
                                              lists.toleranceEditable);
         }},
        {"SetParameterSet",
         [](auto& ioPanel) {
             const ParameterLists lists = TwoParameters();
             return ioPanel.SetParameterSet("M6", lists.names, lists.parameters, lists.tolerances);
         }},
        {"SetParameters",
         [](auto& ioPanel) {
             const ParameterLists lists = TwoParameters();
             return ioPanel.SetParameters("M6", lists.names, lists.parameters, lists.tolerances,
                                          lists.valueShown, lists.valueEditable, lists.toleranceShown,
                                          lists.toleranceEditable);
         }},
        {"SetFittingInfo", [](auto& ioPanel) { return ioPanel.SetFittingInfo("D", "H13"); }},
        {"SetGeometryText", [](auto& ioPanel) { return ioPanel.SetGeometryText(1, "Point.1"); }},
        {"SetInputGeometryUI",
         [](auto& ioPanel) { return ioPanel.SetInputGeometryUI(1, CATDlgShow, "Point.1"); }},
        {"GetSelectedParameterSetName",
         Silent([](auto& ioPanel) { static_cast<void>(ioPanel.GetSelectedParameterSetName()); })},
        {"DisableGroupAndType", Silent([](auto& ioPanel) { ioPanel.DisableGroupAndType(CATDlgDisable); })},
        {"DisableInsertionDirection", Silent([](auto& ioPanel) { ioPanel.DisableInsertionDirection(); })},
        {"SetThread", Silent([](auto& ioPanel) { ioPanel.SetThread(1, 0); })},
        {"SetThreadPanelParameters", Silent([](auto& ioPanel) {
             ioPanel.SetThreadPanelParameters(Length("DI", 6.8), Length("DA", 8), Length("L", 20),
                                              Length("P", 1.25));
         })},
        {"RebuildThreadPanel", Silent([](auto& ioPanel) {
             ioPanel.RebuildThreadPanel(TextsOf({"Metric", "UNC"}), 0, TextsOf({"M8", "M10"}), 0);
         })},
        {"SetThreadTypes", Silent([](auto& ioPanel) {
             ioPanel.SetThreadTypes(TextsOf({"Metric", "G"}), 0, 0);
         })},
        {"SetThreadDims", Silent([](auto& ioPanel) {
             ioPanel.SetThreadDims(TextsOf({"M8", "M9"}), 1, 0);
         })},
        {"SetThreadValues", Silent([](auto& ioPanel) {
             ioPanel.SetThreadValues(NumbersOf({1.5}), NumbersOf({8.5}), NumbersOf({10.0}));
         })},
        {"SetThreadDirection", Silent([](auto& ioPanel) { ioPanel.SetThreadDirection("LH"); })},
        {"TriggerStateChangeToValid", Silent([](auto& ioPanel) { ioPanel.TriggerStateChangeToValid(); })},
        {"TriggerStateChangeToInvalid", Silent([](auto& ioPanel) { ioPanel.TriggerStateChangeToInvalid(); })},
        {"UpdateRuleEditor", Silent([](auto& ioPanel) {
             ioPanel.UpdateRuleEditor(TextsOf({"D is below K.", "T is above L."}));
         })},
        {"SetColorIcon", Silent([](auto& ioPanel) { ioPanel.SetColorIcon(1); })}};
    return setters;
}

} // namespace mainPanel

using namespace mainPanel;

OrvKvMainPanelTest::OrvKvMainPanelTest() {
    host::Preferences::KeepInMemory();
}

void OrvKvMainPanelTest::TearDown() {
    Destroy();
    OrvKvMainPanel& last = MakeBuilt();
    if (TitleOfMoreLess(last) == "More")
        PressMoreLess(last);
    EXPECT_EQ(TitleOfMoreLess(last), "Less");
    Destroy();
    host::Preferences::KeepInMemory();
    PanelTest::TearDown();
}

OrvKvMainPanel& OrvKvMainPanelTest::Make(unsigned char iMode, unsigned char iListFlag) {
    Destroy();
    _panel = new OrvKvMainPanel(iMode, iListFlag);
    return *_panel;
}

OrvKvMainPanel& OrvKvMainPanelTest::MakeBuilt(unsigned char iMode, unsigned char iListFlag) {
    Make(iMode, iListFlag).Build();
    _panel->SetVisibility(CATDlgShow);
    Command().Forget();
    return *_panel;
}

void OrvKvMainPanelTest::Destroy() {
    delete _panel;
    _panel = nullptr;
}

OrvKvMainPanel& OrvKvMainPanelTest::Close() {
    OrvKvMainPanel& closed = *_panel;
    closed.RequestDelayedDestruction();
    _panel = nullptr;
    return closed;
}

void OrvKvMainPanelTest::PressMoreLess(OrvKvMainPanel& ioPanel) {
    EXPECT_TRUE(host::DialogUser::Press(Below<CATDlgPushButton>(ioPanel, "MoreLessButton")));
}

std::string OrvKvMainPanelTest::TitleOfMoreLess(OrvKvMainPanel& ioPanel) {
    return Below<CATDlgPushButton>(ioPanel, "MoreLessButton").GetTitle().ConvertToChar();
}

Report OrvKvMainPanelTest::Observed(const std::function<long(OrvKvMainPanel&)>& iCall) {
    return Observe([&] { return iCall(*_panel); });
}

std::string OrvKvMainPanelTest::Dump() const {
    return host::DialogDump::Of(*_panel, host::DialogDump::WithLayout);
}

void OrvKvMainPanelTest::Fill() {
    for (const Setter& setter : AllSetters()) {
        if (setter.name.rfind("Disable", 0) == 0)
            continue;
        const long result = setter.call(*_panel);
        EXPECT_EQ(result, S_OK) << setter.name;
    }
    Command().Forget();
}

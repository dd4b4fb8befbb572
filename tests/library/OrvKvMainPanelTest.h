#pragma once

#include "OrvKvMainPanel.h"

#include "PanelTest.h"
#include "ParameterListTest.h"
#include "PlatformLists.h"

#include <functional>
#include <string>
#include <vector>

// What the tests of the main panel share.

namespace mainPanel {

constexpr char source[] = "OrvKv9DialogWindows.m/src/OrvKvMainPanel";

constexpr unsigned char parameterMode = 0;
constexpr unsigned char setMode = 1;

// A rectangle as the platform counts it: left, top, and the extent in two numbers.
struct Place {
    int left = 0;
    int top = 0;
    int third = 0;
    int fourth = 0;

    bool operator==(const Place&) const = default;
};

void PrintTo(const Place& iPlace, std::ostream* ioStream);

Place PlaceOf(const CATDialog& iDialog);
// What the preferences service has; nothing where it has nothing or is not there.
std::vector<Place> StoredPlaces();
void StorePlace(const Place& iPlace);

// The first widget of that name in a tree, or null.
CATDialog* FindBelow(const CATDialog& iTop, const std::string& iName);
// The same of a class; the test fails where it is missing or of another class.
template<class Class>
Class& Below(const CATDialog& iTop, const std::string& iName) {
    return dynamic_cast<Class&>(*FindBelow(iTop, iName));
}

// One call of a setter, under its name, with arguments that the built panel takes.
struct Setter {
    std::string name;
    std::function<long(OrvKvMainPanel&)> call; // S_OK where the setter gives no result
};

// Every operation that a command drives the panel with.
const std::vector<Setter>& AllSetters();

// The two lengths D and T, T without the right to change it.
support::ParameterLists TwoParameters();

} // namespace mainPanel

// A panel in the application, with preferences in memory in which nothing is stored. Whether the panel is
// folded outlives it; each test finds and leaves it unfolded.
class OrvKvMainPanelTest : public PanelTest {
  protected:
    OrvKvMainPanelTest();
    void TearDown() override;

    // Each takes the place of the panel before it.
    OrvKvMainPanel& Make(unsigned char iMode = mainPanel::parameterMode, unsigned char iListFlag = 0);
    // Shown as well; what was reported meanwhile is forgotten.
    OrvKvMainPanel& MakeBuilt(unsigned char iMode = mainPanel::parameterMode, unsigned char iListFlag = 0);
    OrvKvMainPanel& Panel() { return *_panel; }
    void Destroy();
    // Lets the command close it: it goes with the next idle moment.
    OrvKvMainPanel& Close();

    template<class Class>
    Class& Part(const std::string& iName) {
        return mainPanel::Below<Class>(*_panel, iName);
    }

    // A person's click on More or Less.
    static void PressMoreLess(OrvKvMainPanel& ioPanel);
    void PressMoreLess() { PressMoreLess(*_panel); }
    static std::string TitleOfMoreLess(OrvKvMainPanel& ioPanel);
    std::string TitleOfMoreLess() { return TitleOfMoreLess(*_panel); }

    support::Report Observed(const std::function<long(OrvKvMainPanel&)>& iCall);
    // Content and layout of the dialog in one text.
    std::string Dump() const;
    // Gives it groups, types, sets, parameters and messages, as a command does.
    void Fill();

  private:
    OrvKvMainPanel* _panel = nullptr; // owned by the main window
};

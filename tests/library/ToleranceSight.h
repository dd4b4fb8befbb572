#pragma once

#include <array>
#include <string>
#include <vector>

namespace tolerance {

// All that a person, the command and the parameter's other users see of a tolerance panel, and what happened
// since they looked last.
struct Sight {
    struct Editor {
        std::string text;
        bool isRefused = false;
        bool isEnabled = true;

        bool operator==(const Editor&) const = default;
    };
    struct List {
        std::vector<std::string> lines;
        int selected = -1;
        int visibleHeight = 0;

        bool operator==(const List&) const = default;
    };

    std::string answer; // to what was done
    bool isPanelShown = true;
    std::array<bool, 3> checkedRadios{}; // plus/minus, symmetric, ISO fit
    bool isFitRadioShown = true;
    std::array<bool, 4> shownFitWidgets{true, true, true, true};
    std::vector<std::string> unusable; // other widgets that are hidden or disabled
    Editor maximum;
    Editor minimum;
    Editor nominal;
    double value = 0.0; // of the parameter, as stored
    bool isToleranceSet = false;
    double toleranceMaximum = 0.0;
    double toleranceMinimum = 0.0;
    List groups;
    List fields;
    std::string group; // what GetFittingInfo tells
    std::string field;
    int subscriptionsOnParameter = 0;
    int subscriptionsOnMaximum = 0;
    int subscriptionsOnMinimum = 0;
    std::vector<std::string> events; // of parameter and deviations, since the last look like what follows
    std::vector<std::string> notifications;
    std::vector<std::string> messages;
    std::vector<std::string> traces;

    bool operator==(const Sight&) const = default;
};

// A table of what differs, expected and actual side by side.
std::string SideBySide(const Sight& iExpected, const Sight& iActual);

// A number with all its digits.
std::string InFull(double iNumber);
std::string Quoted(const std::vector<std::string>& iTexts);

} // namespace tolerance

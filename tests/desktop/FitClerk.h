#pragma once

#include "CATCommand.h"

#include <string>
#include <vector>

class OrvKvParameterEditPanel;

namespace desktop_test {

// The active command for as long as it lives: lists groups and fields of fits for a parameter edit panel and
// gives it their deviations.
//
// The groups are E, H and ZC, with the grades 6, 7 and 11 each. A grade is as many thousandths of the nominal
// size wide; E begins 0.001 of it above, H at zero, and ZC ends 0.002 of it below.
class FitClerk : public CATCommand {
    CATDeclareClass;

  public:
    FitClerk();
    ~FitClerk() override;
    FitClerk(const FitClerk&) = delete;
    FitClerk& operator=(const FitClerk&) = delete;

    // Not owned.
    void Serve(OrvKvParameterEditPanel* iPanel) { _panel = iPanel; }
    // Destroys the panel as soon as its OK button is pressed.
    void DestroyOnOk() { _destroysOnOk = true; }
    // What was heard since the last call, without what other widgets tell than the dialog.
    std::vector<std::string> TakeHeard();

    CATNotifPropagationMode AnalyseNotification(CATCommand* iFrom, CATNotification* iNotification) override;

  private:
    void Answer(CATNotification& iNotification);
    void ListGroups(const std::string& iGroup, const std::string& iField);
    void ListFields(const std::string& iGroup);
    void Give(const std::string& iField, double iSize);

    OrvKvParameterEditPanel* _panel = nullptr;
    CATCommand* _before;     // not owned
    bool _isListing = false; // and so chooses lines itself
    bool _isGiving = false;
    bool _destroysOnOk = false;
    std::vector<std::string> _heard;
};

} // namespace desktop_test

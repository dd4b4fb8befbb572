#pragma once

// The editing of one parameter of the feature: opens the parameter edit panel, answers what it reports of
// ISO 286 fits, and takes the outcome over or brings back what was there.
//
//   ParameterEditing editing(command, feature, catalogue.Fits(), {"D", true, true});
//   if (!editing.Start()) ... the panel could not be made ...
//   editing.WhenTaken([] { ... show the parameter ... });

#include "CATICkeParm.h"
#include "FitChoice.h"
#include "engineering/ParameterSet.h"
#include "workbench/DialogListener.h"

#include <functional>
#include <string>
#include <vector>

class OrvKvParameterEditISOFittingFieldSelectNotification;
class OrvKvParameterEditISOFittingGroupSelectNotification;
class OrvKvParameterEditISOFittingNotification;
class OrvKvParameterEditPanel;
class OrvKvParameterEditUpdateISOFittingValuesNotification;

namespace workbench {

class EditedFeature;

struct ParameterRequest {
    std::string parameter; ///< a tabulated one of the feature
    bool editsValue = false;
    bool editsTolerance = false;

    bool operator==(const ParameterRequest&) const = default;
};

class ParameterEditing {
  public:
    /// `command` hears the panel. It, the feature and the fits are not owned and outlive the editing, at
    /// least while it is open.
    ParameterEditing(DialogCommand& command, EditedFeature& feature, const engineering::LimitsAndFits& fits,
                     ParameterRequest request);

    /// Opens the panel, with the tolerance shown that the parameter has. False, and nothing left over, where
    /// memory is short.
    [[nodiscard]] bool Start();
    bool IsOpen() const { return _panel != nullptr; }
    const ParameterRequest& Request() const { return _request; }

    /// Called when the user has accepted, applied or dropped what was edited, and when the tolerance changes
    /// without an event.
    void WhenTaken(std::function<void()> taken) { _taken = std::move(taken); }

    /// Takes the edited parameter over and closes the panel. False, and the reason shown, while the panel
    /// shows something that cannot be taken.
    bool Accept();
    /// Takes it over; the panel stays open.
    bool Apply();
    /// Closes the panel; the parameter stays as it is now.
    void Close();

    void OnFit(OrvKvParameterEditISOFittingNotification& notification);
    void OnFitGroup(OrvKvParameterEditISOFittingGroupSelectNotification& notification);
    void OnFitField(OrvKvParameterEditISOFittingFieldSelectNotification& notification);
    void OnFitUpdate(OrvKvParameterEditUpdateISOFittingValuesNotification& notification);

  private:
    void OnAccept();
    void OnApply();
    void OnCancel();
    /// The tolerance area has been shown or hidden.
    void OnAreaChanged();

    bool ListenToPanel();
    /// Checks the box anew, so that the panel shows the tolerance that the parameter has.
    void ShowTolerance();
    /// The class that the panel can show as a fit; none for limits and for a size without fits.
    std::optional<engineering::ToleranceClass> FitToShow() const;
    /// Shows limits that the panel has not kept, as two deviations.
    void ShowLimits(const engineering::Tolerance& limits);
    void Enter(const char* literal, double deviation);
    /// Gives the parameter the value again that it had before the panel was there, without an event.
    void KeepValue();
    /// Gives the parameter the tolerance again that it had before the box was unchecked.
    void RestoreTolerance();
    bool HasTolerance() const;
    double Nominal() const;

    /// Lists what exists at the nominal size and chooses the class, or else the nearest one that does.
    void Offer(const engineering::ToleranceClass& wanted);
    void ListGroups(const engineering::ToleranceClass& chosen);
    void GiveFit(const std::string& field);
    /// Whether what is listed is what exists at the nominal size.
    bool ListsFit(const engineering::ToleranceClass& fit) const;
    /// The class that the panel holds; the usual one while it holds none.
    engineering::ToleranceClass CurrentFit() const;
    std::string FieldOfPanel() const;
    /// Tells the user that a class does not exist at the nominal size and which one takes its place.
    void TellReplaced(const engineering::ToleranceClass& missing,
                      const engineering::ToleranceClass& instead) const;

    /// Why what can be seen in the panel cannot be taken; empty when it can.
    CATUnicodeString Obstacle() const;
    bool MayBeTaken() const;
    void TakeOver();
    /// Gives the parameter the tolerance again that a designer may not change.
    void KeepTolerance();

    DialogListener _dialog;
    EditedFeature& _feature;
    const FitChoice _fits;
    const ParameterRequest _request;
    std::function<void()> _taken;
    OrvKvParameterEditPanel* _panel =
        nullptr;                         ///< of the dialog tree; null before the start and after the end
    engineering::ParameterValue _before; ///< what Cancel brings back
    CATListValCATUnicodeString _groups;  ///< that the panel lists, like the next one
    CATListValCATUnicodeString _fields;
    engineering::Tolerance _unchecked; ///< the limits that unchecking took away
    bool _isGivingFit = false;         ///< what the panel reports meanwhile comes from this command
};

} // namespace workbench

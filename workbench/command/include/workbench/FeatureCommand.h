#pragma once

// The command that inserts a feature: it opens the main panel, fills it from the catalogue, hears what the
// panels tell and answers through the main panel's setters.
//
//   host::Application application;
//   FeatureCommand command(*catalogue, *part, FeatureCommand::Mode::Parameters);
//   host::Application::SetActiveCommand(&command);
//   if (!command.Start())
//       ... the dialog could not be made ...

#include "CATUnicodeString.h"
#include "engineering/ParameterSet.h"
#include "engineering/Part.h"
#include "host/Outcome.h"
#include "workbench/DialogListener.h"

#include <filesystem>
#include <functional>
#include <memory>
#include <set>
#include <string>
#include <vector>

class OrvKvMainPanel;
class OrvKvParameterListSub;

namespace engineering {
class FeatureCatalogue;
class FeatureType;
} // namespace engineering

namespace workbench {

class DrawingBook;
class EditedFeature;
class InputSelection;
class ParameterEditing;
struct ParameterRequest;
class RuleWatch;
class ThreadPage;
struct TakenThread;

class FeatureCommand : public DialogCommand {
    CATDeclareClass;

  public:
    /// What the dialog is for: the parameters of one feature, or the parameter sets of a type.
    enum class Mode { Parameters, Sets };

    enum class State { NotStarted, Running, Accepted, Cancelled };

    /// Catalogue and part are not owned and outlive the command.
    FeatureCommand(const engineering::FeatureCatalogue& catalogue, const engineering::Part& part, Mode mode);
    ~FeatureCommand() override;

    /// Where the picture of a type lies; an empty path for a type without one. Without a finder no type has a
    /// picture. To be called before Start.
    void UseDrawings(std::function<std::filesystem::path(const std::string& typeKey)> finder);

    /// Opens the dialog, with the first group, type and set chosen. To be called once, when notifications
    /// that nobody has answered reach this command. False, and nothing left over, where memory is short.
    [[nodiscard]] bool Start();

    State CurrentState() const { return _state; }
    /// The dialog is on its way out when `ended` is called.
    void WhenEnded(std::function<void()> ended) { _ended = std::move(ended); }

    /// What was chosen last; empty for none.
    const std::string& TypeKey() const { return _typeKey; }
    const std::string& SetName() const { return _setName; }
    /// The thread that the feature has taken; nullptr for a feature without thread.
    const TakenThread* Thread() const;
    /// What a parameter of the feature holds now: its value, and its tolerance as limits or as a class;
    /// nothing for an unknown name and for one that the set does not tabulate.
    engineering::ParameterValue ValueOf(const std::string& parameter) const;
    /// Whether the feature breaks no rule that it has to keep. Only then OK ends the command.
    bool IsValid() const;

    /// What a person does in the 3D view: picks an element of the part for the input that waits. Refused, in
    /// the user's language, when no input waits or the element does not fit.
    host::Outcome Pick(const std::string& element);
    /// What a person does in the list of the part's parameters: types a value for a parameter of the feature,
    /// as host::ParameterEntry tells. Refused when the feature has no such parameter or does not take the
    /// text.
    host::Outcome SetValue(const std::string& parameter, const std::string& text);

    /// Number of the input that waits for an element, 0 for none; the kinds that it takes; what is picked so
    /// far.
    int AwaitedInput() const;
    std::set<engineering::ElementKind> AwaitedKinds() const;
    std::vector<std::string> PickedElements() const;
    /// Called when one of these may have changed.
    void WhenInputsChange(std::function<void()> changed) { _inputsChanged = std::move(changed); }

    // CATCommand
    CATNotifPropagationMode AnalyseNotification(CATCommand* from, CATNotification* notification) override;

  private:
    using Answer = void (FeatureCommand::*)(CATNotification& notification);

    static Answer AnswerTo(const CATNotification& notification);

    bool ListenToDialog();

    void OnAccept();
    void OnApply();
    void OnHelp();

    void OnGroupChanged(CATNotification& notification);
    void OnTypeSelected(CATNotification& notification);
    void OnParameterSetSelected(CATNotification& notification);
    void OnParameterModified(CATNotification& notification);
    void OnParameterDoubleClicked(CATNotification& notification);
    void OnInputWanted(CATNotification& notification);
    void OnInverted(CATNotification& notification);
    void OnThreadInit(CATNotification& notification);
    void OnThreadType(CATNotification& notification);
    void OnThreadDiameter(CATNotification& notification);
    void OnThreadTake(CATNotification& notification);

    /// Hands a notification on to the editing of a parameter.
    template<class Heard, void (ParameterEditing::*answer)(Heard&)>
    void ToEditing(CATNotification& notification);
    void EditParameter(const ParameterRequest& request);
    void OnParameterTaken();
    bool IsEditing() const;
    /// Closes the panel of the parameter that is edited; the parameter stays as it is now.
    void EndEditing();
    void AttachTo(OrvKvMainPanel* panel);
    void UseType(const engineering::FeatureType* type);
    void ShowType(const engineering::FeatureType* type);
    void ShowDrawing();
    void ShowThread();
    void ShowSets(const engineering::FeatureType* type);
    void TakeSet(const engineering::ParameterSet& set);
    void ShowParameters();
    void ShowFit(const std::string& parameter);
    void ShowFits();
    void ShowInputs();
    /// Does something that changes several values, and checks the rules once when all is done.
    void Change(const std::function<void()>& steps);
    void CheckRules();
    bool MayBeTaken() const;
    CATUnicodeString TextOfInput(int input) const;
    void End(State state);

    const engineering::FeatureCatalogue& _catalogue;
    Mode _mode;
    DialogListener _dialog;
    State _state = State::NotStarted;
    OrvKvMainPanel* _panel = nullptr;       ///< of the dialog tree; null before the start and after the end
    OrvKvParameterListSub* _list = nullptr; ///< in the panel; null in mode Sets
    std::unique_ptr<InputSelection> _inputs;
    std::unique_ptr<EditedFeature> _feature;    ///< null when no type is chosen
    std::unique_ptr<ParameterEditing> _editing; ///< of the parameter edited last; null for none
    std::unique_ptr<ThreadPage> _thread;
    std::unique_ptr<RuleWatch> _rules;
    std::unique_ptr<DrawingBook> _drawings;
    bool _threadPageWaits = false; ///< the page has asked for its data
    int _changes = 0;              ///< changes under way, at whose end the rules are checked
    std::function<void()> _ended;  ///< may be empty, like the next one
    std::function<void()> _inputsChanged;
    std::string _typeKey;
    std::string _setName;
};

} // namespace workbench

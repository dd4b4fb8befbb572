#pragma once

// The command that inserts a feature: it opens the feature dialog, fills it from the catalogue, hears what
// the panels tell and answers through their setters.
//
//   host::Application application;
//   FeatureCommand command(*catalogue, FeatureCommand::Mode::Parameters);
//   host::Application::SetActiveCommand(&command);
//   if (!command.Start())
//       ... the dialog could not be made ...

#include "CATCommand.h"

#include <functional>
#include <string>
#include <vector>

class CATDlgDialog;

namespace engineering {
class FeatureCatalogue;
class FeatureType;
} // namespace engineering

namespace workbench {

class FeatureDialog;

class FeatureCommand : public CATCommand {
    CATDeclareClass;

  public:
    /// What the dialog is for: the parameters of one feature, or the parameter sets of a type. The selector
    /// of the library hides its list of sets in mode Sets, where a list of its own stands for it; as long as
    /// that list is folded away, and the dialog of this command has only the folded form, the selector shows
    /// it.
    enum class Mode { Parameters, Sets };

    enum class State { NotStarted, Running, Accepted, Cancelled };

    /// The catalogue is not owned and outlives the command.
    FeatureCommand(const engineering::FeatureCatalogue& catalogue, Mode mode);
    FeatureCommand(const FeatureCommand&) = delete;
    FeatureCommand& operator=(const FeatureCommand&) = delete;
    ~FeatureCommand() override;

    /// Opens the dialog, with the first group, type and set chosen. To be called once, when notifications
    /// that nobody has answered reach this command. False, and nothing left over, where memory is short.
    [[nodiscard]] bool Start();

    State CurrentState() const { return _state; }
    /// The dialog is on its way out when `ended` is called.
    void WhenEnded(std::function<void()> ended) { _ended = std::move(ended); }

    /// What was chosen last; empty for none.
    const std::string& TypeKey() const { return _typeKey; }
    const std::string& SetName() const { return _setName; }

    // CATCommand
    CATNotifPropagationMode AnalyseNotification(CATCommand* from, CATNotification* notification) override;

  private:
    struct Subscription {
        CATCommand* publisher;         ///< a widget of the dialog
        CATNotification* notification; ///< that widget's own
    };

    bool ListenTo(CATCommand* publisher, CATNotification* notification, CATCommandMethod answer);
    bool ListenToDialog();
    void ShowGroups();

    void OnGroupChosen(CATCommand* from, CATNotification* notification, CATCommandClientData data);
    void OnAccept(CATCommand* from, CATNotification* notification, CATCommandClientData data);
    void OnCancel(CATCommand* from, CATNotification* notification, CATCommandClientData data);
    void OnTypeSelected(CATNotification& notification);
    void OnParameterSetSelected(CATNotification& notification);

    void ShowSetsOf(const engineering::FeatureType* type);
    void End(State state);

    const engineering::FeatureCatalogue& _catalogue;
    Mode _mode;
    State _state = State::NotStarted;
    FeatureDialog* _dialog = nullptr; ///< of the dialog tree; null before the start and after the end
    std::vector<Subscription> _subscriptions;
    std::function<void()> _ended; ///< may be empty
    std::string _typeKey;
    std::string _setName;
};

} // namespace workbench

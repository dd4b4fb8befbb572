#pragma once

// The parameters of the feature that is being edited, and which of them differ from what the feature starts
// with.
//
//   EditedFeature feature(type, catalogue.Fits());
//   feature.Take(type.Sets().front());      // what the feature starts with
//   feature.Take(type.Sets().back());       // changes the parameters; their subscribers hear it
//   feature.Modifications()->IsTemporarilyModified("DH") == 1;

#include "CATEventSubscriber.h"
#include "OrvIKvFeatureParameters.h"
#include "ParameterLists.h"
#include "ParameterMaking.h"
#include "engineering/FeatureType.h"
#include "engineering/LimitsAndFits.h"

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace workbench {

class EditedFeature : public CATEventSubscriber {
    CATDeclareClass;

  public:
    /// Type and fits are not owned and outlive the feature. The parameters have the values of no set.
    /// `changed` is called after each change of a parameter.
    EditedFeature(const engineering::FeatureType& type, const engineering::LimitsAndFits& fits,
                  std::function<void()> changed = {});
    EditedFeature(const EditedFeature&) = delete;
    EditedFeature& operator=(const EditedFeature&) = delete;
    ~EditedFeature() override;

    const engineering::FeatureType& Type() const { return _type; }
    /// Which parameters are modified, for the panels.
    const OrvIKvFeatureParameters_var& Modifications() const { return _modifications; }
    /// Everything that the parameter list takes. A parameter that is not tabulated is not shown.
    ParameterLists Lists() const;
    /// The parameters with what they hold now, in the order of the type.
    std::vector<engineering::ParameterValue> Values() const;
    /// What one parameter holds now; nothing for an unknown name.
    engineering::ParameterValue ValueOf(const std::string& name) const;

    /// Takes the values and tolerances of a set of the type over. The first set is the state that the feature
    /// starts with; later ones change parameters, which raise their events.
    void Take(const engineering::ParameterSet& set);
    /// Whether the set tabulates the very parameters that are tabulated now, so that a list keeps its rows.
    bool KeepsRowsWith(const engineering::ParameterSet& set) const;

    /// Gives one parameter what the entry has; its subscribers hear it, also when it has that already.
    void Give(const std::string& name, const engineering::ParameterValue& entry);
    /// From now on the limits of the parameter are those of an ISO 286 class, as long as they are what the
    /// class says: other limits, and none, end it. The limits themselves are for the caller to set.
    void UseFit(const std::string& name, const std::string& fitClass);
    /// Takes note of limits that were changed without an event.
    void Settle(const std::string& name);
    /// Raises the change event of a parameter, whose limits were changed without one.
    void Announce(const std::string& name);

    /// What the parameters hold now is the state that the feature starts with: nothing is modified.
    void Apply();

    /// The numbers of the tabulated parameters by name, in mm and degrees; 0 or 1 for a boolean.
    std::map<std::string, double, std::less<>> Numbers() const;
    /// The text of a tabulated parameter; empty for any other.
    std::string TextOf(const std::string& name) const;

    /// The parameter of that name; a null handle for an unknown one and for one that is not tabulated.
    CATICkeParm_var Parameter(const std::string& name) const;
    /// The fit or thread class of a parameter as the list shows it, in parentheses where a designer may not
    /// change it; empty for limits, for none and for an unknown name.
    CATUnicodeString Fit(const std::string& name) const;

  private:
    struct Slot {
        const engineering::Parameter* definition = nullptr; ///< of the type
        CATICkeParm_var parameter;
        engineering::ParameterValue start; ///< what the feature starts with
        /// The class of its tolerance; empty for limits and for none.
        engineering::Tolerance fit;
        /// The limits that the class gave the parameter; none where it gives none.
        std::optional<engineering::Deviations> fitLimits;
        bool isTabulated = false;
    };

    template<class Slots>
    static auto* FindIn(Slots& slots, const std::string& name);
    /// The parameter of that name; nullptr for an unknown one and for one that is not tabulated.
    const Slot* Find(const std::string& name) const;
    Slot* Find(const std::string& name);
    void Subscribe(std::size_t slot);
    void Change(Slot& ioSlot, const engineering::ParameterValue& entry);
    engineering::ParameterValue Now(const Slot& slot) const;
    void OnChanged(CATCallbackEvent event, void* publisher, CATNotification* notification,
                   CATSubscriberData slot, CATCallback id);
    void NoteModification(const Slot& slot);
    void Settle(Slot& ioSlot);
    std::optional<engineering::Deviations> LimitsOfFit(const Slot& slot) const;
    /// Whether the limits of the parameter are still those of its class.
    bool KeepsFit(const Slot& slot) const;
    /// Stores the tolerance in the parameter, without an event.
    void StoreTolerance(Slot& ioSlot, const engineering::Tolerance& tolerance);
    /// The limits of a class follow the value; a class whose limits were changed is forgotten.
    void FollowFit(Slot& ioSlot);

    const engineering::FeatureType& _type;
    const engineering::LimitsAndFits& _fits;
    std::function<void()> _changed; ///< may be empty
    OrvIKvFeatureParameters_var _modifications;
    std::vector<Slot> _slots; ///< one for each parameter of the type
    bool _hasStarted = false; ///< a set was taken
};

} // namespace workbench

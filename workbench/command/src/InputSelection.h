#pragma once

// Which elements of the part a designer has picked as inputs of the feature, and which input waits for one.
//
//   InputSelection inputs(part);
//   inputs.UseType(&type);            // its first input waits
//   inputs.Pick("Top face hole 1");     // the next input waits
//   inputs.Await(1);                  // the first one again

#include "CATUnicodeString.h"
#include "engineering/FeatureType.h"
#include "engineering/Part.h"
#include "host/Outcome.h"

#include <array>
#include <set>
#include <string>
#include <vector>

namespace workbench {

class InputSelection {
  public:
    static constexpr int maximum = 3; ///< inputs of a feature

    /// The part is not owned and outlives this object.
    explicit InputSelection(const engineering::Part& part);

    /// The inputs are those of the type from now on, or none without a type. What was picked stays where the
    /// new type's input of that number takes it. The first input without element waits.
    void UseType(const engineering::FeatureType* type);

    /// Whether the type has that input, from 1 to maximum.
    bool Has(int input) const { return Find(input) != nullptr; }
    /// Number of the input that waits; 0 for none.
    int Awaited() const { return _awaited; }
    /// Kinds of elements that the waiting input takes; empty when none waits.
    std::set<engineering::ElementKind> AwaitedKinds() const;
    /// The element of an input; null for none.
    const engineering::Element* ElementOf(int input) const;
    /// Names of all picked elements, in the order of their inputs.
    std::vector<std::string> PickedNames() const;

    /// Lets an input wait. Without effect for one that the type does not have.
    void Await(int input);
    /// Gives the waiting input an element of the part; the next one without element waits then. Refused, with
    /// a sentence in the user's language, when no input waits, the part has no such element or its kind does
    /// not fit.
    host::Outcome Pick(const std::string& name);

    /// Turns the feature round along its direction.
    void Invert() { _isInverted = !_isInverted; }
    bool IsInverted() const { return _isInverted; }

  private:
    const engineering::Input* Find(int input) const;
    void AwaitNext();

    const engineering::Part& _part;
    std::vector<engineering::Input> _inputs;                      ///< of the type
    std::array<const engineering::Element*, maximum> _elements{}; ///< null for none
    int _awaited = 0;
    bool _isInverted = false;
};

} // namespace workbench

// The rules of the shipped catalogue: every set meets them, and each of them can be broken.

#include "ShippedCatalogue.h"
#include "engineering/RuleCheck.h"

#include <algorithm>
#include <ostream>
#include <set>

namespace {

using engineering::Rule;
using engineering::RuleCheck;
using engineering::Severity;
using engineering::Thread;
using engineering::Value;
using Values = std::map<std::string, double, std::less<>>;

// The number that a rule reckons with; none for a text.
std::optional<double> NumberOf(const Value& value) {
    if (const auto* number = std::get_if<double>(&value)) {
        return *number;
    }
    if (const auto* integer = std::get_if<std::int64_t>(&value)) {
        return static_cast<double>(*integer);
    }
    if (const auto* flag = std::get_if<bool>(&value)) {
        return *flag ? 1.0 : 0.0;
    }
    return std::nullopt;
}

class ShippedRulesTest : public ShippedCatalogue {
  protected:
    static Lines Types() {
        Lines types;
        for (const std::string& group : loaded.catalogue->Groups()) {
            const Lines& keys = *loaded.catalogue->TypesOf(group);
            types.insert(types.end(), keys.begin(), keys.end());
        }
        return types;
    }

    // What a new feature of the set has; a thread as long as one and a half diameters.
    static Values ValuesOf(const FeatureType& type, const ParameterSet& set) {
        Values values;
        for (const engineering::Parameter& parameter : type.Parameters()) {
            const std::optional<Value>& value = type.ValueOf(set, parameter.name)->value;
            const std::optional<double> number = value ? NumberOf(*value) : std::nullopt;
            if (number) {
                values[parameter.name] = *number;
            }
        }
        if (!type.Description().thread.empty()) {
            const std::string designation = Text(type, set, type.Description().thread.c_str());
            const Thread& thread = *loaded.catalogue->Threads().Find(designation).thread;
            values["THREAD_DIAMETER"] = thread.majorDiameter;
            values["THREAD_INTERNAL_DIAMETER"] = thread.minorDiameter;
            values["THREAD_PITCH"] = thread.pitch;
            values["THREAD_LENGTH"] = 1.5 * thread.majorDiameter;
        }
        return values;
    }

    static Lines BrokenOf(const FeatureType& type, const Values& values) {
        Lines keys;
        for (const Rule* rule : RuleCheck(type).Broken(values)) {
            keys.push_back((rule->severity == Severity::Warning ? "warning " : "violation ") + rule->key);
        }
        return keys;
    }
};

TEST_F(ShippedRulesTest, AreThereForEveryTypeAndCanAllBeUsed) {
    for (const std::string& type : Types()) {
        const std::vector<Rule>& rules = Type(type).Rules();
        EXPECT_TRUE(std::ranges::any_of(rules, [](const Rule& r) {
            return r.severity == Severity::Violation;
        })) << type;
        EXPECT_TRUE(std::ranges::any_of(rules, [](const Rule& r) { return r.severity == Severity::Warning; }))
            << type;
        for (const Rule& rule : rules) {
            EXPECT_EQ(rule.problem, "") << type << "." << rule.key;
        }
    }
}

TEST_F(ShippedRulesTest, AreMetByEverySetButForSizesToAvoid) {
    std::size_t sets = 0;
    std::size_t avoided = 0;
    for (const std::string& type : Types()) {
        for (const ParameterSet& set : Type(type).Sets()) {
            ++sets;
            const Values values = ValuesOf(Type(type), set);
            const bool avoid = type == "CentreHole" && values.at("AVOID") != 0;
            avoided += avoid ? 1 : 0;
            EXPECT_EQ(BrokenOf(Type(type), values), avoid ? Lines({"warning Avoid"}) : Lines{}) << set.name;
        }
    }
    EXPECT_EQ(sets, 644U);
    EXPECT_GT(avoided, 0U);
}

TEST_F(ShippedRulesTest, AreEachBrokenByAChangeOfOneValueOfSomeSet) {
    for (const std::string& type : Types()) {
        std::set<std::string> broken;
        for (const ParameterSet& set : Type(type).Sets()) {
            const RuleCheck check(Type(type));
            const Values sound = ValuesOf(Type(type), set);
            for (const auto& [name, value] : sound) {
                for (const double change : {-1.0, 0.0, 0.5, 0.9, 1.1, 1.5, 2.0, 10.0}) {
                    Values changed = sound;
                    changed[name] = value * change;
                    for (const Rule* rule : check.Broken(changed)) {
                        broken.insert(rule->key);
                    }
                }
            }
        }
        for (const Rule& rule : Type(type).Rules()) {
            EXPECT_TRUE(broken.contains(rule.key)) << type << "." << rule.key;
        }
    }
}

TEST_F(ShippedRulesTest, OfThreadsAreTheSameForEveryTypeWithAThread) {
    for (const std::string& type : Types()) {
        Lines threadRules;
        for (const Rule& rule : Type(type).Rules()) {
            if (rule.key.starts_with("Thread")) {
                threadRules.push_back(rule.key + ": " + rule.condition);
            }
        }
        EXPECT_EQ(threadRules,
                  Type(type).Description().thread.empty()
                      ? Lines{}
                      : Lines({"ThreadCore: THREAD_INTERNAL_DIAMETER < THREAD_DIAMETER",
                               "ThreadPitch: THREAD_PITCH > 0", "ThreadLength: THREAD_LENGTH > 0",
                               "ThreadShort: THREAD_LENGTH >= 0.8 * THREAD_DIAMETER"}))
            << type;
    }
}

// One value of a shipped set changed, and what is then broken.
struct Change {
    const char* type;
    const char* set;
    const char* name;
    double value;
    Lines broken;
};

void PrintTo(const Change& change, std::ostream* out) {
    *out << change.type << " " << change.name << "=" << change.value;
}

class ShippedRuleTest : public ShippedRulesTest, public testing::WithParamInterface<Change> {};

TEST_P(ShippedRuleTest, IsBrokenByAWrongValue) {
    const Change& change = GetParam();
    const FeatureType& type = Type(change.type);
    const ParameterSet* set = type.FindSet(change.set);
    ASSERT_NE(set, nullptr);
    Values values = ValuesOf(type, *set);
    ASSERT_TRUE(values.contains(change.name));
    values[change.name] = change.value;
    EXPECT_EQ(BrokenOf(type, values), change.broken);
}

const char* const bore = "DIN 974-1 M6 series 1 medium";
const char* const tapped = "Tapped hole M6 normal";
const char* const outside = "DIN 76-A M6";
const char* const inside = "DIN 76-C M6";

const std::vector<Change> changes{
    {"ClearanceHole", "ISO 273 M6 medium", "DH", 0, {"violation Diameter", "warning StandardRange"}},
    {"ClearanceHole", "ISO 273 M6 medium", "DH", 42.1, {"warning StandardRange"}},
    {"Counterbore", bore, "D", 6.6, {"violation Wider", "warning HeadSeat"}},
    {"Counterbore", bore, "T", 6, {"violation HeadInside", "warning DepthAllowance"}},
    {"Counterbore", bore, "T", 6.2, {"warning DepthAllowance"}},
    {"Counterbore", bore, "DH", 6, {"violation ScrewPasses"}},
    {"Counterbore", bore, "THREAD_INTERNAL_DIAMETER", 6, {"violation ThreadCore"}},
    {"Counterbore", bore, "THREAD_PITCH", 0, {"violation ThreadPitch"}},
    {"Counterbore", bore, "THREAD_LENGTH", 0, {"violation ThreadLength", "warning ThreadShort"}},
    {"Counterbore", bore, "THREAD_LENGTH", 4.7, {"warning ThreadShort"}},
    {"CountersinkDin74", "DIN 74-A M6", "D2", 6.6, {"violation Wider", "warning DepthOfCone"}},
    {"CountersinkDin74", "DIN 74-A M6", "ALPHA", 82, {"warning AngleOfHead", "warning DepthOfCone"}},
    {"CountersinkIso15065", "ISO 15065 M6", "T", 0, {"violation Depth", "warning DepthOfCone"}},
    {"CountersinkIso15065",
     "ISO 15065 M6",
     "ALPHA",
     180,
     {"violation AngleOfCone", "warning AngleOfHead", "warning DepthOfCone"}},
    {"TappedBlindHole", tapped, "DB", 4.9, {"violation DrillTooSmall"}},
    {"TappedBlindHole", tapped, "DB", 6, {"violation DrillTooLarge", "warning DrillOfThread"}},
    {"TappedBlindHole", tapped, "E", 1.9, {"warning RunOutShort"}},
    {"TappedBlindHole", tapped, "THREAD_PITCH", 0.75, {"warning PitchOfThread"}},
    {"ThreadUndercutExternal", outside, "DG", 5, {"violation BelowThread"}},
    {"ThreadUndercutExternal", outside, "DG", 3.9, {"warning TooDeep"}},
    {"ThreadUndercutExternal", outside, "G2", 2.1, {"violation Lengths"}},
    {"ThreadUndercutInternal", inside, "DG", 6, {"violation AboveThread"}},
    {"ThreadUndercutInternal", inside, "DG", 7.1, {"warning TooDeep"}},
    {"ThreadUndercutInternal", inside, "R", 0, {"warning Radius"}},
    {"CentreHole", "ISO 6411 B2/6.3", "D3", 4.25, {"violation ProtectingCone"}},
    {"CentreHole", "ISO 6411 B2/6.3", "T", 2.5, {"violation ProtectedDepth"}},
    {"CentreHole", "ISO 6411 A2/4.25", "T", 1.9, {"violation Depth"}},
    {"CentreHole", "ISO 6411 A2/4.25", "D2", 4.5, {"warning OneDrill"}},
    {"KeywayShaft", "DIN 6885-1 8x7 tight", "T1", 7, {"violation KeyStandsOut", "warning TooDeep"}},
    {"KeywayShaft", "DIN 6885-1 8x7 tight", "T1", 3, {"warning KeyHold"}},
    {"KeywayHub", "DIN 6885-1 8x7 tight", "B", 0, {"violation Width"}},
    {"KeywayHub", "DIN 6885-1 8x7 tight", "T2", 2, {"warning KeyHold"}},
    {"RetainingRingGrooveShaft", "DIN 471 20", "D2", 20, {"violation Groove", "violation DepthOfDiameters"}},
    {"RetainingRingGrooveShaft", "DIN 471 20", "N", 1.4, {"warning Collar"}},
    {"RetainingRingGrooveBore", "DIN 472 20", "M", 1, {"violation RingFits"}},
    {"RetainingRingGrooveBore", "DIN 472 20", "T", 0.6, {"violation DepthOfDiameters", "warning Collar"}},
    {"ORingGrooveRadial",
     "O-ring groove 3.00 static",
     "T",
     3,
     {"violation Squeeze", "warning SqueezeLittle"}},
    {"ORingGrooveRadial", "O-ring groove 3.00 static", "B", 3, {"violation Width", "warning Filling"}},
    {"ORingGrooveAxial", "O-ring groove 3.00 axial", "H", 2, {"warning SqueezeMuch", "warning Filling"}},
    {"ORingGrooveAxial", "O-ring groove 3.00 axial", "R", 1, {"warning Radius"}},
};

INSTANTIATE_TEST_SUITE_P(Changes, ShippedRuleTest, testing::ValuesIn(changes));

} // namespace

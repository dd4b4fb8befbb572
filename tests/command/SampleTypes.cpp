#include "SampleTypes.h"

namespace command {

using engineering::Magnitude;
using engineering::Parameter;
using engineering::Tolerance;

engineering::FeatureType Plate() {
    const Tolerance limits{Tolerance::Kind::Limits, "", 0.254, -0.508};
    const Tolerance fit{Tolerance::Kind::FitClass, "H7", 0, 0};
    std::vector<Parameter> parameters{{"D", Magnitude::Length, "in", {}, true, true, false},
                                      {"T", Magnitude::Length, "mm", {}, true, false, true},
                                      {"A", Magnitude::Angle, "deg", {}, true, true, false},
                                      {"F", Magnitude::Real, "", {}, true, false, false},
                                      {"N", Magnitude::Integer, "", {}, true, false, false},
                                      {"C", Magnitude::Boolean, "", {}, true, false, false},
                                      {"MARK", Magnitude::String, "", {}, false, false, false}};
    std::vector<engineering::ParameterSet> sets{{"Small",
                                                 {{6.35, limits},
                                                  {std::nullopt, {}},
                                                  {22.5, {Tolerance::Kind::Limits, "", 0, -1}},
                                                  {0.1, {}},
                                                  {std::int64_t{-3}, {}},
                                                  {true, {}},
                                                  {std::string("ß /p1"), {}}}},
                                                {"Large",
                                                 {{25.4, fit},
                                                  {12.0, fit},
                                                  {0.0, {}},
                                                  {1e-7, {}},
                                                  {std::int64_t{0}, {}},
                                                  {false, {}},
                                                  {std::string(), {}}}}};
    return {{"Plate", "Mine", "House rule 7", ""}, std::move(parameters), std::move(sets), {}};
}

} // namespace command

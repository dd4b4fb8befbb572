#pragma once

// The catalogue the program ships with, loaded once for a suite of tests, and short ways to its values.

#include "engineering/CatalogueLoader.h"

#include <gtest/gtest.h>
#include <stdexcept>
#include <string>
#include <vector>

using Lines = std::vector<std::string>;

class ShippedCatalogue : public testing::Test {
  protected:
    using FeatureType = engineering::FeatureType;
    using ParameterSet = engineering::ParameterSet;
    using ParameterValue = engineering::ParameterValue;

    static void SetUpTestSuite() { loaded = engineering::CatalogueLoader::Load(KELVANE_CATALOGUE_DIR); }

    void SetUp() override {
        std::string problems;
        for (const engineering::Problem& problem : loaded.problems) {
            problems += ToText(problem) + "\n";
        }
        ASSERT_TRUE(loaded.catalogue) << problems;
    }

    static const FeatureType& Type(const std::string& key) { return *loaded.catalogue->Type(key); }

    static const ParameterValue& Entry(const FeatureType& type, const ParameterSet& set,
                                       const char* parameter) {
        const ParameterValue* entry = type.ValueOf(set, parameter);
        if (entry == nullptr) {
            throw std::invalid_argument(type.Description().key + " has no parameter " + parameter);
        }
        return *entry;
    }

    static double Number(const FeatureType& type, const ParameterSet& set, const char* parameter) {
        return std::get<double>(Entry(type, set, parameter).value.value());
    }

    static std::string Text(const FeatureType& type, const ParameterSet& set, const char* parameter) {
        return std::get<std::string>(Entry(type, set, parameter).value.value());
    }

    // The nominal diameter of a metric coarse thread such as M6.
    static double ThreadDiameter(const FeatureType& type, const ParameterSet& set) {
        return std::stod(Text(type, set, "THREAD").substr(1));
    }

    inline static engineering::LoadResult loaded;
};

#pragma once

// One wrong text in the sound catalogue of CatalogueFolder, and the exact problems it gives. A table of
// faults is run by instantiating BrokenCatalogueTest with it.

#include "CatalogueFolder.h"

#include <ostream>

struct Fault {
    const char* name; ///< completes the sentence "a catalogue with ..."
    const char* file;
    const char* from; ///< stands once in the file
    const char* to;
    Lines problems;
};

inline void PrintTo(const Fault& fault, std::ostream* out) {
    *out << fault.name;
}

inline std::string FaultName(const testing::TestParamInfo<Fault>& info) {
    return info.param.name;
}

class BrokenCatalogueTest : public testing::TestWithParam<Fault> {};

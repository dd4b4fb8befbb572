#pragma once

// The columns of a file of sets, understood from its header: "set", "DH [mm]", "DH.tolerance".

#include "CsvTable.h"
#include "TypeTable.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace engineering {

struct SetColumns {
    /// Where a parameter of the type stands in the file.
    struct Place {
        std::optional<std::size_t> value;     ///< column of the values; none when they cannot be read
        std::optional<std::size_t> tolerance; ///< column of the sets' own tolerances, if any
    };

    bool named = false;        ///< the first column is "set"
    std::vector<Place> places; ///< one for each parameter of the type
};

/// Understands the header and reports columns that are missing, unknown, double or of another unit. A column
/// is unknown only where the parameters of the type are completely known.
SetColumns ReadSetColumns(const TypeDraft& type, const CsvTable::Row& header, FileReport& report);

} // namespace engineering

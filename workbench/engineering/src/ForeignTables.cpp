#include "ForeignTables.h"

#include "FileReport.h"

#include <algorithm>
#include <system_error>

namespace engineering {

namespace fs = std::filesystem;

void ReportForeignTables(const fs::path& folder, const std::set<std::string>& known, const char* message,
                         std::vector<Problem>& problems) {
    std::vector<fs::path> foreign;
    std::error_code error;
    fs::directory_iterator entry(folder, error);
    for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
        const std::string name = entry->path().filename().string();
        if (name.ends_with(".csv") && !known.contains(name)) {
            foreign.push_back(entry->path());
        }
    }
    std::ranges::sort(foreign);
    for (const fs::path& file : foreign) {
        FileReport(file, problems).Add(0, {}, message);
    }
}

} // namespace engineering

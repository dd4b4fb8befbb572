#pragma once

// Collects the problems of one file into the list of the whole catalogue.

#include "engineering/Problem.h"

#include <filesystem>
#include <string>
#include <utility>
#include <vector>

namespace engineering {

class FileReport {
  public:
    /// `problems` belongs to the caller and outlives the report.
    FileReport(const std::filesystem::path& file, std::vector<Problem>& problems)
        : _file(file.generic_string()), _problems(problems) {}

    void Add(int line, std::string column, std::string message) {
        _problems.push_back({_file, line, std::move(column), std::move(message)});
    }

  private:
    std::string _file;
    std::vector<Problem>& _problems;
};

} // namespace engineering

#pragma once

// The lines of a table of the shipped catalogue, read without the program's own reader. The tables that are
// read so have no quotation marks.

#include <algorithm>
#include <cstddef>
#include <fstream>
#include <gtest/gtest.h>
#include <map>
#include <sstream>
#include <string>
#include <vector>

using ShippedRow = std::map<std::string, std::string>; ///< cells by the name of their column

inline std::vector<std::string> CellsOf(const std::string& line) {
    std::vector<std::string> cells;
    std::istringstream stream(line + ",end");
    for (std::string cell; std::getline(stream, cell, ',');) {
        cells.push_back(cell);
    }
    cells.pop_back();
    return cells;
}

inline std::vector<ShippedRow> ReadShippedTable(const std::string& file) {
    std::ifstream stream(std::string(KELVANE_CATALOGUE_DIR "/") + file);
    std::string line;
    EXPECT_TRUE(std::getline(stream, line)) << file;
    const std::vector<std::string> columns = CellsOf(line);
    std::vector<ShippedRow> rows;
    while (std::getline(stream, line)) {
        const std::vector<std::string> cells = CellsOf(line);
        EXPECT_EQ(cells.size(), columns.size()) << line;
        ShippedRow row;
        for (std::size_t i = 0; i < std::min(cells.size(), columns.size()); ++i) {
            row[columns[i]] = cells[i];
        }
        rows.push_back(row);
    }
    return rows;
}

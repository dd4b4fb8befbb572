#pragma once

// A small sound catalogue in a folder of its own, for tests to break. The folder goes with the object.
//
//   CatalogueFolder folder;
//   folder.Replace("types.csv", "PlainHole,Holes", "PlainHole,Hols");
//   folder.Problems() == Lines{"types.csv:2: column 'group': unknown group 'Hols'"};

#include "engineering/CatalogueLoader.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <stdexcept>
#include <string>
#include <unistd.h>
#include <vector>

using Lines = std::vector<std::string>;

class CatalogueFolder {
  public:
    CatalogueFolder() {
        std::string pattern = (std::filesystem::temp_directory_path() / "catalogue-XXXXXX").string();
        if (mkdtemp(pattern.data()) == nullptr) {
            throw std::runtime_error("no folder for the test in " + pattern);
        }
        _path = pattern;
        std::filesystem::create_directory(_path / "sets");
        Write("groups.csv", "key\nHoles\nGrooves\n");
        Write("types.csv", "key,group,sets,standard,note\n"
                           "PlainHole,Holes,PlainHole.csv,Table 1,\n"
                           "SteppedHole,Holes,SteppedHole.csv,Table 2,\"high, two tables\"\n"
                           "Groove,Grooves,Groove.csv,Table 3,\n");
        Write("parameters.csv",
              "type,name,magnitude,unit,tolerance,value_editable,tolerance_editable,optional\n"
              "PlainHole,D,LENGTH,mm,H13,1,1,0\n"
              "PlainHole,THREAD,STRING,,,0,0,0\n"
              "SteppedHole,D,LENGTH,in,,1,1,0\n"
              "SteppedHole,ALPHA,ANGLE,deg,+1/-1,1,1,0\n"
              "SteppedHole,COUNT,INTEGER,,,1,0,0\n"
              "SteppedHole,RATIO,REAL,,,1,0,0\n"
              "SteppedHole,AVOID,BOOLEAN,,,0,0,0\n"
              "Groove,B,LENGTH,mm,H9,1,1,1\n");
        Write("inputs.csv", "type,number,kinds\n"
                            "SteppedHole,1,point\n"
                            "Groove,1,point\n"
                            "Groove,2,line|plane\n"
                            "Groove,3,plane\n");
        Write("rules.csv", "type,key,severity,condition,message\n"
                           "SteppedHole,Angle,violation,ALPHA > 0 && ALPHA < 180,The angle gives no cone.\n"
                           "SteppedHole,Avoid,warning,AVOID == 0,The size is to be avoided.\n");
        Write("threads.csv", "name,standard,file\n"
                             "Metric coarse,\"Table 7, Table 8\",coarse.csv\n"
                             "Inch,Table 9,inch.csv\n");
        std::filesystem::create_directory(_path / "threads");
        Write("threads/coarse.csv", "designation,major_diameter_mm,pitch_mm,pitch_diameter_mm,"
                                    "minor_diameter_mm,tap_drill_mm\n"
                                    "M3,3,0.5,2.675,2.459,2.5\n"
                                    "M4,4,0.7,3.545,3.242,\n");
        Write("threads/inch.csv", "designation,major_diameter_mm,pitch_mm,pitch_diameter_mm,"
                                  "minor_diameter_mm,tap_drill_mm,tpi,major_diameter_in,minor_diameter_in\n"
                                  "1/4-20 UNC,6.35,1.27,5.525,4.975,5.1,20,0.2500,0.1959\n");
        Write("sets/PlainHole.csv", "set,D [mm],D.tolerance,THREAD\n"
                                    "Hole M3,3.4,,M3\n"
                                    "Hole M4,4.5,H12,M4\n");
        Write("sets/SteppedHole.csv", "set,D [in],ALPHA [deg],COUNT,RATIO,AVOID\n"
                                      "Step 1,0.5,90,2,0.25,false\n"
                                      "Step 2,1,82.5,3,1e-3,true\n");
        Write("sets/Groove.csv", "set,B [mm],B.tolerance\n"
                                 "Groove 1,1.1,+0.25/0\n"
                                 "Groove 2,,\n");
    }
    ~CatalogueFolder() { std::filesystem::remove_all(_path); }
    CatalogueFolder(const CatalogueFolder&) = delete;
    CatalogueFolder& operator=(const CatalogueFolder&) = delete;

    const std::filesystem::path& Path() const { return _path; }

    void Write(const std::string& file, const std::string& text) const {
        std::ofstream(_path / file, std::ios::binary) << text;
    }

    std::string Text(const std::string& file) const {
        std::ifstream stream(_path / file, std::ios::binary);
        return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
    }

    /// Replaces the one place of the file that holds `from`.
    void Replace(const std::string& file, const std::string& from, const std::string& to) const {
        std::string text = Text(file);
        const std::size_t place = text.find(from);
        if (place == std::string::npos || text.find(from, place + 1) != std::string::npos) {
            throw std::invalid_argument(file + " does not hold exactly one '" + from + "'");
        }
        Write(file, text.replace(place, from.size(), to));
    }

    void Remove(const std::string& file) const { std::filesystem::remove_all(_path / file); }

    engineering::LoadResult Load() const { return engineering::CatalogueLoader::Load(_path); }

    /// The problems of loading, one line each, without the folder before the file.
    Lines Problems() const {
        const engineering::LoadResult result = Load();
        EXPECT_EQ(result.catalogue.has_value(), OnlyConditionsAreWrong(result.problems));
        const std::string prefix = _path.generic_string() + "/";
        Lines lines;
        for (const engineering::Problem& problem : result.problems) {
            const std::string line = ToText(problem);
            lines.push_back(line.starts_with(prefix) ? line.substr(prefix.size()) : line);
        }
        return lines;
    }

  private:
    static bool OnlyConditionsAreWrong(const std::vector<engineering::Problem>& problems) {
        return std::ranges::all_of(problems, [](const engineering::Problem& problem) {
            return problem.file.ends_with("/rules.csv") && problem.column == "condition";
        });
    }

    std::filesystem::path _path;
};

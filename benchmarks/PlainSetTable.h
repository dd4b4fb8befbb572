#ifndef PlainSetTable_H
#define PlainSetTable_H

#include "PlainParameterList.h"
#include "SetFacts.h"

#include <string>
#include <unordered_map>
#include <vector>

typedef std::vector<std::string> SetLine; // the name of the set, then its cells

// What a set is made of, ready to be given to a table.
struct PlainSet {
    std::vector<PlainParameter> parameters;
    std::vector<std::string> tolerances;
};

// The distinct sets, made once.
const std::vector<PlainSet>& PlainSets();

// The floor of the two set tables: the same texts, columns and look-up of names, and nothing else.
class PlainSetTable {
  public:
    void SetParameterNames(const std::vector<SetColumnFacts>& iParameters);
    void SetParameterSet(const std::string& iName, const PlainSet& iSet);
    void SetCurrentParameters(const std::string& iName, const PlainSet& iSet);

    int Lines() const { return static_cast<int>(_lines.size()); }
    const SetLine& Line(int iLine) const { return _lines[static_cast<std::size_t>(iLine)]; }
    const SetLine& Current() const { return _current; }
    std::string SelectedName() const { return _selected < 0 ? std::string() : Line(_selected).front(); }

  private:
    struct Column {
        std::size_t parameter;
        bool isTolerance;
    };

    SetLine LineOf(const std::string& iName, const PlainSet& iSet) const;

    std::vector<SetColumnFacts> _parameters;
    std::vector<Column> _columns;
    std::vector<std::string> _titles;
    std::vector<SetLine> _lines;
    std::unordered_map<std::string, int> _lineOf;
    SetLine _current;
    int _selected = -1;
};

// The line that the floor shows for a set.
SetLine FloorLine(int iSet);
std::vector<SetColumnFacts> AllColumnFacts();

#endif

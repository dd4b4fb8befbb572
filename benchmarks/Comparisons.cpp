#include "Comparisons.h"

#include "Sizes.h"

#include <utility>

namespace {

void AddClimb(std::vector<Comparison>& ioAll) {
    const std::string climb = "climb, 5 levels";
    const std::string click = "click, 5 containers down";
    ioAll.push_back(
        {"Climb", climb + ": ours / floor", Measure::OursOverFloor, "Climb/Ours", "Climb/Floor", 2.0});
    ioAll.push_back(
        {"Climb", click + ": ours / floor", Measure::OursOverFloor, "Click/Ours", "Click/Floor", 2.0});
    ioAll.push_back(
        {"Climb", climb + ": Qt event / ours", Measure::PeerOverOurs, "Climb/Ours", "Climb/QtEvent", 0.0});
    ioAll.push_back({"Climb", climb + ": one Qt signal / ours", Measure::PeerOverOurs, "Climb/Ours",
                     "Climb/QtSignal", 0.0});
    ioAll.push_back({"Climb", click + ": Qt button and event / ours", Measure::PeerOverOurs, "Click/Ours",
                     "Click/QtEvent", 0.0});
}

void AddCombo(std::vector<Comparison>& ioAll) {
    for (const int lines : comboSizes) {
        const std::string size = std::to_string(lines);
        const std::string line = size + " lines: ";
        const std::string ours = "ComboRefill/Ours/" + size;
        ioAll.push_back(
            {"Combo", line + "ours / floor", Measure::OursOverFloor, ours, "ComboRefill/Floor/" + size, 2.0});
        ioAll.push_back({"Combo", line + "QComboBox / ours", Measure::PeerOverOurs, ours,
                         "ComboRefill/QComboBox/" + size, 10.0});
    }
}

void AddList(std::vector<Comparison>& ioAll) {
    for (const int rows : listSizes) {
        const std::string size = std::to_string(rows);
        const std::string line = size + " rows: ";
        const std::string ours = "ListFill/Ours/" + size;
        ioAll.push_back(
            {"List", line + "ours / floor", Measure::OursOverFloor, ours, "ListFill/Floor/" + size, 1.5});
        ioAll.push_back({"List", line + "QTreeWidget / ours", Measure::PeerOverOurs, ours,
                         "ListFill/QTreeWidget/" + size, 15.0});
        ioAll.push_back({"List", line + "QStandardItemModel / ours", Measure::PeerOverOurs, ours,
                         "ListFill/QStandardItemModel/" + size, 0.0});
        ioAll.push_back({"List", line + "own Qt model / ours", Measure::PeerOverOurs, ours,
                         "ListFill/QtOwnModel/" + size, 0.0});
    }
    ioAll.push_back({"List", "flat: a row of 1000000 / a row of 1000", Measure::CostPerRow,
                     "ListFill/Ours/1000000", "ListFill/Ours/1000", 1.5});
    ioAll.push_back({"List", "the floor's: a row of 1000000 / a row of 1000", Measure::CostPerRow,
                     "ListFill/Floor/1000000", "ListFill/Floor/1000", 0.0});
    for (const int rows : listSizes) {
        const std::string size = std::to_string(rows);
        ioAll.push_back({"List", size + " rows: bytes a row, as the host counts", Measure::Counter,
                         "ListFill/Ours/" + size, "bytes_per_row", rows == listSizes.back() ? 130.0 : 0.0});
    }
    const std::string heap = "1000000 rows: bytes a row, growth of the heap";
    ioAll.push_back({"List", heap, Measure::Counter, "ListFill/Ours/1000000", "heap_per_row", 130.0});
    ioAll.push_back(
        {"List", heap + ", floor", Measure::Counter, "ListFill/Floor/1000000", "heap_per_row", 0.0});
    ioAll.push_back({"List", heap + ", own Qt model", Measure::Counter, "ListFill/QtOwnModel/1000000",
                     "heap_per_row", 0.0});
}

void AddDialog(std::vector<Comparison>& ioAll) {
    const std::string plain = "75 widgets: ";
    const std::string placed = "75 widgets, placed: ";
    ioAll.push_back(
        {"Dialog", plain + "ours / floor", Measure::OursOverFloor, "Dialog/Ours", "Dialog/Floor", 3.0});
    ioAll.push_back({"Dialog", placed + "ours / floor", Measure::OursOverFloor, "Dialog/OursPlaced",
                     "Dialog/Floor", 5.0});
    ioAll.push_back({"Dialog", plain + "Qt / ours", Measure::PeerOverOurs, "Dialog/Ours", "Dialog/Qt", 25.0});
    ioAll.push_back(
        {"Dialog", placed + "Qt / ours", Measure::PeerOverOurs, "Dialog/OursPlaced", "Dialog/Qt", 25.0});
}

// The peers of a panel, beside its floor.
void AddPanel(std::vector<Comparison>& ioAll, const std::string& iSubject, const std::string& iLine,
              const std::string& iBenchmark, int iSize, double iFloorLimit, double iTreeLimit) {
    const std::string line = std::to_string(iSize) + iLine;
    const std::string size = "/" + std::to_string(iSize);
    const std::string ours = iBenchmark + "/Ours" + size;
    ioAll.push_back({iSubject, line + "ours / floor", Measure::OursOverFloor, ours,
                     iBenchmark + "/Floor" + size, iFloorLimit});
    ioAll.push_back({iSubject, line + "QTreeWidget / ours", Measure::PeerOverOurs, ours,
                     iBenchmark + "/QTreeWidget" + size, iTreeLimit});
    ioAll.push_back({iSubject, line + "own Qt model / ours", Measure::PeerOverOurs, ours,
                     iBenchmark + "/QtOwnModel" + size, 0.0});
}

// How a cost grows from iFew to iMany rows, with that of the floor beside it.
void AddFlat(std::vector<Comparison>& ioAll, const std::string& iSubject, const std::string& iWhat,
             Measure iMeasure, const std::string& iBenchmark, int iMany, int iFew, double iLimit) {
    const std::string many = std::to_string(iMany);
    const std::string few = std::to_string(iFew);
    const std::string line = iWhat + many + " / " + iWhat + few;
    const std::string ours = iBenchmark + "/Ours/";
    const std::string floor = iBenchmark + "/Floor/";
    ioAll.push_back({iSubject, "flat: " + line, iMeasure, ours + many, ours + few, iLimit});
    ioAll.push_back({iSubject, "the floor's: " + line, iMeasure, floor + many, floor + few, 0.0});
}

void AddParameterList(std::vector<Comparison>& ioAll) {
    const std::string refill = "Parameter list, filled anew";
    for (const int rows : parameterListSizes) {
        const std::string size = std::to_string(rows);
        AddPanel(ioAll, refill, " parameters: ", "ParameterRefill", rows, 2.0, rows == 10000 ? 5.0 : 0.0);
        ioAll.push_back({refill, size + " parameters: QTreeWidget, cell by cell / ours",
                         Measure::PeerOverOurs, "ParameterRefill/Ours/" + size,
                         "ParameterRefill/QTreeWidgetCellwise/" + size, 0.0});
    }
    const std::string change = "Parameter list, one value changed";
    for (const int rows : parameterChangeSizes)
        AddPanel(ioAll, change, " rows: ", "ParameterChange", rows, 4.0, 0.0);
    AddFlat(ioAll, change, "a change among ", Measure::Growth, "ParameterChange", 1000000, 1000, 3.0);
}

void AddSetTable(std::vector<Comparison>& ioAll) {
    const std::string fill = "Set table, filled";
    for (const int sets : setTableSizes)
        AddPanel(ioAll, fill, " sets: ", "SetTable", sets, 2.0, 0.0);
    AddFlat(ioAll, fill, "a set of ", Measure::CostPerRow, "SetTable", 10000, 100, 1.5);
    const std::string current = "Set table, another current set";
    for (const int sets : setCurrentSizes)
        AddPanel(ioAll, current, " sets: ", "SetCurrent", sets, 0.0, 0.0);
    AddFlat(ioAll, current, "one among ", Measure::Growth, "SetCurrent", 10000, 100, 1.5);
}

void AddShownList(std::vector<Comparison>& ioAll) {
    for (const int rows : shownListSizes)
        for (const char* kind : {"Ours", "QTableView", "QTreeView", "QTreeWidget"}) {
            const std::string size = std::to_string(rows);
            const bool isOurs = std::string(kind) == "Ours";
            ioAll.push_back({"List on the screen, one cell changed",
                             size + " rows: microseconds, " + (isOurs ? "ours" : kind), Measure::Microseconds,
                             std::string("ShownChange/") + kind + "/" + size, "", isOurs ? 5.0 : 0.0});
        }
}

void AddMainPanel(std::vector<Comparison>& ioAll) {
    const std::string built = "Main panel, built and destroyed";
    const std::string painted = "Main panel, first paint";
    const std::string opened = "Main panel, built, painted and destroyed";
    const auto modes = {std::pair("/0", "parameters: "), std::pair("/1", "sets: ")};
    for (const auto& [mode, name] : modes) {
        ioAll.push_back({built, std::string(name) + "Qt / ours", Measure::PeerOverOurs,
                         std::string("MainPanel/Ours") + mode, std::string("MainPanel/Qt") + mode, 25.0});
    }
    for (const auto& [mode, name] : modes)
        ioAll.push_back({painted, std::string(name) + "ours / Qt", Measure::OursOverFloor,
                         std::string("MainPanelFirstPaint/Ours") + mode,
                         std::string("MainPanelFirstPaint/Qt") + mode, 1.2});
    for (const auto& [mode, name] : modes)
        ioAll.push_back({opened, std::string(name) + "ours / Qt", Measure::OursOverFloor,
                         std::string("MainPanelOpened/Ours") + mode, std::string("MainPanelOpened/Qt") + mode,
                         0.0});
    ioAll.push_back({"Thread type with 1000 diameters", "another type: Qt / ours", Measure::PeerOverOurs,
                     "ThreadType/Ours", "ThreadType/Qt", 0.0});
}

} // namespace

std::vector<Comparison> AllComparisons() {
    std::vector<Comparison> all;
    AddClimb(all);
    AddCombo(all);
    AddList(all);
    AddDialog(all);
    AddParameterList(all);
    AddSetTable(all);
    AddShownList(all);
    AddMainPanel(all);
    return all;
}

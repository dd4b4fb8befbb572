#ifndef SampleDialog_H
#define SampleDialog_H

#include <string>
#include <vector>

enum class WidgetKind { Dialog, Frame, TabContainer, TabPage, Label, Combo, Button, Editor };

// One widget of the measured dialog.
struct SampleWidget {
    WidgetKind kind = WidgetKind::Frame;
    std::string name;
    int parent = -1; // place of the parent in the list, which stands before it; -1 for the dialog itself
    int row = 0;     // tabulation lines of its upper and left side
    int column = 0;
};

// A feature dialog of 75 widgets, seven levels deep, for all who build it: the host, the plain tree and Qt.
const std::vector<SampleWidget>& SampleDialog();

inline bool HoldsWidgets(WidgetKind iKind) {
    return iKind == WidgetKind::Dialog || iKind == WidgetKind::Frame || iKind == WidgetKind::TabContainer ||
           iKind == WidgetKind::TabPage;
}

#endif

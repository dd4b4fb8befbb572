#ifndef QtMainPanel_H
#define QtMainPanel_H

#include <QDialog>
#include <QStringList>

#include <memory>

class QComboBox;
class QDoubleSpinBox;

// The main panel as one would write it by hand with Qt: the same widgets with the same kinds of texts.
class QtMainPanel : public QDialog {
    Q_OBJECT

  public:
    // With the tables of parameter sets, or with the list of parameters.
    explicit QtMainPanel(bool iWithSets);

    // Lists the diameters of a thread type and shows its values.
    void ShowThread(const QStringList& iDesignations, double iValue);
    // Called when a thread type is chosen.
    QComboBox& ThreadTypes() const { return *_threadTypes; }
    QComboBox& ThreadDiameters() const { return *_threadDiameters; }

  private:
    QWidget* MakeFeaturePart();
    QWidget* MakeLowerPart(bool iWithSets);
    QWidget* MakeParameterList();
    QWidget* MakeSetTables();
    QWidget* MakeDrawingPage();
    QWidget* MakeSetPage();
    QWidget* MakeThreadPage();
    QWidget* MakeRules();
    QWidget* MakeFoldingPart();

    QComboBox* _threadTypes = nullptr;
    QComboBox* _threadDiameters = nullptr;
    QList<QDoubleSpinBox*> _threadValues;
};

#endif

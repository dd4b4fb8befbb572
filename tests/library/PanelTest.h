#pragma once

// What the tests of panels share: the widgets by name, how a panel was built, and commands that hear it.

#include "support/ApplicationTest.h"
#include "support/Report.h"

#include "CATDlgCombo.h"
#include "CATDlgEditor.h"
#include "CATDlgFrame.h"
#include "CATDlgPushButton.h"
#include "CATError.h"
#include "CATListValCATString.h"
#include "host/DialogPath.h"

#include <initializer_list>
#include <iosfwd>
#include <string>
#include <vector>

// Fixture of a panel's tests.
class PanelTest : public support::ApplicationTest {
  protected:
    // The widget with that path or tail of a path; the test fails where it is missing or of another class.
    template<class Class>
    static Class& Widget(const std::string& iPath) {
        return dynamic_cast<Class&>(*host::DialogPath::Find(iPath).widget);
    }
    static CATDlgPushButton& Button(const std::string& iPath) { return Widget<CATDlgPushButton>(iPath); }
    static CATDlgEditor& Editor(const std::string& iPath) { return Widget<CATDlgEditor>(iPath); }
    static CATDlgCombo& Combo(const std::string& iPath) { return Widget<CATDlgCombo>(iPath); }
    static bool Exists(const std::string& iPath) { return host::DialogPath::Find(iPath).widget != nullptr; }
};

// A child as it was made. Lines of the layout read "0(1)-3(4)": side 1 on line 0, side 4 on line 3; empty
// where nothing is attached.
struct Piece {
    std::string kind;
    std::string name;
    CATDlgStyle style = 0;
    std::string columns;
    std::string rows;

    bool operator==(const Piece&) const = default;
};

void PrintTo(const Piece& iPiece, std::ostream* ioStream);

using Pieces = std::vector<Piece>;

// The children of a panel in the order of their making.
Pieces PiecesOf(const CATDialog& iPanel);

CATListValCATString KeysOf(std::initializer_list<const char*> iKeys);

using Lines = std::vector<std::string>;

Lines LinesOf(const CATDlgCombo& iCombo);

// A panel that counts the notifications that reach itself on their way.
template<class Panel>
class ListeningPanel : public Panel {
  public:
    using Panel::Panel;

    CATNotifPropagationMode AnalyseNotification(CATCommand* iFrom, CATNotification* iNotification) override {
        ++_count;
        return Panel::AnalyseNotification(iFrom, iNotification);
    }
    int Count() const { return _count; }

  private:
    int _count = 0;
};

// A child that notes how many callbacks its father has when the father's end takes it along.
class CountingChild : public CATDlgFrame {
  public:
    CountingChild(CATDialog& ioFather, std::vector<int>& ioCounts);
    ~CountingChild() override;

  private:
    const CATDialog& _father;
    std::vector<int>& _counts;
};

// The key of the error that the call raises; empty when it raises none.
template<class Call>
std::string ErrorRaisedBy(const Call& iCall) {
    try {
        iCall();
    } catch (CATBaseUnknown* raised) {
        auto* const error = dynamic_cast<CATError*>(raised);
        const std::string key = error == nullptr ? raised->IsA() : error->GetMsgId();
        raised->Release();
        return key;
    }
    return std::string();
}

// What an operation tells that has caught a CATInternalError. iOperation is "Class::Operation".
support::Report CaughtIn(const std::string& iSource, const std::string& iOperation, const std::string& iKey,
                         const std::string& iCatalogue, const std::vector<std::string>& iParameters = {});

// A command that fails whenever it hears something.
class RaisingCommand : public CATCommand {
  public:
    RaisingCommand() : CATCommand(nullptr, "RaisingCommand") {}

    CATNotifPropagationMode AnalyseNotification(CATCommand* iFrom, CATNotification* iNotification) override;
};

// What an operation tells that has caught the error of a RaisingCommand.
support::Report CaughtOfCommandIn(const std::string& iSource, const std::string& iOperation);

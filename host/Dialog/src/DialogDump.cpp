#include "host/DialogDump.h"

#include "CATDlgCheckButton.h"
#include "CATDlgCombo.h"
#include "CATDlgDialog.h"
#include "CATDlgEditor.h"
#include "CATDlgMultiList.h"
#include "CATDlgProgress.h"
#include "CATDlgRadioButton.h"
#include "CATDlgSpinner.h"
#include "CATDlgTabContainer.h"
#include "host/Inspector.h"
#include "host/ValueFrame.h"

#include <algorithm>
#include <locale>
#include <sstream>

namespace host {

namespace {

constexpr int maximumRows = 50; // rows of a list that are written

std::vector<DialogDump::Describer>& Describers() {
    static std::vector<DialogDump::Describer> describers;
    return describers;
}

std::string Quoted(const std::string& iText) {
    std::string quoted = "\"";
    for (const char character : iText) {
        if (character == '\n') {
            quoted += "\\n";
            continue;
        }
        if (character == '"' || character == '\\')
            quoted.push_back('\\');
        quoted.push_back(character);
    }
    return quoted + "\"";
}

std::string Quoted(const CATUnicodeString& iText) {
    return Quoted(std::string(iText.ConvertToChar()));
}

std::string NameOf(const CATDialog& iWidget) {
    const std::string name = iWidget.GetName().ConvertToChar();
    const bool isPlain = !name.empty() && name.find_first_of(" \"\t\n") == std::string::npos;
    return isPlain ? name : Quoted(name);
}

// Writes one tree.
class Writer {
  public:
    Writer(std::ostream& ioOut, DialogDump::Detail iDetail) : _out(ioOut), _detail(iDetail) {}

    void Write(const CATDialog& iWidget, int iDepth) {
        _indent = std::string(static_cast<std::size_t>(iDepth) * 2, ' ');
        _out << _indent << iWidget.IsA() << ' ' << NameOf(iWidget);
        WriteStates(iWidget);
        WriteContent(iWidget);
        if (_detail == DialogDump::WithLayout)
            WriteLayout(iWidget);
        _out << '\n';
        if (const auto* list = dynamic_cast<const CATDlgMultiList*>(&iWidget))
            WriteRows(*list);
        for (const CATDialog* child : Inspector::Children(iWidget))
            if (dynamic_cast<const CATDlgWindow*>(child) == nullptr)
                Write(*child, iDepth + 1);
    }

  private:
    void WriteStates(const CATDialog& iWidget) {
        if (iWidget.GetVisibility() == CATDlgHide)
            _out << " hidden";
        if (iWidget.GetSensitivity() == CATDlgDisable)
            _out << " disabled";
        if (Inspector::ShowsTitle(iWidget))
            _out << " title=" << Quoted(iWidget.GetTitle());
        const CATUnicodeString help = iWidget.GetShortHelp();
        if (help.GetLengthInByte() > 0)
            _out << " help=" << Quoted(help);
        const std::string icon = Inspector::Icons(iWidget).normal;
        if (!icon.empty())
            _out << " icon=" << icon;
    }

    void WriteContent(const CATDialog& iWidget) {
        if (const auto* combo = dynamic_cast<const CATDlgCombo*>(&iWidget))
            WriteCombo(*combo);
        else if (const auto* editor = dynamic_cast<const CATDlgEditor*>(&iWidget))
            WriteEditor(*editor);
        else if (const auto* list = dynamic_cast<const CATDlgMultiList*>(&iWidget))
            WriteList(*list);
        else if (const auto* radio = dynamic_cast<const CATDlgRadioButton*>(&iWidget))
            WriteChecked(radio->GetState());
        else if (const auto* check = dynamic_cast<const CATDlgCheckButton*>(&iWidget))
            WriteChecked(check->GetState());
        else if (const auto* spinner = dynamic_cast<const CATDlgSpinner*>(&iWidget))
            _out << " value=" << spinner->GetValue();
        else if (const auto* progress = dynamic_cast<const CATDlgProgress*>(&iWidget))
            _out << " position=" << progress->GetPos();
        else if (const auto* pages = dynamic_cast<const CATDlgTabContainer*>(&iWidget))
            _out << " page=" << pages->GetSelectedPage();
        else if (const auto* dialog = dynamic_cast<const CATDlgDialog*>(&iWidget))
            WriteButtons(*dialog);
        else if (const auto* field = dynamic_cast<const ValueFrame*>(&iWidget))
            WriteField(*field);
        else
            WriteDescription(iWidget);
    }

    void WriteDescription(const CATDialog& iWidget) {
        for (const DialogDump::Describer describer : Describers()) {
            const std::string text = describer(iWidget);
            if (!text.empty())
                _out << ' ' << text;
        }
    }

    void WriteCombo(const CATDlgCombo& iCombo) {
        _out << " lines=[";
        for (int line = 0; line < iCombo.GetLineCount(); ++line) {
            CATUnicodeString text;
            iCombo.GetLine(text, line);
            _out << (line == 0 ? "" : ", ") << Quoted(text);
        }
        _out << "] selected=" << iCombo.GetSelect();
    }

    void WriteEditor(const CATDlgEditor& iEditor) {
        if ((Inspector::Style(iEditor) & CATDlgEdtReadOnly) != 0)
            _out << " read-only";
        _out << " text=" << Quoted(iEditor.GetText());
    }

    void WriteField(const ValueFrame& iField) {
        if (!iField.IsEditable())
            _out << " read-only";
        if (iField.HasSpinner())
            _out << " spinner";
        if (!iField.Label().empty())
            _out << " label=" << Quoted(iField.Label());
        _out << " text=" << Quoted(iField.Text());
        if (iField.IsRefused())
            _out << " problem=" << Quoted(iField.Problem());
    }

    void WriteList(const CATDlgMultiList& iList) {
        _out << " columns=[";
        for (int column = 0; column < iList.GetColumnCount(); ++column) {
            CATUnicodeString title;
            iList.GetColumnTitle(column, title);
            _out << (column == 0 ? "" : ", ") << Quoted(title);
        }
        _out << "] lines=" << iList.GetLineCount();
        std::vector<int> selected(static_cast<std::size_t>(iList.GetSelectCount()));
        iList.GetSelect(selected.data(), iList.GetSelectCount());
        for (const int line : selected)
            _out << " selected=" << line;
    }

    void WriteRows(const CATDlgMultiList& iList) {
        const int shown = std::min(iList.GetLineCount(), maximumRows);
        for (int line = 0; line < shown; ++line) {
            _out << _indent << "  |";
            for (int column = 0; column < iList.GetColumnCount(); ++column) {
                CATUnicodeString text;
                iList.GetColumnItem(column, text, line);
                _out << ' ' << Quoted(text) << " |";
            }
            _out << '\n';
        }
        if (shown < iList.GetLineCount())
            _out << _indent << "  | ... " << iList.GetLineCount() - shown << " more\n";
    }

    void WriteChecked(CATULong iState) { _out << (iState == CATDlgCheck ? " checked" : ""); }

    void WriteButtons(const CATDlgDialog& iDialog) {
        static const std::pair<CATULong, const char*> names[] = {{CATDlgWndOK, "OK"},
                                                                 {CATDlgWndAPPLY, "Apply"},
                                                                 {CATDlgWndCANCEL, "Cancel"},
                                                                 {CATDlgWndCLOSE, "Close"},
                                                                 {CATDlgWndHELP, "Help"}};
        if (Inspector::IsModal(iDialog))
            _out << " modal";
        const std::vector<CATULong> buttons = Inspector::StandardButtons(iDialog);
        const char* separator = " buttons=";
        for (const auto& [button, name] : names) {
            if (std::find(buttons.begin(), buttons.end(), button) == buttons.end())
                continue;
            _out << separator << name << (Inspector::DefaultButton(iDialog) == button ? "*" : "");
            separator = ",";
        }
    }

    void WriteLayout(const CATDialog& iWidget) {
        const CATDlgStyle style = Inspector::Style(iWidget);
        if (style != 0)
            _out << " style=0x" << std::hex << style << std::dec;
        WriteTabs(" columns=", Inspector::ColumnsOf(iWidget));
        WriteTabs(" rows=", Inspector::RowsOf(iWidget));
        if (Inspector::HasGridConstraints(iWidget)) {
            const CATDlgGridConstraints grid = Inspector::GridConstraints(iWidget);
            _out << " grid=" << grid.Row << ',' << grid.Column << ' ' << grid.H_Span << 'x' << grid.V_Span
                 << " sides=" << grid.Justification;
        }
        if (Inspector::VisibleTextHeight(iWidget) != 0)
            _out << " visible-lines=" << Inspector::VisibleTextHeight(iWidget);
        if (Inspector::VisibleTextWidth(iWidget) != 0)
            _out << " visible-width=" << Inspector::VisibleTextWidth(iWidget);
    }

    // "0(1)-1(4)": the lines with the attachment modes of the two sides.
    void WriteTabs(const char* iLabel, const Inspector::TabSpan& iSpan) {
        if (!iSpan.hasLeading && !iSpan.hasTrailing)
            return;
        _out << iLabel;
        if (iSpan.hasLeading)
            _out << iSpan.leading << '(' << (iSpan.isCentred ? CATDlgCenter : CATDlgTopOrLeft) << ')';
        if (iSpan.hasTrailing)
            _out << '-' << iSpan.trailing << '('
                 << (iSpan.stretches ? CATDlgRightOrBottomRelative : CATDlgRightOrBottom) << ')';
    }

    std::ostream& _out;
    DialogDump::Detail _detail;
    std::string _indent;
};

} // namespace

std::string DialogDump::Of(const CATDialog& iWidget, Detail iDetail) {
    std::ostringstream out;
    out.imbue(std::locale::classic());
    Writer(out, iDetail).Write(iWidget, 0);
    return out.str();
}

void DialogDump::DescribeBy(Describer iDescriber) {
    std::vector<Describer>& describers = Describers();
    if (std::find(describers.begin(), describers.end(), iDescriber) == describers.end())
        describers.push_back(iDescriber);
}

std::string DialogDump::OfAll(Detail iDetail) {
    std::string text;
    for (const CATDlgWindow* window : Inspector::Windows())
        text += Of(*window, iDetail);
    return text;
}

} // namespace host

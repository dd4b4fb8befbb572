#include "UserStep.h"

#include "CATDlgCombo.h"
#include "CATDlgEditor.h"
#include "CATDlgMultiList.h"
#include "CATDlgPushButton.h"
#include "CATDlgSpinner.h"
#include "CATDlgTabPage.h"
#include "host/DialogPath.h"
#include "host/DialogUser.h"
#include "host/Messages.h"
#include "host/ValueFrame.h"
#include "session/Buttons.h"

namespace session {

namespace {

using host::DialogUser;
using host::Outcome;

std::string Text(const Json& step, const char* key) {
    return step.at(key).get<std::string>();
}

int Number(const Json& step, const char* key) {
    return step.at(key).get<int>();
}

Outcome IsNo(const CATDialog& widget, const std::string& wanted) {
    return Outcome::Refused(host::DialogPath::Of(widget) + " is a " + std::string(widget.IsA()) + ", no " +
                            wanted);
}

/// Does it with the widget as Widget, or refuses because the widget is none.
template<class Widget, class Action>
Outcome With(CATDialog& widget, const char* wanted, const Action& action) {
    auto* const typed = dynamic_cast<Widget*>(&widget);
    return typed == nullptr ? IsNo(widget, wanted) : action(*typed);
}

Outcome Press(CATDialog& widget, const Json& step) {
    if (!step.contains("button"))
        return With<CATDlgPushButton>(widget, "push button", DialogUser::Press);
    return With<CATDlgDialog>(widget, "dialog", [&](CATDlgDialog& dialog) {
        return DialogUser::PressStandardButton(dialog, ButtonNamed(Text(step, "button")));
    });
}

Outcome Choose(CATDialog& widget, const Json& step) {
    return With<CATDlgCombo>(widget, "combo", [&](CATDlgCombo& combo) {
        return step.contains("line") ? DialogUser::Choose(combo, Number(step, "line"))
                                     : DialogUser::ChooseText(combo, Text(step, "text"));
    });
}

Outcome Check(CATDialog& widget, const Json&) {
    return DialogUser::Check(widget);
}

Outcome Uncheck(CATDialog& widget, const Json&) {
    return DialogUser::Uncheck(widget);
}

Outcome Type(CATDialog& widget, const Json& step) {
    if (auto* const spinner = dynamic_cast<CATDlgSpinner*>(&widget))
        return DialogUser::TypeValue(*spinner, Text(step, "text"));
    if (auto* const field = dynamic_cast<host::ValueFrame*>(&widget))
        return DialogUser::Type(*field, Text(step, "text"));
    return With<CATDlgEditor>(
        widget, "editor", [&](CATDlgEditor& editor) { return DialogUser::Type(editor, Text(step, "text")); });
}

Outcome Spin(CATDialog& widget, const Json& step) {
    if (auto* const field = dynamic_cast<host::ValueFrame*>(&widget))
        return DialogUser::Spin(*field, Number(step, "steps"));
    return With<CATDlgSpinner>(widget, "spinner", [&](CATDlgSpinner& spinner) {
        return DialogUser::Spin(spinner, Number(step, "steps"));
    });
}

Outcome Escape(CATDialog& widget, const Json&) {
    if (auto* const field = dynamic_cast<host::ValueFrame*>(&widget))
        return DialogUser::Restore(*field);
    return With<CATDlgDialog>(widget, "value field or dialog",
                              [](CATDlgDialog& dialog) { return DialogUser::PressEscape(dialog); });
}

Outcome Select(CATDialog& widget, const Json& step) {
    return With<CATDlgMultiList>(widget, "list", [&](CATDlgMultiList& list) {
        return DialogUser::Select(list, step.at("rows").get<std::vector<int>>());
    });
}

Outcome Activate(CATDialog& widget, const Json& step) {
    return With<CATDlgMultiList>(widget, "list", [&](CATDlgMultiList& list) {
        return DialogUser::Activate(list, Number(step, "row"), Number(step, "column"));
    });
}

Outcome ShowPage(CATDialog& widget, const Json&) {
    return With<CATDlgTabPage>(widget, "tab page", DialogUser::ShowPage);
}

Outcome Move(CATDialog& widget, const Json& step) {
    return With<CATDlgWindow>(widget, "window", [&](CATDlgWindow& window) {
        return DialogUser::Move(window, Number(step, "x"), Number(step, "y"));
    });
}

Outcome Close(CATDialog& widget, const Json&) {
    return With<CATDlgWindow>(widget, "window", DialogUser::Close);
}

struct UserStep {
    const char* word;
    Outcome (*act)(CATDialog&, const Json&);
};

constexpr UserStep userSteps[] = {{"press", Press},     {"choose", Choose},     {"check", Check},
                                  {"uncheck", Uncheck}, {"type", Type},         {"spin", Spin},
                                  {"select", Select},   {"activate", Activate}, {"page", ShowPage},
                                  {"move", Move},       {"close", Close},       {"escape", Escape}};

} // namespace

Outcome DoAsUser(const Json& step) {
    const std::string word = Text(step, "do");
    if (word == "answer") {
        host::Messages::QueueAnswer(static_cast<int>(ButtonNamed(Text(step, "button"))));
        return Outcome::Done();
    }
    const host::Found found = host::DialogPath::Find(Text(step, "at"));
    if (found.widget == nullptr)
        return Outcome::Refused(found.reason);
    for (const UserStep& each : userSteps)
        if (word == each.word)
            return each.act(*found.widget, step);
    return Outcome::Refused("nothing does the step '" + word + "'");
}

} // namespace session

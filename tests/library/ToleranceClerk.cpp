#include "ToleranceClerk.h"

#include <cstdlib>

namespace tolerance {

std::string News::InWords() const {
    switch (kind) {
    case Kind::FitMode:
        return std::string("fit mode of ") + (isAboutParm ? "the parameter" : "another parameter") + " " +
               Quoted({group, field});
    case Kind::Group:
        return "group " + Quoted({group}) + " at " + InFull(value);
    case Kind::Field:
        return "field " + Quoted({group, field}) + " at " + InFull(value);
    case Kind::Update:
        return "update of " + Quoted({group, field}) + " at " + InFull(value);
    }
    return {};
}

void Clerk::Hear(const News& iNews, Acts& ioPanel) {
    if (_habit == Habit::Silent)
        return;
    if (iNews.kind == News::Kind::FitMode)
        AnswerFitMode(iNews, ioPanel);
    else if (iNews.kind == News::Kind::Group)
        ioPanel.SetToleranceFields(FieldsOf(iNews.group));
    else if (iNews.kind == News::Kind::Field || !_isGiving)
        GiveDeviations(iNews, ioPanel);
}

void Clerk::AnswerFitMode(const News& iNews, Acts& ioPanel) const {
    if (_habit == Habit::Contrary)
        ioPanel.InitTolerance();
    else
        ioPanel.SetToleranceGroups(Groups(), iNews.group.empty() ? "H" : iNews.group, iNews.field);
}

// Larger sizes have larger deviations, as the number in the field has.
void Clerk::GiveDeviations(const News& iNews, Acts& ioPanel) {
    const std::size_t digit = iNews.field.find_first_of("0123456789");
    const int grade = digit == std::string::npos ? 0 : std::atoi(iNews.field.c_str() + digit);
    const int width = grade * (iNews.value > 50.0 ? 3 : 2);
    const bool wasGiving = _isGiving;
    _isGiving = true;
    ioPanel.SetFittingVals(width / 1000.0, iNews.group == "H" ? 0.0 : -width / 2000.0);
    _isGiving = wasGiving;
}

const Texts& Clerk::Groups() {
    static const Texts groups = {"F", "H", "K"};
    return groups;
}

Texts Clerk::FieldsOf(const std::string& iGroup) {
    if (iGroup == "F")
        return {"F7", "F8"};
    if (iGroup == "H")
        return {"H6", "H7", "H11"};
    if (iGroup == "K")
        return {"K7"};
    return {};
}

} // namespace tolerance

#include "engineering/Problem.h"

namespace engineering {

std::string ToText(const Problem& problem) {
    std::string text = problem.file;
    if (problem.line > 0) {
        text += ':' + std::to_string(problem.line);
    }
    text += ": ";
    if (!problem.column.empty()) {
        text += "column '" + problem.column + "': ";
    }
    return text + problem.message;
}

} // namespace engineering

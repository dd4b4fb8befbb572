#pragma once

// The words of a session: which steps and expectations there are, and which keys each of them takes.
//
//   Vocabulary vocabulary;                                            // what every host can do
//   vocabulary.AddStep({"pick", {{"element", ValueKind::Text}}});     // what this command can do as well
//   vocabulary.Fault(Json::parse(R"({"do":"press"})"));               // "the step 'press' needs the key
//   'at'"

#include "session/Json.h"

#include <map>
#include <string>
#include <vector>

namespace session {

/// What a value may be; kinds combine with |.
enum class ValueKind : unsigned {
    Text = 1,
    Count = 2,    ///< a whole number from 0 on
    Integer = 4,  ///< a whole number
    Boolean = 8,  ///< true or false
    Texts = 16,   ///< a list of texts
    Counts = 32,  ///< a list of whole numbers from 0 on
    Rows = 64,    ///< a list of lists of texts
    Object = 128, ///< keys and values
    Button = 256  ///< the name of a standard button
};

constexpr ValueKind operator|(ValueKind left, ValueKind right) {
    return static_cast<ValueKind>(static_cast<unsigned>(left) | static_cast<unsigned>(right));
}

enum class Need {
    Required,
    Optional,
    Alternative ///< exactly one of a form's alternatives is there
};

struct KeyRule {
    std::string name;
    ValueKind kind = ValueKind::Text;
    Need need = Need::Required;
};

/// A step or an expectation: its word and the keys beside it.
struct Form {
    std::string word;
    std::vector<KeyRule> keys;
};

class Vocabulary {
  public:
    Vocabulary();

    /// Adds a step, or replaces the one of that word.
    void AddStep(Form form);

    /// What is wrong with a line of a session, in one sentence; empty when it can be played.
    std::string Fault(const Json& line) const;

  private:
    using Forms = std::map<std::string, Form>;

    Forms _steps;
    Forms _expectations;
};

} // namespace session

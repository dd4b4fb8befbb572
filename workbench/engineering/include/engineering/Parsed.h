#pragma once

// The outcome of reading a text: a value, or else the sentence that tells what is wrong with the text.

#include <optional>
#include <string>
#include <utility>

namespace engineering {

template<class T>
struct Parsed {
    std::optional<T> value;
    std::string error; ///< empty exactly when there is a value

    static Parsed Of(T value) { return {std::optional<T>(std::move(value)), {}}; }
    static Parsed Failed(std::string error) { return {std::nullopt, std::move(error)}; }
};

} // namespace engineering

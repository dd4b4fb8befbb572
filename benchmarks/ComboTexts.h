#ifndef ComboTexts_H
#define ComboTexts_H

#include <string>
#include <vector>

// The lines of a combo, long enough that a string keeps them on the heap.
inline std::vector<std::string> ComboTexts(int iLines) {
    std::vector<std::string> texts;
    for (int line = 0; line < iLines; ++line)
        texts.push_back("Counterbored hole " + std::to_string(line));
    return texts;
}

#endif

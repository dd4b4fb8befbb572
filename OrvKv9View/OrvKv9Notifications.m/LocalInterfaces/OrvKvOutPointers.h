#ifndef OrvKvOutPointers_H
#define OrvKvOutPointers_H

#include <cstddef>

// Checks of the pointers through which a getter writes. A getter makes them before it writes anything:
//
//     if (OrvKvAnyNull(pTolGroup, pParmValue))
//         return OrvKvReport::SilentFailure();

// Whether one pointer at least is null.
template<class... Types>
bool OrvKvAnyNull(const Types*... iPointers) {
    const void* const pointers[] = {iPointers...};
    for (const void* pointer : pointers)
        if (pointer == nullptr)
            return true;
    return false;
}

// A pointer and what a getter says when it is null.
struct OrvKvOutPointer {
    const void* pointer;
    const char* complaint;
};

// The complaint of the first null pointer; null when all pointers are there.
template<std::size_t Count>
const char* OrvKvFirstComplaint(const OrvKvOutPointer (&iPointers)[Count]) {
    for (const OrvKvOutPointer& each : iPointers)
        if (each.pointer == nullptr)
            return each.complaint;
    return nullptr;
}

#endif

#ifndef TextArena_H
#define TextArena_H

#include <cstddef>
#include <memory>
#include <string_view>
#include <vector>

namespace host {

// Keeps many short texts close together: each is its length, one byte for up to 127, followed by its bytes.
class TextArena {
  public:
    // Keeps a copy. The address holds until Clear.
    const char* Keep(std::string_view iText) {
        return iText.size() < 128 && iText.size() < _left ? KeepShort(iText) : KeepAny(iText);
    }
    // Writes iText over a kept text when it takes no more room; false when it does not fit.
    bool Overwrite(const char* ioKept, std::string_view iText);
    // Counts a kept text as no longer used.
    void Abandon(const char* iKept);
    static std::string_view Text(const char* iKept);

    void Clear();
    std::size_t BytesTaken() const { return _taken; }
    std::size_t BytesAbandoned() const { return _abandoned; }

  private:
    // A text of up to 127 bytes for which the current block has room: nearly all.
    const char* KeepShort(std::string_view iText) {
        char* const kept = _next;
        *_next++ = static_cast<char>(iText.size());
        _next += iText.copy(_next, iText.size());
        _left -= iText.size() + 1;
        return kept;
    }
    const char* KeepAny(std::string_view iText);
    char* Reserve(std::size_t iBytes);

    static constexpr std::size_t blockBytes = 65536;

    std::vector<std::unique_ptr<char[]>> _blocks;
    char* _next = nullptr; // free room of the current block
    std::size_t _left = 0;
    std::size_t _taken = 0;
    std::size_t _abandoned = 0;
};

} // namespace host

#endif

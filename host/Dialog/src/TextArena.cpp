#include "TextArena.h"

#include <algorithm>
#include <cstring>

namespace host {

namespace {

std::size_t PrefixBytes(std::size_t iLength) {
    std::size_t bytes = 1;
    for (; iLength >= 128; iLength >>= 7U)
        ++bytes;
    return bytes;
}

char* WritePrefix(char* ioAt, std::size_t iLength) {
    for (; iLength >= 128; iLength >>= 7U)
        *ioAt++ = static_cast<char>(static_cast<unsigned char>(iLength & 0x7FU) | 0x80U);
    *ioAt++ = static_cast<char>(iLength);
    return ioAt;
}

void Write(char* ioAt, std::string_view iText) {
    char* const bytes = WritePrefix(ioAt, iText.size());
    if (!iText.empty())
        std::memcpy(bytes, iText.data(), iText.size());
}

std::size_t BytesOf(std::string_view iText) {
    return PrefixBytes(iText.size()) + iText.size();
}

} // namespace

const char* TextArena::KeepAny(std::string_view iText) {
    char* const room = Reserve(BytesOf(iText));
    Write(room, iText);
    return room;
}

bool TextArena::Overwrite(const char* ioKept, std::string_view iText) {
    const std::size_t before = BytesOf(Text(ioKept));
    const std::size_t after = BytesOf(iText);
    if (after > before)
        return false;
    Write(const_cast<char*>(ioKept), iText);
    _abandoned += before - after;
    return true;
}

void TextArena::Abandon(const char* iKept) {
    _abandoned += BytesOf(Text(iKept));
}

std::string_view TextArena::Text(const char* iKept) {
    std::size_t length = 0;
    unsigned int shift = 0;
    while ((static_cast<unsigned char>(*iKept) & 0x80U) != 0) {
        length |= static_cast<std::size_t>(static_cast<unsigned char>(*iKept++) & 0x7FU) << shift;
        shift += 7;
    }
    length |= static_cast<std::size_t>(static_cast<unsigned char>(*iKept++)) << shift;
    return std::string_view(iKept, length);
}

void TextArena::Clear() {
    _blocks.clear();
    _next = nullptr;
    _left = 0;
    _taken = 0;
    _abandoned = 0;
}

// A text of more than a quarter of a block gets a block of its own, and a new block is a sixteenth of what is
// taken already, within limits: so little room is lost in lists of any length.
char* TextArena::Reserve(std::size_t iBytes) {
    if (iBytes > _left) {
        const std::size_t regular = std::clamp(_taken / 16, blockBytes / 64, blockBytes);
        const bool isLarge = iBytes > regular / 4;
        const std::size_t size = isLarge ? iBytes : regular;
        _blocks.push_back(std::unique_ptr<char[]>(new char[size]));
        _taken += size;
        if (isLarge)
            return _blocks.back().get();
        _next = _blocks.back().get();
        _left = size;
    }
    char* const room = _next;
    _next += iBytes;
    _left -= iBytes;
    return room;
}

} // namespace host

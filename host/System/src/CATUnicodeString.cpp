#include "CATUnicodeString.h"

#include <algorithm>
#include <charconv>
#include <clocale>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <string_view>

namespace {

bool IsContinuation(char iByte) {
    return (static_cast<unsigned char>(iByte) & 0xC0U) == 0x80U;
}

void AppendCodePoint(std::string& ioText, unsigned long iCode) {
    const auto put = [&ioText](unsigned long iByte) { ioText.push_back(static_cast<char>(iByte)); };
    if (iCode < 0x80UL) {
        put(iCode);
    } else if (iCode < 0x800UL) {
        put(0xC0UL | (iCode >> 6U));
        put(0x80UL | (iCode & 0x3FUL));
    } else if (iCode < 0x10000UL) {
        put(0xE0UL | (iCode >> 12U));
        put(0x80UL | ((iCode >> 6U) & 0x3FUL));
        put(0x80UL | (iCode & 0x3FUL));
    } else {
        put(0xF0UL | (iCode >> 18U));
        put(0x80UL | ((iCode >> 12U) & 0x3FUL));
        put(0x80UL | ((iCode >> 6U) & 0x3FUL));
        put(0x80UL | (iCode & 0x3FUL));
    }
}

// What printf makes of the number, with the point of the "C" locale.
template<class Number>
std::string Print(Number iNumber, const char* iFormat) {
    char small[64];
    const int length = std::snprintf(small, sizeof small, iFormat, iNumber);
    if (length <= 0)
        return std::string();
    std::string text(small, std::min(static_cast<std::size_t>(length), sizeof small - 1));
    if (static_cast<std::size_t>(length) >= sizeof small) {
        text.resize(static_cast<std::size_t>(length));
        std::snprintf(text.data(), text.size() + 1, iFormat, iNumber);
    }
    const char* point = std::localeconv()->decimal_point;
    if (std::strcmp(point, ".") != 0) {
        const std::size_t at = text.find(point);
        if (at != std::string::npos)
            text.replace(at, std::strlen(point), 1, '.');
    }
    return text;
}

// Digits of a printed number from the first that is not 0 on, without those of an exponent.
int DigitsThatCount(std::string_view iText) {
    const std::string_view mantissa = iText.substr(0, iText.find('e'));
    const std::size_t first = std::min(mantissa.find_first_of("123456789"), mantissa.size());
    return static_cast<int>(std::count_if(mantissa.begin() + static_cast<std::ptrdiff_t>(first),
                                          mantissa.end(), [](char iCharacter) { return iCharacter != '.'; }));
}

// What "%g" gives. The shortest text that stands for the number is the same, and quicker to get, as long as
// it needs no more than the six digits that "%g" prints.
std::string PrintGeneral(double iNumber) {
    constexpr int digits = 6;
    char text[32];
    char* const last = text + sizeof text;
    std::to_chars_result end = std::to_chars(text, last, iNumber, std::chars_format::general);
    if (DigitsThatCount(std::string_view(text, static_cast<std::size_t>(end.ptr - text))) > digits)
        end = std::to_chars(text, last, iNumber, std::chars_format::general, digits);
    return std::string(text, end.ptr);
}

} // namespace

int CATUnicodeString::BuildFromUTF8(const char* iUtf8, std::size_t iBytes) {
    if (iUtf8 == nullptr)
        _utf8.clear();
    else
        _utf8.assign(iUtf8, iBytes);
    return GetLengthInChar();
}

int CATUnicodeString::BuildFromWChar(const wchar_t* iWide) {
    _utf8.clear();
    for (; iWide != nullptr && *iWide != L'\0'; ++iWide)
        AppendCodePoint(_utf8, static_cast<unsigned long>(*iWide));
    return GetLengthInChar();
}

int CATUnicodeString::BuildFromNum(int iNumber, const char* iFormat) {
    _utf8 = Print(iNumber, iFormat);
    return GetLengthInChar();
}

int CATUnicodeString::BuildFromNum(double iNumber, const char* iFormat) {
    const bool isGeneral = std::isfinite(iNumber) && std::strcmp(iFormat, "%g") == 0;
    _utf8 = isGeneral ? PrintGeneral(iNumber) : Print(iNumber, iFormat);
    return GetLengthInChar();
}

int CATUnicodeString::ConvertToNum(double* oNumber) const {
    const char* first = _utf8.data();
    const char* const last = first + _utf8.size();
    if (last - first > 1 && first[0] == '+' && first[1] != '-')
        ++first;
    double number = 0.0;
    const std::from_chars_result result = std::from_chars(first, last, number);
    if (result.ec != std::errc() || result.ptr != last || !std::isfinite(number) || oNumber == nullptr)
        return -1;
    *oNumber = number;
    return 0;
}

int CATUnicodeString::GetLengthInChar() const {
    return static_cast<int>(
        std::count_if(_utf8.begin(), _utf8.end(), [](char iByte) { return !IsContinuation(iByte); }));
}

CATUnicodeString& CATUnicodeString::Append(const CATUnicodeString& iText) {
    _utf8 += iText._utf8;
    return *this;
}

CATUnicodeString& CATUnicodeString::Insert(int iPosition, const CATUnicodeString& iText) {
    _utf8.insert(ByteOf(iPosition), std::string(iText._utf8));
    return *this;
}

CATUnicodeString CATUnicodeString::SubString(int iStart, int iLength) const {
    CATUnicodeString part;
    if (iStart < 0 || iLength <= 0)
        return part;
    const std::size_t begin = ByteOf(iStart);
    const int length = std::min(iLength, GetLengthInChar());
    const std::size_t end = ByteOf(iStart > GetLengthInChar() ? iStart : iStart + length);
    part._utf8 = _utf8.substr(begin, end - begin);
    return part;
}

int CATUnicodeString::SearchSubString(const CATUnicodeString& iText, int iFrom) const {
    const std::size_t at = _utf8.find(iText._utf8, ByteOf(iFrom));
    if (at == std::string::npos)
        return -1;
    CATUnicodeString before;
    before._utf8 = _utf8.substr(0, at);
    return before.GetLengthInChar();
}

// Byte at which character iPosition begins; the end of the text for a position behind it.
std::size_t CATUnicodeString::ByteOf(int iPosition) const {
    std::size_t byte = 0;
    for (int left = iPosition; left > 0 && byte < _utf8.size(); --left) {
        ++byte;
        while (byte < _utf8.size() && IsContinuation(_utf8[byte]))
            ++byte;
    }
    return byte;
}

CATUnicodeString operator+(const CATUnicodeString& iLeft, const CATUnicodeString& iRight) {
    CATUnicodeString sum(iLeft);
    sum.Append(iRight);
    return sum;
}

bool operator==(const CATUnicodeString& iLeft, const CATUnicodeString& iRight) {
    return iLeft.GetLengthInByte() == iRight.GetLengthInByte() && iLeft == iRight.ConvertToChar();
}

bool operator!=(const CATUnicodeString& iLeft, const CATUnicodeString& iRight) {
    return !(iLeft == iRight);
}

bool operator==(const CATUnicodeString& iLeft, const char* iRight) {
    return std::strcmp(iLeft.ConvertToChar(), iRight == nullptr ? "" : iRight) == 0;
}

bool operator!=(const CATUnicodeString& iLeft, const char* iRight) {
    return !(iLeft == iRight);
}

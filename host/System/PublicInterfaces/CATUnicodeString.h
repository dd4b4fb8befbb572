#ifndef CATUnicodeString_H
#define CATUnicodeString_H

#include "CATString.h"

#include <cstddef>
#include <string>

// Text that a person sees. Kept as UTF-8; lengths and positions count characters (code points), from 0.
//
// A null pointer counts as the empty text. Numbers are written and read with a decimal point whatever the
// locale of the process.
class CATUnicodeString {
  public:
    CATUnicodeString() = default;
    CATUnicodeString(const char* iUtf8) : _utf8(iUtf8 == nullptr ? "" : iUtf8) {}
    CATUnicodeString(const CATString& iText) : _utf8(iText.ConvertToChar()) {}
    CATUnicodeString(const wchar_t* iWide) { BuildFromWChar(iWide); }

    // Replace the text. Each returns the length of the new text in characters.
    int BuildFromUTF8(const char* iUtf8, std::size_t iBytes);
    int BuildFromWChar(const wchar_t* iWide);
    int BuildFromNum(int iNumber, const char* iFormat = "%d");
    int BuildFromNum(double iNumber, const char* iFormat = "%g");

    // 0 and *oNumber set when the whole text is a number; -1 and *oNumber untouched otherwise.
    int ConvertToNum(double* oNumber) const;

    const char* ConvertToChar() const { return _utf8.c_str(); }
    const char* ConvertToUTF8() const { return _utf8.c_str(); }
    std::size_t GetLengthInByte() const { return _utf8.size(); }
    int GetLengthInChar() const;

    CATUnicodeString& Append(const CATUnicodeString& iText);
    CATUnicodeString& operator+=(const CATUnicodeString& iText) { return Append(iText); }

    // Inserts before character iPosition; a position outside the text is moved to its nearer end.
    CATUnicodeString& Insert(int iPosition, const CATUnicodeString& iText);

    // The iLength characters from iStart on, fewer where the text ends; empty when iStart lies outside.
    CATUnicodeString SubString(int iStart, int iLength) const;

    // Position of the first occurrence at or after iFrom, or -1.
    int SearchSubString(const CATUnicodeString& iText, int iFrom = 0) const;

  private:
    std::size_t ByteOf(int iPosition) const;

    std::string _utf8;
};

CATUnicodeString operator+(const CATUnicodeString& iLeft, const CATUnicodeString& iRight);
bool operator==(const CATUnicodeString& iLeft, const CATUnicodeString& iRight);
bool operator!=(const CATUnicodeString& iLeft, const CATUnicodeString& iRight);
bool operator==(const CATUnicodeString& iLeft, const char* iRight);
bool operator!=(const CATUnicodeString& iLeft, const char* iRight);

#endif

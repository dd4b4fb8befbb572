#ifndef CATString_H
#define CATString_H

#include <string>

// 8-bit text: keys, identifiers, parameter names. A null pointer counts as the empty text.
class CATString {
  public:
    CATString() = default;
    CATString(const char* iText) : _text(iText == nullptr ? "" : iText) {}
    CATString(const char* iText, int iLength);

    const char* ConvertToChar() const { return _text.c_str(); }
    const char* CastToCharPtr() const { return _text.c_str(); }
    int GetLengthInChar() const { return static_cast<int>(_text.size()); }

    CATString& Append(const CATString& iText);
    CATString& operator+=(const CATString& iText) { return Append(iText); }

  private:
    std::string _text;
};

CATString operator+(const CATString& iLeft, const CATString& iRight);
bool operator==(const CATString& iLeft, const CATString& iRight);
bool operator!=(const CATString& iLeft, const CATString& iRight);
bool operator==(const CATString& iLeft, const char* iRight);
bool operator!=(const CATString& iLeft, const char* iRight);

#endif

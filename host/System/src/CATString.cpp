#include "CATString.h"

#include <cstring>

CATString::CATString(const char* iText, int iLength) {
    if (iText != nullptr && iLength > 0)
        _text.assign(iText, static_cast<std::size_t>(iLength));
}

CATString& CATString::Append(const CATString& iText) {
    _text += iText._text;
    return *this;
}

CATString operator+(const CATString& iLeft, const CATString& iRight) {
    CATString sum(iLeft);
    sum.Append(iRight);
    return sum;
}

bool operator==(const CATString& iLeft, const CATString& iRight) {
    return iLeft.GetLengthInChar() == iRight.GetLengthInChar() && iLeft == iRight.ConvertToChar();
}

bool operator!=(const CATString& iLeft, const CATString& iRight) {
    return !(iLeft == iRight);
}

bool operator==(const CATString& iLeft, const char* iRight) {
    return std::strcmp(iLeft.ConvertToChar(), iRight == nullptr ? "" : iRight) == 0;
}

bool operator!=(const CATString& iLeft, const char* iRight) {
    return !(iLeft == iRight);
}

#include "BinaryNoise.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <iterator>

namespace host {

namespace {

constexpr int countingDigits = 15; // that a double holds for certain

double Rounded(double iNumber, int iDigits) {
    char text[32];
    const std::to_chars_result written =
        std::to_chars(std::begin(text), std::end(text), iNumber, std::chars_format::scientific, iDigits - 1);
    double rounded = iNumber;
    std::from_chars(std::begin(text), written.ptr, rounded);
    return rounded;
}

int DecimalPlace(double iNumber) {
    return static_cast<int>(std::floor(std::log10(std::abs(iNumber))));
}

} // namespace

double WithoutBinaryNoise(double iNumber) {
    return std::isfinite(iNumber) ? Rounded(iNumber, countingDigits) : iNumber;
}

double SumWithoutBinaryNoise(double iLeft, double iRight) {
    const double sum = iLeft + iRight;
    if (!std::isfinite(sum) || sum == 0.0)
        return sum;
    const double larger = std::max(std::abs(iLeft), std::abs(iRight));
    const int digits = countingDigits - std::max(0, DecimalPlace(larger) - DecimalPlace(sum));
    return digits > 0 ? Rounded(sum, digits) : 0.0;
}

} // namespace host

#ifndef BinaryNoise_H
#define BinaryNoise_H

namespace host {

// The number with at most 15 digits that count, as a person would have computed it: 0.3 for what three times
// 0.1 gives. A number that is not finite stays as it is.
double WithoutBinaryNoise(double iNumber);

// The sum without the digits that are mere noise next to the larger of the two: 0.3 and -6*0.05 give 0.
double SumWithoutBinaryNoise(double iLeft, double iRight);

} // namespace host

#endif

#ifndef CATErrorDef_H
#define CATErrorDef_H

// Result codes. A code is a failure when it is negative.
//
// The failing codes are written as 32-bit values and sign-extended, so that they stay negative where `long`
// has 64 bits; a comparison with the 32-bit literal is made after a cast to int.

typedef long HRESULT;

#define S_OK (static_cast<HRESULT>(0L))
#define S_FALSE (static_cast<HRESULT>(1L))
#define E_NOTIMPL (static_cast<HRESULT>(static_cast<int>(0x80004001U)))
#define E_NOINTERFACE (static_cast<HRESULT>(static_cast<int>(0x80004002U)))
#define E_FAIL (static_cast<HRESULT>(static_cast<int>(0x80004005U)))

#define SUCCEEDED(hr) (static_cast<HRESULT>(hr) >= 0)
#define FAILED(hr) (static_cast<HRESULT>(hr) < 0)

#endif

#pragma once

#include "CATICkeParm.h"
#include "CATMacForIUnknown.h"

namespace support {

// A parameter with a fixed name and shown value, for tests that only hand parameters on.
class StubParameter : public CATICkeParm {
    CATDeclareClass;

  public:
    explicit StubParameter(const CATUnicodeString& iName, const CATUnicodeString& iShown = "10mm");

    using CATBaseUnknown::QueryInterface;
    HRESULT QueryInterface(const IID& iInterface, void** oPointer) override;

    CATUnicodeString Name() override { return _name; }
    CATUnicodeString Show() override { return _shown; }
    void SetUserAccessMode(int iMode) override { _accessMode = iMode; }
    int GetUserAccessMode() override { return _accessMode; }

  private:
    CATUnicodeString _name;
    CATUnicodeString _shown;
    int _accessMode = 3;
};

} // namespace support

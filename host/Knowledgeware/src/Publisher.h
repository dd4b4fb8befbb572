#ifndef Publisher_H
#define Publisher_H

#include "CATIParmPublisher.h"
#include "CATMacForIUnknown.h"
#include "host/Component.h"

namespace host {

class Publisher : public Component<CATIParmPublisher> {
    CATDeclareClass;

  public:
    explicit Publisher(const CATUnicodeString& iName) : _name(iName) {}
    ~Publisher() override;
    Publisher(const Publisher&) = delete;
    Publisher& operator=(const Publisher&) = delete;

    CATUnicodeString Name() override { return _name; }
    HRESULT Append(const CATBaseUnknown_var& iParameter) override;
    HRESULT Remove(const CATBaseUnknown_var& iParameter) override;
    HRESULT GetParameters(CATListValCATBaseUnknown_var& oParameters) override;

  private:
    CATUnicodeString _name;
    CATListValCATBaseUnknown_var _parameters; // each knows that it is published here
};

} // namespace host

#endif

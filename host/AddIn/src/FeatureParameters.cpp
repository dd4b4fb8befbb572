#include "host/FeatureParameters.h"

#include "CATMacForIUnknown.h"
#include "host/Component.h"

#include <set>
#include <string>

CATImplementInterface(OrvIKvFeatureParameters, CATBaseUnknown);

namespace host {

class FeatureParameters : public Component<OrvIKvFeatureParameters> {
    CATDeclareClass;

  public:
    unsigned char IsTemporarilyModified(const CATString& iName) override {
        return _modified.count(iName.ConvertToChar()) == 0 ? 0 : 1;
    }
    void SetTemporarilyModified(const CATString& iName, unsigned char iModified) override {
        if (iModified == 0)
            _modified.erase(iName.ConvertToChar());
        else
            _modified.insert(iName.ConvertToChar());
    }
    void ForgetModifications() override { _modified.clear(); }

  private:
    std::set<std::string> _modified; // names
};

CATImplementClass(FeatureParameters, Implementation, CATBaseUnknown, CATNull);

OrvIKvFeatureParameters_var NewFeatureParameters() {
    return Adopt<OrvIKvFeatureParameters>(new FeatureParameters);
}

} // namespace host

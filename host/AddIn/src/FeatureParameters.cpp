#include "host/FeatureParameters.h"

#include "CATMacForIUnknown.h"
#include "host/Component.h"

#include <functional>
#include <string>
#include <string_view>
#include <unordered_set>

CATImplementInterface(OrvIKvFeatureParameters, CATBaseUnknown);

namespace host {

class FeatureParameters : public Component<OrvIKvFeatureParameters> {
    CATDeclareClass;

  public:
    unsigned char IsTemporarilyModified(const CATString& iName) override {
        return _modified.contains(std::string_view(iName.ConvertToChar())) ? 1 : 0;
    }
    void SetTemporarilyModified(const CATString& iName, unsigned char iModified) override {
        if (iModified == 0)
            _modified.erase(iName.ConvertToChar());
        else
            _modified.insert(iName.ConvertToChar());
    }
    void ForgetModifications() override { _modified.clear(); }

  private:
    struct NameHash {
        using is_transparent = void;
        std::size_t operator()(std::string_view iName) const { return std::hash<std::string_view>()(iName); }
    };

    std::unordered_set<std::string, NameHash, std::equal_to<>> _modified; // names
};

CATImplementClass(FeatureParameters, Implementation, CATBaseUnknown, CATNull);

OrvIKvFeatureParameters_var NewFeatureParameters() {
    return Adopt<OrvIKvFeatureParameters>(new FeatureParameters);
}

} // namespace host

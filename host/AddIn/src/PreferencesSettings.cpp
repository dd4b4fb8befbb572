#include "OrvIKvPreferencesSettings.h"

#include "CATMacForIUnknown.h"
#include "PreferenceStore.h"
#include "host/Component.h"

CATImplementInterface(OrvIKvPreferencesSettings, CATBaseUnknown);

namespace host {

static constexpr const char* preferencesFault = "preferences";

// The service: it asks the store that is in use.
class PreferencesSettings : public Component<OrvIKvPreferencesSettings> {
    CATDeclareClass;

  public:
    HRESULT GetPanelRectangle(int& oLeft, int& oTop, int& oThird, int& oFourth) override {
        if (FaultPoints::Fails(preferencesFault) || PreferenceStore::InUse() == nullptr)
            return E_FAIL;
        const std::optional<PanelRectangle> stored = PreferenceStore::InUse()->Rectangle();
        if (!stored.has_value())
            return E_FAIL;
        oLeft = stored->left;
        oTop = stored->top;
        oThird = stored->third;
        oFourth = stored->fourth;
        return S_OK;
    }

    HRESULT SetPanelRectangle(int iLeft, int iTop, int iThird, int iFourth) override {
        if (FaultPoints::Fails(preferencesFault) || PreferenceStore::InUse() == nullptr)
            return E_FAIL;
        return PreferenceStore::InUse()->Store(PanelRectangle{iLeft, iTop, iThird, iFourth}) ? S_OK : E_FAIL;
    }
};

CATImplementClass(PreferencesSettings, Implementation, CATBaseUnknown, CATNull);

} // namespace host

HRESULT OrvKvGetOrvKvPreferencesSettings(const IID& iInterface, void** oPointer) {
    if (oPointer == nullptr)
        return E_FAIL;
    *oPointer = nullptr;
    if (host::PreferenceStore::InUse() == nullptr || host::FaultPoints::Fails(host::preferencesFault))
        return E_FAIL;
    const OrvIKvPreferencesSettings_var service =
        host::Adopt<OrvIKvPreferencesSettings>(new host::PreferencesSettings);
    return service->QueryInterface(iInterface, oPointer);
}

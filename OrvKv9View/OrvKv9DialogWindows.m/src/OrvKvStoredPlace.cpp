#include "OrvKvStoredPlace.h"

#include "CATDialog.h"
#include "OrvIKvPreferencesSettings.h"

namespace {

// The preferences with a reference, or null.
OrvIKvPreferencesSettings* Preferences() {
    void* pointer = nullptr;
    const HRESULT result = OrvKvGetOrvKvPreferencesSettings(IID_OrvIKvPreferencesSettings, &pointer);
    return FAILED(result) ? nullptr : static_cast<OrvIKvPreferencesSettings*>(pointer);
}

} // namespace

void OrvKvStoredPlace::Restore(CATDialog& ioDialog, int iHeight, int iWidth) {
    int left = 0;
    int top = 0;
    OrvIKvPreferencesSettings* const preferences = Preferences();
    if (preferences != nullptr) {
        int storedHeight = 0;
        int storedWidth = 0;
        if (FAILED(preferences->GetPanelRectangle(left, top, storedHeight, storedWidth)))
            left = top = 0;
        preferences->Release();
    }
    ioDialog.SetRectDimensions(left, top, iHeight, iWidth);
}

void OrvKvStoredPlace::Store(const CATDialog& iDialog) {
    OrvIKvPreferencesSettings* const preferences = Preferences();
    if (preferences == nullptr)
        return;
    int left = 0;
    int top = 0;
    int height = 0;
    int width = 0;
    iDialog.GetRectDimensions(&left, &top, &height, &width);
    preferences->SetPanelRectangle(left, top, height, width);
    preferences->Release();
}

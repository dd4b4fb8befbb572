#include "Samples.h"

CATImplementClass(SampleObject, Implementation, CATBaseUnknown, CATNull);
CATImplementClass(SampleNotification, Implementation, CATNotification, CATNull);
CATImplementClass(SpecialNotification, Implementation, SampleNotification, CATNull);
CATImplementClass(OtherNotification, Implementation, CATNotification, CATNull);
CATImplementClass(SampleError, Implementation, CATError, CATNull);
CATImplementInterface(SampleInterface, CATBaseUnknown);

int SampleObject::living = 0;
int SampleNotification::living = 0;
int SampleError::living = 0;
int SampleComponent::living = 0;

HRESULT SampleComponent::QueryInterface(const IID& iInterface, void** oPointer) {
    if (oPointer == nullptr || iInterface != IID_SampleInterface)
        return SampleInterface::QueryInterface(iInterface, oPointer);
    AddRef();
    *oPointer = static_cast<SampleInterface*>(this);
    return S_OK;
}

CATBaseUnknown* SampleComponent::QueryInterface(const char* iName) {
    return SampleInterface::QueryInterface(iName);
}

PlatformTest::~PlatformTest() {
    CATError::CATCleanLastError();
    EXPECT_EQ(0, SampleObject::living);
    EXPECT_EQ(0, SampleNotification::living);
    EXPECT_EQ(0, SampleError::living);
    EXPECT_EQ(0, SampleComponent::living);
}

#include "ParameterFrameBuilder.h"

#include "Parameter.h"
#include "ParameterFrame.h"

namespace host {

CATImplementClass(ParameterFrameBuilder, TransientExtension, CATBaseUnknown, Parameter);

CATDlgFrame* ParameterFrameBuilder::BuildFrame(const CATIParmPublisher_var&, CATDialog* iParent, int iOptions,
                                               const CATUnicodeString& iName) {
    if (iParent == nullptr)
        return nullptr;
    const CATUnicodeString name = iName.GetLengthInByte() > 0 ? iName : _owner.Name();
    return new ParameterFrame(_owner, iParent, name.ConvertToChar(), iOptions);
}

} // namespace host

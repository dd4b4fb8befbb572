#include "OrvKvLayout.h"

namespace {

CATDlgAttachment Attachment(int iValue) {
    return static_cast<CATDlgAttachment>(iValue);
}

CATDialog* const EndOfList = nullptr;

} // namespace

OrvKvLayout& OrvKvLayout::Rows(CATDialog* iChild, const OrvKvFrom& iLines) {
    if (iChild == nullptr)
        return *this;
    if (iLines._hasLeading)
        _container->SetHorizontalAttachment(iLines._leading, Attachment(OrvKvFrom::leadingEdge), iChild,
                                            EndOfList);
    if (iLines._trailingMode != 0)
        _container->SetHorizontalAttachment(iLines._trailing, Attachment(iLines._trailingMode), iChild,
                                            EndOfList);
    return *this;
}

OrvKvLayout& OrvKvLayout::Columns(CATDialog* iChild, const OrvKvFrom& iLines) {
    if (iChild == nullptr)
        return *this;
    if (iLines._hasLeading)
        _container->SetVerticalAttachment(iLines._leading, Attachment(OrvKvFrom::leadingEdge), iChild,
                                          EndOfList);
    if (iLines._trailingMode != 0)
        _container->SetVerticalAttachment(iLines._trailing, Attachment(iLines._trailingMode), iChild,
                                          EndOfList);
    return *this;
}

OrvKvLayout& OrvKvLayout::Reset(CATDialog* iChild) {
    if (iChild != nullptr)
        _container->ResetAttachment(iChild, EndOfList);
    return *this;
}

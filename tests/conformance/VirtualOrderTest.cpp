// The order of the virtual operations of the base object: modules that were built apart call them by
// position.

#include "CATBaseUnknown.h"

#include "Samples.h"

#include <cstddef>
#include <cstring>
#include <type_traits>

// Where a pointer to a virtual member holds one more than the byte offset of its entry in the table.
#if defined(__GNUC__) && defined(__x86_64__)
#define KELVANE_READS_VIRTUAL_ENTRIES 1
#endif

#ifdef KELVANE_READS_VIRTUAL_ENTRIES

namespace {

class VirtualOrder : public PlatformTest {};

template<class Method>
std::ptrdiff_t EntryOf(Method iMethod) {
    struct Representation {
        std::ptrdiff_t entry;
        std::ptrdiff_t adjustment;
    };
    Representation pointer{};
    static_assert(sizeof pointer == sizeof iMethod, "a pointer to a member is an entry and an adjustment");
    std::memcpy(&pointer, &iMethod, sizeof pointer);
    EXPECT_EQ(1, pointer.entry % 2) << "not virtual";
    EXPECT_EQ(0, pointer.adjustment);
    return (pointer.entry - 1) / static_cast<std::ptrdiff_t>(sizeof(void*));
}

typedef HRESULT (CATBaseUnknown::*QueryByIdentifier)(const IID&, void**);
typedef CATBaseUnknown* (CATBaseUnknown::*QueryByName)(const char*);

} // namespace

CERTAIN(VirtualOrder, TheBaseObjectHasItsOperationsInTheGivenOrder) {
    EXPECT_EQ(0, EntryOf(static_cast<QueryByIdentifier>(&CATBaseUnknown::QueryInterface)));
    EXPECT_EQ(1, EntryOf(&CATBaseUnknown::AddRef));
    EXPECT_EQ(2, EntryOf(&CATBaseUnknown::Release));
    EXPECT_EQ(3, EntryOf(&CATBaseUnknown::GetTypeInfoCount));
    EXPECT_EQ(4, EntryOf(&CATBaseUnknown::GetTypeInfo));
    EXPECT_EQ(5, EntryOf(&CATBaseUnknown::GetIDsOfNames));
    EXPECT_EQ(6, EntryOf(&CATBaseUnknown::Invoke));
    EXPECT_EQ(7, EntryOf(static_cast<QueryByName>(&CATBaseUnknown::QueryInterface)));
    // The destructor has the entries 8 and 9 to itself: one to destroy, one to delete as well.
    EXPECT_TRUE(std::has_virtual_destructor<CATBaseUnknown>::value);
    EXPECT_EQ(10, EntryOf(&CATBaseUnknown::GetMetaObject));
    EXPECT_EQ(11, EntryOf(&CATBaseUnknown::IsA));
    EXPECT_EQ(12, EntryOf(&CATBaseUnknown::IsAKindOf));
    EXPECT_EQ(13, EntryOf(&CATBaseUnknown::GetImpl));
    EXPECT_EQ(14, EntryOf(&CATBaseUnknown::SetImpl));
    EXPECT_EQ(15, EntryOf(&CATBaseUnknown::IsNull));
    EXPECT_EQ(16, EntryOf(&CATBaseUnknown::IsEqual));
    EXPECT_EQ(17, EntryOf(&CATBaseUnknown::ChangeComponentState));
}

CERTAIN(VirtualOrder, ANotificationAddsNoOperationBeforeThoseOfItsBase) {
    EXPECT_EQ(10, EntryOf(&CATNotification::GetMetaObject));
    EXPECT_EQ(11, EntryOf(&CATNotification::IsA));
    EXPECT_EQ(12, EntryOf(&CATNotification::IsAKindOf));
    EXPECT_EQ(10, EntryOf(&SampleNotification::GetMetaObject));
    EXPECT_EQ(11, EntryOf(&SampleNotification::IsA));
    EXPECT_EQ(12, EntryOf(&SampleNotification::IsAKindOf));
}

#endif

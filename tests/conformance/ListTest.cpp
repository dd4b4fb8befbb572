// Lists: positions count from 1.

#include "CATListValCATBaseUnknown_var.h"
#include "CATListValCATString.h"
#include "CATListValCATUnicodeString.h"
#include "CATRawColldouble.h"
#include "CATRawCollint.h"

#include "Samples.h"

#include <type_traits>

namespace {

class Lists : public PlatformTest {
  protected:
    static CATRawCollint Numbers() {
        CATRawCollint numbers;
        for (const int number : {10, 20, 30, 20})
            numbers.Append(number);
        return numbers;
    }
    static std::vector<int> Content(const CATRawCollint& iNumbers) {
        std::vector<int> content;
        for (int position = 1; position <= iNumbers.Size(); ++position)
            content.push_back(iNumbers[position]);
        return content;
    }
};

} // namespace

CERTAIN(Lists, PositionsCountFromOne) {
    const CATRawCollint numbers = Numbers();
    EXPECT_EQ(4, numbers.Size());
    EXPECT_EQ(10, numbers[1]);
    EXPECT_EQ(20, numbers[4]);
}

CERTAIN(Lists, AnEntryIsReplacedThroughItsPosition) {
    CATRawCollint numbers = Numbers();
    numbers[2] = 21;
    EXPECT_EQ((std::vector<int>{10, 21, 30, 20}), Content(numbers));
}

ASSUMED(Lists, AValueIsLocatedByItsPositionOrZero, "recalled: 1-based position, 0 for none") {
    EXPECT_EQ(2, Numbers().Locate(20));
    EXPECT_EQ(4, Numbers().Locate(20, 3));
    EXPECT_EQ(0, Numbers().Locate(99));
    EXPECT_EQ(0, Numbers().Locate(10, 2));
    EXPECT_EQ(0, Numbers().Locate(10, 99));
}

CERTAIN(Lists, RemovingAValueTakesTheFirstEqualOne) {
    CATRawCollint numbers = Numbers();
    numbers.RemoveValue(20);
    EXPECT_EQ((std::vector<int>{10, 30, 20}), Content(numbers));
}

ASSUMED(Lists, RemovingAValueThatIsNotThereChangesNothing,
        "recalled; the answer is 1 for done and 0 for not") {
    CATRawCollint numbers = Numbers();
    EXPECT_EQ(0, numbers.RemoveValue(99));
    EXPECT_EQ(4, numbers.Size());
    EXPECT_EQ(1, numbers.RemoveValue(10));
    EXPECT_EQ(3, numbers.Size());
}

ASSUMED(Lists, EntriesAreRemovedByPositionOrAllTogether, "recalled: usual use of the lists") {
    CATRawCollint numbers = Numbers();
    numbers.RemovePosition(1);
    EXPECT_EQ((std::vector<int>{20, 30, 20}), Content(numbers));
    numbers.RemovePosition(3);
    EXPECT_EQ((std::vector<int>{20, 30}), Content(numbers));
    numbers.RemoveAll();
    EXPECT_EQ(0, numbers.Size());
}

ASSUMED(Lists, AListIsAppendedToAListAndToItself, "recalled: usual use of the lists") {
    CATRawCollint numbers;
    numbers.Append(1);
    numbers.Append(2);
    numbers.Append(numbers);
    EXPECT_EQ((std::vector<int>{1, 2, 1, 2}), Content(numbers));
}

ASSUMED(Lists, ACopyIsIndependent, "recalled: copy and assignment by value") {
    CATRawCollint numbers = Numbers();
    CATRawCollint assigned;
    assigned = numbers;
    numbers.RemoveAll();
    EXPECT_EQ(4, assigned.Size());
}

ASSUMED(Lists, APositionOutsideRaisesAnErrorAndChangesNothing,
        "open: an error that a guarded block catches, rather than memory that nobody owns") {
    for (const int position : {0, -1, 5}) {
        CATRawCollint numbers = Numbers();
        EXPECT_NE(nullptr, ErrorRaisedBy([&] { static_cast<void>(numbers[position]); })) << position;
        EXPECT_NE(nullptr, ErrorRaisedBy([&] { numbers.RemovePosition(position); })) << position;
        EXPECT_EQ((std::vector<int>{10, 20, 30, 20}), Content(numbers)) << position;
    }
    CATRawCollint numbers = Numbers();
    EXPECT_EQ(nullptr, ErrorRaisedBy([&] { numbers.RemovePosition(4); }));
}

CERTAIN(Lists, AListOfHandlesHoldsReferences) {
    auto* object = new SampleObject;
    CATListValCATBaseUnknown_var handles;
    handles.Append(CATBaseUnknown_var(object));
    handles.Append(NULL_var);
    object->Release();
    EXPECT_EQ(1, SampleObject::living);
    EXPECT_EQ(2, handles.Locate(NULL_var));
    EXPECT_STREQ("SampleObject", handles[1]->IsA());
    handles.RemovePosition(1);
    EXPECT_EQ(0, SampleObject::living);
    EXPECT_EQ(1, handles.Size());
}

ASSUMED(Lists, EveryKindHasItsShortSpelling, "recalled: CATLISTV and CATLISTP") {
    EXPECT_TRUE((std::is_same<CATListValCATUnicodeString, CATLISTV(CATUnicodeString)>::value));
    EXPECT_TRUE((std::is_same<CATListValCATString, CATLISTV(CATString)>::value));
    EXPECT_TRUE((std::is_same<CATListValCATBaseUnknown_var, CATLISTV(CATBaseUnknown_var)>::value));
}

CERTAIN(Lists, TextsAndNumbersAreLocatedByValue) {
    CATListValCATUnicodeString texts;
    texts.Append("H7");
    texts.Append("g6");
    EXPECT_EQ(2, texts.Locate("g6"));
    CATListValCATString keys;
    keys.Append("Max");
    EXPECT_EQ(1, keys.Locate("Max"));
    CATRawColldouble numbers;
    numbers.Append(0.25);
    EXPECT_EQ(1, numbers.Locate(0.25));
}

#ifndef CATOrderedList_H
#define CATOrderedList_H

#include <vector>

// Raises the platform's error for a position outside a list.
[[noreturn]] void CATRaiseBadPosition(int iPosition, int iSize);

// The ordered list behind the list classes of the platform. Positions count from 1; reading or removing at a
// position outside 1..Size() raises the platform's error and changes nothing.
template<class Value>
class CATOrderedList {
  public:
    int Size() const { return static_cast<int>(_values.size()); }
    void Append(const Value& iValue) { _values.push_back(iValue); }
    void Append(const CATOrderedList& iOther) {
        const std::vector<Value> added(iOther._values);
        _values.insert(_values.end(), added.begin(), added.end());
    }

    Value& operator[](int iPosition) { return _values[Index(iPosition)]; }
    const Value& operator[](int iPosition) const { return _values[Index(iPosition)]; }

    // Position of the first value equal to iValue at or after iFrom, or 0.
    int Locate(const Value& iValue, int iFrom = 1) const {
        for (int position = iFrom < 1 ? 1 : iFrom; position <= Size(); ++position)
            if (_values[static_cast<std::size_t>(position - 1)] == iValue)
                return position;
        return 0;
    }

    void RemoveAll() { _values.clear(); }
    void RemovePosition(int iPosition) {
        _values.erase(_values.begin() + static_cast<std::ptrdiff_t>(Index(iPosition)));
    }
    // Removes the first equal value; 1 when there was one, 0 otherwise.
    int RemoveValue(const Value& iValue) {
        const int position = Locate(iValue);
        if (position == 0)
            return 0;
        RemovePosition(position);
        return 1;
    }

  private:
    std::size_t Index(int iPosition) const {
        if (iPosition < 1 || iPosition > Size())
            CATRaiseBadPosition(iPosition, Size());
        return static_cast<std::size_t>(iPosition - 1);
    }

    std::vector<Value> _values;
};

// The platform's short spellings: a list of values and a list of pointers.
#define CATLISTV(iValue) CATListVal##iValue
#define CATLISTP(iClass) CATListPtr##iClass

#endif

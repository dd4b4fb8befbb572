#ifndef OrvKvNameIndex_H
#define OrvKvNameIndex_H

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <vector>

// Finds names in a list without going through it. The first of equal names counts, as it does in a search
// from the front.
//
//     OrvKvNameIndex positions;
//     positions.Add("D", 1);
//     positions.Find("D") == 1; positions.Find("T") == OrvKvNameIndex::Absent;
//
// A name costs no allocation of its own: all texts stand in one buffer, and a table that is at most half full
// tells where.
class OrvKvNameIndex {
  public:
    static constexpr int Absent = -1;

    // Keeps the memory for the next names.
    void Clear() {
        _texts.clear();
        _slots.clear();
        _names = 0;
    }
    // Makes room for as many names.
    void Reserve(int iNames) {
        if (iNames > 0)
            MakeSlots(static_cast<std::size_t>(iNames));
    }
    // Gives the name that place, or leaves it the one that it has. The place that it has then.
    int Add(const char* iName, int iPlace) {
        MakeSlots(_names + 1);
        const std::uint32_t hash = HashOf(iName);
        Slot& slot = _slots[SlotOf(iName, hash)];
        if (slot.hash != Free)
            return slot.place;
        slot.hash = hash;
        slot.text = _texts.size();
        slot.place = iPlace;
        _texts.insert(_texts.end(), iName, iName + std::strlen(iName) + 1);
        ++_names;
        return iPlace;
    }
    int Find(const char* iName) const {
        return _names == 0 ? Absent : _slots[SlotOf(iName, HashOf(iName))].place;
    }

  private:
    static constexpr std::uint32_t Free = 0;

    struct Slot {
        std::uint32_t hash = Free;
        int place = Absent;
        std::size_t text = 0; // where the name begins in _texts
    };

    // Never Free.
    static std::uint32_t HashOf(const char* iName) {
        std::uint64_t hash = 14695981039346656037ULL;
        for (const char* each = iName; *each != '\0'; ++each)
            hash = (hash ^ static_cast<unsigned char>(*each)) * 1099511628211ULL;
        return static_cast<std::uint32_t>(hash ^ (hash >> 32)) | 1U;
    }

    // The slot that the name has, or would have.
    std::size_t SlotOf(const char* iName, std::uint32_t iHash) const {
        const std::size_t mask = _slots.size() - 1;
        std::size_t slot = (iHash >> 1) & mask;
        while (_slots[slot].hash != Free &&
               (_slots[slot].hash != iHash || std::strcmp(&_texts[_slots[slot].text], iName) != 0))
            slot = (slot + 1) & mask;
        return slot;
    }

    void MakeSlots(std::size_t iNames) {
        if (2 * iNames <= _slots.size())
            return;
        std::size_t count = 16;
        while (count < 2 * iNames)
            count *= 2;
        if (_names == 0) {
            _slots.assign(count, Slot());
            return;
        }
        std::vector<Slot> before(count);
        before.swap(_slots);
        for (const Slot& slot : before)
            if (slot.hash != Free)
                _slots[SlotOf(&_texts[slot.text], slot.hash)] = slot;
    }

    std::vector<char> _texts; // the names, a null byte behind each
    std::vector<Slot> _slots; // a power of two of them, at most half in use
    std::size_t _names = 0;
};

#endif

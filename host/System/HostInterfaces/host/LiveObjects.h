#ifndef host_LiveObjects_H
#define host_LiveObjects_H

#include "CATBaseUnknown.h"

#include <map>
#include <string>
#include <vector>

namespace host {

// All objects that are alive, for leak checks: compare CountByClass() before and after.
//
// An object joins when it is constructed and leaves when it is destroyed, whether it lives on the heap or
// not.
class LiveObjects {
  public:
    // Number of live objects whose class is exactly iClassName.
    static int Count(const char* iClassName);
    static std::map<std::string, int> CountByClass();
    // The objects themselves, youngest first. No reference is added.
    static std::vector<CATBaseUnknown*> All();

  private:
    friend class ::CATBaseUnknown;
    static void Join(CATBaseUnknown& ioObject) {
        ioObject._nextLive = _youngest;
        if (_youngest != nullptr)
            _youngest->_previousLive = &ioObject;
        _youngest = &ioObject;
    }
    static void Leave(CATBaseUnknown& ioObject) {
        (ioObject._previousLive == nullptr ? _youngest : ioObject._previousLive->_nextLive) =
            ioObject._nextLive;
        if (ioObject._nextLive != nullptr)
            ioObject._nextLive->_previousLive = ioObject._previousLive;
    }

    static CATBaseUnknown* _youngest;
};

} // namespace host

#endif

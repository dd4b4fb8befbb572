#ifndef ReturnJournal_H
#define ReturnJournal_H

namespace host {

// Keeps what ErrorInspection tells of the calls of CATError::GetReturn.
class ReturnJournal {
  public:
    static void Add(int iKind, const char* iFile, int iLine);
};

} // namespace host

#endif

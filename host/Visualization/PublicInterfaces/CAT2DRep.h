#ifndef CAT2DRep_H
#define CAT2DRep_H

#include "CATBaseUnknown.h"
#include "CATMacForIUnknown.h"

#include <cstddef>
#include <vector>

class CAT2DViewer;

// What a 2D viewer can show. Made with new, and released by whoever made it; viewers hold no reference. When
// the last reference goes, the viewers that show it show nothing.
class CAT2DRep : public CATBaseUnknown {
    CATDeclareClass;

  public:
    CAT2DRep(const CAT2DRep&) = delete;
    CAT2DRep& operator=(const CAT2DRep&) = delete;

    // Gives null where memory is short; the new-expression is then null and no constructor runs.
    static void* operator new(std::size_t iSize) noexcept;
    static void operator delete(void* iMemory) noexcept;

  protected:
    CAT2DRep();
    ~CAT2DRep() override;

  private:
    friend class CAT2DViewer;

    std::vector<CAT2DViewer*> _viewers; // those that show it; not owned
};

#endif

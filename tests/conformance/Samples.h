#ifndef Samples_H
#define Samples_H

#include "CATCommand.h"
#include "CATError.h"
#include "CATErrorMacros.h"
#include "CATMacForInterfaces.h"
#include "CATNotification.h"
#include "Facts.h"

#include <memory>
#include <string>
#include <vector>

// Classes that the facts are tried on, each counting its living objects, and the fixture that expects every
// one of them to be gone at the end of a test.

// Counts the living objects of a class that has it as a member.
class Counted {
  public:
    explicit Counted(int& ioCount) : _count(ioCount) { ++_count; }
    Counted(const Counted& iOther) : _count(iOther._count) { ++_count; }
    Counted& operator=(const Counted&) { return *this; }
    ~Counted() { --_count; }

  private:
    int& _count;
};

class SampleObject : public CATBaseUnknown {
    CATDeclareClass;

  public:
    static int living;

  private:
    Counted _counted{living};
};

class SampleNotification : public CATNotification {
    CATDeclareClass;

  public:
    explicit SampleNotification(int iAutomaticDelete = 0) : CATNotification(iAutomaticDelete) {}
    static int living;

  private:
    Counted _counted{living};
};

class SpecialNotification : public SampleNotification {
    CATDeclareClass;
};

class OtherNotification : public CATNotification {
    CATDeclareClass;
};

class SampleError : public CATError {
    CATDeclareClass;

  public:
    explicit SampleError(const char* iKey = "", const char* iCatalog = "") : CATError(iKey, iCatalog) {}
    static int living;

  private:
    Counted _counted{living};
};

// An interface, and an object that has it.
class SampleInterface : public CATBaseUnknown {
    CATDeclareInterface;

  public:
    virtual int Answer() = 0;
};
CATDeclareHandler(SampleInterface, CATBaseUnknown);

class SampleComponent : public SampleInterface {
  public:
    HRESULT QueryInterface(const IID& iInterface, void** oPointer) override;
    CATBaseUnknown* QueryInterface(const char* iName) override;
    int Answer() override { return 42; }
    static int living;

  private:
    Counted _counted{living};
};

// What happened, in order.
typedef std::vector<std::string> Journal;

// An owner that releases its object.
struct Releaser {
    void operator()(CATBaseUnknown* iObject) const { iObject->Release(); }
};
template<class Class>
using Owned = std::unique_ptr<Class, Releaser>;

// The error that iAction raises, or null.
template<class Action>
Owned<CATError> ErrorRaisedBy(const Action& iAction) {
    Owned<CATError> error;
    CATTry {
        iAction();
    }
    CATCatch(CATError, pError) {
        error.reset(pError);
    }
    CATEndTry;
    return error;
}

// Base of all fixtures.
class PlatformTest : public testing::Test {
  protected:
    ~PlatformTest() override; // runs when the members of the fixture are gone
};

#endif

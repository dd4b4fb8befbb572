#ifndef Parameter_H
#define Parameter_H

#include "CATICkeParm.h"
#include "CATMacForIUnknown.h"
#include "CATNotification.h"
#include "Magnitude.h"
#include "ParameterAsStored.h"
#include "ParameterEdition.h"
#include "ParameterEvents.h"
#include "ParameterTolerance.h"
#include "host/Component.h"

#include <memory>

namespace host {

class Publisher;

// A parameter of any magnitude.
class Parameter : public Component<CATICkeParm> {
    CATDeclareClass;

  public:
    // A parameter with the value zero, false or empty; a null handle where it cannot be made.
    static CATICkeParm_var New(Magnitude& iMagnitude, const CATUnicodeString& iName);
    // The same with a value in storage units, and with a text. A null handle also for a value that the
    // magnitude does not take.
    static CATICkeParm_var New(Magnitude& iMagnitude, const CATUnicodeString& iName, double iStored);
    static CATICkeParm_var NewText(const CATUnicodeString& iName, const CATUnicodeString& iText);
    // The parameter behind any of its interfaces; null for another object and for null.
    static Parameter* Behind(const CATBaseUnknown* iObject);

    CATICkeType_var Type() override;
    double AsReal() override;
    int AsInteger() override;
    CATUnicodeString AsString() override { return Show(); }
    HRESULT Valuate(double iValue) override;
    HRESULT Valuate(int iValue) override;
    HRESULT Valuate(const CATUnicodeString& iText) override;

    CATUnicodeString Name() override { return _name; }
    CATUnicodeString RelativeName(const CATIParmPublisher_var& iPublisher) override;
    CATUnicodeString Show() override;
    CATICkeInst_var Value() override;
    void SetUserAccessMode(int iMode) override;
    int GetUserAccessMode() override { return _accessMode; }

    // The number in storage units; E_FAIL and the old one for a number that the magnitude does not take.
    double Stored() const { return _stored; }
    HRESULT Store(double iStored);
    // Runs the callbacks for iNotification; a callback may let go of the parameter.
    void Raise(CATNotification& ioNotification);

    // Null while nobody publishes the parameter. It tells when it stops to.
    Publisher* PublishedBy() const { return _publisher; }
    void SetPublisher(Publisher* iPublisher) { _publisher = iPublisher; }

    // Whether the value can be stepped, and by how much, in storage units.
    bool HasSteps() const { return _magnitude.HasSteps(); }
    double Increment() { return Edition().manipulator.Increment(); }

    // The edition frames, which keep the parameter alive and are told of every change.
    void AddFrame(ParameterFrame& ioFrame) { Edition().frames.push_back(&ioFrame); }
    void RemoveFrame(const ParameterFrame& iFrame) { std::erase(Edition().frames, &iFrame); }

  protected:
    void* Find(const IID& iInterface) override;

  private:
    Parameter(Magnitude& iMagnitude, const CATUnicodeString& iName);
    static Parameter* Make(Magnitude& iMagnitude, const CATUnicodeString& iName);
    static CATICkeParm_var Adopted(Parameter* iMade);
    ParameterEdition& Edition();
    void TellFrames(bool iIsNew);

    CATUnicodeString _name;
    Magnitude& _magnitude;
    Publisher* _publisher = nullptr;
    double _stored = 0.0;
    std::unique_ptr<CATUnicodeString> _text; // of a STRING
    int _accessMode = 3;
    ParameterEvents _events{*this};
    ParameterAsStored _asStored{*this};
    ParameterTolerance _tolerance{*this};
    std::unique_ptr<ParameterEdition> _edition; // null while nobody has asked for it
};

} // namespace host

#endif

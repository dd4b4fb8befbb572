#ifndef host_FaultPoints_H
#define host_FaultPoints_H

#include <map>
#include <string>

namespace host {

// Failures on request. Every host call that can fail asks Fails("name of the call") first.
//
//     FaultPoints::StartCounting();   ... run ...   const int calls = FaultPoints::Passed();
//     FaultPoints::FailCall(n);       ... run again: call number n (from 1) fails, all others work ...
//     FaultPoints::Stop();
//
// The environment variable KELVANE_FAIL_CALL=n arms the n-th call from the start of the program;
// KELVANE_FAIL_CALL=name:n the n-th call of that name.
class FaultPoints {
  public:
    // True when this call has to fail. Costs one test of a flag while nothing is armed.
    static bool Fails(const char* iName) { return _watching && Decide(iName); }

    // The same for a call that never fails by itself but may raise an error from below: it takes part only
    // when it is asked for by its name, and is counted under that name alone.
    static bool FailsByName(const char* iName) { return _watching && DecideByName(iName); }

    static void StartCounting();
    static void FailCall(int iNumber, const std::string& iName = std::string());
    static void Stop();

    // Calls passed since the last StartCounting or FailCall, all together and by name.
    static int Passed();
    static std::map<std::string, int> PassedByName();

    // Arms what KELVANE_FAIL_CALL asks for. False when the variable is there but makes no sense.
    static bool ArmFromEnvironment();

  private:
    static bool Decide(const char* iName);
    static bool DecideByName(const char* iName);
    static bool _watching;
};

} // namespace host

#endif

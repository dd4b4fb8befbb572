#ifndef Facts_H
#define Facts_H

#include <gtest/gtest.h>

#include <iosfwd>
#include <string>
#include <vector>

// What the suite holds to be true of the platform. Each fact is one test and says how sure it is:
//
//     CERTAIN(Results, AFailureIsNegative) { EXPECT_TRUE(FAILED(E_FAIL)); }
//     ASSUMED(Results, NoInterfaceHasItsUsualValue, "usual value, in no page that was found") { ... }
//
// The subject is a fixture class of the file. A certain fact is documented or demanded by the panels; an
// assumed one is a choice, and its reason says why it is made so. `conformance_tests --list-assumed` prints
// the choices: these are the ones to check first on another platform.
namespace conformance {

enum class Mark { Certain, Assumed };

struct Fact {
    std::string subject;
    std::string sentence;
    Mark mark = Mark::Certain;
    std::string reason; // empty for a certain fact

    std::string Name() const { return subject + "." + sentence; }
};

// All facts of the suite.
class Facts {
  public:
    static bool AddCertain(const char* iSubject, const char* iSentence);
    static bool AddAssumed(const char* iSubject, const char* iSentence, const char* iReason);

    static const std::vector<Fact>& All();
    // One line for each fact with that mark, in alphabetical order: its name, for an assumed one with its
    // reason.
    static void Print(std::ostream& ioOut, Mark iMark);
};

} // namespace conformance

#define CERTAIN(iSubject, iSentence)                                                                         \
    [[maybe_unused]] static const bool iSubject##iSentence##Fact =                                           \
        conformance::Facts::AddCertain(#iSubject, #iSentence);                                               \
    TEST_F(iSubject, iSentence)

#define ASSUMED(iSubject, iSentence, iReason)                                                                \
    [[maybe_unused]] static const bool iSubject##iSentence##Fact =                                           \
        conformance::Facts::AddAssumed(#iSubject, #iSentence, iReason);                                      \
    TEST_F(iSubject, iSentence)

#endif

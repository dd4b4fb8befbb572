// Runs the suite, or lists what it holds to be true of the platform:
//     conformance_tests --list-certain
//     conformance_tests --list-assumed
#include "Facts.h"
#include "ProgramPath.h"

#include <iostream>

int main(int iCount, char** iArguments) {
    testing::InitGoogleTest(&iCount, iArguments);
    conformance::SetProgramPath(iArguments[0]);
    if (iCount == 1)
        return RUN_ALL_TESTS();
    const std::string option(iArguments[1]);
    if (iCount == 2 && option == "--list-certain") {
        conformance::Facts::Print(std::cout, conformance::Mark::Certain);
        return 0;
    }
    if (iCount == 2 && option == "--list-assumed") {
        conformance::Facts::Print(std::cout, conformance::Mark::Assumed);
        return 0;
    }
    std::cerr << "conformance_tests: unknown arguments from '" << option
              << "' on; use --list-certain or --list-assumed\n";
    return 2;
}

#include "AuditedTest.h"

namespace support {

AuditedTest::~AuditedTest() {
    for (const std::string& finding : _audit.FindingsAtEnd())
        ADD_FAILURE() << "left behind: " << finding;
    Audit::CleanUp();
}

void AuditedTest::TearDown() {
    for (const std::string& finding : _audit.FindingsOfBody())
        ADD_FAILURE() << "left behind: " << finding;
}

} // namespace support

#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

namespace support {

// Access rights of files hold while it lives, for a program of the superuser too.
class OrdinaryUser {
  public:
    OrdinaryUser() : _isSuperuser(geteuid() == 0) { Become(nobody); }
    ~OrdinaryUser() { Become(0); }
    OrdinaryUser(const OrdinaryUser&) = delete;
    OrdinaryUser& operator=(const OrdinaryUser&) = delete;

  private:
    static constexpr uid_t nobody = 65534;

    void Become(uid_t iUser) const {
        if (_isSuperuser) {
            EXPECT_EQ(seteuid(iUser), 0);
        }
    }

    bool _isSuperuser;
};

} // namespace support

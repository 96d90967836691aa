// Permissions mean nothing to the superuser, who runs the tests on many a build machine.
#pragma once

#include <functional>

namespace nimb::test
{

/// While it lives, the process acts as a user without rights of its own; without effect for an ordinary user.
class OrdinaryUser
{
public:
    OrdinaryUser();
    ~OrdinaryUser();
    OrdinaryUser(const OrdinaryUser &) = delete;
    OrdinaryUser &operator=(const OrdinaryUser &) = delete;

    /// Does something with the rights it had before.
    void pause(const std::function<void()> &action) const;

private:
    bool m_wasSuperuser;
};

} // namespace nimb::test

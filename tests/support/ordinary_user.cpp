#include "ordinary_user.h"

#include <gtest/gtest.h>

#include <grp.h>
#include <unistd.h>

namespace nimb::test
{
namespace
{

constexpr unsigned superuser = 0;
constexpr unsigned nobody = 65534;

// The saved identity stays the superuser's, so that there is a way back. Groups have rights too.
void becomeNobody()
{
    EXPECT_EQ(setgroups(0, nullptr), 0);
    EXPECT_EQ(setresgid(nobody, nobody, superuser), 0);
    EXPECT_EQ(setresuid(nobody, nobody, superuser), 0);
}

void becomeSuperuser()
{
    EXPECT_EQ(setresuid(superuser, superuser, superuser), 0);
    EXPECT_EQ(setresgid(superuser, superuser, superuser), 0);
}

} // namespace

OrdinaryUser::OrdinaryUser() : m_wasSuperuser(geteuid() == superuser)
{
    if (m_wasSuperuser)
        becomeNobody();
}

OrdinaryUser::~OrdinaryUser()
{
    if (m_wasSuperuser)
        becomeSuperuser();
}

void OrdinaryUser::pause(const std::function<void()> &action) const
{
    if (m_wasSuperuser)
        becomeSuperuser();
    action();
    if (m_wasSuperuser)
        becomeNobody();
}

} // namespace nimb::test

#include "ordinary_user.h"

#include <gtest/gtest.h>

#include <unistd.h>

namespace nimb::test
{
namespace
{

constexpr unsigned superuser = 0;
constexpr unsigned nobody = 65534;

} // namespace

OrdinaryUser::OrdinaryUser() : m_wasSuperuser(geteuid() == superuser)
{
    if (m_wasSuperuser)
        step(nobody);
}

OrdinaryUser::~OrdinaryUser()
{
    if (m_wasSuperuser)
        step(superuser);
}

void OrdinaryUser::pause(const std::function<void()> &action) const
{
    if (m_wasSuperuser)
        step(superuser);
    action();
    if (m_wasSuperuser)
        step(nobody);
}

void OrdinaryUser::step(unsigned user) const
{
    // The saved user stays the superuser, so that there is a way back.
    EXPECT_EQ(setresuid(user, user, superuser), 0);
}

} // namespace nimb::test

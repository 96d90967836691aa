// Tests on a machine of their own.
#pragma once

#include "own_network.h"

#include <gmock/gmock.h>

#include <optional>

namespace nimb::test
{

/// The test runs in a network that holds nothing but a loopback card, which is down; skipped where that is not allowed.
class OnOwnNetwork : public testing::Test
{
protected:
    void SetUp() override
    {
        if (!network.isThere())
            GTEST_SKIP() << "the system allows no network of our own here";
        visit.emplace(network);
        arrange();
    }
    /// What the test needs on its machine.
    virtual void arrange() { }

private:
    OwnNetwork network;
    std::optional<OwnNetwork::Visit> visit;
};

} // namespace nimb::test

// A network of a test's own, in which it may do what it likes.
#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace nimb::test
{

/// Runs the system's program "ip" with these words, in the network of the calling thread; what it printed, or nothing
/// where it failed or is not there.
std::optional<QString> runIp(const QStringList &words);

/// While it lives, this thread and what it starts stand in a network that has nothing but a loopback card, which is
/// down. Sockets that exist already stay where they are.
class OwnNetwork
{
public:
    OwnNetwork();
    ~OwnNetwork();
    OwnNetwork(const OwnNetwork &) = delete;
    OwnNetwork &operator=(const OwnNetwork &) = delete;

    /// Otherwise the system does not allow it, or lacks the program "ip", and all is as it was.
    bool isThere() const { return m_outside.has_value(); }

private:
    std::optional<int> m_outside;
};

} // namespace nimb::test

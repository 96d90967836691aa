// Networks of a test's own, in which it may do what it likes.
#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace nimb::test
{

/// Runs a program of the system in the network where the calling thread is, such as "ip" or "bridge"; what it printed,
/// or nothing where it failed or is not there.
std::optional<QString> runTool(const QString &program, const QStringList &words);
inline std::optional<QString> runIp(const QStringList &words)
{
    return runTool(QStringLiteral("ip"), words);
}

/// A network as a machine without any cable has it: it holds nothing but a loopback card, which is down. It ends with
/// this object and the last socket and process in it, and nothing of it is left behind.
class OwnNetwork
{
public:
    OwnNetwork();
    OwnNetwork(OwnNetwork &&other) noexcept;
    OwnNetwork &operator=(OwnNetwork &&other) = delete;
    ~OwnNetwork();

    /// Otherwise the system does not allow it, or lacks the program "ip" or its virtual cards and bridges.
    bool isThere() const { return m_descriptor != none; }
    /// What the program "ip" takes for its name, as in "link set eth0 netns NAME".
    QString name() const;

    /// While it lives, its thread is in that network, with every socket and process that it makes. Sockets that exist
    /// already stay where they are.
    class Visit
    {
    public:
        explicit Visit(const OwnNetwork &network);
        ~Visit();
        Visit(const Visit &) = delete;
        Visit &operator=(const Visit &) = delete;

    private:
        int m_outside;
    };

private:
    static constexpr int none = -1;

    int m_descriptor = none;
};

} // namespace nimb::test

// Machines and the switches between them, all inside this one: real cards, real addresses, real loss.
//
//     LanSwitch office;
//     LanMachine ann, ben;
//     if (!office.isThere())
//         GTEST_SKIP() << LanMachine::whyNot;
//     ann.plug(office, "eth0", "10.1.0.1/24");
//     ben.plug(office, "eth0", "10.1.0.2/24");
//     const auto visit = ann.visit(); // what starts now runs on Ann's machine
//
// A process that is started during a visit stays on that machine, and a socket that is opened stays there too; the
// visitor himself leaves again. The screen, files and local sockets with a path are the same everywhere. Everything
// ends with its objects, whatever becomes of the test.
#pragma once

#include "own_network.h"

#include <QString>
#include <QStringList>

#include <vector>

namespace nimb::test
{

class LanSwitch
{
public:
    LanSwitch();
    bool isThere() const { return m_network.isThere(); }

private:
    friend class LanMachine;

    OwnNetwork m_network; ///< of its own, so that a machine's address tells nothing of where it stands
    int m_ports = 0;
};

class LanMachine
{
public:
    static constexpr const char *whyNot = "the system does not allow networks of our own here";

    LanMachine();
    bool isThere() const { return m_network.isThere(); }

    /// A card with a cable to the switch, both up. address: with the length of its network, as "10.1.0.1/24"; empty for
    /// a card without one. A test failure where it cannot be.
    void plug(LanSwitch &to, const QString &card, const QString &address = {});
    /// The switch passes nothing on between this card and other isolated ones, as an access point for guests does.
    void isolate(const QString &card) const;
    /// The card goes down as if it was switched off, with its ways; its address stays.
    void down(const QString &card) const { ip({"link", "set", card, "down"}); }
    void up(const QString &card) const;
    void addAddress(const QString &card, const QString &address) const;
    void removeAddress(const QString &card, const QString &address) const;

    /// Runs a program of the system here. A test failure where it fails.
    void run(const QString &program, const QStringList &words) const;
    void ip(const QStringList &words) const { run(QStringLiteral("ip"), words); }

    /// See OwnNetwork::Visit.
    [[nodiscard]] OwnNetwork::Visit visit() const { return OwnNetwork::Visit(m_network); }

private:
    struct Cable {
        QString card, port;
        const LanSwitch *end;
    };

    OwnNetwork m_network;
    std::vector<Cable> m_cables;
};

} // namespace nimb::test

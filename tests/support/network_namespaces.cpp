#include "network_namespaces.h"

#include <QTest>

#include <gtest/gtest.h>

namespace nimb::test
{
namespace
{

void must(const QString &program, const QStringList &words)
{
    EXPECT_TRUE(runTool(program, words)) << program.toStdString() << ' ' << words.join(u' ').toStdString();
}

} // namespace

LanSwitch::LanSwitch()
{
    if (!isThere())
        return;
    const OwnNetwork::Visit visit(m_network);
    must("ip", {"link", "add", "switch", "type", "bridge"});
    must("ip", {"link", "set", "switch", "up"});
}

LanMachine::LanMachine()
{
    if (isThere())
        ip({"link", "set", "lo", "up"});
}

void LanMachine::plug(LanSwitch &to, const QString &card, const QString &address)
{
    const QString port = QStringLiteral("port%1").arg(++to.m_ports);
    ip({"link", "add", card, "type", "veth", "peer", "name", port, "netns", to.m_network.name()});
    {
        const OwnNetwork::Visit there(to.m_network);
        must("ip", {"link", "set", port, "master", "switch", "up"});
    }
    m_cables.push_back({card, port, &to});
    if (!address.isEmpty())
        addAddress(card, address);
    up(card);
}

/// The system looks at cables now and then, and until it has seen one nothing passes through it.
void LanMachine::up(const QString &card) const
{
    ip({"link", "set", card, "up"});
    const OwnNetwork::Visit here(m_network);
    const auto hasCable = [&card] {
        return runIp({"link", "show", card}).value_or(QString()).contains(QStringLiteral("state UP"));
    };
    EXPECT_TRUE(QTest::qWaitFor(hasCable, 20000)) << card.toStdString() << " sees no cable";
}

void LanMachine::isolate(const QString &card) const
{
    for (const Cable &cable : m_cables) {
        if (cable.card != card)
            continue;
        const OwnNetwork::Visit there(cable.end->m_network);
        must("bridge", {"link", "set", "dev", cable.port, "isolated", "on"});
    }
}

void LanMachine::addAddress(const QString &card, const QString &address) const
{
    ip({"address", "add", address, "broadcast", "+", "dev", card});
}

void LanMachine::removeAddress(const QString &card, const QString &address) const
{
    ip({"address", "del", address, "dev", card});
}

void LanMachine::run(const QString &program, const QStringList &words) const
{
    const OwnNetwork::Visit here(m_network);
    must(program, words);
}

} // namespace nimb::test

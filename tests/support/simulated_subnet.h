// A simulated network with a broadcast address.
#pragma once

#include "simulated_network.h"

namespace nimb::test
{

/// Delivers what goes to address 255 of a network of 254 to everybody there, its sender included.
class SimulatedSubnet : public SimulatedNetwork
{
public:
    /// network: the first three numbers and their dots, such as "10.0.0.".
    explicit SimulatedSubnet(QString network) : m_network(std::move(network)) { }

    void send(const QString &from, const QString &to, const std::string &bytes) override
    {
        if (to != m_network + QLatin1String("255")) {
            SimulatedNetwork::send(from, to, bytes);
            return;
        }
        for (int last = 1; last < 255; ++last)
            SimulatedNetwork::send(from, m_network + QString::number(last), bytes);
    }

private:
    QString m_network;
};

} // namespace nimb::test

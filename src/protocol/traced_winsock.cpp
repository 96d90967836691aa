#include "protocol/traced_winsock.h"

namespace nimb
{

TracedWinsock::TracedWinsock(Winsock &other, DatagramTrace &trace) : m_other(other), m_trace(trace)
{
    m_other.DataArrival = [this](std::size_t byteCount) {
        if (DataArrival)
            DataArrival(byteCount);
    };
    m_other.Error = [this] {
        if (Error)
            Error();
    };
}

TracedWinsock::~TracedWinsock()
{
    m_other.DataArrival = nullptr;
    m_other.Error = nullptr;
}

void TracedWinsock::setRemoteHost(std::optional<Ipv4Address> address)
{
    m_remoteHost = address.value_or(Ipv4Address());
    m_other.setRemoteHost(address);
}

void TracedWinsock::SendData(const std::string &bytes)
{
    if (m_other.isBound()) // else nothing leaves
        m_trace.note(TracedDatagram::Direction::out, m_remoteHost, bytes);
    m_other.SendData(bytes);
}

std::string TracedWinsock::GetData(std::size_t byteCount)
{
    std::string bytes = m_other.GetData(byteCount);
    m_trace.note(TracedDatagram::Direction::in, m_other.RemoteHostIP(), bytes);
    return bytes;
}

} // namespace nimb

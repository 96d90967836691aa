// The network doctor on a console.
#pragma once

#include "doctor/doctor.h"
#include "platform/environment.h"
#include "platform/network_diagnosis.h"
#include "platform/own_identity.h"
#include "platform/qt_timers.h"
#include "platform/udp_winsock.h"
#include "protocol/traced_winsock.h"

#include <QObject>

#include <functional>

namespace nimb
{

/// Examines once, as the program started with the same environment would. While a copy of the program runs, that copy
/// has the port, and what needs the port is left to it.
class ConsoleDoctor : public QObject, public DoctorView
{
    Q_OBJECT

public:
    /// ended: called once, when every check has its finding.
    ConsoleDoctor(const Environment &environment, std::function<void()> ended);

    void start() { m_doctor.examine(); }
    const Doctor &doctor() const { return m_doctor; }
    /// What keeps the settings from being read, so that the program's own are taken: one sentence.
    const std::optional<QString> &profileTrouble() const { return m_profileTrouble; }

    void showFinding(const Finding &) override { }
    void examined() override;

private:
    /// What the program would read of its settings. Makes no profile where there is none.
    void readProfile(const Environment &environment);

    std::function<void()> m_ended;
    std::optional<QString> m_profileTrouble;
    Common m_common;
    DropCounts m_drops;
    DatagramTrace m_trace;
    UdpWinsock m_udp;
    TracedWinsock m_socket;
    MachineAddresses m_ownAddresses;
    SystemNetworkDiagnosis m_diagnosis;
    ContactList m_contacts;
    PresenceSender m_sender;
    QtTimers m_timers;
    SystemClock m_clock;
    Doctor m_doctor;
};

} // namespace nimb

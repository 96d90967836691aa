// Looks why others are not reached: checks the network, this machine and one contact, one after the other.
#pragma once

#include "base/Common.h"
#include "base/network_diagnosis.h"
#include "base/timers.h"
#include "contacts/announcement.h"
#include "contacts/contact_list.h"
#include "doctor/findings.h"
#include "doctor/report.h"
#include "protocol/datagram_trace.h"
#include "protocol/drop_counts.h"
#include "protocol/winsock.h"

#include <QCoreApplication>

#include <memory>
#include <optional>
#include <vector>

namespace nimb
{

class DoctorView
{
public:
    virtual ~DoctorView() = default;
    /// Takes the place of the one of the same check.
    virtual void showFinding(const Finding &finding) = 0;
    /// Nothing but the check of a contact is left to do.
    virtual void examined() = 0;
};

/// All checks are begun at once; some take up to two seconds until their finding is there. Only examine() and
/// ask() send anything.
class Doctor
{
    Q_DECLARE_TR_FUNCTIONS(Doctor)

public:
    struct Parts {
        const Common &common;
        const Winsock &socket;
        DatagramTrace &trace; ///< of that socket
        const DropCounts &drops;
        const OwnAddresses &ownAddresses;
        NetworkDiagnosis &diagnosis;
        const PresenceSender &sender;
        const ContactList &contacts;
        Timers &timers;
        const WallClock &clock;
        /// The folder of the settings of whom is examined, where that is a copy in another process, which may have the
        /// port. Nothing: it is the copy in this one.
        std::optional<QString> profileElsewhere{};
    };

    Doctor(const Parts &parts, DoctorView &view);
    Doctor(const Doctor &) = delete;
    Doctor &operator=(const Doctor &) = delete;
    ~Doctor();

    /// Does every check but that of a contact, anew when it has been done before.
    void examine();
    /// Asks the contact, as an announcement does, and finds out what keeps it from answering.
    void ask(const ContactAddress &ip);

    const ContactList &contacts() const { return m_parts.contacts; }

    /// What is known by now, in the order of the checks.
    const std::vector<Finding> &findings() const { return m_findings; }
    /// The worst of them.
    Verdict verdict() const;
    /// What has been dropped since the start, a line for each reason; empty when nothing was.
    QString drops() const { return m_parts.drops.summary(); }
    /// The latest datagrams, the oldest first. withTexts: see traceLine().
    std::vector<TraceLine> datagrams(bool withTexts) const;
    /// All of it for somebody who is asked for help.
    QString report(bool withTexts) const;

private:
    struct Question {
        Ipv4Address address;
        QString nickname;
        QDateTime time;
    };

    void found(const Finding &finding);
    /// Another check has ended.
    void endOne();
    void examinePort();
    void examineOwnDatagram();
    void endOwnDatagram(bool cameBack);
    void arrived(Ipv4Address from, std::string_view bytes);
    void endContact(bool answered);
    Finding silent(const Question &question) const;
    findings::OwnAddress ownAddress() const;

    Parts m_parts;
    DoctorView &m_view;
    std::vector<Finding> m_findings;
    int m_underWay = 0;
    bool m_isHeldByPatient = false; ///< the port, by a copy in another process
    std::unique_ptr<Timer> m_ownDatagramLate;
    std::optional<Question> m_question; ///< while an answer is waited for
    std::unique_ptr<Timer> m_answerLate;
    std::shared_ptr<int> m_life = std::make_shared<int>(0); ///< whose end keeps late findings away
    int m_round = 0;
};

} // namespace nimb

// One copy of the program on a simulated network, started as a user starts it.
#pragma once

#include "simulated_network.h"
#include "whole_engine.h"

#include <gmock/gmock.h>

#include <map>

namespace nimb::test
{

struct StoredContact {
    QString ip;
    QString nickname;
    QString workstation = QStringLiteral("PC");
};

struct CopySetup {
    QString ip = QStringLiteral("10.0.0.1");
    QString host = QStringLiteral("HERE");
    QString nickname = QStringLiteral("Me");
    std::vector<StoredContact> contacts = {};
    std::map<std::string, QString> settings = {}; ///< "section/key"
    bool portTaken = false;
    bool loaded = true; ///< the main window has been loaded
};

class Copy : public WholeEngine<SimulatedWinsock>
{
public:
    explicit Copy(const CopySetup &setup = {}, SimulatedNetwork *network = nullptr,
                  std::shared_ptr<VirtualTime> sharedTime = std::make_shared<VirtualTime>())
        : WholeEngine(std::move(sharedTime),
                      [&](DropCounts &) { return SimulatedWinsock(setup.ip, setup.host, network); })
    {
        QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedKingdom));
        common.ownIP = readAddress(setup.ip).value();
        common.ownHostName = setup.host;
        common.ownNickname = setup.nickname;
        socket.portTaken = setup.portTaken;
        store(setup);
        engine.invitations().Form_Load(invitationsView);
        if (setup.loaded)
            engine.mainWindow().Form_Load();
    }

    /// The own address, as others write it.
    QString ip() const { return addressText(common.ownIP); }
    void announce() { engine.announcement().run(); }
    void advance(std::chrono::milliseconds span) { time->advance(span); }
    void arrive(const char *from, const std::string &bytes) { socket.arrive(QLatin1String(from), bytes); }
    /// What was sent since the last call.
    std::vector<To> sent() { return std::exchange(socket.sent, {}); }
    /// Lets the announcement of the start end and forgets what it sent; whoever is named answers it.
    void settleStart(const std::vector<const char *> &answering = {})
    {
        for (const char *ip : answering) {
            const std::string nick = contact(ip).nickname.toStdString();
            arrive(ip, "!ONLINE " + std::string(ip) + " PC " + nick);
        }
        advance(std::chrono::milliseconds(1000));
        socket.sent.clear();
        view.log.clear();
        notifications.rows.clear();
    }

    bool knows(const char *ip) { return engine.contacts().find(QString::fromLatin1(ip)) != nullptr; }
    const Contact &contact(const char *ip) { return *engine.contacts().find(QString::fromLatin1(ip)); }
    std::vector<std::string> names()
    {
        std::vector<std::string> list;
        for (int row = 0; row < engine.contacts().rowCount(); ++row)
            list.push_back(engine.contacts().at(row).nickname.toStdString());
        return list;
    }
    RecorderConferenceView &conference(std::size_t number) { return *conferenceForms.views.at(number - 1); }
    RecorderPrivateView &window(std::size_t number) { return *privateForms.views.at(number - 1); }

private:
    void store(const CopySetup &setup)
    {
        int n = 0;
        for (const StoredContact &contact : setup.contacts)
            settings.putContact(++n, contact.ip, contact.nickname, contact.workstation);
        settings.put(setup.settings);
    }
};

} // namespace nimb::test

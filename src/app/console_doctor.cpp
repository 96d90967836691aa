#include "app/console_doctor.h"

#include "base/settings.h"
#include "protocol/address_text.h"
#include "store/sqlite_settings_store.h"

#include <QFile>

#include <filesystem>
#include <string>

namespace nimb
{
namespace
{

std::optional<Ipv4Address> addressOf(const Environment &environment)
{
    return environment.address ? readAddress(*environment.address) : std::nullopt;
}

} // namespace

ConsoleDoctor::ConsoleDoctor(const Environment &environment, std::function<void()> ended)
    : m_ended(std::move(ended)), m_udp(m_drops, addressOf(environment), environment.hostName), m_socket(m_udp, m_trace),
      m_ownAddresses(addressOf(environment)), m_diagnosis(m_udp), m_sender(m_common, m_socket),
      m_doctor({.common = m_common,
                .socket = m_socket,
                .trace = m_trace,
                .drops = m_drops,
                .ownAddresses = m_ownAddresses,
                .diagnosis = m_diagnosis,
                .sender = m_sender,
                .contacts = m_contacts,
                .timers = m_timers,
                .clock = m_clock,
                .profileElsewhere = environment.profileFolder},
               *this)
{
    m_common.ownHostName = m_socket.LocalHostName();
    m_common.ownNickname = m_common.ownHostName;
    m_common.ownIP = m_socket.LocalIP();
    readProfile(environment);
    m_socket.DataArrival = [this](std::size_t byteCount) { m_socket.GetData(byteCount); };
    m_socket.setLocalPort(m_common.udpPort);
    m_socket.setRemotePort(m_common.udpPort);
    static_cast<void>(m_socket.bind()); // whether it is bound is one of the checks
}

void ConsoleDoctor::readProfile(const Environment &environment)
{
    const QString &folder = environment.profileFolder;
    SiteDefaults::Values defaults = readSiteDefaults(environment.siteFolders).values;
    const std::string file = QFile::encodeName(folder + QLatin1String("/settings.sqlite3")).toStdString();
    std::error_code trouble;
    if (!std::filesystem::exists(file, trouble)) {
        if (trouble)
            m_profileTrouble = tr("The settings in %1 cannot be read, so those of a fresh copy are taken: %2")
                                   .arg(folder, QString::fromLocal8Bit(trouble.message().c_str()));
        if (trouble || defaults.isEmpty())
            return;
    }
    SqliteSettingsStore store = SqliteSettingsStore::forReading(folder);
    store.setDefaults(std::move(defaults));
    if (std::filesystem::exists(file, trouble))
        m_profileTrouble = store.problem();
    loadSettings(store, m_common);
    if (m_ownAddresses.isFixed() || m_common.ownCard.isEmpty())
        return;
    m_common.ownIP = addressOfCard(m_ownAddresses, m_common.ownCard).value_or(m_common.ownIP);
}

void ConsoleDoctor::examined()
{
    m_ended();
}

} // namespace nimb

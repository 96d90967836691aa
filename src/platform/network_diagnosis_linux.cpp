#include "platform/network_diagnosis.h"

#include "platform/environment.h"
#include "platform/firewall_rules.h"
#include "platform/local_user.h"
#include "protocol/address_text.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QProcessEnvironment>
#include <QStandardPaths>
#include <QTimer>
#include <QtEndian>

#include <algorithm>

namespace nimb
{
namespace
{

constexpr std::chrono::seconds commandTime{3};
constexpr int noStatus = -1;

QByteArray contentsOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Whether a socket at the address of the table stands in the way of one at that address. The tables write IPv4
/// addresses as numbers of the machine, in hexadecimal; those of IPv6 end in them. All zeros are every address.
bool isInTheWay(const QByteArray &written, std::optional<Ipv4Address> address)
{
    const std::uint32_t there = qFromBigEndian(written.right(8).toUInt(nullptr, 16));
    return !address || written.count('0') == written.size() || there == address->number();
}

/// The inode of the socket in a table such as /proc/net/udp; empty when nobody has the port.
QByteArray inodeOf(const QByteArray &table, std::uint16_t port, std::optional<Ipv4Address> address)
{
    constexpr int local = 1, inode = 9;
    for (const QByteArray &line : table.split('\n').mid(1)) {
        const QList<QByteArray> fields = line.simplified().split(' ');
        const QList<QByteArray> place = fields.value(local).split(':');
        if (fields.size() > inode && place.last().toUInt(nullptr, 16) == port && isInTheWay(place.first(), address))
            return fields[inode];
    }
    return {};
}

/// The environment of a process as it was started; empty where it is somebody else's.
Environment environmentOf(const QString &process)
{
    QProcessEnvironment variables;
    for (const QByteArray &entry : contentsOf(process + QLatin1String("/environ")).split('\0')) {
        if (const qsizetype equals = entry.indexOf('='); equals > 0)
            variables.insert(QFile::decodeName(entry.left(equals)), QFile::decodeName(entry.mid(equals + 1)));
    }
    return variables.isEmpty()
        ? Environment{}
        : Environment::ofProcess(variables, QFile::symLinkTarget(process + QLatin1String("/cwd")));
}

bool holdsSocket(const QString &process, const QString &link)
{
    const QFileInfoList descriptors = QDir(process + QLatin1String("/fd")).entryInfoList(QDir::Files | QDir::System);
    return std::ranges::any_of(descriptors, [&link](const QFileInfo &descriptor) {
        return QFileInfo(descriptor.filePath()).symLinkTarget().endsWith(link);
    });
}

/// Those of the administrator are not always in the search path of others.
QString findCommand(const QString &name)
{
    const QString found = QStandardPaths::findExecutable(name);
    return found.isEmpty()
        ? QStandardPaths::findExecutable(name, {QStringLiteral("/usr/sbin"), QStringLiteral("/sbin")})
        : found;
}

QString ufwCommand(std::uint16_t port)
{
    return QStringLiteral("sudo ufw allow %1/udp").arg(port);
}

/// zone: empty for that of cards in no zone.
QString firewalldCommand(std::uint16_t port, const QString &zone)
{
    return QStringLiteral("sudo firewall-cmd --permanent %1--add-port=%2/udp && sudo firewall-cmd --reload")
        .arg(zone.isEmpty() ? QString() : QStringLiteral("--zone=%1 ").arg(zone), QString::number(port));
}

/// What systemd has started and not stopped leaves a link without a target.
bool isUnitOn(const char *unit)
{
    return QFileInfo(QLatin1String("/run/systemd/units/invocation:") + QLatin1String(unit)).isSymLink();
}

bool isFirewalldOn()
{
    return isUnitOn("firewalld.service") || QFile::exists(QStringLiteral("/run/firewalld.pid"));
}

QString nftCommand(const NftBlock &block, std::uint16_t port)
{
    return QStringLiteral("sudo nft insert rule %1 %2 %3 udp dport %4 accept")
        .arg(block.family, block.table, block.chain, QString::number(port));
}

/// Rules of nftables, and of iptables in both of its forms, need one of these. Everybody may see whether they are
/// there.
bool isLoaded(const char *module)
{
    return QFile::exists(QLatin1String("/sys/module/") + QLatin1String(module));
}

bool mayHaveRules()
{
    return isLoaded("nf_tables") || isLoaded("iptable_filter");
}

Firewall nftFirewall(const std::optional<NftAnswer> &answer, std::uint16_t port)
{
    const QString name = QStringLiteral("nftables");
    const Firewall::Verdict whoMayLook = isSuperuser() ? Firewall::Verdict::noReader : Firewall::Verdict::unknown;
    const NftBlock usual{QStringLiteral("inet"), QStringLiteral("filter"), QStringLiteral("input")};
    if (!answer && !isSuperuser() && isUnitOn("nftables.service"))
        return {Firewall::Verdict::unreadable, name, nftCommand(usual, port)};
    if (!answer)
        return {mayHaveRules() ? whoMayLook : Firewall::Verdict::none, {}, {}};
    if (!answer->hasInput) // the older form of iptables has rules that nft does not see
        return {isLoaded("iptable_filter") ? whoMayLook : Firewall::Verdict::none, {}, {}};
    return {verdictOf(answer->answer), name, nftCommand(answer->block.value_or(usual), port)};
}

} // namespace

std::optional<PortHolder> holderOfUdpPort(const QString &proc, std::uint16_t port, std::optional<Ipv4Address> address)
{
    QByteArray inode = inodeOf(contentsOf(proc + QLatin1String("/net/udp")), port, address);
    if (inode.isEmpty()) // a socket for both kinds of addresses stands in the other table alone
        inode = inodeOf(contentsOf(proc + QLatin1String("/net/udp6")), port, address);
    if (inode.isEmpty())
        return std::nullopt;
    const QString link = QStringLiteral("socket:[%1]").arg(QLatin1String(inode));
    for (const QString &entry : QDir(proc).entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        bool isProcess = false;
        const qint64 process = entry.toLongLong(&isProcess);
        const QString folder = proc + u'/' + entry;
        if (isProcess && holdsSocket(folder, link))
            return PortHolder{QString::fromLocal8Bit(contentsOf(folder + QLatin1String("/comm")).trimmed()), process,
                              environmentOf(folder).profileFolder};
    }
    return PortHolder{};
}

bool isInNeighbourTable(const QByteArray &table, Ipv4Address address)
{
    constexpr int ip = 0, flags = 2;
    constexpr unsigned complete = 2;
    return std::ranges::any_of(table.split('\n').mid(1), [address](const QByteArray &line) {
        const QList<QByteArray> fields = line.simplified().split(' ');
        return fields.size() > flags && fields[ip] == address.toText().c_str()
            && (fields[flags].toUInt(nullptr, 16) & complete) != 0;
    });
}

std::optional<PortHolder> SystemNetworkDiagnosis::holderOf(std::uint16_t port, std::optional<Ipv4Address> address) const
{
    return holderOfUdpPort(QStringLiteral("/proc"), port, address);
}

bool SystemNetworkDiagnosis::isKnown(Ipv4Address neighbour)
{
    return isInNeighbourTable(contentsOf(QStringLiteral("/proc/net/arp")), neighbour);
}

void SystemNetworkDiagnosis::run(const QString &program, const QStringList &arguments, CommandEnded ended)
{
    const QString path = findCommand(program);
    if (path.isEmpty()) {
        QTimer::singleShot(0, m_life.get(), [ended = std::move(ended)] { ended(noStatus, {}); });
        return;
    }
    auto *const process = new QProcess(m_life.get());
    const auto end = [process, ended = std::move(ended)](int status) {
        process->disconnect();
        process->deleteLater();
        ended(status, process->readAllStandardOutput());
    };
    QObject::connect(process, &QProcess::finished, process, [end](int status, QProcess::ExitStatus how) {
        end(how == QProcess::NormalExit ? status : noStatus);
    });
    QObject::connect(process, &QProcess::errorOccurred, process, [end](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            end(noStatus);
    });
    QTimer::singleShot(commandTime, process, &QProcess::kill);
    process->setStandardErrorFile(QProcess::nullDevice());
    process->start(path, arguments);
}

void SystemNetworkDiagnosis::readFirewall(std::uint16_t port, FirewallRead read)
{
    if (isUfwOn(contentsOf(QStringLiteral("/etc/ufw/ufw.conf")))) {
        QFile rules(QStringLiteral("/etc/ufw/user.rules"));
        Firewall ufw{Firewall::Verdict::unreadable, QStringLiteral("ufw"), ufwCommand(port)};
        if (rules.open(QIODevice::ReadOnly))
            ufw.verdict = verdictOf(ufwAnswer(contentsOf(QStringLiteral("/etc/default/ufw")), rules.readAll(), port));
        QTimer::singleShot(0, m_life.get(), [ufw, read = std::move(read)] { read(ufw); });
        return;
    }
    if (isFirewalldOn())
        return askFirewalld(port, read);
    askNftables(port, read);
}

/// It answers whoever sits at the machine.
void SystemNetworkDiagnosis::askFirewalld(std::uint16_t port, const FirewallRead &read)
{
    const QString program = QStringLiteral("firewall-cmd");
    const auto tell = [port, read](const std::optional<FirewalldAnswer> &answer) {
        read({answer ? verdictOf(answer->answer) : Firewall::Verdict::unreadable, QStringLiteral("firewalld"),
              firewalldCommand(port, answer ? QString::fromUtf8(answer->zone) : QString())});
    };
    run(program, {QStringLiteral("--get-default-zone")}, [=, this](int, const QByteArray &defaultZone) {
        run(program, {QStringLiteral("--list-all-zones")}, [=](int status, const QByteArray &zones) {
            tell(status == 0 ? firewalldAnswer(zones, defaultZone, port) : std::nullopt);
        });
    });
}

void SystemNetworkDiagnosis::askNftables(std::uint16_t port, const FirewallRead &read)
{
    run(QStringLiteral("nft"), {QStringLiteral("-j"), QStringLiteral("list"), QStringLiteral("ruleset")},
        [port, read](int status, const QByteArray &output) {
            read(nftFirewall(status == 0 ? nftAnswer(output, port) : std::nullopt, port));
        });
}

} // namespace nimb

// nimb-chatctl: what can be asked of NIMB-Chat on a console.
#include "app/console_doctor.h"
#include "protocol/address_text.h"

#include <QCoreApplication>
#include <QTimer>

#include <cstdio>

namespace
{

constexpr int wrongUsage = 64; // EX_USAGE of sysexits.h

/// The exit status is part of what programs rely on: 0 fine, 1 doubtful, 2 wrong.
int statusOf(nimb::Verdict verdict)
{
    switch (verdict) {
    case nimb::Verdict::fine:
        return 0;
    case nimb::Verdict::doubtful:
        return 1;
    case nimb::Verdict::underWay:
    case nimb::Verdict::wrong:
        break;
    }
    return 2;
}

void print(const QByteArray &text, std::FILE *to = stdout)
{
    std::fwrite(text.constData(), 1, static_cast<std::size_t>(text.size()), to);
}

const char usage[] = "usage: nimb-chatctl doctor [--json]\n"
                     "       nimb-chatctl --version | --help\n"
                     "doctor  looks why others are not reached; exit status 0 fine, 1 doubtful, 2 wrong\n";

int examine(bool asJson)
{
    const nimb::Environment environment = nimb::Environment::ofCaller();
    if (environment.address && !nimb::readAddress(*environment.address))
        print("nimb-chatctl: NIMBCHAT_ADDRESS is no IPv4 address and is left out\n", stderr);
    nimb::ConsoleDoctor console(environment, [] { QCoreApplication::quit(); });
    if (const std::optional<QString> trouble = console.profileTrouble())
        print("nimb-chatctl: " + trouble->toLocal8Bit() + "\n", stderr);
    // The findings may all be there before the event loop is.
    QTimer::singleShot(0, &console, [&console] { console.start(); });
    QCoreApplication::exec();
    const nimb::Doctor &doctor = console.doctor();
    print(asJson ? nimb::reportJson(doctor.findings(), doctor.verdict())
                 : nimb::findingsText(doctor.findings()).toLocal8Bit());
    return statusOf(doctor.verdict());
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("NIMB-Chat"));
    const QStringList words = QCoreApplication::arguments().mid(1);
    if (words == QStringList{QStringLiteral("--version")}) {
        print("nimb-chatctl " NIMB_VERSION "\n");
        return 0;
    }
    if (words == QStringList{QStringLiteral("--help")}) {
        print(usage);
        return 0;
    }
    if (words == QStringList{QStringLiteral("doctor")})
        return examine(false);
    if (words == QStringList{QStringLiteral("doctor"), QStringLiteral("--json")})
        return examine(true);
    print(usage, stderr);
    return wrongUsage;
}

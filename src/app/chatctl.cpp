// nimb-chatctl: what can be asked of NIMB-Chat on a console.
#include "app/console_commands.h"
#include "app/console_doctor.h"
#include "base/limits.h"
#include "platform/translations.h"
#include "protocol/address_text.h"

#include <QCoreApplication>
#include <QFile>
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

const char usage[]
    = "usage: nimb-chatctl doctor [--json]\n"
      "       nimb-chatctl contacts [--json]\n"
      "       nimb-chatctl send CONTACT [TEXT...]\n"
      "       nimb-chatctl send-file CONTACT PATH\n"
      "       nimb-chatctl status online|busy|away|invisible [TEXT...]\n"
      "       nimb-chatctl show | quit | --version | --help\n"
      "doctor  looks why others are not reached; exit status 0 fine, 1 doubtful, 2 wrong\n"
      "send    without TEXT sends what comes over the standard input\n"
      "All but doctor are carried out by the copy that runs; exit status 0 done, 1 refused, 2 no copy runs.\n";

/// A little more than a message holds is enough to be refused.
QString typedText()
{
    QFile input;
    if (!input.open(stdin, QIODevice::ReadOnly))
        return {};
    constexpr qint64 bytesOfACharacter = 4;
    QString text = QString::fromLocal8Bit(input.read(bytesOfACharacter * (nimb::limits::messageLength + 1)));
    while (text.endsWith(u'\n') || text.endsWith(u'\r'))
        text.chop(1);
    return text;
}

int askCopy(nimb::ConsoleCommand command)
{
    if (command.needsInput)
        command.request.insert(QStringLiteral("text"), typedText());
    const nimb::ConsoleAnswer answer = nimb::askRunningCopy(nimb::Environment::ofCaller(), command);
    print(answer.output);
    if (!answer.complaint.isEmpty())
        print("nimb-chatctl: " + answer.complaint, stderr);
    return answer.status;
}

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
    const nimb::Translations translations;
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
    if (const std::optional<nimb::ConsoleCommand> command = nimb::ConsoleCommand::of(words))
        return askCopy(*command);
    print(usage, stderr);
    return wrongUsage;
}

#include "doctor/report.h"

#include "base/remote_text.h"
#include "doctor/doctor.h"
#include "protocol/address_text.h"
#include "protocol/datagram.h"
#include "protocol/wire_text.h"

#include <QDateTime>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace nimb
{
namespace
{

/// What people wrote, which is nobody's business when a network is looked at.
bool holdsWords(const wire::Datagram &datagram)
{
    return std::holds_alternative<wire::PrivateMessage>(datagram)
        || std::holds_alternative<wire::ConferenceMessage>(datagram) || std::holds_alternative<wire::LiveType>(datagram)
        || std::holds_alternative<wire::Status>(datagram) || std::holds_alternative<wire::Garbage>(datagram)
        || std::holds_alternative<wire::Unsupported>(datagram) || std::holds_alternative<wire::Incomplete>(datagram);
}

/// Bodies are bytes that no text could show.
bool holdsPicture(const wire::Datagram &datagram)
{
    return std::holds_alternative<wire::AvatarBody>(datagram);
}

QString kindOf(const wire::Datagram &datagram, std::string_view bytes)
{
    if (std::holds_alternative<wire::PrivateMessage>(datagram))
        return Doctor::tr("private message");
    if (std::holds_alternative<wire::ConferenceMessage>(datagram))
        return Doctor::tr("conference message");
    if (std::holds_alternative<wire::Garbage>(datagram))
        return Doctor::tr("no command");
    if (std::holds_alternative<wire::Unsupported>(datagram))
        return Doctor::tr("unknown command");
    if (std::holds_alternative<wire::Incomplete>(datagram))
        return Doctor::tr("incomplete");
    return remoteName(fromWire(bytes.substr(0, bytes.find(' '))));
}

QString wordFor(Verdict verdict)
{
    switch (verdict) {
    case Verdict::underWay:
        return Doctor::tr("[...]");
    case Verdict::fine:
        return Doctor::tr("[fine]");
    case Verdict::doubtful:
        return Doctor::tr("[doubtful]");
    case Verdict::wrong:
        break;
    }
    return Doctor::tr("[WRONG]");
}

} // namespace

TraceLine traceLine(const TracedDatagram &datagram, bool withTexts)
{
    const auto sinceEpoch = std::chrono::duration_cast<std::chrono::milliseconds>(datagram.time.time_since_epoch());
    const wire::Datagram read = wire::parse(datagram.beginning);
    const bool shown = !holdsPicture(read) && (withTexts || !holdsWords(read));
    return {
        .time = QDateTime::fromMSecsSinceEpoch(sinceEpoch.count()).toString(QStringLiteral("HH:mm:ss.zzz")),
        .direction = datagram.direction == TracedDatagram::Direction::in ? Doctor::tr("in") : Doctor::tr("out"),
        .address = addressText(datagram.peer),
        .size = QString::number(datagram.size),
        .kind = kindOf(read, datagram.beginning),
        .text = shown ? remoteLine(fromWire(datagram.beginning)) : QString(),
    };
}

QString findingsText(const std::vector<Finding> &findings)
{
    QString text;
    for (const Finding &finding : findings) {
        text += QStringLiteral("%1 %2\n").arg(wordFor(finding.verdict), finding.sentence);
        if (!finding.advice.isEmpty())
            text += QStringLiteral("    %1\n").arg(finding.advice);
    }
    return text;
}

QString reportText(const std::vector<Finding> &findings, const QString &drops, const std::vector<TraceLine> &datagrams)
{
    QString text = findingsText(findings);
    text += u'\n' + Doctor::tr("Dropped since the start:") + u'\n';
    text += (drops.isEmpty() ? Doctor::tr("nothing") : drops) + u'\n';
    text += u'\n' + Doctor::tr("The latest datagrams:") + u'\n';
    for (const TraceLine &line : datagrams) {
        text += QStringList{line.time, line.direction, line.address, line.size, line.kind, line.text}
                    .join(u'\t')
                    .trimmed()
            + u'\n';
    }
    return text;
}

QByteArray reportJson(const std::vector<Finding> &findings, Verdict verdict)
{
    QJsonArray checks;
    for (const Finding &finding : findings)
        checks.append(QJsonObject{{QStringLiteral("check"), QLatin1String(nameOf(finding.check))},
                                  {QStringLiteral("verdict"), QLatin1String(nameOf(finding.verdict))},
                                  {QStringLiteral("sentence"), finding.sentence},
                                  {QStringLiteral("advice"), finding.advice}});
    const QJsonObject report{{QStringLiteral("verdict"), QLatin1String(nameOf(verdict))},
                             {QStringLiteral("checks"), checks}};
    return QJsonDocument(report).toJson();
}

} // namespace nimb

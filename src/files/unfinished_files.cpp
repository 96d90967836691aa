#include "files/unfinished_files.h"

#include "base/limits.h"
#include "base/remote_text.h"
#include "base/settings.h"
#include "protocol/address_text.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace nimb
{
namespace
{

constexpr QLatin1String unfinishedKey("UnfinishedFiles");

QJsonObject stored(const ReceivedFile &file)
{
    return {{QStringLiteral("message"), messageOf(file.link)},
            {QStringLiteral("sender"), file.sender},
            {QStringLiteral("own"), addressText(file.from)},
            {QStringLiteral("folder"), file.folder},
            {QStringLiteral("gone"), file.isGone},
            {QStringLiteral("place"), static_cast<qint64>(file.place)},
            {QStringLiteral("size"), static_cast<qint64>(file.size)}};
}

/// Nothing for what is none; the file is the user's own, and yet anybody may have written into it.
std::optional<ReceivedFile> readUnfinished(const QJsonObject &object)
{
    const std::optional<FileLink> link = fileLinkIn(object[QLatin1String("message")].toString());
    const std::optional<Ipv4Address> own = readAddress(object[QLatin1String("own")].toString());
    const QString folder = object[QLatin1String("folder")].toString();
    if (!link || !own || folder.isEmpty())
        return std::nullopt;
    ReceivedFile file{.link = *link,
                      .sender = remoteName(object[QLatin1String("sender")].toString()),
                      .from = *own,
                      .folder = folder};
    file.size = static_cast<quint64>(std::max<qint64>(object[QLatin1String("size")].toInteger(), 0));
    const auto place = static_cast<quint64>(std::max<qint64>(object[QLatin1String("place")].toInteger(), 0));
    file.place = std::min(place, file.size);
    file.isGone = object[QLatin1String("gone")].toBool();
    return file;
}

} // namespace

UnfinishedFiles::UnfinishedFiles(ReceivedFiles &files, SettingsStore &store, MainLog &log, Timers &timers)
    : m_files(files), m_store(store), m_log(log), m_delay(timers.oneShot(limits::keepDelay, [this] { save(); }))
{
}

void UnfinishedFiles::load()
{
    m_saved = readSetting(m_store, unfinishedKey);
    for (const QJsonValue &value : QJsonDocument::fromJson(m_saved.toUtf8()).array()) {
        if (std::optional<ReceivedFile> file = readUnfinished(value.toObject()))
            m_files.restore(*std::move(file));
    }
    tellOfUnfinished();
    connect(&m_files, &ReceivedFiles::unfinishedChanged, this, [this] {
        if (m_delay->isActive())
            return;
        save();
        m_delay->start();
    });
}

void UnfinishedFiles::tellOfUnfinished()
{
    int unfinished = 0;
    for (int row = 0; row < m_files.rowCount(); ++row)
        unfinished += m_files.at(row).isUnfinished();
    if (unfinished == 0)
        return;
    m_log.note(tr("files that had not all come when NIMB-Chat ended: %2; %1 goes on with them")
                   .arg(QStringLiteral("%1"), QString::number(unfinished)),
               {tr("Tools, Transfers..."), transfersCommand});
}

void UnfinishedFiles::save()
{
    QJsonArray array;
    for (int row = m_files.rowCount() - 1; row >= 0; --row) {
        const ReceivedFile &file = m_files.at(row);
        if ((file.isUnfinished() || file.isRemnant()) && array.size() < limits::filesUnfinished)
            array.prepend(stored(file));
    }
    const QString json
        = array.isEmpty() ? QString() : QString::fromUtf8(QJsonDocument(array).toJson(QJsonDocument::Compact));
    if (json == m_saved)
        return;
    m_saved = json;
    writeSetting(m_store, unfinishedKey, json);
    const std::optional<QString> problem = m_store.save();
    if (problem && problem != m_told)
        m_log.fault(*problem);
    m_told = problem;
}

} // namespace nimb

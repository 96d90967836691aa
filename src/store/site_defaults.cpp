#include "store/site_defaults.h"

#include "base/options.h"
#include "base/settings.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QStringDecoder>

#include <algorithm>

namespace nimb
{
namespace
{

constexpr qint64 largestFile = qint64{1024} * 1024; // more is no list of settings
constexpr qsizetype faultsTold = 20;

class Texts
{
    Q_DECLARE_TR_FUNCTIONS(SiteDefaults)
};

bool isKnown(const QString &section, const QString &key)
{
    static const QRegularExpression contact(QStringLiteral("^(IP|Nn|Ws)[1-9][0-9]{0,5}$"));
    static const QRegularExpression ownState(QStringLiteral("^PersonalizedState[1-8]$"));
    if (section == QLatin1String("Users"))
        return contact.match(key).hasMatch();
    if (section == QLatin1String("Settings") && ownState.match(key).hasMatch())
        return true;
    const auto isThis = [&](const auto &row) { return key == QLatin1String(row.key); };
    if (section == QLatin1String("Options") && std::ranges::any_of(optionRows, isThis))
        return true;
    return std::ranges::any_of(
        settingKeys, [&](const SettingKey &row) { return isThis(row) && section == QLatin1String(row.section); });
}

/// Takes the lines one after the other.
class Reader
{
public:
    explicit Reader(QString file) : m_file(std::move(file)) { }

    void take(const QString &line)
    {
        ++m_number;
        if (line.isEmpty() || line.startsWith(u'#') || line.startsWith(u';'))
            return;
        if (line.startsWith(u'[') && line.endsWith(u']')) {
            m_section = line.mid(1, line.size() - 2).trimmed();
            return;
        }
        const qsizetype sign = line.indexOf(u'=');
        if (sign <= 0)
            return tell(Texts::tr("it is neither a section nor a key with its value"));
        const QString key = line.left(sign).trimmed();
        if (!isKnown(m_section, key))
            return tell(Texts::tr("there is no key \"%1\" in the section \"%2\"").arg(key, m_section));
        m_defaults.values.insert({m_section, key}, line.mid(sign + 1).trimmed());
    }

    SiteDefaults result()
    {
        if (m_untold > 0)
            m_defaults.faults.append(Texts::tr("%1: further lines that say nothing: %2").arg(m_file).arg(m_untold));
        return std::move(m_defaults);
    }

private:
    void tell(const QString &reason)
    {
        if (m_defaults.faults.size() >= faultsTold)
            ++m_untold;
        else
            m_defaults.faults.append(Texts::tr("%1, line %2: %3").arg(m_file, QString::number(m_number), reason));
    }

    QString m_file;
    QString m_section;
    int m_number = 0;
    int m_untold = 0;
    SiteDefaults m_defaults;
};

SiteDefaults unreadable(const QString &file, const QString &reason)
{
    return {.faults = {Texts::tr("%1 cannot be read: %2.").arg(file, reason)}};
}

SiteDefaults read(const QString &path)
{
    const QString name = QDir::toNativeSeparators(path);
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return unreadable(name, file.errorString());
    if (file.size() > largestFile)
        return unreadable(name, Texts::tr("it is too large"));
    QStringDecoder decoder(QStringDecoder::Utf8);
    const QString text = decoder(file.readAll());
    if (decoder.hasError())
        return unreadable(name, Texts::tr("it is not written in UTF-8"));
    Reader reader(name);
    for (const QString &line : text.split(u'\n'))
        reader.take(line.trimmed());
    return reader.result();
}

} // namespace

SiteDefaults readSiteDefaults(const QStringList &folders)
{
    for (const QString &folder : folders) {
        const QString path = QDir(folder).filePath(QStringLiteral("nimb-chat/defaults.ini"));
        if (QFile::exists(path))
            return read(path);
    }
    return {};
}

} // namespace nimb

// What the small dialogs ask of the system, written down for a test to read.
#pragma once

#include "base/name_resolver.h"
#include "base/net_send.h"
#include "base/spell_checker.h"
#include "base/system_information.h"
#include "people/network_scan.h"
#include "recorders.h"
#include "simulated_network.h"
#include "virtual_time.h"

#include <QMap>
#include <QObject>

#include <functional>
#include <string>
#include <vector>

namespace nimb::test
{

/// Keeps the questions until the test answers them.
class RecorderResolver : public NameResolver
{
public:
    void resolve(const QString &name, Found found) override
    {
        names.push_back(name.toStdString());
        m_found.push_back(std::move(found));
    }
    void answer(std::size_t question, std::optional<Ipv4Address> address) { m_found.at(question)(address); }

    std::vector<std::string> names;

private:
    std::vector<Found> m_found;
};

/// Knows the words that a test gives it. Answers as soon as the event loop comes to it, or when the test lets it.
class RecorderSpellChecker : public SpellChecker
{
public:
    void findLanguages(LanguagesFound found) override
    {
        ++searches;
        later([this, found] { found(languages); });
    }
    void check(const QString &language, const QStringList &words, Checked checked) override
    {
        asked.push_back((language + u':' + words.join(u' ')).toStdString());
        later([this, words, checked] {
            QStringList misspelt = words;
            misspelt.removeIf([this](const QString &word) { return known.contains(word); });
            checked(damaged ? std::nullopt : std::optional(misspelt));
        });
    }
    void suggest(const QString &, const QString &word, Suggested suggested) override
    {
        later([this, word, suggested] { suggested(suggestions.value(word)); });
    }
    void rest() override { ++rests; }

    /// What has been asked meanwhile, and what the answers make somebody ask.
    void answer()
    {
        while (!m_waiting.empty()) {
            for (const std::function<void()> &one : std::exchange(m_waiting, {}))
                one();
        }
    }

    std::vector<SpellingLanguage> languages;
    QStringList known;
    QMap<QString, QStringList> suggestions;
    bool damaged = false;
    bool waits = false; ///< until answer()
    std::vector<std::string> asked;
    int searches = 0; ///< for languages
    int rests = 0;

private:
    void later(const std::function<void()> &answer)
    {
        if (waits)
            m_waiting.push_back(answer);
        else
            QMetaObject::invokeMethod(&m_context, answer, Qt::QueuedConnection);
    }

    std::vector<std::function<void()>> m_waiting;
    QObject m_context;
};

class RecorderNetSend : public NetSend
{
public:
    std::optional<QString> send(const QString &computer, const QString &message) override
    {
        if (!missing)
            sent.push_back(computer.toStdString() + " <- " + message.toStdString());
        return missing;
    }

    std::vector<std::string> sent;
    std::optional<QString> missing; ///< what is said when there is no such service
};

/// Something may happen while the user is being told, such as the end of the program.
class InterruptedPrompts : public RecorderPrompts
{
public:
    bool tell(const QString &text, const QString &title) override
    {
        RecorderPrompts::tell(text, title);
        if (whileTelling)
            whileTelling();
        return attended;
    }

    std::function<void()> whileTelling;
};

class RecorderSystemInformation : public SystemInformation
{
public:
    bool StartSysInfo() override
    {
        ++starts;
        return available;
    }

    bool available = true;
    int starts = 0;
};

class RecorderSearchView : public SearchView
{
public:
    void setSearchProgress(const std::optional<SearchProgress> &now) override { progress = now; }

    std::optional<SearchProgress> progress;
};

/// A search from 192.168.1.5 and what it acts on.
struct SearchSurroundings {
    SearchSurroundings()
    {
        common.ownIP = Ipv4Address(192, 168, 1, 5);
        common.ownHostName = QStringLiteral("HERE");
        common.ownNickname = QStringLiteral("Me");
        socket.bind();
    }

    Common common;
    ContactList contacts;
    ToldAddresses ownAddresses;
    SimulatedWinsock socket{QStringLiteral("192.168.1.5"), QStringLiteral("HERE"), nullptr};
    RecorderLog shown;
    VirtualTime time;
    PresenceSender sender{common, socket};
    MainLog log{shown, time};
    RecorderSearchView progress;
    Search search{{common, sender, contacts, ownAddresses, log, progress, time}};
};

struct ScanSurroundings : SearchSurroundings {
    RecorderResolver resolver;
    NetworkScan scan{common, search, resolver, log};
};

} // namespace nimb::test

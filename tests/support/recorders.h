// What an engine shows and asks, written down for a test to read.
#pragma once

#include "base/autostart.h"
#include "base/chance.h"
#include "base/file_fetcher.h"
#include "base/file_server.h"
#include "base/good_copy.h"
#include "base/history.h"
#include "base/link_opener.h"
#include "base/main_window_view.h"
#include "base/network_diagnosis.h"
#include "base/network_watch.h"
#include "base/next_start.h"
#include "base/notifications.h"
#include "base/own_addresses.h"
#include "base/picture_source.h"
#include "base/prompts.h"
#include "base/settings_store.h"
#include "base/sound.h"
#include "base/window_openers.h"
#include "conference/invitations.h"
#include "private_chat/private_chat_view.h"
#include "protocol/drop_counts.h"

#include <QStringList>

#include <algorithm>
#include <map>
#include <set>
#include <vector>

namespace nimb::test
{

/// Pieces of text with their colours; a caret that is not at the end is an error.
class RecorderLog : public RichTextLog
{
public:
    struct Piece {
        QString text;
        Colour colour = 0;
        QString fragment = {};  ///< of a picture, whose text is its alternative
        bool continues = false; ///< the lines that it begins continue the one before
        QString command = {};   ///< what a click on it asks for
        bool bold = false;
    };

    qsizetype textLength() const override { return text().size(); }
    void setSelStart(qsizetype position) override { m_caretAtEnd = position == textLength(); }
    void setSelColor(Colour colour) override { m_colour = colour; }
    void setSelFont(const LogFont &font) override { lastFont = font; }
    void setSelContinues(bool continues) override { m_continues = continues; }
    void setSelCommand(const QString &name) override { m_command = name; }
    void setSelMessage(const std::optional<LogMessage> &message) override
    {
        if (message)
            messages.push_back(*message);
    }
    void setSelBold(bool bold) override { m_bold = bold; }
    void setFate(int message, MessageFate fate) override
    {
        const auto found = std::ranges::find(messages, message, &LogMessage::number);
        if (message != 0 && found != messages.end())
            found->fate = fate;
    }
    void markNew() override { newFrom = text().size(); }
    void unmarkNew() override { newFrom.reset(); }
    void setSelText(const QString &text) override
    {
        if (!m_caretAtEnd)
            qFatal("text inserted before the end of a log");
        pieces.push_back(
            {.text = text, .colour = m_colour, .continues = m_continues, .command = m_command, .bold = m_bold});
        if (changed)
            changed();
    }
    void setSelRtf(const QString &fragment, const QString &alternative) override
    {
        setSelText(alternative);
        pieces.back().fragment = fragment;
    }
    void clear() override
    {
        pieces.clear();
        messages.clear();
        newFrom.reset();
        m_caretAtEnd = true;
    }

    QString text() const
    {
        QString whole;
        for (const Piece &piece : pieces)
            whole += piece.text;
        return whole;
    }
    /// Lines without their breaks, as UTF-8.
    std::vector<std::string> lines() const
    {
        std::vector<std::string> result;
        QStringList list = text().split(QStringLiteral("\r\n"));
        if (list.back().isEmpty())
            list.removeLast();
        for (const QString &line : std::as_const(list))
            result.push_back(line.toStdString());
        return result;
    }
    std::string lastLine() const { return lines().empty() ? std::string() : lines().back(); }
    Colour colourOfLastPiece() const { return pieces.empty() ? 0 : pieces.back().colour; }

    std::vector<Piece> pieces;
    std::vector<LogMessage> messages;
    std::optional<qsizetype> newFrom; ///< where what is new begins
    std::optional<LogFont> lastFont;
    std::function<void()> changed;

private:
    Colour m_colour = 0;
    bool m_continues = false;
    QString m_command;
    bool m_bold = false;
    bool m_caretAtEnd = true;
};

class RecorderMainView : public MainWindowView
{
public:
    RichTextLog &outtext() override { return log; }
    void setRescanEnabled(bool enabled) override { rescanEnabled = enabled; }
    void refreshContextMenu() override { ++menuRefreshes; }
    void addOwnState(const OwnStateEntry &entry) override { ownStates.push_back(entry); }
    void removeOwnState(int position) override { ownStates.erase(ownStates.begin() + position - 1); }
    void selectOwnState(int position) override { selectedState = position; }
    void setStatusPanel(const QString &text) override { statusPanel = text; }
    void setRescanToolTip(const QString &text) override { rescanToolTip = text; }
    void setAutoReply(const std::optional<AutoReplyPanel> &panel) override { autoReply = panel; }
    void setPersonalizedStateVisible(bool visible) override { personalizedVisible = visible; }
    void setCaption(const QString &text) override { shownCaption = text; }
    QString caption() const override { return shownCaption; }
    void setPlace(const WindowPlace &place) override { shownPlace = place; }
    WindowPlace place() const override { return shownPlace; }
    void setTroublePanel(const QString &text) override { trouble = text; }
    void setInvite2ConfVisible(int slot, bool visible) override { invitable[slot] = visible; }
    void setNetworkPanel(const QString &text) override { networkPanel = text; }
    void setActivityPanel(const QString &text) override { activityPanel = text; }
    void flashContact(const QString &ip) override { flashed.push_back(ip.toStdString()); }
    void setSearchProgress(const std::optional<SearchProgress> &progress) override { searchProgress = progress; }

    RecorderLog log;
    bool rescanEnabled = true;
    int menuRefreshes = 0;
    std::vector<OwnStateEntry> ownStates;
    int selectedState = 0;
    QString statusPanel;
    std::optional<SearchProgress> searchProgress;
    QString rescanToolTip;
    std::optional<AutoReplyPanel> autoReply;
    bool personalizedVisible = false;
    QString shownCaption;
    WindowPlace shownPlace;
    QString trouble;
    QString networkPanel;
    QString activityPanel;
    std::vector<std::string> flashed;
    std::map<int, bool> invitable; ///< by slot
};

class RecorderConversationView : public ConversationView
{
public:
    RichTextLog &outtext() override { return log; }
    void setCaption(const QString &text) override { caption = text; }
    void setLogFont(const LogFont &logFont) override { font = logFont; }
    void addEarlier(const std::vector<StoredMessage> &messages, std::optional<std::int64_t> newBehind) override
    {
        readTo = newBehind;
        earlier.insert(earlier.begin(), messages.begin(), messages.end());
    }
    void addReceivedFile(int number) override { receivedFiles.push_back(number); }
    void showFileTrouble(const QString &sentence) override { fileTroubles.append(sentence); }
    void withdrawFileTrouble(const QString &sentence) override { fileTroubles.removeAll(sentence); }
    void setLastMessage(const QString &text) override { lastMessage = text; }
    QString typedText() const override { return typed; }
    void setDraft(const QString &text) override { typed = text; }
    void setInputEnabled(bool enabled) override { inputEnabled = enabled; }
    void focusInput() override { ++inputFocused; }
    Colour windowTextColour() const override { return 0x123456; }
    bool isMinimisedOrInactive() const override { return inBackground; }
    bool isEndSeen() const override { return !inBackground && atEnd; }
    void flash() override { ++flashes; }

    RecorderLog log;
    QString caption;
    LogFont font;
    std::vector<StoredMessage> earlier;
    std::optional<std::int64_t> readTo;
    std::vector<int> receivedFiles;
    QStringList fileTroubles;
    QString lastMessage;
    QString typed;
    bool inputEnabled = true;
    int inputFocused = 0;
    bool inBackground = true;
    bool atEnd = true;
    int flashes = 0;
};

class RecorderPrivateView : public PrivateChatView, public RecorderConversationView
{
public:
    explicit RecorderPrivateView(PrivateChat &engineHalf) : chat(engineHalf) { }

    ConversationView &conversation() override { return *this; }
    void setPeerAddress(const QString &ip) override { peer = ip; }
    void setPeer(const PeerShown &shown) override
    {
        shownPeer = shown;
        ++peerChanges;
    }
    void setPeerActivity(const QString &text) override { peerActivity = text; }
    void setLiveType(const QString &text) override
    {
        liveType = text;
        liveTypeHidden += text.isEmpty();
    }
    void setLiveTypeOn(bool on) override { liveTypeOn = on; }
    bool isLiveTypeOn() const override { return liveTypeOn; }
    void setAvatar(const QString &text, const std::optional<QByteArray> &shown) override
    {
        marker = text;
        picture = shown;
        ++avatarChanges;
    }
    void setOwnMood(const MoodMark &mark) override { ownMood = mark; }
    void setPeersMood(const MoodMark &mark) override { peersMood = mark; }
    bool isHidden() const override { return hidden; }
    void showWindow(ShowMode mode) override
    {
        hidden = false;
        shows.push_back(mode);
    }
    void hideWindow() override { hidden = true; }
    void letGo() override
    {
        hidden = true;
        gone = true;
        whenLetGo();
    }

    PrivateChat &chat;
    QString peer;
    PeerShown shownPeer;
    int peerChanges = 0;
    QString peerActivity;
    int liveTypeHidden = 0;
    QString liveType;
    bool liveTypeOn = false;
    QString marker = QStringLiteral("(never set)");
    std::optional<QByteArray> picture;
    int avatarChanges = 0;
    std::optional<MoodMark> ownMood, peersMood;
    bool hidden = true;
    bool gone = false;
    std::function<void()> whenLetGo = [] {};
    std::vector<ShowMode> shows;
};

/// Keeps every window ever made, unloaded ones included.
template <class View> class PrivateFormsOf : public PrivateForms
{
public:
    ViewPtr<PrivateChatView> makePrivateForm(PrivateChat &chat) override
    {
        views.push_back(std::make_unique<View>(chat));
        return ViewPtr<PrivateChatView>(views.back().get());
    }

    std::vector<std::unique_ptr<View>> views;
};
using RecorderPrivateForms = PrivateFormsOf<RecorderPrivateView>;

class RecorderConferenceView : public ConferenceView, public RecorderConversationView
{
public:
    explicit RecorderConferenceView(Conference &engineHalf) : conference(engineHalf) { }

    ConversationView &conversation() override { return *this; }
    void showAvatar(const QString &name, const std::optional<QByteArray> &shown) override
    {
        avatarLabel = name;
        picture = shown;
        ++avatarChanges;
    }
    void showWindow() override { ++shows; }
    void letGo() override
    {
        gone = true;
        whenLetGo();
    }

    Conference &conference;
    QString avatarLabel;
    std::optional<QByteArray> picture;
    int avatarChanges = 0;
    int shows = 0;
    bool gone = false;
    std::function<void()> whenLetGo = [] {};
};

/// Keeps every window ever made, unloaded ones included.
template <class View> class ConferenceFormsOf : public ConferenceForms
{
public:
    ViewPtr<ConferenceView> makeConferenceForm(Conference &conference) override
    {
        views.push_back(std::make_unique<View>(conference));
        return ViewPtr<ConferenceView>(views.back().get());
    }

    std::vector<std::unique_ptr<View>> views;
};
using RecorderConferenceForms = ConferenceFormsOf<RecorderConferenceView>;

class RecorderInvitationsView : public InvitationsView
{
public:
    void showWithoutFocus() override { shows.push_back("without focus"); }
    void showWindow() override { shows.push_back("window"); }
    void hideWindow() override { shows.push_back("hidden"); }
    bool isActive() const override { return active; }
    void setAutoRefusal(bool on, int minutes) override
    {
        autorefuse = on;
        autorefuseMins = minutes;
    }

    std::vector<std::string> shows;
    bool active = false;
    bool autorefuse = false;
    int autorefuseMins = 0;
};

class RecorderNotifications : public Notifications
{
public:
    void add(const Notification &row) override
    {
        rows.push_back(row.text.toStdString() + " [" + pictureKey(pictureOf(row.presence)).toStdString() + "]");
        lastIp = row.ip.toText();
    }
    void startTimer() override { ++starts; }
    void show(const Notice &notice) override
    {
        lines.push_back(notice.line.toStdString());
        shown[notice.place] = notice;
    }
    void withdraw(const NoticePlace &place) override
    {
        shown.erase(place);
        withdrawn.push_back(place);
    }

    std::vector<std::string> rows;
    std::vector<std::string> lines;      ///< of every notice that was shown
    std::map<NoticePlace, Notice> shown; ///< those that stand now
    std::vector<NoticePlace> withdrawn;
    std::string lastIp;
    int starts = 0;
};

/// A source that works or, once tried, says why not.
class RecorderPictureSource : public PictureSource
{
public:
    RecorderPictureSource(const PolledPicture &origin, std::optional<QString> problem)
        : m_origin(origin), m_problem(std::move(problem))
    {
    }
    std::optional<QByteArray> frame() override
    {
        m_tried = true;
        return QByteArray(7500, 'f');
    }
    std::optional<QString> problem() const override { return m_tried ? m_problem : std::nullopt; }
    PolledPicture origin() const override { return m_origin; }

private:
    PolledPicture m_origin;
    std::optional<QString> m_problem;
    bool m_tried = false;
};

class RecorderPictureSources : public PictureSources
{
public:
    std::unique_ptr<PictureSource> open(const PolledPicture &wanted) override
    {
        ++opened;
        return std::make_unique<RecorderPictureSource>(wanted, problem);
    }

    int opened = 0;
    std::optional<QString> problem;
};

class RecorderSound : public Sound
{
public:
    void playAlarm() override { ++alarms; }
    void playNotice() override { ++notices; }

    int alarms = 0;
    int notices = 0;
};

class RecorderLinks : public LinkOpener
{
public:
    bool open(const QUrl &address, std::function<void()> failed) override
    {
        opened.push_back(address.toEncoded().toStdString());
        failsLater = std::move(failed);
        return hasHandler;
    }

    std::vector<std::string> opened;
    std::function<void()> failsLater; ///< of the last one
    bool hasHandler = true;
};

/// Answers questions as told and keeps what was said.
class RecorderPrompts : public Prompts
{
public:
    bool confirm(const QString &text, const QString &title) override
    {
        asked.push_back((title + QLatin1String(": ") + text).toStdString());
        if (meanwhile)
            std::exchange(meanwhile, nullptr)();
        return answer;
    }
    bool ask(const QString &text, const QString &title) override { return confirm(text, title); }
    std::optional<bool> decide(const QString &text, const QString &title) override
    {
        const bool yes = confirm(text, title);
        return attended ? std::optional(yes) : std::nullopt;
    }
    std::optional<bool> decideCarefully(const QString &text, const QString &title) override
    {
        ++carefully;
        return decide(text, title);
    }
    std::optional<bool> decideUnasked(const QString &text, const QString &title) override
    {
        return decide(text, title);
    }
    bool tell(const QString &text, const QString &title) override
    {
        told.push_back((title + QLatin1String(": ") + text).toStdString());
        return attended;
    }

    bool answer = true;
    bool attended = true;
    std::function<void()> meanwhile; ///< what happens while the next question is open
    int carefully = 0;               ///< how many of those that were asked
    std::vector<std::string> asked;
    std::vector<std::string> told;
};

/// One list of steps shared by everything whose order matters.
using Steps = std::vector<std::string>;

class RecorderTray : public TrayIcon
{
public:
    explicit RecorderTray(Steps &order) : steps(order) { }
    void AddIcon(const QString &ToolTip) override
    {
        shown = available;
        steps.push_back("AddIcon " + ToolTip.toStdString());
    }
    void setUnread(int number, const QString &ToolTip) override
    {
        unread = number;
        tip = ToolTip.toStdString();
    }
    void removeIcon() override
    {
        shown = false;
        steps.push_back("remove icon");
    }
    bool isShown() const override { return shown; }

    Steps &steps;
    bool available = true;
    bool shown = false;
    int unread = 0;
    std::string tip;
};

class RecorderWindows : public SecondaryWindows
{
public:
    explicit RecorderWindows(Steps &order) : steps(order) { }
    void unloadNotify() override { steps.push_back("unload notify"); }
    void unloadInvitations() override { steps.push_back("unload invitations"); }
    void unloadTipOfTheDay() override { steps.push_back("unload tip"); }

    Steps &steps;
};

/// A store in memory whose saves can be made to fail.
class MemoryStore : public SettingsStore
{
public:
    QString read(const QString &section, const QString &key, const QString &defaultValue) const override
    {
        if (const auto change = kept.find({section, key}); !dropping && change != kept.end() && change->second)
            return *change->second;
        const auto found = saved.find({section, key});
        return found == saved.end() ? defaultValue : found->second;
    }
    void write(const QString &section, const QString &key, const QString &value) override
    {
        pending.push_back({{section, key}, value});
        order.push_back((section + u'/' + key).toStdString());
    }
    std::optional<QString> save() override
    {
        if (failure)
            return failure;
        for (const auto &[address, value] : pending)
            saved[address] = value;
        pending.clear();
        if (std::exchange(dropping, false))
            kept.clear();
        ++saves;
        return std::nullopt;
    }
    std::optional<QString> problem() const override { return failure; }
    std::optional<QString> keep(const std::vector<KeptChange> &changes, const std::vector<SettingName> &undone) override
    {
        ++keeps;
        if (failure)
            return failure;
        for (const KeptChange &change : changes)
            kept[{change.section, change.key}] = change.value;
        for (const SettingName &name : undone)
            kept.erase({name.section, name.key});
        return std::nullopt;
    }
    RecoveredChanges recovered() const override
    {
        RecoveredChanges result;
        for (const auto &[address, value] : kept)
            result.changes.push_back({address.first, address.second, value});
        result.unreadable = damagedChanges;
        return result;
    }
    void dropKept() override { dropping = true; }

    std::string value(const char *section, const char *key) const
    {
        return read(QLatin1String(section), QLatin1String(key), QStringLiteral("(missing)")).toStdString();
    }
    void put(const char *section, const char *key, const QString &value)
    {
        saved[{QLatin1String(section), QLatin1String(key)}] = value;
    }
    /// Values by "section/key".
    void put(const std::map<std::string, QString> &values)
    {
        for (const auto &[address, value] : values) {
            const std::size_t slash = address.find('/');
            put(address.substr(0, slash).c_str(), address.substr(slash + 1).c_str(), value);
        }
    }
    /// Entry `number` of the stored contact list, counted from 1.
    void putContact(int number, const QString &ip, const QString &nickname, const QString &workstation)
    {
        const QByteArray digits = QByteArray::number(number);
        put("Users", ("IP" + digits).constData(), ip);
        put("Users", ("Nn" + digits).constData(), nickname);
        put("Users", ("Ws" + digits).constData(), workstation);
    }

    std::map<std::pair<QString, QString>, QString> saved;
    std::vector<std::pair<std::pair<QString, QString>, QString>> pending;
    std::vector<std::string> order; ///< "section/key" of every write
    int saves = 0;
    std::map<std::pair<QString, QString>, std::optional<QString>> kept; ///< beside what is saved
    int keeps = 0;                                                      ///< attempts to keep changes
    int damagedChanges = 0;
    bool dropping = false;
    std::optional<QString> failure;
};

/// A machine with the addresses that a test tells it.
class ToldAddresses : public OwnAddresses
{
public:
    bool isOwn(Ipv4Address address) const override { return own.contains(address); }
    bool isBroadcast(Ipv4Address address) const override { return broadcast.contains(address); }

    bool isFixed() const override { return fixed; }
    std::optional<Ipv4Address> sourceTowards(Ipv4Address peer) const override
    {
        return unreachable.contains(peer) ? std::nullopt : std::optional(source);
    }
    std::vector<NetworkCard> cards() const override { return running; }
    void readAnew() override { ++readings; }

    std::set<Ipv4Address> own, broadcast, unreachable;
    Ipv4Address source{10, 0, 0, 1}; ///< towards everybody
    bool fixed = false;
    std::vector<NetworkCard> running{{QStringLiteral("eth0"), Ipv4Address(10, 0, 0, 1), Ipv4Address(10, 0, 0, 255)}};
    int readings = 0; ///< since the networks changed
};

/// The networks change when a test says so.
class ToldNetworkChanges : public NetworkWatch
{
public:
    void listen(std::function<void(NetworkChange)> changed) override { listener = std::move(changed); }
    void tell(NetworkChange change = NetworkChange::networks) const { listener(change); }

    std::function<void(NetworkChange)> listener; ///< empty while nobody listens
};

/// The longest span, unless a test decides otherwise.
class ToldChance : public Chance
{
public:
    std::chrono::milliseconds upTo(std::chrono::milliseconds most) override
    {
        asked.push_back(most);
        return std::min(most, span);
    }

    std::chrono::milliseconds span = std::chrono::milliseconds::max();
    std::vector<std::chrono::milliseconds> asked;
};

/// What the system knows of the network, as a test wants it.
class ToldDiagnosis : public NetworkDiagnosis
{
public:
    std::optional<PortHolder> holderOf(std::uint16_t, std::optional<Ipv4Address>) const override { return holder; }
    int receiveBufferBytes() const override { return receiveBuffer; }
    bool canBroadcast(const NetworkCard &card) const override { return !mute.contains(card.name); }
    void readFirewall(std::uint16_t, std::function<void(const Firewall &)> read) override { firewallRead = read; }
    Neighbour neighbour(Ipv4Address address) const override
    {
        const auto told = neighbours.find(address);
        return told == neighbours.end() ? Neighbour::unknown : told->second;
    }
    bool isTunnel(const QString &card) const override { return tunnels.contains(card); }

    std::optional<PortHolder> holder;
    int receiveBuffer = 4 * 1024 * 1024;
    std::set<QString> mute, tunnels; ///< names of cards
    std::map<Ipv4Address, Neighbour> neighbours;
    std::function<void(const Firewall &)> firewallRead; ///< to be called by the test
};

/// What is to be told at the next start.
class RecorderNextStart : public NextStart
{
public:
    void tell(const QString &sentence) override { sentences.append(sentence); }
    QStringList take() override { return std::exchange(sentences, {}); }

    QStringList sentences;
};

/// A copy of the settings that is there or not.
class RecorderGoodCopy : public GoodCopy
{
public:
    std::optional<QDateTime> offeredCopy() const override { return offered; }
    std::optional<QString> takeCopy() override
    {
        done.push_back("take");
        offered.reset();
        return failure;
    }
    void declineCopy() override
    {
        done.push_back("decline");
        offered.reset();
    }
    std::optional<QString> renewCopy() override
    {
        done.push_back("renew");
        return failure;
    }
    std::optional<QString> damage() const override { return damaged; }

    std::optional<QDateTime> offered;
    std::optional<QString> damaged;
    std::optional<QString> failure;
    std::vector<std::string> done;
};

/// Around an engine everything but its socket, its time and its windows.
/// Keeps in memory and answers at once.
class RecorderHistory : public History
{
public:
    void keep(const KeptConversation &conversation, const KeptMessage &message) override
    {
        kept.push_back({conversation, message});
    }
    /// The words are looked for as they stand, and no day restricts anything.
    void find(const HistoryQuestion &question, Found found) override
    {
        std::vector<StoredMessage> all;
        for (std::size_t i = 0; i < kept.size(); ++i) {
            const StoredMessage one{.number = static_cast<std::int64_t>(i + 1),
                                    .conversation = numberOf(kept[i].first),
                                    .message = kept[i].second};
            if (one.number < question.before.value_or(one.number + 1) && one.number > question.after.value_or(0)
                && one.conversation == question.conversation.value_or(one.conversation)
                && one.message.text.contains(question.words))
                all.push_back(one);
        }
        const auto most = static_cast<std::size_t>(question.most);
        if (all.size() > most)
            all.erase(all.begin(), all.end() - question.most);
        found(all);
    }
    void findIn(const KeptConversation &conversation, const HistoryQuestion &question, Found found) override
    {
        HistoryQuestion there = question;
        there.conversation = numberOf(conversation);
        find(there, std::move(found));
    }
    void list(Listed listed) override
    {
        std::vector<StoredConversation> all;
        for (const auto &[conversation, message] : kept) {
            const std::int64_t number = numberOf(conversation);
            const auto same = std::ranges::find(all, number, &StoredConversation::number);
            StoredConversation &one = same == all.end() ? all.emplace_back() : *same;
            one = {number, conversation, message.time, one.messages + 1};
        }
        listed(all);
    }
    void leaveUnread(const KeptConversation &conversation) override
    {
        readTo.try_emplace(conversation.address, static_cast<std::int64_t>(kept.size()));
    }
    void setRead(const KeptConversation &conversation, int unread) override
    {
        if (unread == 0) {
            readTo.erase(conversation.address);
        } else if (const auto known = readTo.find(conversation.address); known != readTo.end()) {
            const std::vector<std::int64_t> received = receivedOf(conversation);
            known->second
                = std::max(known->second, received.at(received.size() - static_cast<std::size_t>(unread) - 1));
        }
    }
    void listUnread(Unread listed) override
    {
        std::vector<UnreadConversation> all;
        for (const auto &[address, last] : readTo) {
            const KeptConversation conversation{.address = address};
            const std::vector<std::int64_t> received = receivedOf(conversation);
            const auto unread = std::ranges::count_if(received, [last = last](auto number) { return number > last; });
            if (unread > 0)
                all.push_back({conversation, last, static_cast<int>(unread),
                               kept[static_cast<std::size_t>(received.back() - 1)].second.time});
        }
        listed(all);
    }
    /// The numbers of what others have written there.
    std::vector<std::int64_t> receivedOf(const KeptConversation &conversation) const
    {
        std::vector<std::int64_t> numbers;
        for (std::size_t i = 0; i < kept.size(); ++i) {
            if (kept[i].first == conversation && !kept[i].second.isOwn)
                numbers.push_back(static_cast<std::int64_t>(i + 1));
        }
        return numbers;
    }
    void erase(const HistorySelection &, Done done) override { done(true); }
    std::optional<QString> troubleNow() const override { return std::nullopt; }
    void eraseBefore(const QDateTime &time) override { erasedBefore.push_back(time); }

    /// 0: nothing of it is kept.
    std::int64_t numberOf(const KeptConversation &conversation) const
    {
        for (std::size_t i = 0; i < kept.size(); ++i) {
            if (kept[i].first == conversation)
                return static_cast<std::int64_t>(i + 1);
        }
        return 0;
    }

    QStringList texts() const
    {
        QStringList all;
        for (const auto &[conversation, message] : kept)
            all += message.text;
        return all;
    }

    std::vector<std::pair<KeptConversation, KeptMessage>> kept;
    std::map<QString, std::int64_t> readTo; ///< by address, where something is unread
    std::vector<QDateTime> erasedBefore;
};

class RecorderAutostart : public Autostart
{
public:
    bool isOn() const override { return nickname.has_value(); }
    std::optional<QString> switchOn(const QString &name) override
    {
        if (problem.isEmpty())
            nickname = name;
        return problem.isEmpty() ? std::nullopt : std::optional(problem);
    }
    std::optional<QString> switchOff() override
    {
        nickname.reset();
        return std::nullopt;
    }

    std::optional<QString> nickname; ///< under which it starts
    QString problem;
};

/// Serves nothing and notes what it is to serve; a test tells what becomes of it.
class RecorderFileServer : public FileServer
{
public:
    bool isAvailable() const override { return available; }
    void serve(const ServedFile &file, std::function<void(const Readied &)> ready) override
    {
        served.push_back(file);
        readies.push_back(std::move(ready));
        if (answersAtOnce)
            readies.back()({.size = 2'300'000, .port = 5549, .name = file.path.section(u'/', -1)});
    }
    void withdraw(const QString &token) override { withdrawn.append(token); }

    bool available = true;
    bool answersAtOnce = true;
    std::vector<ServedFile> served;
    std::vector<std::function<void(const Readied &)>> readies;
    QStringList withdrawn;
};

class RecorderFileFetcher : public FileFetcher
{
public:
    void fetch(const WantedFile &file) override { fetched.push_back(file); }
    void stop(int number) override
    {
        stopped.push_back(number);
        if (told)
            told({.number = number, .what = FetchedBytes::What::stopped});
    }

    void lookUp(const WantedFile &file) override { lookedUp.push_back(file); }
    void discard(const WantedFile &file) override { discarded.push_back(file); }

    std::vector<WantedFile> fetched, lookedUp, discarded;
    std::vector<int> stopped;
};

struct Recorders {
    MemoryStore settings;
    RecorderGoodCopy goodCopy;
    RecorderNextStart nextStart;
    RecorderPrompts prompts;
    ToldAddresses ownAddresses;
    ToldNetworkChanges networkWatch;
    ToldChance chance;
    RecorderSound sound;
    Steps steps;
    RecorderTray tray{steps};
    RecorderHistory history;
    RecorderFileServer fileServer;
    RecorderFileFetcher fileFetcher;
    DropCounts drops;
};

} // namespace nimb::test

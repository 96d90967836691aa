// One run of the program: makes the objects, hands them to each other, starts and ends.
#pragma once

#include "app/form_opener.h"
#include "app/manual_opener.h"
#include "app/messenger.h"
#include "app/remote_commands.h"
#include "base/window_openers.h"
#include "files/http_file_fetcher.h"
#include "files/http_file_server.h"
#include "history/history_keeper.h"
#include "main_window/Tray.h"
#include "platform/desktop.h"
#include "platform/desktop_autostart.h"
#include "platform/end_requests.h"
#include "platform/environment.h"
#include "platform/hunspell_spelling.h"
#include "platform/link_opener.h"
#include "platform/name_resolver.h"
#include "platform/net_send_runner.h"
#include "platform/network_diagnosis.h"
#include "platform/network_watch.h"
#include "platform/own_identity.h"
#include "platform/picture_sources.h"
#include "platform/process_exit.h"
#include "platform/qt_timers.h"
#include "platform/single_instance.h"
#include "platform/sound_player.h"
#include "platform/system_chance.h"
#include "platform/system_info.h"
#include "platform/translations.h"
#include "platform/udp_winsock.h"
#include "protocol/traced_winsock.h"
#include "store/next_start_file.h"
#include "store/sqlite_settings_store.h"
#include "widgets/message_boxes.h"
#include "widgets/plain_tool_tips.h"

#include <memory>
#include <optional>

class QSessionManager;

namespace nimb
{

/// Two sounds that do not wait for each other.
class ProgramSounds : public Sound
{
public:
    void playAlarm() override { m_alarm.play(); }
    void playNotice() override { m_notice.play(); }

private:
    SoundPlayer m_alarm{findProgramFile(QStringLiteral("alarm.wav"))};
    SoundPlayer m_notice{findProgramFile(QStringLiteral("notice.wav"))};
};

class Program : public StartUpSteps
{
    Q_DECLARE_TR_FUNCTIONS(Program)

public:
    explicit Program(const Environment &environment);

    /// Returns the exit status.
    int run(const QString &commandLine);

    bool anotherCopyRuns() override;
    void restoreOtherCopy(const QString &caption) override;
    void loadNotify() override;
    bool offerGoodCopy() override;
    void showLogin() override;
    void loadAndUnloadLogin() override;
    void loadMain() override;
    void showMain() override;
    void minimiseMain() override;
    void showTipOfTheDay() override { m_forms.showTipOfTheDay(); }

private:
    void listenToTheSystem();
    void followDesktop();
    void speakChosenLanguage();
    void endSession(QSessionManager &session);
    /// Ends the program without anybody there to answer questions.
    void end(UnloadMode mode);
    void endSoon();
    /// The screen is gone, and with it every window.
    void endWithoutScreen();
    void secondStart(const QString &caption);
    QString statusNotes() const;

    bool m_ending = false;
    std::optional<QString> m_wantedAddress;
    DropCounts m_drops;
    Translations m_translations; ///< before what may tell of a trouble while it is made
    Common m_common;
    SiteDefaults m_siteDefaults;
    SqliteSettingsStore m_store;
    NextStartFile m_nextStart;
    SingleInstance m_instance;
    QtTimers m_timers;
    SystemClock m_clock;
    DatagramTrace m_trace;
    UdpWinsock m_udp;
    TracedWinsock m_socket;
    MachineAddresses m_ownAddresses;
    std::unique_ptr<NetworkWatch> m_networkWatch = watchNetworks(m_timers);
    SystemChance m_chance;
    MessageBoxes m_prompts;
    PlainToolTips m_toolTips;
    ProgramSounds m_sound;
    DesktopLinkOpener m_links{desktopHandler};
    DesktopPageOpener m_pages{desktopHandler};
    DesktopFolderOpener m_folders{desktopHandler};
    ManualOpener m_manual{findManual(), m_pages};
    SystemPictureSources m_pictures;
    HostNameResolver m_names;
    NetSendRunner m_netSend;
    SystemInfo m_systemInfo;
    SystemNetworkDiagnosis m_diagnosis;
    HunspellSpelling m_spellChecker;
    DesktopAutostart m_autostart;
    HistoryKeeper m_history;
    HttpFileServer m_fileServer;
    HttpFileFetcher m_fileFetcher;
    FormOpener m_forms;
    std::unique_ptr<Notifications> m_notifications;
    std::optional<Login> m_login;
    std::optional<Tray> m_tray;
    std::optional<Messenger> m_engine;
    std::optional<RemoteCommands> m_remote;
    std::unique_ptr<QObject> m_endRequests;
    std::optional<ProcessExit> m_exit;
};

} // namespace nimb

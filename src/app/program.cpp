#include "app/program.h"

#include "base/limits.h"
#include "base/program_languages.h"
#include "base/settings.h"
#include "main_window/frmMain.h"
#include "main_window/offer_good_copy.h"
#include "main_window/sub_main.h"
#include "platform/own_identity.h"
#include "platform/program_files.h"
#include "protocol/address_text.h"
#include "widgets/appearance_palette.h"
#include "widgets/clear_outlines.h"

#include <QApplication>
#include <QImageReader>
#include <QLocale>
#include <QSessionManager>
#include <QStandardPaths>
#include <QTimer>

namespace nimb
{

Program::Program(const Environment &environment)
    : m_wantedAddress(environment.address), m_siteDefaults(readSiteDefaults(environment.siteFolders)),
      m_store(environment.profileFolder), m_nextStart(environment.profileFolder), m_instance(environment.profileFolder),
      m_udp(m_drops, environment.address ? readAddress(*environment.address) : std::nullopt, environment.hostName),
      m_socket(m_udp, m_trace), m_ownAddresses(environment.address ? readAddress(*environment.address) : std::nullopt),
      m_diagnosis(m_udp),
      m_autostart(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + QLatin1String("/autostart"),
                  QGuiApplication::desktopFileName(), QCoreApplication::applicationFilePath()),
      m_history(environment.profileFolder),
      m_forms({m_common, m_timers, m_clock, m_socket, m_store, m_prompts, m_links, m_folders, m_manual, m_pictures,
               m_names, m_netSend, m_systemInfo, m_diagnosis, m_trace, m_drops, m_spellChecker, m_autostart,
               [] { return readProgramFile(QStringLiteral("TOTD.txt")); }})
{
    m_store.setDefaults(m_siteDefaults.values);
    qApp->installEventFilter(&m_toolTips);
    makeOutlinesClear();
    // For pictures that are pasted as well as for those of files.
    QImageReader::setAllocationLimit(limits::pictureFileMemory);
}

int Program::run(const QString &commandLine)
{
    listenToTheSystem();
    followDesktop();
    speakChosenLanguage();
    m_instance.setCommandHandler([this](const QByteArray &command, const auto &reply) {
        if (m_remote)
            return m_remote->carryOut(command, reply);
        reply(RemoteCommands::answerAtLogin(command, [this] { endSoon(); }));
    });
    if (SubMain(commandLine, m_common, m_store, *this) != Started::running)
        return 0;
    m_exit.emplace([this] { endWithoutScreen(); });
    const int status = QCoreApplication::exec();
    m_exit.reset();
    m_forms.destroyMain();
    m_instance.setCommandHandler({});
    m_remote.reset();
    m_engine.reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return m_prompts.wereMissed() ? EXIT_FAILURE : status;
}

void Program::listenToTheSystem()
{
    m_endRequests = listenForEndRequests([this] { end(UnloadMode::code); });
    QObject::connect(qApp, &QGuiApplication::commitDataRequest, &m_instance,
                     [this](QSessionManager &session) { endSession(session); });
    // A restored session would start the program with words that it takes for a nickname.
    QObject::connect(qApp, &QGuiApplication::saveStateRequest, &m_instance,
                     [](QSessionManager &session) { session.setRestartHint(QSessionManager::RestartNever); });
}

void Program::followDesktop()
{
    followAppearance(*qApp, [desktops = QApplication::palette()](const Appearance &appearance) {
        QApplication::setPalette(paletteFor(appearance, desktops).value_or(QPalette()));
    });
}

void Program::speakChosenLanguage()
{
    const QString chosen = knownLanguage(readSetting(m_store, QLatin1String("Language")));
    if (!chosen.isEmpty())
        m_translations.use(chosen);
    QGuiApplication::setLayoutDirection(m_translations.language().textDirection());
}

void Program::endSession(QSessionManager &session)
{
    session.setRestartHint(QSessionManager::RestartNever);
    end(UnloadMode::sessionEnd);
}

void Program::end(UnloadMode mode)
{
    m_ending = true;
    m_prompts.setUnattended();
    if (frmMain *const window = m_forms.main())
        window->unload(mode);
    else
        m_forms.closeLogin();
}

/// Once whoever asked for it has been answered.
void Program::endSoon()
{
    QTimer::singleShot(0, qApp, [this] { end(UnloadMode::code); });
}

void Program::endWithoutScreen()
{
    m_prompts.setNobodyThere();
    m_engine->endWithoutWindows();
}

bool Program::anotherCopyRuns()
{
    return !m_instance.acquire();
}

void Program::restoreOtherCopy(const QString &caption)
{
    m_instance.handOver(caption);
}

void Program::secondStart(const QString &caption)
{
    frmMain *const window = m_forms.main();
    if (window && window->caption() == caption)
        window->restore();
}

void Program::loadNotify()
{
    QObject::connect(&m_instance, &SingleInstance::secondStart, &m_instance,
                     [this](const QString &caption) { secondStart(caption); });
    m_login.emplace(m_common, m_store, m_socket);
    const bool placed = windowsStandWherePut();
    m_forms.loadNotify(placed);
    m_notifications = routeNotifications(m_common, m_forms.notifications(), placed,
                                         {
                                             .open = [this](const NoticePlace &place) { m_forms.openNotice(place); },
                                             .answer =
                                                 [this](const NoticePlace &place, const QString &text) {
                                                     if (m_engine)
                                                         m_engine->answerNotice(place, text);
                                                 },
                                         });
}

bool Program::offerGoodCopy()
{
    nimb::offerGoodCopy(m_store, m_store, m_prompts);
    return !m_ending;
}

void Program::showLogin()
{
    if (!m_forms.showLogin(*m_login))
        m_common.ownNickname.clear();
}

void Program::loadAndUnloadLogin()
{
    m_login->Form_Load();
}

void Program::loadMain()
{
    frmMain &window = m_forms.makeMain();
    m_prompts.setParentWindow(&window);
    m_tray.emplace(m_forms.trayIcon(), [&window] { window.restore(); });
    m_engine.emplace(m_common,
                     Surroundings{m_socket,
                                  m_store,
                                  m_store,
                                  m_nextStart,
                                  m_timers,
                                  m_clock,
                                  m_ownAddresses,
                                  *m_networkWatch,
                                  m_chance,
                                  m_prompts,
                                  *m_notifications,
                                  m_sound,
                                  *m_tray,
                                  m_forms,
                                  m_forms.conversations(),
                                  m_forms.conversations(),
                                  m_history,
                                  window,
                                  m_drops,
                                  m_fileServer,
                                  m_fileFetcher});
    m_remote.emplace(RemoteCommands::Parts{*m_engine, [&window] { window.restore(); }, [this] { endSoon(); }});
    m_forms.connectMain(
        *m_engine, [this] { return statusNotes(); }, [] { QCoreApplication::exit(0); });
    window.Form_Load();
    m_engine->history().removeOld();
    for (const QString &fault : std::as_const(m_siteDefaults.faults))
        m_engine->log().fault(fault);
    if (m_wantedAddress && !readAddress(*m_wantedAddress))
        m_engine->log().fault(
            tr("NIMBCHAT_ADDRESS is \"%1\", which is no IPv4 address; NIMB-Chat listens on every interface instead.")
                .arg(*m_wantedAddress));
}

QString Program::statusNotes() const
{
    QStringList notes;
    if (const QString drops = m_drops.summary(); !drops.isEmpty())
        notes.append(drops);
    const int granted = m_udp.receiveBufferBytes();
    if (m_socket.isBound() && granted < UdpWinsock::receiveBufferAsked)
        notes.append(tr("The system grants %1 KiB for waiting datagrams instead of %2 KiB: sudden bursts may be lost.")
                         .arg(granted / 1024)
                         .arg(UdpWinsock::receiveBufferAsked / 1024));
    return notes.join(QLatin1Char('\n'));
}

void Program::showMain()
{
    m_forms.main()->show();
}

void Program::minimiseMain()
{
    m_forms.main()->showMinimized();
}

} // namespace nimb

// Opens the dialogs of the main window's menus.
#pragma once

#include "app/messenger.h"
#include "base/autostart.h"
#include "base/link_opener.h"
#include "base/name_resolver.h"
#include "base/net_send.h"
#include "base/network_diagnosis.h"
#include "base/picture_source.h"
#include "base/spell_checker.h"
#include "base/system_information.h"
#include "base/window_openers.h"
#include "protocol/datagram_trace.h"
#include "welcome/tip_of_the_day.h"

#include <QCoreApplication>
#include <QPointer>

namespace nimb
{

class ManualOpener;
class frmDoctor;
class frmHistory;
class frmMain;
class frmSendContact;
class frmTipOfTheDay;
class frmTransfers;

/// What the windows need beside the engine; all of it outlives them.
struct FormServices {
    Common &common;
    Timers &timers;
    const WallClock &clock;
    Winsock &socket;
    SettingsStore &store;
    Prompts &prompts;
    LinkOpener &links;
    LinkOpener &folders; ///< opens folders of this machine
    ManualOpener &manual;
    PictureSources &pictures;
    NameResolver &names;
    NetSend &netSend;
    SystemInformation &systemInformation;
    NetworkDiagnosis &diagnosis;
    DatagramTrace &trace; ///< of the socket
    const DropCounts &drops;
    SpellChecker &spellChecker;
    Autostart &autostart;
    TipOfTheDay::OpenFile openTips;
};

class DialogOpener : public MenuWindows
{
    Q_DECLARE_TR_FUNCTIONS(DialogOpener)

public:
    /// The dialogs stand over that window, which ends before this.
    DialogOpener(const FormServices &services, Messenger &engine, frmMain &over);
    ~DialogOpener() override;

    void mnuNetworkscan() override;
    void mnuAddUser() override;
    void mnuFindEverybody() override;
    void stopSearching() override;
    void mnuImportContacts() override;
    void mnuExportContacts() override;
    void mnuToolsOptions() override;
    void mnuHelpAbout() override;
    void mnuTOTD() override;
    void mnuNetworkDoctor() override;
    void mnuShortcuts() override;
    void mnuTransfers() override;
    bool canSendFiles() const override;
    void mnuSendFile(const QString &ip) override;
    void mnuHistory(const QString &ip) override;
    /// The same, and looks for words.
    void openHistory(const QString &ip, const QString &words);
    void mnuLeaveOut(const QString &ip, bool leftOut) override;
    bool hasManual() const override;
    void mnuManual() override;
    void mnusendcontacts(const QString &ip) override;
    void mnuinviteuser(const QString &ip) override;
    void mnuCreateNewConf() override;
    void mnushowinvitations() override;
    void mnuInvite2Conf(int slot, const QString &ip) override;

    void unloadTipOfTheDay();

private:
    void importContacts(const QString &path);
    void exportContacts(const QString &path);

    const FormServices &m_services;
    Messenger &m_engine;
    frmMain &m_main;
    // They delete themselves when they are closed.
    QPointer<frmTipOfTheDay> m_tip;
    QPointer<frmSendContact> m_sendContact;
    QPointer<frmDoctor> m_doctor;
    QPointer<frmHistory> m_history;
    QPointer<frmTransfers> m_transfers;
};

} // namespace nimb

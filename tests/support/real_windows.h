// One copy with its real windows, on a simulated network and with virtual time.
#pragma once

#include "app/form_opener.h"
#include "app/manual_opener.h"
#include "controls.h"
#include "dialog_recorders.h"
#include "log/rich_text_log.h"
#include "main_window/frmMain.h"
#include "protocol/traced_winsock.h"
#include "recorders.h"
#include "simulated_network.h"
#include "virtual_time.h"

#include <gmock/gmock.h>

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QTest>
#include <QTextEdit>
#include <QTreeView>

namespace nimb::test
{

class RealWindows : public Recorders
{
public:
    explicit RealWindows(const std::vector<std::pair<const char *, const char *>> &contacts = {},
                         const std::map<std::string, QString> &stored = {}, SpellChecker *realSpelling = nullptr,
                         const std::optional<QString> &manualFolder = QStringLiteral("/manual"))
        : m_spelling(realSpelling ? *realSpelling : spellChecker), manual(manualFolder, manualPages)
    {
        QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedKingdom));
        common.ownIP = Ipv4Address(10, 0, 0, 1);
        common.ownHostName = QStringLiteral("HERE");
        common.ownNickname = QStringLiteral("Me");
        int n = 0;
        for (const auto &[ip, nickname] : contacts)
            settings.putContact(++n, QString::fromUtf8(ip), QString::fromUtf8(nickname), QStringLiteral("PC"));
        settings.put(stored);
        forms.loadNotify();
        main().show();
        forms.connectMain(
            engine, [this] { return drops.summary(); }, [this] { ended = true; });
        main().Form_Load();
        QCoreApplication::processEvents();
    }
    ~RealWindows()
    {
        engine.conferences().unloadAll();
        engine.privateWindows().unloadAll();
        engine.invitations().Form_Unload();
        forms.unloadInvitations();
        forms.destroyMain();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    frmMain &main() { return m_main; }
    template <class Widget = QWidget> Widget &control(const char *name) { return control<Widget>(main(), name); }
    template <class Widget = QWidget> static Widget &control(QWidget &window, const char *name)
    {
        return controlOf<Widget>(window, name);
    }
    QTreeView &list() { return control<QTreeView>("ListView1"); }
    QAction &entry(const char *name) { return *main().findChild<QAction *>(QLatin1String(name)); }
    /// A window's log as it will be seen in the next frame.
    static RichTextLogEdit &logOf(QWidget &window)
    {
        auto &log = control<RichTextLogEdit>(window, "outtext");
        log.writeGathered();
        return log;
    }
    QString logText() { return logOf(main()).toPlainText(); }

    /// Private windows that have not been unloaded, in the order in which they were made.
    static std::vector<QWidget *> privateWindows()
    {
        std::vector<QWidget *> windows;
        for (QWidget *const window : QApplication::topLevelWidgets()) {
            if (window->objectName() == QLatin1String("frmPrivate"))
                windows.push_back(window);
        }
        return windows;
    }
    QWidget &privateWindow()
    {
        const std::vector<QWidget *> windows = privateWindows();
        if (windows.size() != 1)
            qFatal("%zu private windows instead of one", windows.size());
        return *windows.front();
    }

    void arrive(const char *from, const std::string &bytes)
    {
        socket.arrive(QLatin1String(from), bytes);
        QCoreApplication::processEvents();
    }
    /// The contacts named answer the announcement of the start, which then ends.
    void settleStart(const std::vector<const char *> &answering)
    {
        for (const char *const ip : answering)
            arrive(ip, "!ONLINE");
        time.advance(std::chrono::milliseconds(1000));
        socket.sent.clear();
    }
    std::vector<To> sent() { return std::exchange(socket.sent, {}); }
    QPoint placeOf(int row) { return list().visualRect(list().model()->index(row, 0)).center(); }
    void click(int row, Qt::MouseButton button = Qt::LeftButton)
    {
        QTest::mouseClick(list().viewport(), button, {}, placeOf(row));
    }
    void doubleClick(int row)
    {
        click(row);
        QTest::mouseDClick(list().viewport(), Qt::LeftButton, {}, placeOf(row));
    }

    VirtualTime time;
    Common common;
    SimulatedWinsock socket{QStringLiteral("10.0.0.1"), QStringLiteral("HERE"), nullptr};
    DatagramTrace trace;
    TracedWinsock traced{socket, trace};
    RecorderLinks links;
    RecorderLinks folders;
    RecorderPictureSources pictures;
    RecorderResolver names;
    RecorderNetSend netSend;
    RecorderSystemInformation systemInformation;
    ToldDiagnosis diagnosis;
    RecorderAutostart autostart;
    RecorderSpellChecker spellChecker; ///< without a dictionary; unless the test has a real one

private:
    SpellChecker &m_spelling;

public:
    RecorderLinks manualPages;
    ManualOpener manual;
    std::optional<QByteArray> tips = QByteArray("The first tip||in two lines\nThe second tip, with a comma\n");
    FormOpener forms{{common, time, time, traced, settings, prompts, links, folders, manual, pictures, names, netSend,
                      systemInformation, diagnosis, trace, drops, m_spelling, autostart, [this] { return tips; }}};
    bool ended = false;

private:
    frmMain &m_main = forms.makeMain();

public:
    Messenger engine{common,
                     {traced,
                      settings,
                      goodCopy,
                      nextStart,
                      time,
                      time,
                      ownAddresses,
                      networkWatch,
                      chance,
                      prompts,
                      forms.notifications(),
                      sound,
                      tray,
                      forms,
                      forms.conversations(),
                      forms.conversations(),
                      history,
                      m_main,
                      drops,
                      fileServer,
                      fileFetcher}};
};

} // namespace nimb::test

#include "every_window.h"

#include "conversation/spelling_marks.h"
#include "main_window/Tray.h"
#include "real_windows.h"
#include "welcome/frmLogin.h"
#include "widgets/message_boxes.h"
#include "widgets/pictures.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabBar>
#include <QTemporaryDir>
#include <QTimer>
#include <QToolButton>

namespace nimb::test
{
namespace
{

/// Shows each window to whoever wants to see them.
class Gallery
{
public:
    explicit Gallery(const WindowVisitor &visitor) : m_visitor(visitor) { }

    void take(QWidget &window, const char *name)
    {
        for (RichTextLogEdit *const log : window.findChildren<RichTextLogEdit *>())
            log->writeGathered();
        if (!QTest::qWaitForWindowExposed(&window, 30000))
            qFatal("%s does not appear", name);
        // A layout that has changed tells the one around it in a further round.
        constexpr int nestedLayouts = 5;
        for (int round = 0; round < nestedLayouts; ++round) {
            QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
            QCoreApplication::processEvents();
        }
        m_visitor(window, name);
    }

private:
    const WindowVisitor &m_visitor;
};

const std::vector<std::pair<const char *, const char *>> everybody = {
    {"192.168.1.12", "Ann"},    {"192.168.1.20", "Benedikt Freiherr von und zu Hohenstein-Waldburg"},
    {"192.168.1.31", "Cleo"},   {"192.168.1.44", "Дмитрий"},
    {"192.168.1.45", "Émile"},  {"192.168.1.99", "Frank (basement)"},
    {"192.168.1.107", "Ελένη"},
};

/// A landscape of 50 by 50 pixels.
std::string landscape()
{
    std::string body;
    for (int y = 0; y < 50; ++y) {
        for (int x = 0; x < 50; ++x) {
            const bool sun = (x - 36) * (x - 36) + (y - 12) * (y - 12) < 40;
            const bool hill = y > 32 + 6 * ((x / 13) % 2) - x % 13 / 3;
            const QColor colour = sun ? QColor(255, 220, 60)
                : hill                ? QColor(40, 130 - y, 60)
                                      : QColor(120, 170, 255 - y);
            body += static_cast<char>(colour.blue());
            body += static_cast<char>(colour.green());
            body += static_cast<char>(colour.red());
        }
    }
    return body;
}

void fill(RealWindows &windows)
{
    windows.settleStart({"192.168.1.12", "192.168.1.20", "192.168.1.31", "192.168.1.44", "192.168.1.45"});
    windows.arrive("192.168.1.20", "!STATUS BUSY In a meeting until the afternoon");
    windows.arrive("192.168.1.44", "!STATUS AWAY Lunch");
    windows.arrive("192.168.1.31", "!STATUS ONLINE");
    windows.arrive("192.168.1.107", "!ONLINE 192.168.1.107 PC-ELENI \xCE\x95\xCE\xBB\xCE\xAD\xCE\xBD\xCE\xB7");
    windows.arrive("192.168.1.32", "!ONLINE 192.168.1.32 PC-32 Cl\xD0\xB5\xD0\xBE"); // Cyrillic in the end
    windows.arrive("192.168.1.45", "!DANCE");
    windows.arrive("192.168.1.45", "what is this?");
    windows.click(0);
}

void takeMain(Gallery &gallery)
{
    RealWindows windows(everybody);
    fill(windows);
    windows.arrive("192.168.1.12", "!AVATARBODY " + landscape());
    windows.arrive("192.168.1.31", "-Are you coming?");
    windows.arrive("192.168.1.31", "-We have begun");
    windows.main().activateWindow();
    gallery.take(windows.main(), "main");
    windows.list().scrollToBottom();
    gallery.take(windows.main(), "main_who_is_offline");
    windows.list().scrollToTop();
    windows.control<QTabBar>("TabStrip1").setCurrentIndex(1);
    gallery.take(windows.main(), "main_full_details");
    windows.control<QTabBar>("TabStrip1").setCurrentIndex(0);
    windows.entry("mnuLogWindow").trigger();
    gallery.take(windows.main(), "main_without_log");
    windows.entry("mnuLogWindow").trigger();
    auto &chooser = windows.control<QComboBox>("ImageCombo1");
    chooser.setCurrentIndex(4);
    Q_EMIT chooser.activated(4);
    RealWindows::control<QLineEdit>(windows.main(), "PersonalizedMessageText").setText(QStringLiteral("In a meeting"));
    gallery.take(windows.main(), "main_personalized_state");
    windows.control<QPushButton>("PersonalizedOkbtn").click();
    chooser.setCurrentIndex(2);
    Q_EMIT chooser.activated(2);
    windows.control<QPushButton>("Autoreplybtn").click();
    gallery.take(windows.main(), "main_auto_reply");
    windows.arrive("192.168.1.20", "!BUZZ");
    windows.entry("mnuLogWindow").trigger();
    gallery.take(windows.main(), "main_activity");
    windows.entry("mnuLogWindow").trigger();
    auto &file = windows.control<QMenu>("mnuFile");
    file.popup(windows.main().pos() + QPoint(20, 60));
    gallery.take(file, "main_file_menu");
    file.close();
    windows.entry("mnuFileOpen").trigger();
    gallery.take(*QApplication::activeModalWidget(), "file_open");
    QApplication::activeModalWidget()->close();
    windows.entry("mnuFilePageSetup").trigger();
    gallery.take(*QApplication::activeModalWidget(), "page_setup");
    QApplication::activeModalWidget()->close();
    windows.control<QPushButton>("clearbtn").click();
    gallery.take(windows.main(), "main_log_cleared");
    auto &menu = windows.control<QMenu>("mnuPopUp");
    windows.click(1, Qt::RightButton);
    gallery.take(menu, "main_context_menu");
    menu.close();
    auto &users = windows.control<QMenu>("mnuUsers");
    users.popup(windows.main().pos() + QPoint(20, 60));
    gallery.take(users, "main_users_menu");
    users.close();
}

void takeMainAfterASearch(Gallery &gallery)
{
    RealWindows windows;
    windows.ownAddresses.running = {{QStringLiteral("eth0"), Ipv4Address(10, 0, 0, 1), Ipv4Address(10, 0, 0, 255)},
                                    {QStringLiteral("wlan0"), Ipv4Address(10, 7, 0, 1), Ipv4Address(10, 7, 3, 255)}};
    windows.ownAddresses.broadcast = {Ipv4Address(10, 0, 0, 255)};
    windows.control<QPushButton>("findEverybodyBtn").click();
    windows.time.advance(std::chrono::seconds(3));
    windows.control<QPushButton>("findEverybodyBtn").click();
    for (const auto &[ip, name] : everybody)
        windows.arrive(ip, "!ONLINE " + std::string(ip) + " PC " + name);
    windows.time.advance(std::chrono::seconds(3));
    gallery.take(windows.main(), "main_after_a_search");
    std::vector<SearchTarget> targets;
    for (unsigned char i = 1; i < 255; ++i)
        targets.push_back({Ipv4Address(192, 168, 2, i)});
    windows.engine.search().ask(targets, QStringLiteral("192.168.2.0/24"));
    windows.time.advance(std::chrono::seconds(1));
    gallery.take(windows.main(), "main_while_searching");
    windows.entry("mnuLogWindow").trigger();
    gallery.take(windows.main(), "main_while_searching_without_log");
}

void takeMainInTrouble(Gallery &gallery)
{
    RealWindows windows;
    gallery.take(windows.main(), "main_empty");
    windows.main().setTroublePanel(QStringLiteral("Port 5549 is taken"));
    windows.engine.log().fault(
        QStringLiteral("Port 5549 is used by another program, so nobody can reach you. Close that "
                       "program: NIMB-Chat tries again every 5 seconds."));
    gallery.take(windows.main(), "main_port_taken");
}

void takeMainWhileFinding(Gallery &gallery)
{
    RealWindows windows(everybody);
    fill(windows);
    auto &box = windows.control<QLineEdit>("contactFilter");
    windows.main().activateWindow();
    if (!QTest::qWaitForWindowActive(&windows.main(), 30000))
        qFatal("keys go elsewhere");
    QTest::keyClick(&windows.main(), Qt::Key_K, Qt::ControlModifier);
    gallery.take(windows.main(), "main_find");
    box.setText(QStringLiteral("en"));
    gallery.take(windows.main(), "main_found");
    windows.control<QTabBar>("TabStrip1").setCurrentIndex(1);
    gallery.take(windows.main(), "main_found_full_details");
    windows.control<QTabBar>("TabStrip1").setCurrentIndex(0);
    box.setText(QStringLiteral("Zoe"));
    gallery.take(windows.main(), "main_nobody_found");
}

void takeMainWithThousand(Gallery &gallery)
{
    std::vector<std::string> names;
    std::vector<std::string> addresses;
    for (int i = 0; i < 1000; ++i) {
        names.push_back("Contact " + std::to_string(i));
        addresses.push_back("10.0." + std::to_string(i / 250) + "." + std::to_string(i % 250 + 1));
    }
    std::vector<std::pair<const char *, const char *>> contacts;
    for (std::size_t i = 0; i < names.size(); ++i)
        contacts.emplace_back(addresses[i].c_str(), names[i].c_str());
    RealWindows windows(contacts);
    windows.settleStart({"10.0.0.1", "10.0.0.2"});
    gallery.take(windows.main(), "main_thousand_contacts");
}

void takePrivate(Gallery &gallery)
{
    RealWindows windows(everybody);
    fill(windows);
    windows.doubleClick(0);
    QWidget &form = windows.privateWindow();
    PrivateChat &chat = *windows.engine.privateWindows().at(1);
    windows.arrive("192.168.1.12", "-Hello! Did you see the new plan?");
    EXPECT_TRUE(chat.send(QStringLiteral("Not yet. Is it on the server?")));
    windows.arrive("192.168.1.12",
                   "-Yes, in the usual place. It is a long one, so take your time; the part about the "
                   "network in the basement is the one that matters for us.\r\nThere is a second line, too.");
    EXPECT_TRUE(chat.send(QStringLiteral("I'll read it after lunch")));
    windows.arrive("192.168.1.12",
                   "-Good :) It is at http://fileserver/plans/2026 (all of it), or ask "
                   "mailto:paul@example.org ;-p");
    windows.arrive("192.168.1.12", "-All of them: :)) :(( :) :( :| :p ;) ;p :D");
    windows.arrive("192.168.1.12", "!STATUS AWAY Lunch");
    windows.arrive("192.168.1.12", "!BUZZ");
    RealWindows::control<QPlainTextEdit>(form, "intext").setPlainText(QStringLiteral("See you at"));
    gallery.take(form, "private");
    RealWindows::control<QToolButton>(form, "Emoticbtn").click();
    gallery.take(form, "private_emoticons");
    QTextEdit &log = RealWindows::logOf(form);
    log.selectAll();
    gallery.take(form, "private_selected");
    QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(20, 20), log.viewport()->mapToGlobal(QPoint(20, 20)));
    QCoreApplication::sendEvent(log.viewport(), &event);
    auto &menu = RealWindows::control<QMenu>(log, "logMenu");
    gallery.take(menu, "private_log_menu");
    menu.close();
    RealWindows::logOf(form).zoom(8);
    gallery.take(form, "private_zoomed");
}

void takeEmoji(Gallery &gallery)
{
    RealWindows windows(everybody);
    fill(windows);
    windows.common.recentEmoji = {QStringLiteral("\U0001F389"), QStringLiteral("\u2764\uFE0F"),
                                  QStringLiteral("\U0001F44D"), QStringLiteral("\U0001F602")};
    windows.doubleClick(0);
    QWidget &form = windows.privateWindow();
    windows.arrive("192.168.1.12", "-Hello! Did you see the new plan?");
    EXPECT_TRUE(windows.engine.privateWindows().at(1)->send(QStringLiteral("It is great \U0001F389\U0001F44D")));
    windows.arrive("192.168.1.12", "-I knew it \xF0\x9F\x98\x82 :)");
    RealWindows::control<QPlainTextEdit>(form, "intext").setPlainText(QStringLiteral("See you at \u2764\uFE0F"));
    RealWindows::control<QToolButton>(form, "Emoticbtn").click();
    gallery.take(form, "private_emoji");
    if (auto *const search = form.findChild<QLineEdit *>(QStringLiteral("emojiSearch"))) {
        search->setText(QStringLiteral("party"));
        gallery.take(form, "private_emoji_found");
        search->setText(QStringLiteral("xyzzy"));
        gallery.take(form, "private_emoji_not_found");
    }
}

void takePrivatePanels(Gallery &gallery)
{
    RealWindows windows(everybody);
    fill(windows);
    windows.doubleClick(0);
    QWidget &form = windows.privateWindow();
    windows.arrive("192.168.1.12", "-Hello! Did you see the new plan?");
    EXPECT_TRUE(windows.engine.privateWindows().at(1)->send(QStringLiteral("Not yet. Is it on the server?")));
    windows.arrive("192.168.1.12",
                   "-Yes, in the usual place. It is a long one, so take your time; the part about the "
                   "network in the basement is the one that matters for us.");
    RealWindows::control<QToolButton>(form, "AvatarBtn").click();
    gallery.take(form, "private_no_avatar");
    windows.arrive("192.168.1.12", "!AVATARHEAD today");
    windows.arrive("192.168.1.12", "!AVATARBODY " + landscape());
    RealWindows::control<QToolButton>(form, "moodbtn").click();
    windows.engine.privateWindows().at(1)->mymoodpct_MouseDown(20);
    windows.arrive("192.168.1.12", "!MOOD 50");
    windows.arrive("192.168.1.12", "!TYPING");
    windows.arrive("192.168.1.12", "!LIVETYPE and there is one more thing that I wanted to tell you about the");
    gallery.take(form, "private_panels");
}

void takeSpelling(Gallery &gallery)
{
    RealWindows windows(everybody);
    fill(windows);
    windows.spellChecker.languages = {{QStringLiteral("en_GB")}, {QStringLiteral("de_DE")}, {QStringLiteral("fr_FR")}};
    windows.spellChecker.known = QStringLiteral("Shall we meet in the at half past two Or").split(u' ');
    windows.spellChecker.suggestions[QStringLiteral("basmnt")]
        = {QStringLiteral("basement"), QStringLiteral("casement"), QStringLiteral("basements")};
    windows.doubleClick(0);
    QWidget &form = windows.privateWindow();
    auto &box = RealWindows::control<QPlainTextEdit>(form, "intext");
    box.setPlainText(QStringLiteral("Shall we meet Benedikt in the basmnt tomorow at half past two?\nOr latr"));
    if (!QTest::qWaitFor([&box] { return box.findChild<SpellingMarks *>()->marks().size() == 3; }, 30000))
        qFatal("nothing is marked");
    gallery.take(form, "private_spelling");
    QTextCursor word = box.document()->find(QStringLiteral("basmnt"));
    word.setPosition(word.selectionStart() + 2);
    const QPoint place = box.cursorRect(word).center();
    QContextMenuEvent event(QContextMenuEvent::Mouse, place, box.viewport()->mapToGlobal(place));
    QCoreApplication::sendEvent(box.viewport(), &event);
    if (!QTest::qWaitFor([] { return QApplication::activePopupWidget(); }, 30000))
        qFatal("no menu");
    QWidget &menu = *QApplication::activePopupWidget();
    gallery.take(menu, "private_spelling_menu");
    auto &languages = RealWindows::control<QMenu>(menu, "mnuSpelling");
    languages.popup(menu.geometry().topRight());
    gallery.take(languages, "private_spelling_languages");
    languages.close();
    menu.close();
}

QWidget &topLevel(const char *name)
{
    for (QWidget *const window : QApplication::topLevelWidgets()) {
        if (window->objectName() == QLatin1String(name) && window->isVisible())
            return *window;
    }
    qFatal("no window %s", name);
}

void takeNotify(Gallery &gallery)
{
    RealWindows windows(everybody);
    fill(windows);
    windows.arrive("192.168.1.99", "!ONLINE 192.168.1.99 PC Frank (basement)");
    windows.arrive("192.168.1.31", "!OFFLINE");
    windows.arrive("192.168.1.20", "!OFFLINE");
    windows.time.advance(std::chrono::milliseconds(2000));
    gallery.take(topLevel("frmNotify"), "notify");
    windows.arrive("192.168.1.12", "-Did you see the new plan? It is in the usual place, as always");
    windows.arrive("192.168.1.45", "-Lunch?");
    windows.arrive("192.168.1.45", "-In ten minutes");
    windows.arrive("192.168.1.107", "?CONF INVITE #1");
    windows.arrive("192.168.1.44", "!BUZZ");
    windows.time.advance(std::chrono::milliseconds(2000));
    gallery.take(topLevel("frmNotify"), "notify_messages");
    gallery.take(windows.main(), "main_buzzed");
}

/// As the tray shows it at the sizes that desktops use.
void takeTrayIcon(Gallery &gallery)
{
    QWidget tray;
    auto *const row = new QHBoxLayout(&tray);
    for (const int unread : {0, 1, 7, 12}) {
        for (const int side : {16, 22, 24, 32, 48}) {
            auto *const picture = new QLabel(&tray);
            const QIcon icon = unread > 0 ? badgedIcon(programIcon(), unread) : programIcon();
            picture->setPixmap(icon.pixmap(QSize(side, side), 1.0));
            row->addWidget(picture);
        }
    }
    tray.show();
    gallery.take(tray, "tray_icon");
}

void takeOptions(Gallery &gallery)
{
    RealWindows windows(everybody);
    const std::string picture = landscape();
    windows.common.avatarHead = QStringLiteral("today");
    windows.common.avatarBody = QByteArray(picture.data(), static_cast<qsizetype>(picture.size()));
    windows.common.logFont = {QStringLiteral("DejaVu Serif"), 11, QStringLiteral("i")};
    windows.entry("mnuToolsOptions").trigger();
    QWidget &options = topLevel("frmOptions");
    gallery.take(options, "options");
    RealWindows::control<QPushButton>(options, "font_btn").click();
    gallery.take(topLevel("font_dialog"), "options_font");
}

void keepSaid(RealWindows &windows)
{
    const QDateTime begin(QDate(2026, 11, 19), QTime(16, 58));
    const std::pair<const char *, const char *> said[] = {
        {"Ann", "Did you see the new plan? The part about the basement is the one that matters for us."},
        {"Me", "Not yet. Is it at http://fileserver/plans/2026 ?"},
        {"Ann", "Yes, the last one of the three"},
        {"Me", "Then I will read it tomorrow\r\nand bring my notes to the meeting"},
    };
    for (int i = 0; i < 12; ++i) {
        const auto &[writer, text] = said[i % 4];
        windows.history.keep({.address = QStringLiteral("192.168.1.12"), .name = QStringLiteral("Ann")},
                             {.time = begin.addSecs(i * 7000),
                              .isOwn = i % 2 == 1,
                              .writer = QLatin1String(writer),
                              .text = QLatin1String(text)});
    }
}

void takeHistory(Gallery &gallery)
{
    RealWindows windows(everybody, {{"Options/KeepHistory", QStringLiteral("ever")}});
    fill(windows);
    windows.entry("mnuHistory").trigger();
    gallery.take(topLevel("frmHistory"), "history_empty");
    topLevel("frmHistory").close();
    keepSaid(windows);
    windows.entry("mnuHistory").trigger();
    QWidget &history = topLevel("frmHistory");
    gallery.take(history, "history");
    auto &words = RealWindows::control<QLineEdit>(history, "searchText");
    words.setText(QStringLiteral("plan"));
    QTest::keyClick(&words, Qt::Key_Return);
    gallery.take(history, "history_search");
    windows.arrive("192.168.1.12", "-Good morning, have you read it?");
    windows.privateWindow().showNormal();
    gallery.take(windows.privateWindow(), "private_with_history");
    RichTextLogEdit &log = windows.logOf(windows.privateWindow());
    log.findChild<QAction *>(QStringLiteral("logFind"))->trigger();
    log.findChild<QLineEdit *>(QStringLiteral("findText"))->setText(QStringLiteral("budget"));
    EXPECT_TRUE(QTest::qWaitFor([&log] { return log.findChild<QWidget *>(QStringLiteral("findKept"))->isVisible(); }));
    gallery.take(windows.privateWindow(), "private_nothing_found");
}

void takePrivateWhileAway(Gallery &gallery)
{
    RealWindows windows(everybody);
    fill(windows);
    windows.doubleClick(0);
    PrivateChat &chat = *windows.engine.privateWindows().at(1);
    windows.arrive("192.168.1.12", "-Back in an hour.");
    windows.arrive("192.168.1.12", "!OFFLINE 192.168.1.12 LAPTOP Ann");
    EXPECT_TRUE(chat.send(QStringLiteral("The meeting is at three.")));
    chat.sendLaterBtn_Click();
    EXPECT_TRUE(chat.send(QStringLiteral("Bring the plans, please.")));
    gallery.take(windows.privateWindow(), "private_waiting");
    gallery.take(windows.main(), "main_waiting");
    windows.entry("mnuHistory").trigger();
    QWidget &history = topLevel("frmHistory");
    auto &list = RealWindows::control<QListWidget>(history, "conversations");
    if (!QTest::qWaitFor([&list] { return list.count() > 1; }, 30000))
        qFatal("what waits is not listed");
    list.setCurrentRow(1);
    gallery.take(history, "history_waiting");
}

const std::string plan = "-Plan of the basement.pdf (2.3 MB) "
                         "http://192.168.1.12:5549/0123456789abcdef0123456789abcdef/Plan%20of%20the%20basement.pdf";
const std::string photos = "-Photos.zip (1.2 GB) http://192.168.1.12:5549/0123456789abcdef0123456789abcde0/Photos.zip";
const std::string cat = "-Cat.png (32.5 kB) http://192.168.1.12:5549/0123456789abcdef0123456789abcde1/Cat.png";

/// Files that are offered, come in, are paused, and a picture that is shown.
void takeFiles(Gallery &gallery)
{
    RealWindows windows(
        everybody, {{"Options/KeepHistory", QStringLiteral("no")}, {"Options/FilesExplained", QStringLiteral("-1")}});
    fill(windows);
    windows.entry("mnuTransfers").trigger();
    gallery.take(topLevel("frmTransfers"), "transfers_empty");
    windows.arrive("192.168.1.12", "-Here is what you asked for");
    for (const std::string &message : {plan, photos, cat})
        windows.arrive("192.168.1.12", message);
    ReceivedFiles &received = windows.engine.transfers().received;
    const int first = received.at(0).number;
    windows.privateWindow().showNormal();
    windows.privateWindow().resize(600, 560);
    gallery.take(windows.privateWindow(), "private_with_files");
    using What = FetchedBytes::What;
    received.save(first, QStringLiteral("/media/me/Downloads"));
    windows.fileFetcher.told({.number = first,
                              .what = What::done,
                              .place = 2'300'000,
                              .size = 2'300'000,
                              .path = QStringLiteral("/media/me/Downloads/Plan of the basement.pdf"),
                              .isChecked = true});
    received.save(first + 1, QStringLiteral("/media/me/Downloads"));
    windows.fileFetcher.told({.number = first + 1,
                              .what = What::running,
                              .place = 540'000'000,
                              .size = 1'200'000'000,
                              .perSecond = 98'700'000});
    QTemporaryDir folder;
    QImage picture(900, 600, QImage::Format_RGB32);
    picture.fill(QColor(90, 140, 190));
    picture.save(folder.filePath(QStringLiteral("Cat.png")));
    received.look(first + 2, folder.path());
    windows.fileFetcher.told({.number = first + 2,
                              .what = What::done,
                              .path = folder.filePath(QStringLiteral("Cat.png")),
                              .isChecked = true});
    const auto isPictureShown = [&windows] {
        const QList<QLabel *> pictures = windows.privateWindow().findChildren<QLabel *>(QStringLiteral("shownPicture"));
        return std::ranges::any_of(pictures, &QLabel::isVisible);
    };
    if (!QTest::qWaitFor(isPictureShown))
        qFatal("no picture");
    gallery.take(windows.privateWindow(), "private_with_transfers");
    windows.engine.privateWindows().at(1)->sendFiles(
        {QStringLiteral("/media/me/Minutes of the meeting.odt"), QStringLiteral("/media/me/Plan.pdf")});
    windows.fileServer.sent({.token = windows.fileServer.served.front().token,
                             .transfer = 1,
                             .to = Ipv4Address(192, 168, 1, 12),
                             .place = 1'200'000,
                             .size = 2'300'000});
    QWidget &transfers = topLevel("frmTransfers");
    RealWindows::control<QTreeView>(transfers, "offerList")
        .setCurrentIndex(windows.engine.transfers().offers.index(0, 0));
    RealWindows::control<QTreeView>(transfers, "receivedList").setCurrentIndex(received.index(1, 0));
    gallery.take(transfers, "transfers");
}

void takeDialogs(Gallery &gallery)
{
    RealWindows windows(everybody);
    fill(windows);
    windows.ownAddresses.running = {{QStringLiteral("eth0"), Ipv4Address(10, 0, 0, 1), Ipv4Address(10, 0, 0, 255)}};
    windows.ownAddresses.broadcast = {Ipv4Address(192, 168, 1, 255)};
    windows.tips = QByteArray("Somebody does not answer? Press Ctrl+G in the private window to buzz.\n"
                              "Enter sends what you have typed.||Shift+Enter begins a new line in the same message.\n");
    windows.settings.put("Options", "TipOTDayNum", QStringLiteral("1"));
    constexpr std::tuple<const char *, const char *, const char *> dialogs[] = {
        {"mnuNetworkscan", "frmNetworkscan", "network_scan"},
        {"mnuAddUser", "frmAddUser", "add_user"},
        {"mnuHelpAbout", "frmAbout", "about"},
        {"mnuShortcuts", "frmShortcuts", "shortcuts"},
        {"mnuTOTD", "frmTipOfTheDay", "tip_of_the_day"},
        {"mnuinviteuser", "frmInvite", "invite"},
        {"mnusendcontacts", "frmSendContact", "send_contacts"},
    };
    for (const auto &[entry, name, picture] : dialogs) {
        windows.entry(entry).trigger();
        QWidget &dialog = topLevel(name);
        if (QLatin1String(name) == QLatin1String("frmAddUser")) {
            RealWindows::control<QLineEdit>(dialog, "nicktxt").setText(QStringLiteral("Grace"));
            RealWindows::control<QLineEdit>(dialog, "hostname").setText(QStringLiteral("PC-GRACE"));
            RealWindows::control<QLineEdit>(dialog, "ipaddress").setText(QStringLiteral("192.168.2.17"));
        }
        if (QLatin1String(name) == QLatin1String("frmSendContact")) {
            auto &list = RealWindows::control<QTreeView>(dialog, "ListView1");
            list.setCurrentIndex(list.model()->index(1, 0));
            RealWindows::control<QPushButton>(dialog, "btnsendone").click();
            list.setCurrentIndex(list.model()->index(0, 0));
        }
        gallery.take(dialog, picture);
        if (QLatin1String(name) == QLatin1String("frmAddUser")) {
            RealWindows::control<QLineEdit>(dialog, "ipaddress").setText(QStringLiteral("192.168.1.255"));
            gallery.take(dialog, "add_user_wrong");
        }
        dialog.close();
    }
}

void takeDoctor(Gallery &gallery)
{
    RealWindows windows(everybody);
    fill(windows);
    windows.ownAddresses.running = {{QStringLiteral("eth0"), Ipv4Address(10, 0, 0, 1), Ipv4Address(10, 0, 0, 255)},
                                    {QStringLiteral("wlan0"), Ipv4Address(10, 0, 0, 7), Ipv4Address(10, 0, 0, 255)}};
    windows.entry("mnuNetworkDoctor").trigger();
    QWidget &doctor = topLevel("frmDoctor");
    gallery.take(doctor, "doctor_under_way");
    windows.arrive("10.0.0.1", "?ONLINE 10.0.0.1 HERE Me");
    windows.diagnosis.firewallRead(
        {Firewall::Verdict::blocks, QStringLiteral("ufw"), QStringLiteral("sudo ufw allow 5549/udp")});
    windows.arrive("10.0.0.2", "-Did you see the new plan?");
    RealWindows::control<QPushButton>(doctor, "askContactBtn").click();
    windows.time.advance(std::chrono::seconds(2));
    gallery.take(doctor, "doctor_firewall");
    windows.ownAddresses.running.clear();
    windows.diagnosis.receiveBuffer = 8192;
    RealWindows::control<QPushButton>(doctor, "examineBtn").click();
    windows.diagnosis.firewallRead({});
    windows.time.advance(std::chrono::seconds(1));
    RealWindows::control<QCheckBox>(doctor, "showTextsBox").click();
    gallery.take(doctor, "doctor_no_network");
    doctor.close();
}

void takeConference(Gallery &gallery)
{
    RealWindows windows(everybody);
    fill(windows);
    windows.arrive("192.168.1.12", "!AVATARHEAD today");
    windows.arrive("192.168.1.12", "!AVATARBODY " + landscape());
    windows.entry("mnuCreateNewConf").trigger();
    QWidget &hosted = topLevel("frmConference");
    for (const char *ip : {"192.168.1.12", "192.168.1.20", "192.168.1.31", "192.168.1.44", "192.168.1.45"})
        windows.engine.conferences().mnuInvite2Conf(1, QString::fromLatin1(ip));
    for (const char *ip : {"192.168.1.12", "192.168.1.20", "192.168.1.31"})
        windows.arrive(ip, "!CONF INVITE #1 AGREE");
    windows.arrive("192.168.1.45", "!CONF INVITE #1 DENY");
    windows.arrive("192.168.1.31", "+192.168.1.31 #1 Has everybody read it? :)");
    EXPECT_TRUE(
        windows.engine.conferences().at(1)->send(QStringLiteral("Only the first part, up to http://fileserver/plans")));
    windows.arrive("192.168.1.20", "+192.168.1.20 #1 Not yet. Where is it?");
    windows.arrive("192.168.1.12",
                   "+192.168.1.12 #1 In the usual place, as always when there is something that everybody "
                   "has to read until the day after tomorrow");
    gallery.take(hosted, "conference_hosted");
    RealWindows::control<QToolButton>(hosted, "Emoticbtn").click();
    RealWindows::control<QToolButton>(hosted, "showlist").click();
    RealWindows::control<QToolButton>(hosted, "showavatars").click();
    gallery.take(hosted, "conference_hosted_folded");
    hosted.hide();

    windows.arrive("192.168.1.31", "?CONF INVITE #3");
    windows.arrive("192.168.1.12", "?CONF INVITE #1");
    windows.arrive("192.168.1.44", "?CONF INVITE #2");
    windows.engine.invitations().closed(Ipv4Address(192, 168, 1, 44), 2);
    QWidget &invitations = topLevel("frmConfInvitations");
    RealWindows::control<QTreeView>(invitations, "ListView1")
        .setCurrentIndex(windows.engine.invitations().list().index(0, 0).isValid()
                             ? RealWindows::control<QTreeView>(invitations, "ListView1").model()->index(0, 0)
                             : QModelIndex());
    gallery.take(invitations, "invitations");
    RealWindows::control<QPushButton>(invitations, "ConfAgreebtn").click();
    QWidget &joined = topLevel("frmConference");
    windows.arrive("192.168.1.31", "!CONF USERS #3 192.168.1.31 10.0.0.1 192.168.1.44 192.168.7.7");
    windows.arrive("192.168.1.31", "+192.168.1.44 #3 Hello everybody");
    windows.arrive("192.168.1.31", "!CONF CLOSE #3");
    gallery.take(joined, "conference_joined");
}

/// Windows with nothing in them say what to do.
void takeEmpty(Gallery &gallery)
{
    const std::vector<std::pair<const char *, const char *>> annAlone = {{"192.168.1.12", "Ann"}};
    RealWindows windows(annAlone);
    windows.settleStart({"192.168.1.12"});
    windows.ownAddresses.running.clear();
    windows.entry("mnuNetworkscan").trigger();
    QWidget &scan = topLevel("frmNetworkscan");
    gallery.take(scan, "network_scan_without_network");
    scan.close();
    windows.entry("mnushowinvitations").trigger();
    gallery.take(topLevel("frmConfInvitations"), "invitations_empty");
    windows.click(0);
    windows.entry("mnusendcontacts").trigger();
    gallery.take(topLevel("frmSendContact"), "send_contacts_empty");
}

void takeLogin(Gallery &gallery)
{
    Common common;
    MemoryStore store;
    RecorderPrompts prompts;
    SimulatedWinsock socket(QStringLiteral("192.168.1.5"), QStringLiteral("WORKSTATION-5"), nullptr);
    Login login(common, store, socket);
    frmLogin dialog(login, prompts);
    dialog.show();
    gallery.take(dialog, "login");
}

void takeMessageBox(Gallery &gallery)
{
    MessageBoxes boxes;
    QTimer::singleShot(0, [&gallery] {
        QWidget *const box = QApplication::activeModalWidget();
        gallery.take(*box, "remove_question");
        box->close();
    });
    boxes.confirm(
        QStringLiteral("Are you sure you want to remove the user 'Ann' on workstation 'PC-ANN' (192.168.1.12) ?"),
        QStringLiteral("Please confirm user removal"));
}

} // namespace

void visitEveryWindow(const WindowVisitor &visitor)
{
    Gallery gallery(visitor);
    takeLogin(gallery);
    takeMain(gallery);
    takeMainAfterASearch(gallery);
    takeMainInTrouble(gallery);
    takeMainWhileFinding(gallery);
    takeMainWithThousand(gallery);
    takePrivate(gallery);
    takePrivateWhileAway(gallery);
    takeEmoji(gallery);
    takePrivatePanels(gallery);
    takeSpelling(gallery);
    takeConference(gallery);
    takeNotify(gallery);
    takeTrayIcon(gallery);
    takeOptions(gallery);
    takeDialogs(gallery);
    takeHistory(gallery);
    takeFiles(gallery);
    takeDoctor(gallery);
    takeEmpty(gallery);
    takeMessageBox(gallery);
}

} // namespace nimb::test

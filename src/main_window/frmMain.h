// The main window.
#pragma once

#include "base/main_window_view.h"
#include "base/unload_mode.h"
#include "base/window_openers.h"
#include "main_window/main_menus.h"

#include <QMainWindow>

#include <functional>

class QAbstractItemModel;
class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QProgressBar;
class QPushButton;
class QStatusBar;
class QTabBar;
class QToolButton;

namespace nimb
{

class Announcement;
class AutoreplyFrame;
class AvatarStore;
class ClearedBand;
class ContactCommands;
class ContactList;
class ContactView;
class MainLog;
class MainWindow;
class OwnState;
class PersonalizedStateFrame;
class RichTextLogEdit;
class WallClock;

/// The engine behind the main window; outlives it.
struct MainWindowEngine {
    MainWindow &window;
    ContactList &contacts;
    const AvatarStore &avatars;
    ContactCommands &commands;
    OwnState &ownState;
    Announcement &announcement;
    MainLog &log;
    Common &common;
    const WallClock &clock;
    MenuWindows &windows;
    std::function<QString()> statusNotes; ///< for the status bar's tool tip
};

/// Made in two steps, for the engine writes into the window from the moment it exists: the controls with the
/// constructor, their engine with connectControls().
class frmMain : public QMainWindow, public MainWindowView
{
    Q_OBJECT

public:
    /// Empty strips above and below the text of the log, for its fixed height reaches beyond the list's.
    static constexpr int logInsetAbove = 9;
    static constexpr int logInsetBelow = 11;

    /// Becomes the parent of the log.
    explicit frmMain(RichTextLogEdit &log);

    /// ended: called once, when the window has been unloaded.
    void connectControls(const MainWindowEngine &engine, std::function<void()> ended);
    void Form_Load();
    /// Closes for this reason, as far as that reason allows.
    void unload(UnloadMode mode);
    /// Brings the window back from the tray, the task bar or the background.
    void restore();
    /// The same, with this contact selected where there is one.
    void showContact(const QString &ip);

    RichTextLog &outtext() override;
    void setRescanEnabled(bool enabled) override;
    void refreshContextMenu() override;
    void addOwnState(const OwnStateEntry &entry) override;
    void removeOwnState(int position) override;
    void selectOwnState(int position) override;
    void setStatusPanel(const QString &text) override;
    void setRescanToolTip(const QString &text) override;
    void setAutoReply(const std::optional<AutoReplyPanel> &panel) override;
    void setPersonalizedStateVisible(bool visible) override;
    void setCaption(const QString &caption) override;
    QString caption() const override { return m_caption; }
    void setPlace(const WindowPlace &place) override;
    WindowPlace place() const override;
    void setInvite2ConfVisible(int slot, bool visible) override;
    void setActivityPanel(const QString &text) override;
    void flashContact(const QString &ip) override;
    void setSearchProgress(const std::optional<SearchProgress> &progress) override;
    void setTroublePanel(const QString &text) override;
    void setNetworkPanel(const QString &text) override;

protected:
    void closeEvent(QCloseEvent *event) override;
    void moveEvent(QMoveEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void buildControls();
    void buildOwnState(QWidget *parent);
    void buildContacts(QWidget *parent);
    void buildStatusBar();
    void addSearchProgress(QStatusBar &bar);
    void orderControls();
    void fitFonts();
    void connectContacts();
    void connectMenus();
    void connectOwnState();

    void Form_Resize();
    int bottomRowHeight() const;
    void placeBottomRows();
    void placeClearedStrip();
    void placePanels();
    void noteGeometry();
    void moveOntoScreen();
    void finish();

    QString selectedContact() const;
    void ListView1_Click(const QString &ip);
    void ListView1_DblClick(const QString &ip);
    void removeSelected();
    void findContact();
    void ListView1_MouseMove(const QString &ip);
    void mnuPopUp_Show(const QPoint &position);
    void ListDetails_Click();
    void TabStrip1_Click(int tab);
    void RescanBtn_Click();
    void clearbtn_Click();
    void ImageCombo1_Click(int index);
    void personalizedStateChosen(BaseState base, const QString &text);
    void autoReplyClosed();
    void contactsChanged(int firstRow, int lastRow);
    void showItemDetails();

    std::optional<MainWindowEngine> m_engine;
    std::function<void()> m_ended;
    QString m_caption;
    WindowPlace m_place;

    MainMenus m_menus;
    RichTextLogEdit &m_outtext;
    ClearedBand *m_cleared = nullptr;
    QComboBox *ImageCombo1 = nullptr;
    QTabBar *TabStrip1 = nullptr;
    ContactView *ListView1 = nullptr;
    QPushButton *RescanBtn = nullptr;
    QCheckBox *buzzmute = nullptr;
    QCheckBox *ListDetails = nullptr;
    QLineEdit *ItemDetailstxt = nullptr;
    QPushButton *clearbtn = nullptr;
    PersonalizedStateFrame *m_personalizedState = nullptr;
    QCheckBox *AutoReplyOn = nullptr;
    QPushButton *Autoreplybtn = nullptr;
    AutoreplyFrame *m_autoReply = nullptr;
    QLabel *m_status = nullptr;
    QLabel *m_activity = nullptr;
    QProgressBar *searchProgress = nullptr;
    QToolButton *stopSearchBtn = nullptr;
    QLabel *m_trouble = nullptr;
    QLabel *m_network = nullptr;
};

} // namespace nimb

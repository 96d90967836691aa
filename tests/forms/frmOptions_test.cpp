#include "base/settings.h"
#include "log/log_font.h"
#include "real_windows.h"
#include "widgets/avatar_picture.h"

#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QDragEnterEvent>
#include <QFileDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QMimeData>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QTemporaryDir>

namespace nimb::test
{
namespace
{

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class FrmOptions : public testing::Test
{
protected:
    ~FrmOptions() override { QGuiApplication::clipboard()->clear(); }

    /// The dialog, opened by its menu entry where it is not open.
    QDialog &dialog()
    {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        if (QDialog *const open = find())
            return *open;
        windows.entry("mnuToolsOptions").trigger();
        return *find();
    }
    QDialog *find() { return windows.main().findChild<QDialog *>(QStringLiteral("frmOptions")); }
    bool isOpen()
    {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return find() && find()->isVisible();
    }
    template <class Widget> Widget &control(const char *name) { return RealWindows::control<Widget>(dialog(), name); }
    QCheckBox &box(const char *name) { return control<QCheckBox>(name); }
    void click(const char *button)
    {
        // At its beginning: behind its caption a box does not feel the pointer.
        auto &clicked = control<QAbstractButton>(button);
        QTest::mouseClick(&clicked, Qt::LeftButton, {}, QPoint(10, clicked.height() / 2));
    }
    bool hasPicture() { return control<AvatarPicture>("Picture2").hasPicture(); }
    Options &options() { return windows.common.options; }

    void addState(const char *text)
    {
        EXPECT_TRUE(windows.engine.ownState().addPersonalized(BaseState::busy, QString::fromLatin1(text)));
    }

    static QImage plain(int width, int height, const QColor &colour)
    {
        QImage image(width, height, QImage::Format_RGB32);
        image.fill(colour);
        return image;
    }
    /// The font dialog over the options, opened by its button.
    void openFonts()
    {
        click("font_btn");
        ASSERT_TRUE(fontsAreOpen());
    }
    bool fontsAreOpen()
    {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        const auto *const fonts = dialog().findChild<QDialog *>(QStringLiteral("font_dialog"));
        return fonts && fonts->isVisible();
    }
    template <class Widget> Widget &fontControl(const char *name)
    {
        return RealWindows::control<Widget>(*dialog().findChild<QDialog *>(QStringLiteral("font_dialog")), name);
    }
    void clickFont(const char *button)
    {
        auto &clicked = fontControl<QAbstractButton>(button);
        QTest::mouseClick(&clicked, Qt::LeftButton, {}, QPoint(10, clicked.height() / 2));
    }
    void typeSize(const char *points)
    {
        auto &size = fontControl<QSpinBox>("font_size");
        size.selectAll();
        QTest::keyClick(&size, Qt::Key_Delete);
        QTest::keyClicks(&size, QLatin1String(points));
    }
    /// Where the list shows that family, scrolled into sight.
    QPoint placeOf(const char *family)
    {
        auto &families = fontControl<QListWidget>("font_family");
        const QList<QListWidgetItem *> found = families.findItems(QLatin1String(family), Qt::MatchExactly);
        if (found.isEmpty())
            qFatal("%s is not installed", family);
        families.scrollToItem(found.front());
        return families.visualItemRect(found.front()).center();
    }
    /// A file dialog stands over the options; it takes this file.
    void choose(const QString &path)
    {
        auto *const files = dialog().findChild<QFileDialog *>();
        ASSERT_TRUE(files);
        files->setDirectory(QFileInfo(path).path());
        files->selectFile(path);
        static_cast<QDialog *>(files)->accept();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    QTemporaryDir folder;
    RealWindows windows{{{"10.0.0.2", "Ann"}}};
};

TEST_F(FrmOptions, TheFontDialogBeginsWithTheDesktopsFontWhereNobodyHasChosen)
{
    windows.common.logFont = LogFont();
    openFonts();
    EXPECT_EQ(fontControl<QListWidget>("font_family").currentItem()->text(), fontOf(LogFont()).family());
    clickFont("font_ok");
    click("CmdOK");
    EXPECT_EQ(windows.common.logFont, LogFont()) << "nothing was chosen";
}

TEST_F(FrmOptions, TheNicknameCanBeChanged)
{
    EXPECT_EQ(control<QLineEdit>("nicknameText").text(), windows.common.ownNickname);
    control<QLineEdit>("nicknameText").setText(QStringLiteral("Robert"));
    click("CmdOK");
    EXPECT_FALSE(isOpen());
    EXPECT_EQ(windows.main().windowTitle(), QStringLiteral("NIMB-Chat 1.2 - Robert"));
}

TEST_F(FrmOptions, TheProgramStartsWithTheDesktopWhereThatIsTicked)
{
    click("autostartBox");
    click("CmdOK");
    EXPECT_EQ(windows.autostart.nickname, windows.common.ownNickname);
    EXPECT_TRUE(box("autostartBox").isChecked());
    click("autostartBox");
    click("CmdOK");
    EXPECT_FALSE(windows.autostart.isOn());
}

TEST_F(FrmOptions, StatesOfOnesOwnCanBeRemoved)
{
    EXPECT_FALSE(control<QPushButton>("removeStateBtn").isEnabled());
    click("Command1");
    addState("Lunch");
    addState("Meeting");
    addState("Home");
    auto &chooser = RealWindows::control<QComboBox>(windows.main(), "ImageCombo1");
    ASSERT_EQ(chooser.count(), 8);
    control<QComboBox>("statesCombo").setCurrentIndex(1);
    click("removeStateBtn");
    click("removeStateBtn");
    EXPECT_EQ(control<QComboBox>("statesCombo").count(), 1);
    click("Command1");
    EXPECT_EQ(chooser.count(), 8) << "cancelled";
    control<QComboBox>("statesCombo").setCurrentIndex(1);
    click("removeStateBtn");
    click("CmdOK");
    ASSERT_EQ(chooser.count(), 7);
    EXPECT_EQ(chooser.itemText(5), QStringLiteral("Busy - Lunch"));
    EXPECT_EQ(chooser.itemText(6), QStringLiteral("Busy - Home"));
    EXPECT_EQ(chooser.itemData(6), QVariant(QStringLiteral("Personalized2")));
    EXPECT_EQ(chooser.currentIndex(), 6);
}

TEST_F(FrmOptions, ShowsTheOptionsAsTheyAre)
{
    EXPECT_TRUE(box("localbuzz").isChecked());
    for (const char *const name :
         {"remotebuzz", "statusonprivate", "DisableNotify", "disablelivetype", "XtoMinimizeCheck"})
        EXPECT_FALSE(box(name).isChecked()) << name;
    EXPECT_TRUE(box("PrivateDestroyonClose").isChecked());
    EXPECT_TRUE(control<QRadioButton>("showminimized").isChecked());
    EXPECT_TRUE(control<QRadioButton>("Option1").isChecked());
    EXPECT_EQ(control<QLineEdit>("UDPPorttxt").text(), QStringLiteral("5549"));
    EXPECT_FALSE(hasPicture());
}

TEST_F(FrmOptions, TheCardWhoseAddressIsTheOwnOneIsChosenFromThoseOfThisComputer)
{
    windows.ownAddresses.running
        = {{QStringLiteral("eth0"), Ipv4Address(10, 0, 0, 1)}, {QStringLiteral("wlan0"), Ipv4Address(192, 168, 7, 1)}};
    EXPECT_EQ(control<QComboBox>("ownAddressCombo").currentText(), QStringLiteral("automatic"));
    control<QComboBox>("ownAddressCombo").setFocus();
    QTest::keyClick(&control<QComboBox>("ownAddressCombo"), Qt::Key_End);
    click("CmdOK");
    EXPECT_EQ(windows.common.ownCard, QStringLiteral("wlan0"));
    EXPECT_EQ(control<QComboBox>("ownAddressCombo").currentText(), QStringLiteral("wlan0 (192.168.7.1)"));
    windows.ownAddresses.running.clear();
    click("Command1");
    EXPECT_EQ(control<QComboBox>("ownAddressCombo").currentText(), QStringLiteral("wlan0 (not connected)"));
    control<QComboBox>("ownAddressCombo").setCurrentIndex(0);
    click("CmdOK");
    EXPECT_EQ(windows.common.ownCard, QString());
    windows.ownAddresses.fixed = true;
    EXPECT_FALSE(control<QComboBox>("ownAddressCombo").isEnabled());
}

TEST_F(FrmOptions, OkTakesWhatWasClicked)
{
    for (const char *const name : {"localbuzz", "remotebuzz", "statusonprivate", "PrivateDestroyonClose",
                                   "DisableNotify", "disablelivetype", "showontop", "XtoMinimizeCheck"})
        click(name);
    control<QLineEdit>("UDPPorttxt").setText(QString());
    QTest::keyClicks(&control<QLineEdit>("UDPPorttxt"), QStringLiteral("6001"));
    QTest::keyClick(&control<QLineEdit>("UDPPorttxt"), Qt::Key_Return);
    EXPECT_FALSE(isOpen());
    EXPECT_TRUE(options().playOwnBuzz);
    EXPECT_FALSE(options().playReceivedBuzz);
    EXPECT_FALSE(options().presenceLines);
    EXPECT_TRUE(options().closedWindowsGo);
    EXPECT_FALSE(options().notifyWindow);
    EXPECT_FALSE(options().liveType);
    EXPECT_TRUE(options().privateWindowsOnTop);
    EXPECT_TRUE(options().closeBoxHides);
    EXPECT_EQ(windows.common.udpPort, 6001);
}

TEST_F(FrmOptions, EveryBoxTurnsItsOptionAloneAndTheDialogShowsItSo)
{
    for (const OptionRow &row : optionRows) {
        for (const char *const button : {row.box.name, row.opposite.name ? row.opposite.name : row.box.name}) {
            const Options before = options();
            const bool ticked = control<QAbstractButton>(row.box.name).isChecked();
            click(button);
            click("CmdOK");
            EXPECT_FALSE(isOpen());
            for (const OptionRow &each : optionRows) {
                const bool turned = each.member == row.member;
                EXPECT_EQ(options().*each.member != before.*each.member, turned) << row.key << ", " << each.key;
            }
            EXPECT_EQ(control<QAbstractButton>(row.box.name).isChecked(), !ticked) << row.key;
        }
    }
}

TEST_F(FrmOptions, ANumberThatMeansNothingIsShownAsItBehavesAndOkWritesWhatIsShown)
{
    struct Case {
        const char *key;
        const char *box;
        bool ticked;
    };
    constexpr Case cases[] = {{"BuzzRemote", "remotebuzz", true},
                              {"DontDestroyWindow", "PrivateDestroyonClose", true},
                              {"PrivateBehaviour", "showontop", false},
                              {"CloseButtonDoesMinimize", "XtoMinimizeCheck", false}};
    for (const Case &each : cases)
        windows.settings.put("Options", each.key, QStringLiteral("7"));
    loadSettings(windows.settings, windows.common);
    for (const Case &each : cases)
        EXPECT_EQ(control<QAbstractButton>(each.box).isChecked(), each.ticked) << each.box;
    click("Command1");
    EXPECT_FALSE(isOpen());
    saveSettings(windows.settings, windows.common, {});
    windows.settings.save();
    for (const Case &each : cases)
        EXPECT_EQ(windows.settings.value("Options", each.key), "7") << each.key;
    click("CmdOK");
    saveSettings(windows.settings, windows.common, {});
    windows.settings.save();
    for (const Case &each : cases)
        EXPECT_EQ(windows.settings.value("Options", each.key), "0") << each.key;
}

TEST_F(FrmOptions, CancelTheEscapeKeyAndTheCloseBoxChangeNothing)
{
    for (int way = 0; way < 3; ++way) {
        click("DisableNotify");
        click("showontop");
        control<QLineEdit>("UDPPorttxt").setText(QStringLiteral("6001"));
        if (way == 0)
            click("Command1");
        else if (way == 1)
            QTest::keyClick(&dialog(), Qt::Key_Escape);
        else
            dialog().close();
        EXPECT_FALSE(isOpen()) << way;
        EXPECT_TRUE(options().notifyWindow);
        EXPECT_FALSE(options().privateWindowsOnTop);
        EXPECT_EQ(windows.common.udpPort, 5549);
    }
}

TEST_F(FrmOptions, AWrongPortIsSaidAndTheDialogStays)
{
    control<QLineEdit>("UDPPorttxt").setText(QStringLiteral("70000"));
    click("DisableNotify");
    click("CmdOK");
    EXPECT_TRUE(isOpen());
    EXPECT_THAT(windows.prompts.told, ElementsAre("NIMB-Chat - Options: The port must be a number from 1 to 65535."));
    EXPECT_TRUE(options().notifyWindow);
    EXPECT_EQ(control<QLineEdit>("UDPPorttxt").text(), QStringLiteral("70000"));
}

TEST_F(FrmOptions, SaysThatThePortIsThatOfTheNextStart)
{
    QStringList texts;
    for (const QLabel *const label : dialog().findChildren<QLabel *>())
        texts.append(label->text());
    EXPECT_TRUE(texts.contains(QStringLiteral("A change takes effect at the next start.")));
}

TEST_F(FrmOptions, ChangesAreSavedAtTheEnd)
{
    click("DisableNotify");
    click("CmdOK");
    windows.main().unload(UnloadMode::code);
    EXPECT_EQ(windows.settings.value("Options", "NotifyWin"), "0");
}

TEST_F(FrmOptions, NamesTheDesktopsFontAsLongAsNoneIsChosen)
{
    openFonts();
    const auto &sample = RealWindows::control<QLabel>(dialog(), "fontSample");
    const QFont desktop = QGuiApplication::font();
    EXPECT_EQ(sample.toolTip(),
              QStringLiteral("the desktop's font: %1, %2 points").arg(desktop.family()).arg(desktop.pointSizeF()));
    QTest::mouseClick(fontControl<QListWidget>("font_family").viewport(), Qt::LeftButton, {}, placeOf("DejaVu Serif"));
    clickFont("font_ok");
    EXPECT_TRUE(sample.toolTip().startsWith(QLatin1String("DejaVu Serif, "))) << sample.toolTip().toStdString();
}

TEST_F(FrmOptions, AFontIsTakenWithOk)
{
    windows.common.logFont = {QStringLiteral("DejaVu Sans"), 9, QString()};
    openFonts();
    EXPECT_EQ(fontControl<QListWidget>("font_family").currentItem()->text(), QStringLiteral("DejaVu Sans"));
    EXPECT_EQ(fontControl<QSpinBox>("font_size").value(), 9);
    EXPECT_FALSE(fontControl<QCheckBox>("font_bold").isChecked());
    EXPECT_FALSE(fontControl<QCheckBox>("font_italic").isChecked());
    QTest::mouseClick(fontControl<QListWidget>("font_family").viewport(), Qt::LeftButton, {}, placeOf("DejaVu Serif"));
    typeSize("14");
    clickFont("font_bold");
    clickFont("font_ok");
    EXPECT_EQ(windows.common.logFont, (LogFont{QStringLiteral("DejaVu Sans"), 9, {}})) << "not before OK";
    click("CmdOK");
    EXPECT_EQ(windows.common.logFont, (LogFont{QStringLiteral("DejaVu Serif"), 14, QStringLiteral("b")}));
}

TEST_F(FrmOptions, AFamilyThatIsDoubleClickedIsTakenAtOnce)
{
    openFonts();
    QWidget *const families = fontControl<QListWidget>("font_family").viewport();
    const QPoint place = placeOf("DejaVu Serif");
    QTest::mouseClick(families, Qt::LeftButton, {}, place);
    QTest::mouseDClick(families, Qt::LeftButton, {}, place);
    EXPECT_FALSE(fontsAreOpen());
    click("CmdOK");
    EXPECT_EQ(windows.common.logFont.face, QStringLiteral("DejaVu Serif"));
}

TEST_F(FrmOptions, ACancelledFontChangesNothing)
{
    for (const bool byKey : {true, false}) {
        openFonts();
        typeSize("20");
        clickFont("font_bold");
        if (byKey)
            QTest::keyClick(&fontControl<QWidget>("font_family"), Qt::Key_Escape);
        else
            clickFont("font_cancel");
        EXPECT_FALSE(fontsAreOpen());
    }
    click("CmdOK");
    EXPECT_EQ(windows.common.logFont, LogFont());
}

TEST_F(FrmOptions, AFontSizeOutsideItsRangeCannotBeTyped)
{
    for (const char *const size : {"5", "25", "240", "-8", "x", ""}) {
        openFonts();
        typeSize(size);
        clickFont("font_ok");
        click("CmdOK");
        EXPECT_THAT(windows.common.logFont.size, testing::AllOf(testing::Ge(6), testing::Le(24))) << size;
    }
}

TEST_F(FrmOptions, TheSmallestFontHasSixPointsAndTheLargestTwentyFour)
{
    for (const auto &[typed, beyond, size] : {std::tuple("6", Qt::Key_Down, 6), {"24", Qt::Key_Up, 24}}) {
        openFonts();
        typeSize(typed);
        QTest::keyClick(&fontControl<QSpinBox>("font_size"), beyond);
        clickFont("font_ok");
        click("CmdOK");
        EXPECT_EQ(windows.common.logFont.size, size);
    }
}

TEST_F(FrmOptions, ALoadedPictureIsShownAndBecomesTheAvatar)
{
    const QString path = folder.filePath(QStringLiteral("red.bmp"));
    plain(300, 100, QColor(200, 10, 20)).save(path);
    click("LoadAvatarbtn");
    auto *const files = dialog().findChild<QFileDialog *>();
    ASSERT_TRUE(files);
    EXPECT_EQ(files->windowTitle(), QStringLiteral("Open"));
    EXPECT_TRUE(files->nameFilters().front().startsWith(QStringLiteral("Images (*.jpg,*.gif,*.bmp)")));
    choose(path);
    EXPECT_TRUE(hasPicture());
    EXPECT_TRUE(control<QRadioButton>("Option2").isChecked());
    EXPECT_EQ(windows.common.avatarBody.size(), 0) << "not before OK";
    click("CmdOK");
    ASSERT_EQ(windows.common.avatarBody.size(), 7500);
    // Blue, green, red: the most significant byte first.
    EXPECT_EQ(windows.common.avatarBody.left(3), QByteArray("\x14\x0a\xc8"));
    EXPECT_EQ(windows.common.avatarBody.right(3), QByteArray("\x14\x0a\xc8"));
    EXPECT_FALSE(windows.common.avatarHead.isEmpty());
}

TEST_F(FrmOptions, ADamagedPictureIsSaidAndTheAvatarStays)
{
    const QString path = folder.filePath(QStringLiteral("red.bmp"));
    plain(300, 100, Qt::red).save(path);
    QFile::resize(path, 2000);
    click("LoadAvatarbtn");
    choose(path);
    EXPECT_THAT(windows.prompts.told, ElementsAre("NIMB-Chat - Options: This picture is damaged."));
    EXPECT_FALSE(hasPicture());
    EXPECT_TRUE(control<QRadioButton>("Option1").isChecked());
}

TEST_F(FrmOptions, ACancelledFileDialogChangesNothing)
{
    click("LoadAvatarbtn");
    dialog().findChild<QFileDialog *>()->reject();
    EXPECT_FALSE(hasPicture());
    EXPECT_TRUE(control<QRadioButton>("Option1").isChecked());
    EXPECT_THAT(windows.prompts.told, IsEmpty());
}

TEST_F(FrmOptions, APictureCanBePasted)
{
    auto *const data = new QMimeData; // the clipboard takes it over
    data->setImageData(plain(10, 10, Qt::green));
    QGuiApplication::clipboard()->setMimeData(data);
    QTest::keySequence(&dialog(), QKeySequence::Paste);
    EXPECT_TRUE(hasPicture());
    click("CmdOK");
    EXPECT_EQ(windows.common.avatarBody.left(3), QByteArray("\x00\xff\x00", 3));
}

TEST_F(FrmOptions, TextCanStillBePastedIntoThePort)
{
    QGuiApplication::clipboard()->setText(QStringLiteral("6002"));
    control<QLineEdit>("UDPPorttxt").selectAll();
    QTest::keySequence(&control<QLineEdit>("UDPPorttxt"), QKeySequence::Paste);
    EXPECT_EQ(control<QLineEdit>("UDPPorttxt").text(), QStringLiteral("6002"));
    QTest::keySequence(&dialog(), QKeySequence::Paste);
    EXPECT_FALSE(hasPicture());
    EXPECT_THAT(windows.prompts.told, IsEmpty());
}

TEST_F(FrmOptions, APictureOrItsFileCanBeDropped)
{
    const QString path = folder.filePath(QStringLiteral("blue.png"));
    plain(60, 60, Qt::blue).save(path);
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(path)});
    QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, {});
    QCoreApplication::sendEvent(&dialog(), &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, {});
    QCoreApplication::sendEvent(&dialog(), &drop);
    EXPECT_TRUE(hasPicture());
    click("CmdOK");
    EXPECT_EQ(windows.common.avatarBody.left(3), QByteArray("\xff\x00\x00", 3));
}

TEST_F(FrmOptions, WhatIsNoPictureIsNotTakenWhenDropped)
{
    QMimeData data;
    data.setText(QStringLiteral("hello"));
    QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, {});
    enter.ignore();
    QCoreApplication::sendEvent(&dialog(), &enter);
    EXPECT_FALSE(enter.isAccepted());
}

TEST_F(FrmOptions, PicturesOfAFolderTakeTurnsUntilAnotherChoice)
{
    windows.settleStart({"10.0.0.2"});
    plain(50, 50, Qt::red).save(folder.filePath(QStringLiteral("1.png")));
    auto &kinds = control<QComboBox>("PolledPicturebox");
    kinds.setCurrentIndex(1);
    Q_EMIT kinds.activated(1);
    EXPECT_TRUE(control<QRadioButton>("Option3").isChecked());
    auto *const files = dialog().findChild<QFileDialog *>();
    ASSERT_TRUE(files) << "a folder is asked for at once";
    choose(folder.path());
    click("CmdOK");
    windows.sent();
    windows.arrive("10.0.0.2", "?AVATARHEAD");
    EXPECT_THAT(windows.sent(), ElementsAre(testing::Field(&To::bytes, HasSubstr("!AVATARHEAD WEBCAM"))));
    EXPECT_TRUE(control<QRadioButton>("Option3").isChecked());
    EXPECT_EQ(control<QComboBox>("PolledPicturebox").currentIndex(), 1);
    click("Option1");
    click("CmdOK");
    windows.arrive("10.0.0.2", "?AVATARHEAD");
    EXPECT_THAT(windows.sent(), ElementsAre(To{"10.0.0.2", "!AVATAROFF"}));
}

TEST_F(FrmOptions, ACameraThatIsNotThereIsSaidAndTheDialogStays)
{
    windows.pictures.problem = QStringLiteral("There is no camera.");
    click("Option3");
    click("CmdOK");
    EXPECT_TRUE(isOpen());
    EXPECT_THAT(windows.prompts.told, ElementsAre("NIMB-Chat - Options: There is no camera."));
}

TEST_F(FrmOptions, WithTheNotifyWindowSwitchedOffNothingRises)
{
    click("DisableNotify");
    click("CmdOK");
    windows.settleStart({});
    windows.arrive("10.0.0.2", "!ONLINE 10.0.0.2 PC Ann");
    windows.time.advance(std::chrono::milliseconds(3000));
    const QRect screen = QGuiApplication::primaryScreen()->geometry();
    for (const QWidget *const window : QApplication::topLevelWidgets()) {
        const bool isPopUp = window->objectName() == QLatin1String("frmNotify");
        EXPECT_TRUE(!isPopUp || window->y() > screen.bottom());
    }
}

TEST_F(FrmOptions, BoldAndItalicAreStoredAsTheirFirstLetters)
{
    struct Case {
        bool bold, italic;
        const char *style;
    };
    for (const Case &each : {Case{false, true, "i"}, {true, true, "bi"}, {true, false, "b"}, {false, false, ""}}) {
        openFonts();
        if (fontControl<QCheckBox>("font_bold").isChecked() != each.bold)
            clickFont("font_bold");
        if (fontControl<QCheckBox>("font_italic").isChecked() != each.italic)
            clickFont("font_italic");
        clickFont("font_ok");
        click("CmdOK");
        EXPECT_EQ(windows.common.logFont.style, QLatin1String(each.style));
    }
}

TEST_F(FrmOptions, AStoredFontIsShownAsItIsAndStaysWhenNothingElseIsChosen)
{
    for (const char *const style : {"", "b", "i", "bi"}) {
        windows.common.logFont = {QStringLiteral("DejaVu Sans"), 9, QLatin1String(style)};
        const LogFont stored = windows.common.logFont;
        openFonts();
        EXPECT_EQ(fontControl<QCheckBox>("font_bold").isChecked(), stored.bold()) << style;
        EXPECT_EQ(fontControl<QCheckBox>("font_italic").isChecked(), stored.italic()) << style;
        clickFont("font_ok");
        click("CmdOK");
        EXPECT_EQ(windows.common.logFont, stored) << style;
    }
}

TEST_F(FrmOptions, AFamilyThatIsNotInstalledStaysUnlessAnotherIsChosen)
{
    windows.common.logFont = {QStringLiteral("no such face"), 8, QStringLiteral("bi")};
    openFonts();
    EXPECT_EQ(fontControl<QListWidget>("font_family").currentItem()->text(),
              QStringLiteral("no such face (not installed)"));
    clickFont("font_ok");
    click("CmdOK");
    EXPECT_EQ(windows.common.logFont, (LogFont{QStringLiteral("no such face"), 8, QStringLiteral("bi")}));
    openFonts();
    QTest::mouseClick(fontControl<QListWidget>("font_family").viewport(), Qt::LeftButton, {}, placeOf("DejaVu Sans"));
    clickFont("font_ok");
    click("CmdOK");
    EXPECT_EQ(windows.common.logFont.face, QStringLiteral("DejaVu Sans"));
}

TEST_F(FrmOptions, TheSampleIsDrawnInTheFontThatIsChosen)
{
    windows.common.logFont = {QStringLiteral("DejaVu Sans"), 9, QString()};
    openFonts();
    auto &sample = fontControl<QLabel>("font_sample");
    EXPECT_EQ(sample.font().family(), QStringLiteral("DejaVu Sans"));
    EXPECT_EQ(sample.font().pointSize(), 9);
    QTest::mouseClick(fontControl<QListWidget>("font_family").viewport(), Qt::LeftButton, {}, placeOf("DejaVu Serif"));
    typeSize("16");
    clickFont("font_bold");
    clickFont("font_italic");
    EXPECT_EQ(sample.font().family(), QStringLiteral("DejaVu Serif"));
    EXPECT_EQ(sample.font().pointSize(), 16);
    EXPECT_TRUE(sample.font().bold());
    EXPECT_TRUE(sample.font().italic());
}

} // namespace
} // namespace nimb::test

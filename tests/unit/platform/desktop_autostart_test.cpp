// Starting with the desktop.
#include "platform/desktop_autostart.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

namespace nimb::test
{
namespace
{

class DesktopAutostartTest : public testing::Test
{
protected:
    QByteArray entry() const
    {
        QFile file(path);
        return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
    }
    void write(const QByteArray &text) const
    {
        QFile file(path);
        ASSERT_TRUE(file.open(QFile::WriteOnly));
        file.write(text);
    }

    const QTemporaryDir home;
    const QString folder = home.filePath(QStringLiteral("config/autostart"));
    const QString path = folder + QStringLiteral("/org.example.Chat.desktop");
    DesktopAutostart autostart{folder, QStringLiteral("org.example.Chat"), QStringLiteral("/opt/my chat/nimb-chat")};
};

TEST_F(DesktopAutostartTest, AnEntryStartsTheProgramUnderTheNickname)
{
    EXPECT_FALSE(autostart.isOn());
    EXPECT_FALSE(autostart.switchOn(QStringLiteral("Ann")));
    EXPECT_TRUE(autostart.isOn());
    EXPECT_EQ(entry(),
              "[Desktop Entry]\nType=Application\nName=NIMB-Chat\nIcon=org.example.Chat\n"
              "Exec=\"/opt/my chat/nimb-chat\" \"Ann\"\nTerminal=false\nX-GNOME-Autostart-enabled=true\n");
    EXPECT_FALSE(autostart.switchOff());
    EXPECT_FALSE(autostart.isOn());
    EXPECT_FALSE(QFile::exists(path));
    EXPECT_FALSE(autostart.switchOff()) << "there is nothing to take away";
}

TEST_F(DesktopAutostartTest, ANicknameIsOneArgumentWhateverItHolds)
{
    EXPECT_FALSE(autostart.switchOn(QStringLiteral("Ann \"$HOME\" `id` 100% a\\b \u00e9")));
    EXPECT_TRUE(entry().contains("Exec=\"/opt/my chat/nimb-chat\" "
                                 "\"Ann \\\\\"\\\\$HOME\\\\\" \\\\`id\\\\` 100%% a\\\\\\\\b \xc3\xa9\"\n"))
        << entry().toStdString();
}

TEST_F(DesktopAutostartTest, WhatTheUserSwitchedOffInTheDesktopsSettingsIsOff)
{
    EXPECT_FALSE(autostart.switchOn(QStringLiteral("Ann")));
    const QByteArray written = entry();
    write(QByteArray(written).replace("enabled=true", "enabled=false"));
    EXPECT_FALSE(autostart.isOn());
    write(written + "Hidden=true\n");
    EXPECT_FALSE(autostart.isOn());
    EXPECT_FALSE(autostart.switchOn(QStringLiteral("Ann")));
    EXPECT_TRUE(autostart.isOn());
}

TEST_F(DesktopAutostartTest, AFolderThatCannotBeMadeIsSaid)
{
    QFile obstacle(home.filePath(QStringLiteral("config")));
    ASSERT_TRUE(obstacle.open(QFile::WriteOnly));
    EXPECT_EQ(autostart.switchOn(QStringLiteral("Ann")), QStringLiteral("File exists"));
}

} // namespace
} // namespace nimb::test

#include "session_bus.h"

#include "child_process.h"

#include <QFile>

#include <gtest/gtest.h>

namespace nimb::test
{
namespace
{

constexpr int longestWait = 30000; // milliseconds

/// Without the folders in which the system lists the programs that a bus may start.
constexpr char busConfiguration[] = R"(<!DOCTYPE busconfig PUBLIC "-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN"
 "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig>
  <type>session</type>
  <listen>unix:dir=%1</listen>
  <auth>EXTERNAL</auth>
  <policy context="default">
    <allow send_destination="*" eavesdrop="true"/>
    <allow eavesdrop="true"/>
    <allow own="*"/>
  </policy>
</busconfig>
)";

} // namespace

SessionBus::SessionBus()
{
    QFile file(m_folder.filePath(QStringLiteral("bus.conf")));
    EXPECT_TRUE(file.open(QFile::WriteOnly));
    file.write(QString::fromLatin1(busConfiguration).arg(m_folder.path()).toUtf8());
    file.close();
    endWithParent(m_process);
    m_process.start(QStringLiteral("dbus-daemon"),
                    {QStringLiteral("--config-file=") + file.fileName(), QStringLiteral("--nofork"),
                     QStringLiteral("--print-address")});
    while (!m_process.canReadLine() && m_process.waitForReadyRead(longestWait)) { }
    EXPECT_TRUE(m_process.canReadLine()) << "no session bus";
    m_address = QString::fromLocal8Bit(m_process.readLine().trimmed());
}

SessionBus::~SessionBus()
{
    endProcess(m_process);
}

} // namespace nimb::test

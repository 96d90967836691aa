// What the tests of serving and of fetching files share: a folder, addresses of their own, and waiting.
#pragma once

#include "event_loop_wait.h"

#include "protocol/ipv4_address.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QFile>
#include <QString>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace nimb::test
{

class FilesOnLoopback : public testing::Test
{
protected:
    static constexpr int patience = 60000; ///< milliseconds

    /// net: the second number of the addresses, another one for each test program.
    explicit FilesOnLoopback(std::uint8_t net) : m_net(net) { }

    /// Those of one test process; others have others.
    Ipv4Address loopback(int last) const
    {
        const auto pid = static_cast<std::uint32_t>(QCoreApplication::applicationPid());
        return Ipv4Address(127, m_net, static_cast<std::uint8_t>(pid >> 8),
                           static_cast<std::uint8_t>((pid & 0xF0) | static_cast<std::uint32_t>(last)));
    }

    QString pathOf(const QString &name) const { return folder.filePath(name); }
    QString write(const QString &name, const QByteArray &bytes) const
    {
        QFile file(pathOf(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        EXPECT_EQ(file.write(bytes), bytes.size());
        return file.fileName();
    }
    static QByteArray read(const QString &path)
    {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
        return file.readAll();
    }

    const QString token = QStringLiteral("0123456789abcdef0123456789abcdef");
    QTemporaryDir folder;

private:
    std::uint8_t m_net;
};

} // namespace nimb::test

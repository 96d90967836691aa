#include "platform/link_opener.h"

#include <QDesktopServices>
#include <QFile>
#include <QObject>
#include <QTemporaryDir>
#include <QTest>

#include <gmock/gmock.h>

#include <algorithm>
#include <string>
#include <vector>

namespace nimb::test
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

/// Stands in place of the desktop for these kinds of addresses.
class Desktop : public QObject
{
    Q_OBJECT

public:
    Desktop()
    {
        for (const char *const scheme : schemes)
            QDesktopServices::setUrlHandler(QLatin1String(scheme), this, "take");
    }
    ~Desktop() override
    {
        for (const char *const scheme : schemes)
            QDesktopServices::unsetUrlHandler(QLatin1String(scheme));
    }
    Q_DISABLE_COPY_MOVE(Desktop)

    Q_INVOKABLE void take(const QUrl &address) { taken.push_back(address.toEncoded().toStdString()); }

    std::vector<std::string> taken;

private:
    static constexpr const char *schemes[]
        = {"http", "https", "ftp",   "mailto", "file", "javascript", "data", "ssh",        "vbscript",
           "smb",  "tel",   "about", "ftps",   "irc",  "sftp",       "x",    "view-source"};
};

TEST(DesktopLinkOpener, HandsWebFileTransferAndMailAddressesToTheDesktop)
{
    Desktop desktop;
    DesktopLinkOpener opener;
    for (const char *const address : {"http://127.0.0.1/x_y", "https://example.org:8443/a?b=c&d#e", "ftp://example.org",
                                      "mailto:ann@example.org", "HTTP://EXAMPLE.ORG/Path"})
        EXPECT_TRUE(opener.open(QUrl(QLatin1String(address)), {}));
    EXPECT_THAT(desktop.taken,
                ElementsAre("http://127.0.0.1/x_y", "https://example.org:8443/a?b=c&d#e", "ftp://example.org",
                            "mailto:ann@example.org", "http://example.org/Path"));
}

class RefusedAddress : public testing::TestWithParam<const char *>
{
};

TEST_P(RefusedAddress, ReachesNoProgram)
{
    Desktop desktop;
    DesktopLinkOpener opener;
    EXPECT_FALSE(opener.open(QUrl(QString::fromUtf8(GetParam())), {}));
    EXPECT_THAT(desktop.taken, IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(DesktopLinkOpener, RefusedAddress,
                         testing::Values("", "file:///etc/passwd", "FILE:///etc/passwd", "javascript:alert(1)",
                                         "data:text/html,x", "ssh://host", "sftp://host/x", "ftps://host/x",
                                         "smb://host/share", "tel:112", "about:blank", "vbscript:x", "irc://host",
                                         "view-source:http://host/", "x:y", "/etc/passwd", "etc/passwd",
                                         "www.example.org", "//example.org/x", "http:", "http:///path", "https://",
                                         "ftp:x", "mailto:", "http://[broken/", "http://example.org:99999/"));

TEST(DesktopPageOpener, HandsPagesOfThisComputerToTheDesktop)
{
    Desktop desktop;
    DesktopPageOpener opener;
    EXPECT_TRUE(opener.open(QUrl::fromLocalFile(QStringLiteral("/a folder/manual/index.html")), {}));
    EXPECT_THAT(desktop.taken, ElementsAre("file:///a%20folder/manual/index.html"));
}

TEST(DesktopPageOpener, OpensNothingElse)
{
    Desktop desktop;
    DesktopPageOpener opener;
    for (const char *const address : {"", "http://127.0.0.1/index.html", "file:///usr/bin/program", "file:///",
                                      "file://server/index.html", "index.html", "javascript:index.html"})
        EXPECT_FALSE(opener.open(QUrl(QLatin1String(address)), {})) << address;
    EXPECT_THAT(desktop.taken, IsEmpty());
}

/// Stands where a desktop has its program that opens addresses.
class Handler
{
public:
    explicit Handler(const char *script)
    {
        QFile file(path());
        EXPECT_TRUE(file.open(QFile::WriteOnly));
        file.write(QByteArray("#!/bin/sh\n") + script);
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
    QString path() const { return m_folder.filePath(QStringLiteral("xdg-open")); }
    QByteArray argument() const
    {
        QFile file(path() + QStringLiteral(".got"));
        return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
    }

private:
    QTemporaryDir m_folder;
};

TEST(DesktopHandler, ThatFindsNothingToOpenAnAddressWithIsHeard)
{
    const Handler handler("printf %s \"$1\" >\"$0.got\"\nexit 3\n");
    DesktopLinkOpener opener([&handler] { return handler.path(); });
    int failures = 0;
    EXPECT_TRUE(opener.open(QUrl(QStringLiteral("http://127.0.0.1/a;b$(c)")), [&failures] { ++failures; }));
    EXPECT_TRUE(QTest::qWaitFor([&failures] { return failures > 0; }, 60000));
    EXPECT_EQ(handler.argument(), "http://127.0.0.1/a;b$(c)");
    EXPECT_EQ(failures, 1);
}

TEST(DesktopHandler, ThatDoesItsWorkIsNoFailure)
{
    const Handler good("exit 0\n"), bad("exit 4\n");
    int failures = 0, later = 0;
    DesktopPageOpener first([&good] { return good.path(); });
    EXPECT_TRUE(first.open(QUrl::fromLocalFile(QStringLiteral("/manual/index.html")), [&failures] { ++failures; }));
    DesktopPageOpener second([&bad] { return bad.path(); });
    EXPECT_TRUE(second.open(QUrl::fromLocalFile(QStringLiteral("/manual/index.html")), [&later] { ++later; }));
    EXPECT_TRUE(QTest::qWaitFor([&later] { return later == 1; }, 60000)) << "a page that fails is heard too";
    EXPECT_EQ(failures, 0);
}

TEST(DesktopHandler, ThatCannotBeStartedIsNone)
{
    DesktopLinkOpener opener([] { return QStringLiteral("/nowhere/xdg-open"); });
    EXPECT_FALSE(opener.open(QUrl(QStringLiteral("http://127.0.0.1/")), {}));
}

} // namespace
} // namespace nimb::test

#include "link_opener_test.moc"

#include "files/file_link.h"

#include "log/link_finder.h"
#include "print_qt.h"

#include <gmock/gmock.h>

namespace nimb
{
namespace
{

const QString token = QStringLiteral("0123456789abcdef0123456789abcdef");

TEST(FileMessage, NamesTheFileItsSizeAndItsAddress)
{
    EXPECT_EQ(fileMessage(QStringLiteral("Plan.pdf"), 2'300'000, Ipv4Address(192, 168, 1, 12), 5549, token),
              QStringLiteral("Plan.pdf (2.3 MB) http://192.168.1.12:5549/0123456789abcdef0123456789abcdef/Plan.pdf"));
}

TEST(FileMessage, EncodesTheNameInTheAddress)
{
    EXPECT_EQ(fileMessage(QStringLiteral("Über uns (2).txt"), 12, Ipv4Address(10, 0, 0, 1), 5550, token),
              QStringLiteral("Über uns (2).txt (12 bytes) "
                             "http://10.0.0.1:5550/0123456789abcdef0123456789abcdef/%C3%9Cber%20uns%20%282%29.txt"));
}

TEST(FileMessage, TakesANameForWhatItIs)
{
    EXPECT_EQ(fileMessage(QStringLiteral("100%2 %1 %L3.txt"), 1, Ipv4Address(10, 0, 0, 1), 80, token),
              QStringLiteral("100%2 %1 %L3.txt (1 byte) "
                             "http://10.0.0.1:80/0123456789abcdef0123456789abcdef/100%252%20%251%20%25L3.txt"));
}

TEST(FileMessage, IsOneLinkInEveryLog)
{
    const QString message
        = fileMessage(QStringLiteral("a.b) :-) ;x.,'!.txt"), 1, Ipv4Address(10, 0, 0, 1), 5549, token);
    const std::vector<Link> links = findLinks(message);
    ASSERT_EQ(links.size(), 1U);
    EXPECT_EQ(links[0].target.toEncoded(),
              "http://10.0.0.1:5549/0123456789abcdef0123456789abcdef/"
              "a.b%29%20%3A-%29%20%3Bx.%2C%27%21.txt");
}

TEST(FileLink, IsReadFromTheMessage)
{
    const auto link = fileLinkIn(
        QStringLiteral("Plan.pdf (2.3 MB) http://192.168.1.12:5549/0123456789abcdef0123456789abcdef/Plan.pdf"));
    ASSERT_TRUE(link);
    EXPECT_EQ(link->name, QStringLiteral("Plan.pdf"));
    EXPECT_EQ(link->sizeText, QStringLiteral("2.3 MB"));
    EXPECT_EQ(link->host, Ipv4Address(192, 168, 1, 12));
    EXPECT_EQ(link->port, 5549);
    EXPECT_EQ(link->token, token);
    EXPECT_EQ(link->path, "/0123456789abcdef0123456789abcdef/Plan.pdf");
}

TEST(FileLink, HasTheNameThatTheAddressMeans)
{
    const auto link = fileLinkIn(QStringLiteral(
        "Über (2) uns.txt (12 bytes) http://10.0.0.1:80/0123456789abcdef0123456789abcdef/%C3%9cber%20(2)%20uns.txt"));
    ASSERT_TRUE(link);
    EXPECT_EQ(link->name, QStringLiteral("Über (2) uns.txt"));
}

TEST(FileLink, IsInNoOtherMessage)
{
    for (const char *const message : {
             "",
             "http://10.0.0.1:5549/0123456789abcdef0123456789abcdef/Plan.pdf",
             "(2.3 MB) http://10.0.0.1:5549/0123456789abcdef0123456789abcdef/Plan.pdf",
             "Plan.pdf http://10.0.0.1:5549/0123456789abcdef0123456789abcdef/Plan.pdf",
             // Shown one name, given another.
             "Plan.pdf (2 MB) http://10.0.0.1:5549/0123456789abcdef0123456789abcdef/Plan.exe",
             "Plan.pdf (2 MB) http://10.0.0.1:5549/0123456789abcdef0123456789abcdef/plan.pdf",
             "Plan.pdf (2 MB) http://10.0.0.1:5549/0123456789abcdef0123456789abcdef/Plan.pdf and more",
             "Plan.pdf (2 MB) http://10.0.0.1:5549/0123456789abcdef0123456789abcdef/Plan.pdf?x=1",
             "Plan.pdf (2 MB) https://10.0.0.1:5549/0123456789abcdef0123456789abcdef/Plan.pdf",
             "Plan.pdf (2 MB) http://10.0.0.1/0123456789abcdef0123456789abcdef/Plan.pdf",
             "Plan.pdf (2 MB) http://10.0.0.1:0/0123456789abcdef0123456789abcdef/Plan.pdf",
             "Plan.pdf (2 MB) http://10.0.0.1:65536/0123456789abcdef0123456789abcdef/Plan.pdf",
             "Plan.pdf (2 MB) http://10.0.0.1:+80/0123456789abcdef0123456789abcdef/Plan.pdf",
             "Plan.pdf (2 MB) http://ann@10.0.0.1:80/0123456789abcdef0123456789abcdef/Plan.pdf",
             "Plan.pdf (2 MB) http://host:80/0123456789abcdef0123456789abcdef/Plan.pdf",
             "Plan.pdf (2 MB) http://255.255.255.255:80/0123456789abcdef0123456789abcdef/Plan.pdf",
             "Plan.pdf (2 MB) http://10.0.0.1:80/0123456789ABCDEF0123456789abcdef/Plan.pdf",
             "Plan.pdf (2 MB) http://10.0.0.1:80/0123456789abcdef/Plan.pdf",
             "Plan.pdf (2 MB) http://10.0.0.1:80/0123456789abcdef0123456789abcdef/a/Plan.pdf",
             "a/b (2 MB) http://10.0.0.1:80/0123456789abcdef0123456789abcdef/a%2Fb",
             "Plan.pdf (<b>) http://10.0.0.1:80/0123456789abcdef0123456789abcdef/Plan.pdf",
             "Plan.pdf () http://10.0.0.1:80/0123456789abcdef0123456789abcdef/Plan.pdf",
             "Plan%.pdf (2 MB) http://10.0.0.1:80/0123456789abcdef0123456789abcdef/Plan%.pdf",
         })
        EXPECT_FALSE(fileLinkIn(QString::fromUtf8(message))) << message;
}

TEST(AskedFile, IsTokenAndName)
{
    const auto asked = askedFile("/0123456789abcdef0123456789abcdef/a%20b.txt");
    ASSERT_TRUE(asked);
    EXPECT_EQ(asked->token, "0123456789abcdef0123456789abcdef");
    EXPECT_EQ(asked->name, "a b.txt");
}

TEST(AskedFile, IsNoPath)
{
    for (const char *const path : {
             "",
             "/",
             "//",
             "/0123456789abcdef0123456789abcdef",
             "/0123456789abcdef0123456789abcdef/",
             "/0123456789abcdef0123456789abcdef/../../etc/passwd",
             "/0123456789abcdef0123456789abcdef/..%2F..%2Fetc%2Fpasswd",
             "/0123456789abcdef0123456789abcdef/a%00b",
             "/0123456789abcdef0123456789abcdef/a%",
             "/0123456789abcdef0123456789abcdef/a%4",
             "/0123456789abcdef0123456789abcdef/a%zz",
             "/../0123456789abcdef0123456789abcdef/a",
             "0123456789abcdef0123456789abcdef/ab",
             "http://10.0.0.1/0123456789abcdef0123456789abcdef/a",
         })
        EXPECT_FALSE(askedFile(path)) << path;
}

} // namespace
} // namespace nimb

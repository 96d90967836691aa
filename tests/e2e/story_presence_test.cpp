#include "running_copy.h"
#include "wire_peer.h"

#include <gmock/gmock.h>
#include <QElapsedTimer>

namespace nimb::test
{
namespace
{
TEST(Try, Out)
{
    QElapsedTimer t; t.start();
    auto lap = [&](const char *w) { printf("%d %s\n", int(t.restart()), w); };
    const std::uint16_t port = freePort();
    WirePeer ann("127.0.7.2", port);
    Rows rows = contactRows({{"127.0.7.2", "Ann", "ANN-PC"}});
    rows[{"Settings", "UDPPort"}] = std::to_string(port);
    RunningCopy bob({"127.0.7.1", "BOB-PC"}, rows);
    lap("set up");
    bob.start({"Bob"});
    EXPECT_EQ(ann.next(), "?ONLINE 127.0.7.1 BOB-PC Bob");
    lap("online");
    EXPECT_EQ(ann.next(), "!STATUS Online");
    Window main = Window::waitFor("NIMB-Chat 1.2 - Bob");
    lap("window");
    EXPECT_TRUE(main.becomes(Window::State::minimised));
    lap("min");
    main.activate();
    lap("activate");
    printf("%d %d\n", main.framePosition().first, main.framePosition().second);
    ann.send("127.0.7.1", "-gr\xFC\xDF");
    EXPECT_EQ(ann.next(), "?AVATARHEAD");
    Window priv = Window::waitFor("Ann - NIMB-Chat - Private Chat Window");
    lap("priv");
    printf("attention %d state %d\n", priv.wantsAttention(), int(priv.state()));
    priv.activate();
    lap("priv act");
    printf("active after act: %s\n", Window::active().caption().c_str());

    type("Hallo äöüß€ 😀!");
    lap("type");
    press("Return");
    EXPECT_EQ(ann.next(), "x");
    type("Hallo äöüß€!");
    press("Return");
    EXPECT_EQ(ann.next(), "x");
    lap("heard");
    printf("active after typing: %s\n", Window::active().caption().c_str());
    priv.click(200, 100);
    printf("active after click: %s\n", Window::active().caption().c_str());
    if (0 == system("sleep 0.3; import -window root /tmp/e2e-shot0.png")) {}
    press("ctrl+a"); 
    if (0 == system("sleep 0.3; import -window root /tmp/e2e-shot1.png")) {}
    press("ctrl+c");
    lap("copy");
    if (0 == system("import -window root /tmp/e2e-shot.png")) {}
    priv.click(100, 350);
    press("ctrl+v");
    press("Return");
    EXPECT_EQ(ann.next(), "x");
    EXPECT_EQ(bob.end(), 0);
    lap("ended");
    for (auto &[k, v] : bob.readStore())
        printf("%s/%s = %s\n", k.first.c_str(), k.second.c_str(), v.c_str());
    for (auto &s : ann.waiting()) printf("%s\n", s.c_str());
}
} // namespace
} // namespace nimb::test

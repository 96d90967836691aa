#include "desktop.h"

#include "child_process.h"

#include <QFile>
#include <QTest>

#include <cstdlib>
#include <utility>

namespace nimb::test
{
namespace
{

int patienceMs()
{
    return static_cast<int>(patience().count());
}

/// Every character that a test types has a key of its own. Where one lacks, xdotool gives a spare key its meaning for a
/// moment, and a program that learns of it a moment later types something else.
constexpr char keyboard[] = R"keymap(
xkb_keymap {
    xkb_keycodes { include "evdev+aliases(qwerty)" };
    xkb_types { include "complete" };
    xkb_compat { include "complete" };
    xkb_symbols {
        include "pc+us+inet(evdev)"
        replace key <FK19> { [ adiaeresis, Adiaeresis ] };
        replace key <FK20> { [ odiaeresis, Odiaeresis ] };
        replace key <FK21> { [ udiaeresis, Udiaeresis ] };
        replace key <FK22> { [ ssharp, EuroSign ] };
        replace key <FK23> { [ U1F600 ] };
    };
};
)keymap";

/// A click gives the focus, and nothing moves by itself: a window that is restored is where it belongs at once.
constexpr char windowManagerConfiguration[] = R"config(<?xml version="1.0"?>
<openbox_config xmlns="http://openbox.org/3.4/rc">
  <focus><focusNew>yes</focusNew><followMouse>no</followMouse><focusLast>yes</focusLast></focus>
  <placement><policy>Smart</policy></placement>
  <theme><titleLayout>NLC</titleLayout><animateIconify>no</animateIconify></theme>
  <mouse>
    <context name="Close">
      <mousebind button="Left" action="Click"><action name="Close"/></mousebind>
    </context>
    <context name="Client">
      <mousebind button="Left" action="Press"><action name="Focus"/><action name="Raise"/></mousebind>
      <mousebind button="Right" action="Press"><action name="Focus"/><action name="Raise"/></mousebind>
    </context>
  </mouse>
</openbox_config>
)config";

struct Outcome {
    bool ok;
    QByteArray output;
};

Outcome run(const QString &program, const QStringList &arguments, const QByteArray &input = {})
{
    QProcess process;
    process.start(program, arguments);
    if (!process.waitForStarted(patienceMs())) {
        ADD_FAILURE() << program.toStdString() << " cannot be started: " << process.errorString().toStdString();
        return {false, {}};
    }
    process.write(input);
    process.closeWriteChannel();
    if (!process.waitForFinished(patienceMs())) {
        ADD_FAILURE() << program.toStdString() << ' ' << arguments.join(' ').toStdString() << " does not end";
        return {false, {}};
    }
    const bool ok = process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
    return {ok, process.readAllStandardOutput()};
}

/// For what works whenever the screen works.
QByteArray act(const QStringList &arguments)
{
    const Outcome outcome = run(QStringLiteral("xdotool"), arguments);
    EXPECT_TRUE(outcome.ok) << "xdotool " << arguments.join(' ').toStdString();
    return outcome.output.trimmed();
}

QByteArray property(const QStringList &window, const char *name)
{
    return run(QStringLiteral("xprop"), window + QStringList{QStringLiteral("-notype"), QLatin1String(name)})
        .output.trimmed();
}

QByteArray rootProperty(const char *name)
{
    return property({QStringLiteral("-root")}, name);
}

/// A pattern that matches this text alone.
QString literally(const std::string &text)
{
    QString pattern = QStringLiteral("^");
    for (const QChar c : QString::fromStdString(text)) {
        if (QStringLiteral("\\^$.[]|()*+?{}").contains(c))
            pattern += u'\\';
        pattern += c;
    }
    return pattern + u'$';
}

} // namespace

std::chrono::milliseconds patience()
{
    using namespace std::chrono_literals;
    return testing::Test::HasFailure() ? 1s : 20s;
}

bool waitUntil(const std::function<bool()> &condition, std::chrono::milliseconds limit)
{
    return QTest::qWaitFor(condition, static_cast<int>(limit.count()));
}

void Desktop::SetUp()
{
    start();
    if (!testing::Test::HasFatalFailure())
        return;
    // The framework would skip the tests now, and skipping looks well.
    TearDown();
    std::exit(EXIT_FAILURE);
}

void Desktop::start()
{
    qunsetenv("DISPLAY");
    qputenv("LC_ALL", "C.UTF-8"); // xdotool types what its locale can read
    ASSERT_NO_FATAL_FAILURE(startScreen());
    ASSERT_NO_FATAL_FAILURE(loadKeyboard());
    ASSERT_NO_FATAL_FAILURE(startWindowManager());
}

void Desktop::TearDown()
{
    endProcess(m_windowManager);
    endProcess(m_screen);
}

void Desktop::startScreen()
{
    endWithParent(m_screen);
    // The server picks a free number and writes it when it is ready.
    m_screen.start(QStringLiteral("Xvfb"),
                   {"-displayfd", "1", "-screen", "0", "1280x900x24", "-nolisten", "tcp", "-noreset"});
    QByteArray number;
    while (!number.endsWith('\n') && m_screen.waitForReadyRead(patienceMs()))
        number += m_screen.readAllStandardOutput();
    ASSERT_TRUE(number.endsWith('\n')) << "Xvfb does not start: " << m_screen.errorString().toStdString() << '\n'
                                       << m_screen.readAllStandardError().toStdString();
    qputenv("DISPLAY", ':' + number.trimmed());
}

void Desktop::loadKeyboard()
{
    const Outcome loaded = run(QStringLiteral("xkbcomp"), {"-w", "0", "-", qEnvironmentVariable("DISPLAY")}, keyboard);
    ASSERT_TRUE(loaded.ok) << "xkbcomp cannot load the keyboard";
}

void Desktop::startWindowManager()
{
    QFile configuration(m_folder.filePath(QStringLiteral("openbox.xml")));
    ASSERT_TRUE(configuration.open(QFile::WriteOnly)) << configuration.errorString().toStdString();
    configuration.write(windowManagerConfiguration);
    configuration.close();
    endWithParent(m_windowManager);
    m_windowManager.setStandardOutputFile(QProcess::nullDevice());
    m_windowManager.setStandardErrorFile(QProcess::nullDevice());
    m_windowManager.start(QStringLiteral("openbox"), {"--sm-disable", "--config-file", configuration.fileName()});
    ASSERT_TRUE(m_windowManager.waitForStarted(patienceMs())) << m_windowManager.errorString().toStdString();
    // It names itself before it handles events, and loses what comes between: ready is who answers.
    ASSERT_TRUE(waitUntil([] {
        run(QStringLiteral("xdotool"), {"set_num_desktops", "7"});
        return rootProperty("_NET_NUMBER_OF_DESKTOPS").endsWith("= 7");
    })) << "openbox does not take the screen";
}

std::vector<Window> Window::all(const std::string &caption)
{
    std::vector<Window> found;
    const Outcome search = run(QStringLiteral("xdotool"), {"search", "--name", literally(caption)});
    for (const QByteArray &id : search.output.split('\n')) {
        const Window window(id.trimmed());
        // The search knows no case, and finds helper windows that no window manager manages.
        if (!window.isNull() && window.caption() == caption && window.property("WM_STATE").contains("window state"))
            found.push_back(window);
    }
    return found;
}

Window Window::waitFor(const std::string &caption)
{
    std::vector<Window> found;
    waitUntil([&] { return (found = all(caption)).size() == 1; });
    EXPECT_EQ(found.size(), 1U) << "windows with the caption \"" << caption << '"';
    return found.empty() ? Window() : found.front();
}

Window Window::waitForUnmanaged(const std::string &caption)
{
    Window found;
    waitUntil([&] {
        const Outcome search
            = run(QStringLiteral("xdotool"), {"search", "--onlyvisible", "--name", literally(caption)});
        found = Window(search.output.trimmed());
        return !found.isNull() && !search.output.trimmed().contains('\n');
    });
    EXPECT_EQ(found.caption(), caption);
    return found;
}

std::size_t Window::numberOfManaged()
{
    return static_cast<std::size_t>(rootProperty("_NET_CLIENT_LIST").count("0x"));
}

std::size_t Window::numberOfVisible()
{
    const Outcome search
        = run(QStringLiteral("xdotool"), {"search", "--onlyvisible", "--class", "^nimb-chat(\\.exe)?$"});
    return static_cast<std::size_t>(search.output.count('\n'));
}

Window Window::active()
{
    const Outcome outcome = run(QStringLiteral("xdotool"), {"getactivewindow"});
    return outcome.ok ? Window(outcome.output.trimmed()) : Window();
}

std::string Window::caption() const
{
    const Outcome outcome = run(QStringLiteral("xdotool"), {"getwindowname", m_id});
    return outcome.output.endsWith('\n') ? outcome.output.chopped(1).toStdString() : std::string();
}

QByteArray Window::property(const char *name) const
{
    return nimb::test::property({QStringLiteral("-id"), m_id}, name);
}

Window::State Window::state() const
{
    const QByteArray state = property("WM_STATE");
    if (state.contains("window state: Normal"))
        return State::shown;
    return state.contains("window state: Iconic") ? State::minimised : State::hidden;
}

bool Window::becomes(State expected) const
{
    return waitUntil([this, expected] { return state() == expected; });
}

bool Window::isActive() const
{
    return !isNull() && active() == *this;
}

bool Window::wantsAttention() const
{
    return property("_NET_WM_STATE").contains("_NET_WM_STATE_DEMANDS_ATTENTION");
}

bool Window::shows(std::uint32_t colour) const
{
    const QByteArray pixels
        = run(QStringLiteral("import"), {"-silent", "-window", m_id, "-depth", "8", "rgb:-"}).output;
    for (qsizetype i = 0; i + 2 < pixels.size(); i += 3) {
        const auto part
            = [&](qsizetype at) { return static_cast<std::uint32_t>(static_cast<unsigned char>(pixels[at])); };
        if (((part(i) << 16) | (part(i + 1) << 8) | part(i + 2)) == colour)
            return true;
    }
    return false;
}

std::vector<std::vector<std::uint32_t>> Window::picture(int left, int top, int width, int height) const
{
    const QString part = QStringLiteral("%1x%2+%3+%4").arg(width).arg(height).arg(left).arg(top);
    const QByteArray pixels
        = run(QStringLiteral("import"), {"-silent", "-window", m_id, "-crop", part, "-depth", "8", "rgb:-"}).output;
    if (pixels.size() != 3 * qsizetype{width} * height) {
        ADD_FAILURE() << "no picture of " << width << " by " << height << " pixels";
        return {};
    }
    std::vector<std::vector<std::uint32_t>> lines(static_cast<std::size_t>(height));
    qsizetype at = 0;
    for (auto &line : lines) {
        for (int x = 0; x < width; ++x) {
            std::uint32_t colour = 0;
            for (int i = 0; i < 3; ++i)
                colour = colour << 8 | static_cast<unsigned char>(pixels[at++]);
            line.push_back(colour);
        }
    }
    return lines;
}

Window::Place Window::place() const
{
    const QList<QByteArray> lines = run(QStringLiteral("xwininfo"), {"-id", m_id}).output.split('\n');
    const auto valueOf = [&lines](const QByteArray &name) {
        for (const QByteArray &line : lines) {
            if (line.trimmed().startsWith(name + ':'))
                return line.split(':').last().trimmed().toInt();
        }
        ADD_FAILURE() << "xwininfo does not tell " << name.constData();
        return 0;
    };
    Place place{valueOf("Absolute upper-left X"), valueOf("Absolute upper-left Y"), valueOf("Width"),
                valueOf("Height")};
    // Relative to the frame; a window without one is its own.
    if (!lines.contains("  Override Redirect State: yes")) {
        place.left -= valueOf("Relative upper-left X");
        place.top -= valueOf("Relative upper-left Y");
    }
    return place;
}

void Window::move(int left, int top) const
{
    act({"windowmove", m_id, QString::number(left), QString::number(top)});
    EXPECT_TRUE(waitUntil([&] { return place().left == left && place().top == top; })) << caption() << " stays";
}

void Window::activate() const
{
    act({"windowactivate", m_id});
    EXPECT_TRUE(waitUntil([this] { return isActive() && state() == State::shown; })) << caption() << " is not active";
}

void Window::minimise() const
{
    act({"windowminimize", m_id});
    EXPECT_TRUE(becomes(State::minimised));
}

void Window::resize(int width, int height) const
{
    act({"windowsize", m_id, QString::number(width), QString::number(height)});
}

void Window::close() const
{
    activate();
    // Left, right, top and bottom. The close box is the last one of the title bar.
    const QList<QByteArray> extents = property("_NET_FRAME_EXTENTS").split('=').last().split(',');
    ASSERT_EQ(extents.size(), 4) << caption() << " has no frame";
    constexpr int boxFromRight = 11, boxFromTop = 10;
    const Place frame = place();
    const int frameWidth = frame.width + extents[0].trimmed().toInt() + extents[1].trimmed().toInt();
    act({"mousemove", QString::number(frame.left + frameWidth - boxFromRight), QString::number(frame.top + boxFromTop),
         "click", "1"});
}

void Window::click(int x, int y, int times, int button) const
{
    act({"mousemove", "--window", m_id, QString::number(x), QString::number(y), "click", "--repeat",
         QString::number(times), "--delay", "20", QString::number(button)});
    // The window manager sees a click first and passes it on. Keys do not wait for it and would overtake the click.
    letWindowsSettle();
}

std::ostream &operator<<(std::ostream &out, Window::State state)
{
    switch (state) {
    case Window::State::shown:
        return out << "shown";
    case Window::State::minimised:
        return out << "minimised";
    case Window::State::hidden:
        return out << "hidden";
    }
    return out;
}

void type(const std::string &utf8)
{
    act({"type", "--delay", "2", "--", QString::fromStdString(utf8)});
}

void press(const std::string &key)
{
    act({"key", QString::fromStdString(key)});
}

void letWindowsSettle()
{
    // A request that the window manager answers in its turn. Twice: what it did for the first one it also hears of.
    for (const QString &count : {QStringLiteral("6"), QStringLiteral("7")}) {
        act({"set_num_desktops", count});
        EXPECT_TRUE(waitUntil([&] { return act({"get_num_desktops"}) == count.toLatin1(); }));
    }
}

} // namespace nimb::test

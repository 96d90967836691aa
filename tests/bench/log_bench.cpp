// Feeds a log as a flood of messages does, while the event loop goes on: log_bench [lines [lines that it holds before]]
// Prints lines per second, the longest stall of the event loop and the memory of a thousand lines. Needs a screen or
// QT_QPA_PLATFORM=offscreen.
#include "log/emoticons.h"
#include "log/rich_text_log.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QTimer>

#include <unistd.h>

#include <cstdio>

namespace
{

using namespace nimb;

constexpr int batch = 64; ///< as many datagrams as one turn of the event loop reads

double residentMebibytes()
{
    QFile file(QStringLiteral("/proc/self/statm"));
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    return file.readAll().split(' ').value(1).toDouble() * double(sysconf(_SC_PAGESIZE)) / (1024 * 1024);
}

void writeMessage(RichTextLog &log, int number)
{
    static const std::array bodies = {
        QStringLiteral("Did you see the new plan? The part about the basement is the one that matters for us."),
        QStringLiteral("Not yet :) is it at http://fileserver/plans/2026 (all of it)?"),
        QStringLiteral("Yes"),
        QStringLiteral("Then I will read it after lunch ;-p and tell you: more later"),
    };
    appendText(log, QStringLiteral("Ann> "), 0xC00000);
    AddTextWithEmoticons(log, bodies[std::size_t(number) % bodies.size()], 0xC00000);
    appendText(log, QStringLiteral("\r\n"), 0xC00000);
}

/// The longest texts that are shown, each one line: how long the window stands still for one of them.
void writeLongLines(RichTextLogEdit &log)
{
    const std::array lines = {
        std::pair("plain", QStringLiteral("word ").repeated(1600)),
        std::pair("without blanks", QString(8000, u'x')),
        std::pair("mixed directions", QStringLiteral("abc \u05D0\u05D1\u05D2 ").repeated(1000)),
        std::pair("colons", QString(8000, u':')),
        std::pair("links", QStringLiteral("http://a.b ").repeated(727)),
    };
    for (const auto &[name, text] : lines) {
        log.clear();
        QElapsedTimer time;
        time.start();
        AddTextWithEmoticons(log, text, 0xC00000);
        appendText(log, QStringLiteral("\r\n"), 0xC00000);
        log.writeGathered();
        QCoreApplication::processEvents();
        std::printf("one line of 8,000, %s: %lld ms\n", name, static_cast<long long>(time.elapsed()));
    }
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    const int lines = argc > 1 ? std::atoi(argv[1]) : 20000;
    RichTextLogEdit log;
    log.setLinkDetection(true);
    log.resize(560, 260);
    log.show();
    QCoreApplication::processEvents();
    for (int i = argc > 2 ? std::atoi(argv[2]) : 0; i > 0; --i)
        writeMessage(log, i);
    log.writeGathered();
    QCoreApplication::processEvents();
    const double before = residentMebibytes();

    QElapsedTimer whole, sinceBeat;
    qint64 longestStall = 0;
    QTimer heart;
    heart.setTimerType(Qt::PreciseTimer);
    QObject::connect(&heart, &QTimer::timeout, [&] { longestStall = qMax(longestStall, sinceBeat.restart()); });
    int written = 0;
    QTimer arrivals;
    QObject::connect(&arrivals, &QTimer::timeout, [&] {
        for (int i = 0; i < batch && written < lines; ++i)
            writeMessage(log, written++);
        if (written == lines)
            QTimer::singleShot(50, &application, &QCoreApplication::quit);
    });
    whole.start();
    sinceBeat.start();
    heart.start(1);
    arrivals.start(0);
    QCoreApplication::exec();
    const double seconds = double(whole.elapsed() - 50) / 1000;
    std::printf("%d lines: %.0f lines/s, longest stall %lld ms, %.2f MiB a thousand lines, %d lines kept\n", lines,
                lines / seconds, static_cast<long long>(longestStall), (residentMebibytes() - before) * 1000 / lines,
                log.document()->blockCount() - 1);
    heart.stop();
    arrivals.stop();
    writeLongLines(log);
    return 0;
}

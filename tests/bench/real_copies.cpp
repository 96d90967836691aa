#include "real_copies.h"

#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QJsonDocument>
#include <QThread>

#include <gmock/gmock.h>

#include <chrono>
#include <cstdio>
#include <memory>

namespace nimb::bench
{
namespace
{

QString fileOf(qint64 process, const char *name)
{
    return QStringLiteral("/proc/%1/%2").arg(process).arg(QLatin1String(name));
}

/// The helpers that drive windows tell what goes wrong as a test does. The standard output is for the result.
class FailuresToStandardError : public testing::EmptyTestEventListener
{
    void OnTestPartResult(const testing::TestPartResult &result) override
    {
        if (result.failed())
            std::fprintf(stderr, "%s:%d: %s\n", result.file_name(), result.line_number(), result.message());
    }
};

} // namespace

double kibibytes(qint64 process, const std::string &field)
{
    QFile file(fileOf(process, "status"));
    if (!file.open(QFile::ReadOnly))
        return -1;
    for (const QByteArray &line : file.readAll().split('\n')) {
        if (line.startsWith((field + ':').c_str()))
            return line.simplified().split(' ').value(1).toDouble();
    }
    return -1;
}

void forgetPeak(qint64 process)
{
    QFile file(fileOf(process, "clear_refs"));
    EXPECT_TRUE(file.open(QFile::WriteOnly) && file.write("5") == 1);
}

int openDescriptors(qint64 process)
{
    return static_cast<int>(
        QDir(fileOf(process, "fd")).entryList(QDir::NoDotAndDotDot | QDir::AllEntries | QDir::System).size());
}

namespace
{

/// What the process has taken of the processor, in clock ticks (hundredths of a second).
qint64 ticksTaken(qint64 process)
{
    QFile file(fileOf(process, "stat"));
    if (!file.open(QFile::ReadOnly))
        return -1;
    // The name, which may hold anything, ends with the last parenthesis; behind it the 12th and 13th field count.
    const QByteArray line = file.readAll();
    const QList<QByteArray> fields = line.mid(line.lastIndexOf(')') + 2).split(' ');
    return fields.value(11).toLongLong() + fields.value(12).toLongLong();
}

} // namespace

void waitUntilIdle(qint64 process)
{
    using Clock = std::chrono::steady_clock;
    constexpr qint64 nearlyNothing = 5;
    constexpr auto longEnough = std::chrono::milliseconds(500);
    const Clock::time_point end = Clock::now() + std::chrono::minutes(1);
    qint64 taken = ticksTaken(process);
    Clock::time_point since = Clock::now();
    while (Clock::now() < since + longEnough) {
        if (Clock::now() > end)
            return ADD_FAILURE() << "process " << process << " is never idle", void();
        QThread::msleep(20);
        if (const qint64 now = ticksTaken(process); now > taken + nearlyNothing) {
            taken = now;
            since = Clock::now();
        }
    }
}

int runOnScreen(int argumentCount, char **arguments, const std::function<QJsonObject()> &run)
{
    qputenv("QT_QPA_PLATFORM", "xcb");
    testing::InitGoogleMock(&argumentCount, arguments);
    testing::TestEventListeners &listeners = testing::UnitTest::GetInstance()->listeners();
    delete listeners.Release(listeners.default_result_printer());
    listeners.Append(std::make_unique<FailuresToStandardError>().release());
    QGuiApplication application(argumentCount, arguments);
    const QByteArray result = QJsonDocument(run()).toJson(QJsonDocument::Indented);
    std::fwrite(result.constData(), 1, static_cast<std::size_t>(result.size()), stdout);
    return testing::Test::HasFailure() ? EXIT_FAILURE : EXIT_SUCCESS;
}

} // namespace nimb::bench

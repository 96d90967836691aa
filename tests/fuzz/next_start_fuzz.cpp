// What the last run left to be told, as any bytes in its file: it is told once, and what is told now is told then.
#include "require.h"
#include "store/next_start_file.h"

#include <QFile>
#include <QTemporaryDir>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("settings.report")));
    file.open(QIODevice::WriteOnly | QIODevice::Truncate);
    file.write(reinterpret_cast<const char *>(data), static_cast<qint64>(size));
    file.close();

    nimb::NextStartFile report(folder.path());
    const QStringList lines = report.take();
    require(lines.size() <= 4096, "there are no more lines than bytes that are read");
    for (const QString &line : lines)
        require(!line.isEmpty() && !line.contains(u'\n'), "a sentence is one line");
    require(report.take().isEmpty(), "what was told is not told again");
    report.tell(QStringLiteral("The disk is full."));
    report.tell(QStringLiteral("And\nnot writable."));
    require(report.take() == QStringList({QStringLiteral("The disk is full."), QStringLiteral("And not writable.")}),
            "what was to be told is told");
    return 0;
}

#include "platform/program_files.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace nimb
{

std::optional<QString> findProgramFile(const QString &name, const QString &programFolder)
{
    const QString installed = programFolder + QLatin1String("/" NIMB_DATA_FOLDER_FROM_PROGRAM);
    for (const QString &folder : {programFolder, installed}) {
        const QFileInfo file(QDir(folder), name);
        if (file.isFile() && file.isReadable())
            return QDir::cleanPath(file.absoluteFilePath());
    }
    return std::nullopt;
}

std::optional<QString> findManual(const QString &programFolder)
{
    const QString installed = programFolder + QLatin1String("/" NIMB_DOCUMENTS_FROM_PROGRAM);
    for (const QString &folder : {programFolder, installed}) {
        const QFileInfo start(QDir(folder), QStringLiteral("manual/index.html"));
        if (start.isFile() && start.isReadable())
            return QDir::cleanPath(start.absolutePath());
    }
    return std::nullopt;
}

std::optional<QByteArray> readProgramFile(const QString &name, const QString &programFolder)
{
    constexpr qint64 largest = qint64(1024) * 1024;
    const std::optional<QString> path = findProgramFile(name, programFolder);
    if (!path)
        return std::nullopt;
    QFile file(*path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    const QByteArray bytes = file.read(largest + 1);
    const bool whole = file.error() == QFileDevice::NoError && bytes.size() <= largest;
    return whole ? std::optional(bytes) : std::nullopt;
}

} // namespace nimb

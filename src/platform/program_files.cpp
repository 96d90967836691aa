#include "platform/program_files.h"

#include <QDir>
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

} // namespace nimb

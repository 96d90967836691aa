#include "store/next_start_file.h"

#include "platform/profile_folder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace nimb
{
namespace
{

constexpr qsizetype fileSize = 4096;

} // namespace

NextStartFile::NextStartFile(const QString &folder)
    : m_file(QDir(folder).absolutePath() + QStringLiteral("/settings.report"))
{
}

void NextStartFile::tell(const QString &sentence)
{
    write(read() + sentence.simplified() + QLatin1Char('\n'));
}

QStringList NextStartFile::take()
{
    QStringList lines = read().split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    if (!lines.isEmpty() || QFile(m_file).size() != fileSize)
        write({});
    return lines;
}

QString NextStartFile::read() const
{
    QFile file(m_file);
    // What is no file may never end, or never begin.
    if (!QFileInfo(m_file).isFile() || !file.open(QIODevice::ReadOnly))
        return {};
    QString text = QString::fromUtf8(file.read(fileSize)).trimmed();
    return text.isEmpty() ? text : text + QLatin1Char('\n');
}

bool NextStartFile::write(const QString &text) const
{
    const QByteArray bytes = text.toUtf8().leftJustified(fileSize, ' ');
    if (bytes.size() > fileSize || makePrivateFile(m_file))
        return false;
    takeFileFromOthers(m_file);
    QFile file(m_file);
    if (!QFileInfo(m_file).isFile())
        return false;
    // Over what is there: nothing new has to be found on the disk.
    if (!file.open(QIODevice::ReadWrite | QIODevice::Unbuffered) || file.write(bytes) != fileSize)
        return false;
    return flushToDisk(file);
}

} // namespace nimb

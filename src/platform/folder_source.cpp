#include "platform/folder_source.h"

#include "base/limits.h"
#include "platform/picture_frame.h"

#include <QDir>
#include <QImageReader>

namespace nimb
{
namespace
{

QImage readPicture(const QString &file)
{
    QImageReader reader(file);
    reader.setAutoTransform(true);
    const QSize size = reader.size();
    if (qint64(size.width()) * size.height() > limits::pictureFilePixels)
        return {};
    return reader.read();
}

} // namespace

FolderSource::FolderSource(const QString &folder) : m_folder(folder)
{
    for (const QFileInfo &file : QDir(folder).entryInfoList(QDir::Files | QDir::Readable, QDir::Name))
        m_files.append(file.absoluteFilePath());
}

std::optional<QByteArray> FolderSource::frame()
{
    // One turn through the folder at most, for it may hold no picture at all.
    while (!m_files.isEmpty()) {
        m_next %= m_files.size();
        const QImage picture = readPicture(m_files.at(m_next));
        if (!picture.isNull()) {
            ++m_next;
            return frameOf(picture);
        }
        m_files.removeAt(m_next);
    }
    m_problem = tr("There is no picture to show in \"%1\".").arg(QDir::toNativeSeparators(m_folder));
    return std::nullopt;
}

} // namespace nimb

// Pictures of a folder, one after the other, as frames of the own polled picture.
#pragma once

#include "base/picture_source.h"

#include <QCoreApplication>
#include <QStringList>

namespace nimb
{

/// Each question shows the next picture, in the order of the file names; behind the last one it begins anew. Files that
/// are no pictures are passed over.
class FolderSource : public PictureSource
{
    Q_DECLARE_TR_FUNCTIONS(FolderSource)

public:
    explicit FolderSource(const QString &folder);

    std::optional<QByteArray> frame() override;
    std::optional<QString> problem() const override { return m_problem; }
    PolledPicture origin() const override { return PictureFolder{m_folder}; }

private:
    QString m_folder;
    QStringList m_files;
    qsizetype m_next = 0;
    std::optional<QString> m_problem;
};

} // namespace nimb

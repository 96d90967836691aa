// What is to be told at the next start, in a file beside the settings.
#pragma once

#include "base/next_start.h"

namespace nimb
{

/// `settings.report` of one folder. The file has its size before it is needed, for what is to be told most often is
/// that the disk is full.
class NextStartFile : public NextStart
{
public:
    explicit NextStartFile(const QString &folder);

    void tell(const QString &sentence) override;
    QStringList take() override;

private:
    QString read() const;
    bool write(const QString &text) const;

    QString m_file;
};

} // namespace nimb

// A folder for what is thrown away when the program ends.
#pragma once

#include <QTemporaryDir>

#include <optional>

namespace nimb
{

class ScratchFolder
{
public:
    /// Made when it is asked for first; empty where it cannot be made.
    QString path()
    {
        if (!m_folder)
            m_folder.emplace();
        return m_folder->isValid() ? m_folder->path() : QString();
    }

private:
    std::optional<QTemporaryDir> m_folder;
};

} // namespace nimb

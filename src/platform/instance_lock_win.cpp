#include "platform/instance_lock.h"

#include <QDir>

#include <utility>

#include <qt_windows.h>

namespace nimb
{

InstanceLock::InstanceLock(QString path) : m_path(std::move(path)) { }

InstanceLock::~InstanceLock()
{
    if (m_handle != none)
        CloseHandle(reinterpret_cast<HANDLE>(m_handle));
}

/// The file is opened so that nobody else may. A number of a process in it would not do: Windows gives it to another
/// one later. A file that may only be read serves just as well.
InstanceLock::Outcome InstanceLock::tryToHold()
{
    if (m_handle != none)
        return Outcome::held;
    const std::wstring name = QDir::toNativeSeparators(m_path).toStdWString();
    constexpr DWORD sharedWithNobody = 0;
    const auto open = [&](DWORD access, DWORD how) {
        return CreateFileW(name.c_str(), access, sharedWithNobody, nullptr, how, FILE_ATTRIBUTE_NORMAL, nullptr);
    };
    HANDLE file = open(GENERIC_READ | GENERIC_WRITE, OPEN_ALWAYS);
    if (file == INVALID_HANDLE_VALUE && GetLastError() == ERROR_ACCESS_DENIED)
        file = open(GENERIC_READ, OPEN_EXISTING);
    if (file == INVALID_HANDLE_VALUE)
        return GetLastError() == ERROR_SHARING_VIOLATION ? Outcome::heldElsewhere : Outcome::impossible;
    m_handle = reinterpret_cast<std::intptr_t>(file);
    return Outcome::held;
}

} // namespace nimb

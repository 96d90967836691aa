#include "platform/local_user.h"

#include <vector>

#include <qt_windows.h>

// They build on what stands above.
#include <sddl.h>

namespace nimb
{
namespace
{

template <class Take> bool withToken(const Take &take)
{
    HANDLE token = nullptr;
    if (!OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY, &token))
        return false;
    const bool taken = take(token);
    CloseHandle(token);
    return taken;
}

QString securityNumber()
{
    QString number;
    withToken([&number](HANDLE token) {
        DWORD size = 0;
        GetTokenInformation(token, TokenUser, nullptr, 0, &size);
        std::vector<char> room(size);
        wchar_t *text = nullptr;
        if (!GetTokenInformation(token, TokenUser, room.data(), size, &size)
            || !ConvertSidToStringSidW(reinterpret_cast<const TOKEN_USER *>(room.data())->User.Sid, &text))
            return false;
        number = QString::fromWCharArray(text);
        LocalFree(text);
        return true;
    });
    return number;
}

} // namespace

/// His security identifier: names repeat from one domain to the next.
QString userNumber()
{
    static const QString number = securityNumber();
    return number;
}

bool isSuperuser()
{
    return withToken([](HANDLE token) {
        TOKEN_ELEVATION elevation = {};
        DWORD size = sizeof elevation;
        return GetTokenInformation(token, TokenElevation, &elevation, size, &size) && elevation.TokenIsElevated != 0;
    });
}

/// The pipe of another user lets us not in.
bool belongsToUser(const QString &)
{
    return true;
}

/// Named pipes have no folders.
QStringList placesOfSockets()
{
    return {QString()};
}

} // namespace nimb

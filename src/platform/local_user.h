// The user whose program this is, as the system knows him.
#pragma once

#include <QString>
#include <QStringList>

namespace nimb
{

/// What tells him from the others of this machine.
QString userNumber();

/// Nothing of this machine can be kept from him for want of permission.
bool isSuperuser();

/// Whether what stands at this path is his.
bool belongsToUser(const QString &path);

/// What the names of local sockets begin with, the place for new ones first: whoever asks from a service or another
/// session may have been told of another one than the copy was.
QStringList placesOfSockets();

} // namespace nimb

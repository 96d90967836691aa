// What could not be told in time.
#pragma once

#include <QStringList>

namespace nimb
{

/// Keeps sentences for the user from one run to the next, for an end that nobody watches.
class NextStart
{
public:
    virtual ~NextStart() = default;
    /// At most a handful of sentences; those that do not fit are left out. Nothing can be done about a failure.
    virtual void tell(const QString &sentence) = 0;
    /// What the last run left to be told, a line each, in its order; it is told once.
    virtual QStringList take() = 0;
};

} // namespace nimb

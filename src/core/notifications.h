// The notification window, as the engine uses it.
#pragma once

#include "core/presence_picture.h"

#include <QString>

namespace nimb
{

class Notifications
{
public:
    virtual ~Notifications() = default;
    /// Adds a row; the picture is both its large and its small one. The list keeps limits::notifications rows.
    virtual void add(const QString &text, Picture picture) = 0;
    /// Starts the timer that brings the window into view.
    virtual void startTimer() = 0;
};

} // namespace nimb

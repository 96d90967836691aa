// What the desktop does for a program: shows notices, places windows, says how everything is to look.
#pragma once

#include "base/Common.h"
#include "base/appearance.h"
#include "base/notifications.h"

#include <QObject>

#include <functional>
#include <memory>

namespace nimb
{

/// What is done when the user answers what the desktop shows.
struct NoticeReactions {
    std::function<void(const NoticePlace &)> open;
    std::function<void(const NoticePlace &, const QString &)> answer;
};

/// Windows stand where they are put, so that a pop-up can slide in. Needs the application object.
bool windowsStandWherePut();

/// Shows by the desktop what it is better at, and the rest by the pop-up, which outlives the result. placed: as
/// windowsStandWherePut() says.
std::unique_ptr<Notifications> routeNotifications(const Common &common, Notifications &popUp, bool placed,
                                                  NoticeReactions reactions);

/// Calls the function for each appearance that the desktop wishes for, never at once, as long as the application lives.
void followAppearance(QObject &application, std::function<void(const Appearance &)> changed);

} // namespace nimb

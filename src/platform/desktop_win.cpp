#include "platform/desktop.h"

#include <utility>

namespace nimb
{
namespace
{

/// All by the pop-up: the notices of Windows want a program that is registered with it, which one that was only
/// unpacked is not.
class PopUpAlone : public Notifications
{
public:
    explicit PopUpAlone(Notifications &popUp) : m_popUp(popUp) { }

    void add(const Notification &notification) override { m_popUp.add(notification); }
    void startTimer() override { m_popUp.startTimer(); }
    void show(const Notice &notice) override { m_popUp.show(notice); }
    void withdraw(const NoticePlace &place) override { m_popUp.withdraw(place); }

private:
    Notifications &m_popUp;
};

} // namespace

bool windowsStandWherePut()
{
    return true;
}

std::unique_ptr<Notifications> routeNotifications(const Common &, Notifications &popUp, bool, NoticeReactions)
{
    return std::make_unique<PopUpAlone>(popUp);
}

/// Its own style draws as the user has set Windows, and follows it.
void followAppearance(QObject &, std::function<void(const Appearance &)>) { }

} // namespace nimb

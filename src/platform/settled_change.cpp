#include "platform/settled_change.h"

#include <utility>

namespace nimb
{

SettledChange::SettledChange(Timers &timers)
    : m_settled(timers.oneShot(settlingTime, [this] {
          if (m_changed)
              m_changed(m_noted);
      }))
{
}

void SettledChange::listen(std::function<void(NetworkChange)> changed)
{
    m_changed = std::move(changed);
}

/// A sleep outweighs what else has changed meanwhile.
void SettledChange::note(NetworkChange change)
{
    if (!m_settled->isActive())
        m_noted = NetworkChange::networks;
    if (change == NetworkChange::wokeUp)
        m_noted = change;
    if (!m_settled->isActive())
        m_settled->start();
}

} // namespace nimb

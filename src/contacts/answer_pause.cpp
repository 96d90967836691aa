#include "contacts/answer_pause.h"

#include "base/limits.h"

namespace nimb
{

bool AnswerPause::take(Ipv4Address ip)
{
    const qint64 now = m_clock.now().toMSecsSinceEpoch();
    const auto isOver = [now](const Answer &answer) {
        return now - answer.given >= limits::answerPause.count() || now < answer.given; // or the clock was set back
    };
    for (; !m_answers.empty() && isOver(m_answers.front()); m_answers.pop_front())
        m_answered.remove(m_answers.front().ip);
    if (m_answered.contains(ip))
        return false;
    m_answers.push_back({ip, now});
    m_answered.insert(ip);
    return true;
}

} // namespace nimb

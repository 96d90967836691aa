// The own avatar as peers get it: a still picture, or one that changes all the time.
#pragma once

#include "base/Common.h"
#include "base/main_log.h"
#include "base/picture_source.h"
#include "base/timers.h"
#include "contacts/paced_answers.h"
#include "protocol/drop_counts.h"
#include "protocol/handlers.h"
#include "protocol/winsock.h"

#include <memory>
#include <string>

namespace nimb
{

/// Answers the peers' questions for it. The still avatar is in Common, where it stays and is saved while a source
/// stands in for it.
class OwnAvatar
{
public:
    OwnAvatar(const Common &common, Winsock &socket, MainLog &log, Timers &timers, const WallClock &clock,
              DropCounts &drops);

    /// From now on peers get this source's frames; none: the still avatar. A source that fails is let go, and the log
    /// says why.
    void setSource(std::unique_ptr<PictureSource> source);
    /// What those frames are made of; nothing while peers get the still avatar.
    std::optional<PolledPicture> source() const;

    /// What a peer who asked now would be shown: a picture of avatarBytes bytes, or nothing.
    std::optional<QByteArray> picture();
    /// A peer asks which avatar there is. Nobody is answered while the own state is Invisible.
    void answerHead(Ipv4Address ip);
    /// A peer asks for the picture. Whether there is one is told by the head. Each peer gets it once in
    /// limits::answerPause.
    void answerBody(Ipv4Address ip);

private:
    void takeFrame();
    void sendBody(Ipv4Address ip);
    std::string head() const;
    const QByteArray &body() const;

    const Common &m_common;
    Winsock &m_socket;
    MainLog &m_log;
    const WallClock &m_clock;
    DropCounts &m_drops;
    PacedAnswers<Ipv4Address> m_bodies;
    std::unique_ptr<PictureSource> m_source;
    std::string m_frameHead; ///< empty while there has been no frame
    QByteArray m_frame;
};

} // namespace nimb

// A picture that somebody else has sent, made small enough to be shown beside the conversation.
#pragma once

#include <QByteArray>
#include <QImage>
#include <QSize>

#include <atomic>
#include <functional>
#include <memory>

namespace nimb
{

class EventLoopCalls;
class WorkThread;

/// What the first bytes of a file say that it is, for Qt: "png", "jpeg", "gif" or "webp"; empty for all else, however
/// it is named. Nothing that may lead elsewhere, such as a drawing with links, is among them.
QByteArray pictureFormatOf(const QByteArray &firstBytes);

struct SmallPicture {
    QImage picture{};        ///< null where it is none of those formats, cannot be read, or is not worth while
    bool isTooLarge = false; ///< it has more pixels than are worth while
};

/// Not larger than the room. What takes longer than is worth while is none. isUnwanted: ends it soon. From any thread.
SmallPicture smallPicture(const QString &path, QSize room, const std::function<bool()> &isUnwanted);

/// Somebody waits for a picture as long as this is there; nobody waits for the reading.
class PictureReading
{
public:
    PictureReading() : isUnwanted(std::make_shared<std::atomic<bool>>(false)) { }
    ~PictureReading() { *isUnwanted = true; }
    PictureReading(const PictureReading &) = delete;
    PictureReading &operator=(const PictureReading &) = delete;

    const std::shared_ptr<std::atomic<bool>> isUnwanted;
};

/// Reads pictures one after the other on one thread, for all windows: they come from strangers, and several large ones
/// at a time would take the memory and the processors of somebody who has only clicked. Needs the application object.
class SmallPictures
{
public:
    SmallPictures();
    /// Waits no longer than for the next bytes of what is read just then.
    ~SmallPictures();
    SmallPictures(const SmallPictures &) = delete;
    SmallPictures &operator=(const SmallPictures &) = delete;

    /// done: called with what smallPicture() makes of it, later, unless what is returned has gone by then.
    [[nodiscard]] std::unique_ptr<PictureReading> read(const QString &path, QSize room,
                                                       std::function<void(const SmallPicture &)> done);

private:
    std::atomic<bool> m_isOver = false;
    std::unique_ptr<EventLoopCalls> m_calls; ///< outlives the thread
    std::unique_ptr<WorkThread> m_thread;    ///< once a picture was wanted
};

} // namespace nimb

// Where the frames of the own polled picture come from.
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace nimb
{

/// Gives frames from the moment it is made to its end.
class PictureSource
{
public:
    virtual ~PictureSource() = default;
    /// The newest picture, avatarBytes bytes; nothing while there has been none.
    virtual std::optional<QByteArray> frame() = 0;
    /// Why there will be no more frames, one sentence; nothing while it works.
    virtual std::optional<QString> problem() const = 0;
};

} // namespace nimb

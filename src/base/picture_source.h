// Where the frames of the own polled picture come from.
#pragma once

#include <QByteArray>
#include <QString>

#include <memory>
#include <optional>
#include <variant>

namespace nimb
{

/// The system's default camera.
struct Camera {
    bool operator==(const Camera &) const = default;
};
/// Every picture in this folder, one after the other.
struct PictureFolder {
    QString path;
    bool operator==(const PictureFolder &) const = default;
};
/// What the own polled picture is made of.
using PolledPicture = std::variant<Camera, PictureFolder>;

/// Gives frames from the moment it is made to its end.
class PictureSource
{
public:
    virtual ~PictureSource() = default;
    /// The newest picture, avatarBytes bytes; nothing while there has been none.
    virtual std::optional<QByteArray> frame() = 0;
    /// Why there will be no more frames, one sentence; nothing while it works.
    virtual std::optional<QString> problem() const = 0;
    virtual PolledPicture origin() const = 0;
};

class PictureSources
{
public:
    virtual ~PictureSources() = default;
    /// Never null: a source that cannot work has a problem.
    virtual std::unique_ptr<PictureSource> open(const PolledPicture &wanted) = 0;
};

} // namespace nimb

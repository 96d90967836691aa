// Opens what the own polled picture is made of.
#pragma once

#include "platform/camera_source.h"
#include "platform/folder_source.h"

namespace nimb
{

class SystemPictureSources : public PictureSources
{
public:
    std::unique_ptr<PictureSource> open(const PolledPicture &wanted) override
    {
        if (const auto *const folder = std::get_if<PictureFolder>(&wanted))
            return std::make_unique<FolderSource>(folder->path);
        return std::make_unique<CameraSource>();
    }
};

} // namespace nimb

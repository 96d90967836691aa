// The picture that is to be the own avatar: any file is a picture of 50 by 50 pixels or a sentence.
#include "options/picture_file.h"
#include "require.h"
#include "widgets/avatar_image.h"

#include <QBuffer>
#include <QGuiApplication>
#include <QLoggingCategory>

using namespace nimb;

namespace
{

/// Qt finds the readers of its formats through it, and fonts for those that draw.
const QGuiApplication &application()
{
    static int count = 1;
    static char name[] = "picture_file_fuzz";
    static char *arguments[] = {name, nullptr};
    static const QGuiApplication instance(count, arguments);
    return instance;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    application();
    QLoggingCategory::setFilterRules(QStringLiteral("*=false"));
    QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    QBuffer file(&bytes);
    file.open(QIODevice::ReadOnly);
    const ReadPicture read = readPicture(file);
    if (const auto *const problem = std::get_if<QString>(&read)) {
        require(problem->endsWith(QLatin1Char('.')), "a problem is a sentence");
        return 0;
    }
    const QImage &picture = std::get<QImage>(read);
    require(!picture.isNull() && !picture.hasAlphaChannel(), "a picture is opaque");
    require(avatarBody(picture).size() == avatarBytes, "every picture becomes an avatar");
    return 0;
}

// Feeds any text to the search for the link of a file, and any name to what makes it fit for a disk, and stops the
// program when a promise of either is broken.
#include "files/file_link.h"
#include "files/file_name.h"
#include "require.h"

#include <QByteArray>
#include <QString>

#include <algorithm>
#include <cstddef>
#include <cstdint>

namespace
{

using namespace nimb;

void checkName(const QString &name)
{
    const QString clean = cleanFileName(name);
    require(!clean.isEmpty() && clean.size() <= 200, "a clean name has 1 to 200 characters");
    require(cleanFileName(clean) == clean, "what is clean stays so");
    require(clean.isValidUtf16(), "no surrogate pair is split");
    require(clean != QLatin1String(".") && clean != QLatin1String("..") && !clean.startsWith(u'.'),
            "no name is hidden");
    require(std::ranges::none_of(clean, [](QChar c) { return QStringView(u"/\\:*?\"<>|").contains(c) || c < u' '; }),
            "no name is a path, or forbidden anywhere");
    require(!clean.endsWith(u'.') && !clean.endsWith(u' '), "no name ends with what Windows takes away");
    require(encodedFileName(clean).size() <= 800, "a clean name fits a link");
    const std::optional<QByteArray> back = decodedPart(encodedFileName(clean).toStdString());
    require(back && QString::fromUtf8(*back) == clean, "what is encoded is decoded again");
    const QString message = fileMessage(clean, 1, Ipv4Address(10, 0, 0, 1), 5549, QString(32, u'a'));
    const std::optional<FileLink> link = fileLinkIn(message);
    require(link && link->name == clean && link->port == 5549, "what is written is read");
    require(message.size() <= 2000, "a message is no longer than messages are");
}

void checkMessage(const QString &text)
{
    const std::optional<FileLink> link = fileLinkIn(text);
    if (!link)
        return;
    require(link->host.isUnicast() && link->port > 0, "a link leads to one computer");
    require(link->token.size() == 32, "a token has 128 bits");
    const std::string path = link->path.toStdString();
    const std::optional<AskedFile> asked = askedFile(path);
    require(asked && asked->name == link->name.toUtf8(), "the name is that of what is asked for");
    require(std::ranges::all_of(path, [](char c) { return c > ' ' && c < 0x7F; }), "no request is split");
    checkName(link->name);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QString text = QString::fromUtf8(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    checkMessage(text);
    checkName(text);
    return 0;
}

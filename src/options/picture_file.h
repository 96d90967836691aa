// Reads the picture that is to be the own avatar.
#pragma once

#include <QIODevice>
#include <QImage>
#include <QString>

#include <variant>

namespace nimb
{

/// The picture, or one sentence that says why there is none.
using ReadPicture = std::variant<QImage, QString>;

/// Reads the first picture of any format that Qt knows, turned as its camera was held, on a white ground where it is
/// transparent. The source must be open and able to go back. A picture that ends too early counts as none.
ReadPicture readPicture(QIODevice &source);
ReadPicture readPictureFile(const QString &path);

/// The same for a picture that comes without a file.
ReadPicture checkPicture(const QImage &picture);

} // namespace nimb

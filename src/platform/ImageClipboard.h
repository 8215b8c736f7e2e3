// Handing a picture to other programs by the clipboard.
#pragma once

#include <QByteArray>

namespace vantle {

/// The clipboard, for one picture at a time. Main thread.
class ImageClipboard {
public:
    virtual ~ImageClipboard() = default;

    /// Puts the PNG into the clipboard, in place of what was there. Programs that ask for a PNG get
    /// these very bytes, others the picture in a form that they know.
    virtual void copyPng(const QByteArray& png) = 0;
};

} // namespace vantle

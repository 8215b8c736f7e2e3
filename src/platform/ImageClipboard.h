// The port of copying a picture to the clipboard.
#pragma once

#include <QByteArray>

namespace vantle {

/// Main thread.
class ImageClipboard {
public:
    virtual ~ImageClipboard() = default;

    /// Replaces the clipboard's content by the PNG. Programs that ask for a PNG get these bytes,
    /// others a converted picture.
    virtual void copyPng(const QByteArray& png) = 0;
};

} // namespace vantle

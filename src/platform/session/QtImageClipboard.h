// The clipboard of the toolkit.
#pragma once

#include "platform/ImageClipboard.h"

namespace vantle {

/// Offers the picture until another program takes the clipboard; at the program's end a clipboard
/// manager may take it over. Keeps the PNG's bytes and decodes them only for programs that ask for
/// another format. Main thread.
class QtImageClipboard final : public ImageClipboard {
public:
    void copyPng(const QByteArray& png) override;
};

} // namespace vantle

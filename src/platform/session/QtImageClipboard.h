// The clipboard as Qt has it.
#pragma once

#include "platform/ImageClipboard.h"

namespace vantle {

/// Serves the picture for as long as the program runs and nobody else takes the clipboard; at the
/// end of the program the desktop's clipboard manager, if there is one, takes it over. Keeps the
/// bytes of the PNG and decodes them only for a program that asks for something else.
class QtImageClipboard final : public ImageClipboard {
public:
    void copyPng(const QByteArray& png) override;
};

} // namespace vantle

// A clipboard that keeps the last picture.
#pragma once

#include "platform/ImageClipboard.h"

namespace vantle::fakes {

class FakeImageClipboard final : public ImageClipboard {
public:
    void copyPng(const QByteArray& png) override { content = png; }

    QByteArray content;
};

} // namespace vantle::fakes

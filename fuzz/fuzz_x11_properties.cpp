// What other X clients write into the properties of windows, of any bytes and format: the strips
// that bars reserve stay on the desktop, the hints of a window are texts, and the scale factor is
// one of a monitor.
#include "Input.h"
#include "base/Text.h"
#include "platform/x11/ScaleFactor.h"
#include "platform/x11/X11Connection.h"
#include "platform/x11/X11Struts.h"
#include "platform/x11/X11WindowReader.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <memory>
#include <vector>

namespace vantle::fuzz {
namespace {

/// Longest property that is read, in bytes.
constexpr qsizetype kLongest = 1024;

/// A property as the server replies it.
class Property {
public:
    /// The bytes past the last whole value are left out, as the server does.
    Property(std::uint8_t format, QByteArrayView value) {
        const qsizetype unit = format / 8;
        const qsizetype count = unit == 0 ? 0 : value.size() / unit;
        xcb_get_property_reply_t head{};
        head.format = format;
        head.value_len = static_cast<std::uint32_t>(count);
        head.length = static_cast<std::uint32_t>((count * unit + 3) / 4);
        // Of the very size, so that the sanitizer detects reads past the end.
        m_size = sizeof head + 4 * static_cast<std::size_t>(head.length);
        m_bytes = std::make_unique<std::uint32_t[]>(m_size / 4);
        std::memcpy(m_bytes.get(), &head, sizeof head);
        if (count > 0)
            std::memcpy(m_bytes.get() + sizeof head / 4, value.data(),
                        static_cast<std::size_t>(count * unit));
    }

    [[nodiscard]] const xcb_get_property_reply_t* reply() const {
        return reinterpret_cast<const xcb_get_property_reply_t*>(m_bytes.get());
    }

private:
    std::size_t m_size = 0;
    std::unique_ptr<std::uint32_t[]> m_bytes;
};

/// Takes properties off the input: a byte for the format, one for the length, and the value.
class Properties {
public:
    explicit Properties(QByteArrayView bytes) : m_bytes(bytes) {}

    [[nodiscard]] Property next() {
        static constexpr std::uint8_t kFormats[] = {8, 32, 16, 0};
        const std::uint8_t format = kFormats[byte() % 4];
        // Most of the bytes are for a few short ones.
        const qsizetype length =
            std::min<qsizetype>(byte() * 4, std::min(m_bytes.size(), kLongest));
        const QByteArrayView value = m_bytes.first(length);
        m_bytes = m_bytes.sliced(length);
        return {format, value};
    }
    [[nodiscard]] std::uint8_t byte() {
        if (m_bytes.isEmpty()) return 0;
        const auto first = static_cast<std::uint8_t>(m_bytes.front());
        m_bytes = m_bytes.sliced(1);
        return first;
    }

private:
    QByteArrayView m_bytes;
};

void checkStrips(const Property& property, const QSize& desktop) {
    const QRect whole(QPoint(), desktop);
    for (const ReservedStrip& strip : stripsOf(numbersOf(property.reply()), desktop)) {
        promise(strip.area.isValid() && whole.contains(strip.area), "a strip of the desktop");
        promise(strip.edge != Qt::LeftEdge || strip.area.left() == whole.left(), "from the left");
        promise(strip.edge != Qt::RightEdge || strip.area.right() == whole.right(), "the right");
        promise(strip.edge != Qt::TopEdge || strip.area.top() == whole.top(), "the top");
        promise(strip.edge != Qt::BottomEdge || strip.area.bottom() == whole.bottom(),
                "and the bottom");
    }
}

void checkText(const QString& shown) {
    promise(shown.size() <= kLongest, "a text of limited length");
    promise(!shown.contains(QChar::Null) && shown == shown.trimmed(), "a text alone");
    promise(text::fromUtf8(shown.toUtf8()) == shown, "a text that a file can hold");
}

void checkHints(Properties& properties) {
    const std::uint8_t known = properties.byte();
    const Property windowClass = properties.next();
    const Property machine = properties.next();
    const Property gtk = properties.next();
    const Property kde = properties.next();
    const Property process = properties.next();
    const auto given = [known](int bit, const Property& property) {
        return (known >> bit & 1) != 0 ? nullptr : property.reply();
    };
    WindowReplies replies{.windowClass = given(0, windowClass),
                          .machine = given(1, machine),
                          .gtkApplication = given(2, gtk),
                          .kdeDesktopFile = given(3, kde),
                          .process = given(4, process),
                          .processOfServer = {}};
    if ((known & 0x80U) != 0) replies.processOfServer = known & 0x60U;
    const QByteArray host = "desk";
    const WindowHints hints = hintsOf(replies, host);
    checkText(hints.applicationId);
    checkText(hints.windowClass);
    checkText(hints.instance);
    if (!hints.processId) return;
    promise(*hints.processId > 0 && *hints.processId <= 0xFFFFFFFF, "a process");
    promise(bytesOf(replies.machine).contains(host), "a process of this machine");
}

void checkScale(QByteArrayView resources) {
    const auto dpi = scalefactor::dpiAmong(resources);
    if (!dpi) return;
    promise(std::isfinite(*dpi) && *dpi > 0, "a number of dots");
    const auto settled = scalefactor::settledDpi(*dpi);
    if (!settled) return;
    promise(*settled > 0 && std::fmod(*settled, scalefactor::kUnscaled) == 0, "a whole factor");
    promise(std::abs(*dpi - *settled) <= 0.1001 * scalefactor::kUnscaled, "the next one");
}

} // namespace
} // namespace vantle::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vantle::fuzz;
    const QByteArrayView bytes = viewOf(data, size);
    if (bytes.isEmpty()) return 0;
    Properties properties(bytes.sliced(1));
    switch (bytes.front() % 3) {
    case 0:
        checkScale(bytes.sliced(1));
        break;
    case 1: {
        const int width = 1 + properties.byte() * 64;
        const int height = 1 + properties.byte() * 64;
        checkStrips(properties.next(), QSize(width, height));
        break;
    }
    default:
        checkHints(properties);
    }
    return 0;
}

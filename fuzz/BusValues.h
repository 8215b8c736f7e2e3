// Values of D-Bus, drawn from the bytes of an input.
#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include <algorithm>
#include <cstdint>
#include <cstring>

namespace vantle::fuzz {

/// Hands out the bytes of an input one by one; zeros after its end.
class Draw {
public:
    explicit Draw(QByteArrayView bytes) : m_bytes(bytes) {}

    [[nodiscard]] bool isAtEnd() const { return m_bytes.isEmpty(); }
    [[nodiscard]] std::uint8_t byte() {
        if (m_bytes.isEmpty()) return 0;
        const auto first = static_cast<std::uint8_t>(m_bytes.front());
        m_bytes = m_bytes.sliced(1);
        return first;
    }
    /// Returns a number below `count`, which is at most 256.
    [[nodiscard]] std::size_t below(std::size_t count) { return byte() % count; }
    /// True for most bytes, and after the end.
    [[nodiscard]] bool mostly() { return byte() < 0xC0; }
    [[nodiscard]] QByteArrayView bytes(qsizetype count) {
        const auto taken = m_bytes.first(std::min(count, m_bytes.size()));
        m_bytes = m_bytes.sliced(taken.size());
        return taken;
    }

private:
    QByteArrayView m_bytes;
};

/// The arguments of a message as they travel, little-endian.
struct BusBody {
    QByteArray signature;
    QByteArray bytes;

    void align(qsizetype to) { bytes.append((to - bytes.size() % to) % to, '\0'); }
    template <typename Number>
    void number(Number value) {
        align(sizeof value);
        bytes.append(reinterpret_cast<const char*>(&value), sizeof value);
    }
    void text(QByteArrayView value) {
        number(static_cast<std::uint32_t>(value.size()));
        bytes.append(value.data(), value.size()).append('\0');
    }
    void shortText(QByteArrayView value) {
        bytes.append(static_cast<char>(value.size()));
        bytes.append(value.data(), value.size()).append('\0');
    }
};

/// What a sender that means well would send: the types of the arguments, of the value in a variant
/// among them, and the name that a map has; any where empty.
struct Expected {
    QByteArray signature;
    QByteArray inVariant = {};
    QByteArray key = {};
};

/// How the arguments differ from what is expected.
enum class Likeness {
    Mostly, ///< as expected, or any others
    Never,  ///< never begin with the expected types
};

/// Draws arguments.
[[nodiscard]] BusBody drawBody(Draw& draw, const Expected& expected, Likeness likeness);

/// Writes one value of each type of the signature.
void drawValues(Draw& draw, BusBody& body, const QByteArray& signature);

} // namespace vantle::fuzz

#include "BusValues.h"

#include <QString>

#include <algorithm>
#include <array>
#include <limits>
#include <utility>

namespace vantle::fuzz {
namespace {

/// Arrays, structures and variants within one another; the bus allows 64.
constexpr int kMostDepth = 6;
constexpr std::size_t kMostElements = 5;
constexpr qsizetype kLongestText = 64;

/// What the readers look for: names, and the type of the value that belongs to one in a map.
struct Known {
    QByteArrayView text;
    QByteArrayView type;
};
constexpr std::array kKnown{
    Known{"PowerSaveMode", "i"},
    Known{"LockedHint", "b"},
    Known{"state", "d"},
    Known{"session_handle", "s"},
    Known{"shortcuts", "a(sa{sv})"},
    Known{"trigger_description", "s"},
    Known{"uris", "as"},
    Known{"autostart", "b"},
    Known{"toggle", "s"},
    Known{"local.vantle.Vantle", "s"},
    Known{"org.gnome.Mutter.DisplayConfig", "s"},
    Known{"org.freedesktop.login1.Session", "s"},
    Known{"org.freedesktop.login1.Manager", "s"},
    Known{"org.freedesktop.appearance", "s"},
    Known{"contrast", "u"},
    Known{"reduced-motion", "u"},
    Known{"org.gnome.desktop.a11y.interface", "s"},
    Known{"high-contrast", "b"},
    Known{"org.gnome.desktop.interface", "s"},
    Known{"text-scaling-factor", "d"},
    Known{"enable-animations", "b"},
    Known{"frontmost@vantle.local", "s"},
    Known{"org.example.Painter.desktop", "s"},
    Known{"Painter", "s"},
    Known{"vantle", "s"},
    Known{"idle:sleep", "s"},
    Known{"block", "s"},
    Known{"clicked", "s"},
    Known{"label", "s"},
    Known{"Press <Alt><Super>b", "s"},
    Known{"/org/freedesktop/portal/desktop/session/1", "s"},
    Known{"file:///tmp/vantle/out.csv", "s"},
    Known{"file:///tmp/vantle/out%00.csv", "s"},
    Known{"45.1", "s"},
    Known{"-1", "s"},
    Known{"18446744073709551615", "s"},
};

/// Returns the length of the first whole type.
qsizetype lengthOfType(QByteArrayView signature) {
    qsizetype at = 0;
    while (at < signature.size() && signature[at] == 'a')
        ++at;
    int open = 0;
    do {
        const char code = signature[at++];
        if (code == '(' || code == '{') ++open;
        if (code == ')' || code == '}') --open;
    } while (open > 0);
    return at;
}

qsizetype alignmentOf(char code) {
    switch (code) {
    case 'y':
    case 'g':
    case 'v':
        return 1;
    case 'n':
    case 'q':
        return 2;
    case 'x':
    case 't':
    case 'd':
    case '(':
    case '{':
        return 8;
    default:
        return 4;
    }
}

QByteArray drawBasicType(Draw& draw) {
    static constexpr QByteArrayView kBasic("sibudxtyqnogs");
    return QByteArray(1, kBasic[static_cast<qsizetype>(draw.below(kBasic.size()))]);
}

QByteArray drawType(Draw& draw, int depth) {
    const std::size_t kind = draw.below(depth < kMostDepth ? 16 : 8);
    if (kind < 8) return drawBasicType(draw);
    switch (kind) {
    case 8:
        return "v";
    case 9:
        return "as";
    case 10:
        return "a{sv}";
    case 11:
        return "a(sa{sv})";
    case 12:
        return "a" + drawType(draw, depth + 1);
    case 13:
        return "a{" + drawBasicType(draw) + drawType(draw, depth + 1) + "}";
    default:
        QByteArray members;
        for (std::size_t left = 1 + draw.below(4); left > 0; --left)
            members += drawType(draw, depth + 1);
        return "(" + members + ")";
    }
}

QByteArray drawSignature(Draw& draw) {
    QByteArray all;
    for (std::size_t left = draw.below(5); left > 0; --left)
        all += drawType(draw, 1);
    return all;
}

/// The bus refuses other texts.
QByteArray drawText(Draw& draw) {
    const std::uint8_t kind = draw.byte();
    if (kind < 0xA0) return kKnown[kind % kKnown.size()].text.toByteArray();
    if (kind == 0xFF) return QByteArray(1 << (draw.byte() % 16), 'w');
    const QByteArrayView bytes = draw.bytes(std::min<qsizetype>(kind - 0xA0, kLongestText));
    QByteArray text = QString::fromUtf8(bytes).toUtf8();
    text.replace('\0', ' ');
    return text;
}

QByteArray drawPath(Draw& draw) {
    static constexpr std::array kPaths{"/", "/org/freedesktop/portal/desktop/session/1",
                                       "/org/freedesktop/login1/session/_32", "/a/b"};
    return kPaths[draw.below(kPaths.size())];
}

std::uint64_t drawBits(Draw& draw) {
    static constexpr std::array<std::uint64_t, 10> kBits{0,
                                                         1,
                                                         2,
                                                         3,
                                                         0x7FFFFFFF,
                                                         0x80000000,
                                                         0xFFFFFFFF,
                                                         0x7FFFFFFFFFFFFFFF,
                                                         0x8000000000000000,
                                                         0xFFFFFFFFFFFFFFFF};
    const std::uint8_t kind = draw.byte();
    if (kind < 0xC0) return kBits[kind % kBits.size()];
    std::uint64_t bits = 0;
    const QByteArrayView bytes = draw.bytes(kind < 0xE0 ? 2 : sizeof bits);
    std::memcpy(&bits, bytes.data(), static_cast<std::size_t>(bytes.size()));
    return bits;
}

double drawDouble(Draw& draw) {
    using Limits = std::numeric_limits<double>;
    static constexpr std::array kDoubles{0.0,
                                         1.0,
                                         3.0,
                                         1.25,
                                         -1.0,
                                         1e300,
                                         Limits::infinity(),
                                         -Limits::infinity(),
                                         Limits::quiet_NaN(),
                                         Limits::denorm_min()};
    const std::uint8_t kind = draw.byte();
    if (kind < 0xC0) return kDoubles[kind % kDoubles.size()];
    double value = 0;
    const QByteArrayView bytes = draw.bytes(sizeof value);
    std::memcpy(&value, bytes.data(), static_cast<std::size_t>(bytes.size()));
    return value;
}

/// Writes the values of an input.
class Writer {
public:
    Writer(Draw& draw, BusBody& body, QByteArrayView key = {})
        : m_draw(draw)
        , m_body(body)
        , m_key(key) {}

    /// A value of each type. `inVariant` is the type in a variant; any for none.
    void values(QByteArrayView signature, QByteArrayView inVariant, int depth) {
        while (!signature.isEmpty()) {
            const qsizetype length = lengthOfType(signature);
            value(signature.first(length), inVariant, depth);
            signature = signature.sliced(length);
        }
    }

private:
    void value(QByteArrayView type, QByteArrayView inVariant, int depth) {
        switch (type.front()) {
        case 'y':
            return m_body.number(m_draw.byte());
        case 'b':
            return m_body.number<std::uint32_t>(m_draw.byte() & 1U);
        case 'n':
        case 'q':
            return m_body.number(static_cast<std::uint16_t>(drawBits(m_draw)));
        case 'i':
        case 'u':
            return m_body.number(static_cast<std::uint32_t>(drawBits(m_draw)));
        case 'x':
        case 't':
            return m_body.number(drawBits(m_draw));
        case 'd':
            return m_body.number(drawDouble(m_draw));
        case 's':
            return m_body.text(drawText(m_draw));
        case 'o':
            return m_body.text(drawPath(m_draw));
        case 'g':
            return m_body.shortText(drawBasicType(m_draw));
        case 'v':
            return variant(inVariant, depth);
        case '(':
            m_body.align(8);
            return values(type.sliced(1, type.size() - 2), inVariant, depth + 1);
        default:
            return array(type.sliced(1), inVariant, depth);
        }
    }

    void variant(QByteArrayView expected, int depth) {
        QByteArray type = expected.isEmpty() ? drawType(m_draw, depth + 1) : expected.toByteArray();
        if (depth >= kMostDepth) type = "s";
        m_body.shortText(type);
        value(type, {}, depth + 1);
    }

    void array(QByteArrayView element, QByteArrayView inVariant, int depth) {
        m_body.number<std::uint32_t>(0);
        const qsizetype lengthAt = m_body.bytes.size() - 4;
        m_body.align(alignmentOf(element.front()));
        const qsizetype begin = m_body.bytes.size();
        const std::size_t least = element == "{sv}" && !m_key.isEmpty() ? 1 : 0;
        for (std::size_t left = least + m_draw.below(kMostElements); left > 0; --left) {
            if (element == "{sv}")
                property(depth);
            else if (element.front() == '{')
                entry(element, inVariant, depth);
            else
                value(element, inVariant, depth + 1);
        }
        const auto length = static_cast<std::uint32_t>(m_body.bytes.size() - begin);
        std::memcpy(m_body.bytes.data() + lengthAt, &length, sizeof length);
    }

    void entry(QByteArrayView element, QByteArrayView inVariant, int depth) {
        m_body.align(8);
        values(element.sliced(1, element.size() - 2), inVariant, depth + 1);
    }

    /// An entry of a map of names to variants.
    void property(int depth) {
        m_body.align(8);
        const Known& known = knownFor(std::exchange(m_key, {}));
        m_body.text(known.text);
        variant(m_draw.mostly() ? known.type : QByteArrayView(), depth);
    }

    const Known& knownFor(QByteArrayView key) {
        const auto* const found = std::ranges::find(kKnown, key, &Known::text);
        return found != kKnown.end() ? *found : kKnown[m_draw.below(kKnown.size())];
    }

    Draw& m_draw;
    BusBody& m_body;
    QByteArrayView m_key; ///< of the first entry of a map
};

} // namespace

void drawValues(Draw& draw, BusBody& body, const QByteArray& signature) {
    Writer(draw, body).values(signature, {}, 0);
    body.signature += signature;
}

BusBody drawBody(Draw& draw, const Expected& expected, Likeness likeness) {
    QByteArray signature = expected.signature;
    QByteArray inVariant = expected.inVariant;
    if (likeness == Likeness::Never || !draw.mostly()) {
        signature = drawSignature(draw);
        inVariant.clear();
    }
    if (likeness == Likeness::Never && signature.startsWith(expected.signature)) signature.clear();
    if (!draw.mostly()) inVariant.clear();
    BusBody body;
    Writer(draw, body, expected.key).values(signature, inVariant, 0);
    body.signature = signature;
    return body;
}

} // namespace vantle::fuzz

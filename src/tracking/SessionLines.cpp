#include "tracking/SessionLines.h"

#include "base/Iso8601.h"
#include "base/Text.h"
#include "tracking/JsonForm.h"

#include <array>
#include <cstdint>
#include <string_view>
#include <utility>

namespace vantle::sessionlines {

/// A cursor over the bytes of a line. Each step returns whether the line still is in canonical
/// form.
class Reader::Cursor {
public:
    explicit Cursor(QByteArrayView text) : m_at(text.data()), m_end(m_at + text.size()) {}

    [[nodiscard]] const char* position() const { return m_at; }

    template <std::size_t Size>
    bool literal(const char (&text)[Size]) {
        constexpr std::size_t length = Size - 1;
        if (left() < length || std::memcmp(m_at, text, length) != 0) return false;
        m_at += length;
        return true;
    }

    bool bytes(QByteArrayView expected) {
        const auto length = static_cast<std::size_t>(expected.size());
        if (left() < length || std::memcmp(m_at, expected.data(), length) != 0) return false;
        m_at += length;
        return true;
    }

    /// Reads decimal digits as in JSON: no sign, no leading zero, short enough to fit.
    bool digits(std::int64_t& value) {
        constexpr std::ptrdiff_t kMaxDigits = 18; // any such number fits
        const char* const begin = m_at;
        value = 0;
        for (; m_at < m_end; ++m_at) {
            const unsigned digit = static_cast<unsigned char>(*m_at) - unsigned{'0'};
            if (digit > 9) break;
            if (m_at - begin == kMaxDigits) return false;
            value = value * 10 + digit;
        }
        const auto count = m_at - begin;
        return count > 0 && (count == 1 || *begin != '0');
    }

    bool date(iso8601::Parser& parser, Date& date) {
        if (left() < iso8601::kLength) return false;
        const auto parsed = parser.parse(std::string_view(m_at, iso8601::kLength));
        if (!parsed) return false;
        date = *parsed;
        m_at += iso8601::kLength;
        return true;
    }

    bool id(QUuid& id);

    /// Reads up to the closing quote. Returns false when a byte needs the full decoder: an escape,
    /// a control character, or the lead byte of a newline beyond ASCII.
    bool plainText(QByteArrayView& text);

    [[nodiscard]] bool atLineEnd() const { return m_at == m_end || *m_at == '\n'; }

private:
    [[nodiscard]] std::size_t left() const { return static_cast<std::size_t>(m_end - m_at); }

    const char* m_at;
    const char* m_end;
};

namespace {

constexpr std::array<std::uint8_t, 256> makeHexValues() {
    std::array<std::uint8_t, 256> values{};
    values.fill(0xFF);
    for (unsigned c = '0'; c <= '9'; ++c)
        values[c] = static_cast<std::uint8_t>(c - '0');
    for (unsigned c = 'A'; c <= 'F'; ++c)
        values[c] = static_cast<std::uint8_t>(c - 'A' + 10);
    for (unsigned c = 'a'; c <= 'f'; ++c)
        values[c] = static_cast<std::uint8_t>(c - 'a' + 10);
    return values;
}
constexpr std::array<std::uint8_t, 256> kHexValues = makeHexValues();

} // namespace

bool Reader::Cursor::id(QUuid& id) {
    static constexpr std::array<std::uint8_t, 16> offsets = {0,  2,  4,  6,  9,  11, 14, 16,
                                                             19, 21, 24, 26, 28, 30, 32, 34};
    if (left() < 36) return false;
    if (m_at[8] != '-' || m_at[13] != '-' || m_at[18] != '-' || m_at[23] != '-') return false;
    std::array<std::uint8_t, 16> bytes{};
    unsigned bad = 0;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        const unsigned high = kHexValues[static_cast<unsigned char>(m_at[offsets[i]])];
        const unsigned low = kHexValues[static_cast<unsigned char>(m_at[offsets[i] + 1])];
        bad |= (high | low) & 0xF0u;
        bytes[i] = static_cast<std::uint8_t>(high << 4 | low);
    }
    if (bad != 0) return false;
    id = QUuid((uint(bytes[0]) << 24) | (uint(bytes[1]) << 16) | (uint(bytes[2]) << 8) | bytes[3],
               static_cast<ushort>(bytes[4] << 8 | bytes[5]),
               static_cast<ushort>(bytes[6] << 8 | bytes[7]), bytes[8], bytes[9], bytes[10],
               bytes[11], bytes[12], bytes[13], bytes[14], bytes[15]);
    m_at += 36;
    return true;
}

namespace {

/// Eight copies of a byte, for tests on eight bytes at once.
constexpr std::uint64_t eachByte(std::uint8_t byte) { return 0x0101010101010101u * byte; }

/// Whether one of eight bytes is a quote, a backslash, a control character or not ASCII.
bool needsCloserLook(std::uint64_t bytes) {
    const auto hasZeroByte = [](std::uint64_t word) {
        return (word - eachByte(0x01)) & ~word & eachByte(0x80);
    };
    const std::uint64_t controls = (bytes - eachByte(0x20)) & ~bytes & eachByte(0x80);
    return ((bytes & eachByte(0x80)) | controls | hasZeroByte(bytes ^ eachByte('"')) |
            hasZeroByte(bytes ^ eachByte('\\'))) != 0;
}

} // namespace

bool Reader::Cursor::plainText(QByteArrayView& text) {
    const char* const begin = m_at;
    for (std::uint64_t bytes = 0; left() >= sizeof bytes; m_at += sizeof bytes) {
        std::memcpy(&bytes, m_at, sizeof bytes);
        if (needsCloserLook(bytes)) break;
    }
    for (; m_at < m_end; ++m_at) {
        const auto byte = static_cast<unsigned char>(*m_at);
        if (byte == '"') {
            text = QByteArrayView(begin, m_at - begin);
            return true;
        }
        if (byte < 0x20 || byte == '\\') return false;
        if ((byte == 0xC2 || byte == 0xE2) && newlineLength(QByteArrayView(m_at, m_end)) > 0)
            return false;
    }
    return false;
}

bool Reader::readSkillId(Cursor& cursor, QString& id) {
    for (std::size_t i = 0; i < m_skills.size(); ++i) {
        if (!cursor.bytes(m_skills[i].utf8)) continue;
        std::swap(m_skills.front(), m_skills[i]);
        id = m_skills.front().id;
        return true;
    }
    QByteArrayView text;
    if (!cursor.plainText(text) || !cursor.literal("\"")) return false;
    id = text::fromUtf8(text);
    KnownSkill skill{QByteArray(text.data(), text.size() + 1), id};
    if (m_skills.size() < kKnownSkills)
        m_skills.push_back(std::move(skill));
    else
        m_skills[m_replacedNext++ % kKnownSkills] = std::move(skill);
    return true;
}

std::optional<Session> Reader::decodeCanonical(QByteArrayView text, qsizetype& length) {
    std::optional<Session> session(std::in_place);
    QByteArrayView note;
    Cursor cursor(text);
    const auto isKnownSource = [&] {
        if (cursor.literal("mac_app\""))
            session->source = sourceApp();
        else if (cursor.literal("manual\""))
            session->source = sourceManual();
        else
            return false;
        return true;
    };
    const bool canonical =
        cursor.literal("{\"activeSeconds\":") && cursor.digits(session->activeSeconds) &&
        cursor.literal(",\"endedAt\":\"") && cursor.date(m_dates, session->endedAt) &&
        cursor.literal("\",\"id\":\"") && cursor.id(session->id) &&
        cursor.literal("\",\"note\":\"") && cursor.plainText(note) &&
        cursor.literal("\",\"skillId\":\"") && readSkillId(cursor, session->skillId) &&
        cursor.literal(",\"source\":\"") && isKnownSource() &&
        cursor.literal(",\"startedAt\":\"") && cursor.date(m_dates, session->startedAt) &&
        cursor.literal("\"}") && cursor.atLineEnd();
    if (!canonical) return std::nullopt;
    length = cursor.position() - text.data();
    if (!note.isEmpty()) session->note = text::fromUtf8(note);
    return session;
}

std::optional<Session> Reader::decode(QByteArrayView line) {
    qsizetype length = 0;
    if (auto session = decodeCanonical(line, length)) return session;
    return json::decodeSession(line);
}

} // namespace vantle::sessionlines

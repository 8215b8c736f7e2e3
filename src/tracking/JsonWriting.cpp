#include "tracking/JsonWriting.h"

#include "base/Iso8601.h"

namespace vantle::json::writing {

namespace {

constexpr char kHexDigits[] = "0123456789abcdef";

void appendUnicodeEscape(QByteArray& out, unsigned unit) {
    out += "\\u";
    for (int shift = 12; shift >= 0; shift -= 4)
        out += kHexDigits[(unit >> shift) & 0xF];
}

/// Returns the letter of the short escape; 0 when the character needs none or the long form.
char shortEscape(char character) {
    switch (character) {
    case '"':
    case '\\':
    case '/':
        return character;
    case '\b':
        return 'b';
    case '\f':
        return 'f';
    case '\n':
        return 'n';
    case '\r':
        return 'r';
    case '\t':
        return 't';
    default:
        return 0;
    }
}

} // namespace

void appendString(QByteArray& out, const QString& text) {
    const QByteArray utf8 = text.toUtf8();
    const qsizetype size = utf8.size();
    out += '"';
    for (qsizetype i = 0; i < size; ++i) {
        const char c = utf8[i];
        const auto byte = static_cast<unsigned char>(c);
        const auto byteAt = [&](qsizetype at) {
            return at < size ? static_cast<unsigned char>(utf8[at]) : 0u;
        };
        if (const char escape = shortEscape(c)) {
            out += '\\';
            out += escape;
        } else if (byte < 0x20) {
            appendUnicodeEscape(out, byte);
        } else if (byte == 0xC2 && byteAt(i + 1) == 0x85) {
            appendUnicodeEscape(out, 0x85);
            i += 1;
        } else if (byte == 0xE2 && byteAt(i + 1) == 0x80 && (byteAt(i + 2) | 1u) == 0xA9u) {
            appendUnicodeEscape(out, 0x2000u | (byteAt(i + 2) - 0x80u));
            i += 2;
        } else {
            out += c;
        }
    }
    out += '"';
}

void appendKey(QByteArray& out, const char* key) {
    out += out.endsWith('{') ? "\"" : ",\"";
    out += key;
    out += "\":";
}

bool appendDate(QByteArray& out, Date date) {
    const auto text = iso8601::format(date);
    if (!text) return false;
    out += '"';
    out.append(text->data(), static_cast<qsizetype>(text->size()));
    out += '"';
    return true;
}

Error unwritableDate() {
    return {0, QStringLiteral("encode"), QString(),
            QStringLiteral("A date is outside of what a file can hold")};
}

} // namespace vantle::json::writing

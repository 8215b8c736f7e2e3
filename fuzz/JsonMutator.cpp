// Changes inputs by whole tokens of JSON, so that most stay valid and reach beyond the parser.
// Every other change is libFuzzer's own, by bytes.
#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <random>
#include <string>
#include <string_view>
#include <vector>

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t maxSize);

namespace {

using Tokens = std::vector<std::string_view>;

constexpr std::array<std::string_view, 26> kValues{"0",
                                                   "-1",
                                                   "60",
                                                   "604800",
                                                   "1e3",
                                                   "0.5",
                                                   "-0.0",
                                                   "9223372036854775807",
                                                   "1e99",
                                                   "16777216",
                                                   "true",
                                                   "null",
                                                   "{}",
                                                   "[]",
                                                   "[[[[[[[[]]]]]]]]",
                                                   "\"\"",
                                                   "\"\\u0000\"",
                                                   "\"\\ud800\"",
                                                   "\"\\ud83d\\ude00\"",
                                                   "\"\\u2028\"",
                                                   "\"1970-01-01T00:00:00Z\"",
                                                   "\"2026-02-29T24:00:00Z\"",
                                                   "\"9999-12-31T23:59:60+14:00\"",
                                                   "\"2026-03-01T10:00:00.5Z\"",
                                                   "\"0f6b1d1e-4a52-4c1b-9a1e-7f3b2c5d8e90\"",
                                                   "\" \\t\\n\""};

std::size_t endOfToken(std::string_view text, std::size_t begin) {
    constexpr std::string_view kSingle = "{}[]:,\n";
    if (kSingle.find(text[begin]) != std::string_view::npos) return begin + 1;
    if (text[begin] != '"') return std::min(text.find_first_of("{}[]:,\n\"", begin), text.size());
    for (std::size_t at = begin + 1; at < text.size(); ++at) {
        if (text[at] == '\\')
            ++at;
        else if (text[at] == '"')
            return at + 1;
    }
    return text.size();
}

Tokens tokensOf(std::string_view text) {
    Tokens tokens;
    for (std::size_t begin = 0; begin < text.size();) {
        const std::size_t end = endOfToken(text, begin);
        tokens.push_back(text.substr(begin, end - begin));
        begin = end;
    }
    return tokens;
}

bool isValue(std::string_view token) {
    return token.size() > 1 || (token[0] >= '0' && token[0] <= '9');
}

/// A member, an element or a line ends at one of these.
std::size_t endOfPart(const Tokens& tokens, std::size_t begin) {
    const auto end = std::find_if(tokens.begin() + std::ptrdiff_t(begin), tokens.end(),
                                  [](auto token) { return token == "," || token == "\n"; });
    return std::size_t(end - tokens.begin());
}

void change(Tokens& tokens, std::minstd_rand& random) {
    const auto pick = [&](std::size_t count) { return std::size_t(random()) % count; };
    const std::size_t at = pick(tokens.size());
    const std::size_t other = pick(tokens.size());
    const std::size_t end = endOfPart(tokens, at);
    const auto position = [&](std::size_t index) { return tokens.begin() + std::ptrdiff_t(index); };
    const Tokens part(position(at), position(end));
    const auto insert = [&](std::size_t index) {
        tokens.insert(position(index), part.begin(), part.end());
    };
    switch (pick(6)) {
    case 0: // a part is there twice
        insert(at);
        break;
    case 1: // a part is missing, with its comma
        tokens.erase(position(at), position(std::min(end + 1, tokens.size())));
        break;
    case 2: // a part stands elsewhere too
        insert(other);
        break;
    case 3: // two tokens change places
        std::swap(tokens[at], tokens[other]);
        break;
    default: // another value
        if (isValue(tokens[at])) tokens[at] = kValues[pick(kValues.size())];
    }
}

} // namespace

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size,
                                               std::size_t maxSize, unsigned seed) {
    std::minstd_rand random(seed + 1);
    if (size == 0 || random() % 2 == 0) return LLVMFuzzerMutate(data, size, maxSize);
    const std::string text(reinterpret_cast<const char*>(data), size);
    Tokens tokens = tokensOf(text);
    for (std::size_t left = 1 + random() % 3; left > 0 && !tokens.empty(); --left)
        change(tokens, random);
    std::string changed;
    for (const std::string_view token : tokens)
        changed += token;
    const std::size_t kept = std::min(changed.size(), maxSize);
    std::memcpy(data, changed.data(), kept);
    return kept;
}

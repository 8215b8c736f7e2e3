#include "tracking/LogReader.h"

#include "tracking/AppPaths.h"
#include "tracking/LogBlocks.h"
#include "tracking/SessionLines.h"

#include <algorithm>
#include <array>
#include <bit>
#include <chrono>
#include <cstdint>
#include <cstring>
#include <utility>

namespace vantle {

namespace {

using std::chrono::nanoseconds;

/// Age from which a stamp is certain: a later change gets another one. Some file systems keep times
/// in steps of a second or two.
constexpr nanoseconds kSettled = std::chrono::seconds(2);

/// How long a certain stamp saves the checksums. Limits what a write through a memory map can hide.
constexpr nanoseconds kTrusted = std::chrono::minutes(1);

/// A checksum at about the speed of copying. Every step is reversible, so a change of a single word
/// of eight bytes always changes it.
std::uint64_t checksum(QByteArrayView bytes) {
    constexpr std::uint64_t kOdd = 0x9E3779B97F4A7C15;
    using Lanes =
        std::array<std::uint64_t, 8>; // independent, so that they overlap in the processor
    Lanes sums{1, 2, 3, 4, 5, 6, 7, 8};
    const auto add = [&sums](const char* at) {
        Lanes words;
        std::memcpy(words.data(), at, sizeof words);
        for (std::size_t i = 0; i < words.size(); ++i)
            sums[i] = std::rotl((sums[i] ^ words[i]) * kOdd, 29);
    };
    constexpr auto kStep = static_cast<qsizetype>(sizeof(Lanes));
    qsizetype at = 0;
    for (; bytes.size() - at >= kStep; at += kStep)
        add(bytes.data() + at);
    std::array<char, sizeof(Lanes)> last{};
    std::copy(bytes.begin() + at, bytes.end(), last.begin());
    add(last.data());
    auto whole = static_cast<std::uint64_t>(bytes.size());
    for (const std::uint64_t sum : sums)
        whole = std::rotl((whole ^ sum) * kOdd, 27);
    return whole;
}

/// Estimates the records in a file of `fileSize` bytes, given `count` in its first `bytes`.
/// Slightly high, so that the vector does not grow for a few more.
std::size_t expectedCount(std::size_t count, qsizetype bytes, qint64 fileSize) {
    const double density = static_cast<double>(count) / static_cast<double>(bytes);
    return count + static_cast<std::size_t>(density * 1.03 * static_cast<double>(fileSize));
}

/// Reserves room for more records without doubling what a long log takes.
void makeRoom(std::vector<Session>& sessions, qsizetype more) {
    const std::size_t needed = sessions.size() + static_cast<std::size_t>(more);
    if (needed > sessions.capacity()) sessions.reserve(needed + needed / 32);
}

/// Sorts `sessions` by their ends, of which the first `sorted` are in order. Stable.
void sortByEnd(std::vector<Session>& sessions, std::size_t sorted) {
    const auto from = sorted == 0 ? 0 : static_cast<std::ptrdiff_t>(sorted) - 1;
    if (std::ranges::is_sorted(sessions.begin() + from, sessions.end(), {}, &Session::endedAt))
        return;
    const auto middle = sessions.begin() + static_cast<std::ptrdiff_t>(sorted);
    std::ranges::stable_sort(middle, sessions.end(), {}, &Session::endedAt);
    std::ranges::inplace_merge(sessions.begin(), middle, sessions.end(), {}, &Session::endedAt);
}

/// The stamp when it holds for all bytes read between `before` and `after`; empty when a change
/// since could bear the same one.
std::optional<FileStamp> certain(const std::optional<FileStamp>& before,
                                 const std::optional<FileStamp>& after, qint64 bytes) {
    if (!before || !after || !before->isOfSameState(*after) || before->size != bytes)
        return std::nullopt;
    if (before->takenAt - before->changedAt < kSettled.count()) return std::nullopt;
    return before;
}

} // namespace

bool LogReader::isCurrent(const std::optional<FileStamp>& stamp) const {
    if (!stamp || !m_known || !m_known->stamp || !stamp->isOfSameState(*m_known->stamp))
        return false;
    const std::int64_t age = stamp->takenAt - m_known->stamp->takenAt;
    return age >= 0 && age < kTrusted.count();
}

LogReader::Comparison LogReader::compareKnown(File& file) const {
    QByteArray buffer;
    for (const Block& block : m_known->blocks) {
        buffer.resize(std::max(buffer.size(), block.length));
        for (qsizetype filled = 0; filled < block.length;) {
            const auto count = file.read(buffer.data() + filled, block.length - filled);
            if (!count) return Comparison::Failed;
            if (count.value() == 0) return Comparison::Different;
            filled += count.value();
        }
        if (checksum(QByteArrayView(buffer).first(block.length)) != block.checksum)
            return Comparison::Different;
    }
    if (m_known->endsWithLine) return Comparison::Same;
    // More bytes would belong to a line that is decoded already.
    char byte = 0;
    const auto count = file.read(&byte, 1);
    if (!count) return Comparison::Failed;
    return count.value() == 0 ? Comparison::Same : Comparison::Different;
}

bool LogReader::readRest(File& file, Known& known) {
    const auto size = file.size();
    sessionlines::Reader reader;
    std::vector<Session>* sessions = nullptr;
    const std::size_t sorted = known.log.sessions.size();
    const auto take = [&](QByteArrayView, std::optional<Session>&& session) {
        if (session && isAcceptable(*session))
            sessions->push_back(std::move(*session));
        else
            ++known.log.unreadable;
    };
    const bool complete = logblocks::forEach(file, [&](QByteArrayView block) {
        // One invalid byte makes the whole log unreadable: a damaged disk's content is not guessed.
        if (!logblocks::isUtf8(block)) return false;
        if (!sessions) sessions = &known.log.sessions.change();
        const bool isFirst = sessions->empty();
        if (sorted > 0) makeRoom(*sessions, block.count('\n') + 1);
        reader.read(block, take);
        if (isFirst && size)
            sessions->reserve(expectedCount(sessions->size(), block.size(), size.value()));
        known.blocks.push_back({block.size(), checksum(block)});
        known.endsWithLine = block.back() == '\n';
        return true;
    });
    if (!complete) return false;
    if (!sessions) return true;
    sortByEnd(*sessions, sorted);
    if (sorted == 0 && sessions->capacity() > sessions->size() + sessions->size() / 8)
        sessions->shrink_to_fit();
    return true;
}

LogReader::Log LogReader::read() {
    const QString path = m_paths.sessionsFile();
    const auto open = [&] { return m_paths.fileSystem().open(path, FileSystem::OpenMode::Read); };
    auto file = open();
    if (!file) {
        forget();
        return {};
    }
    auto before = file.value()->stamp();
    if (isCurrent(before)) return m_known->log;

    if (m_known) {
        const Comparison comparison = compareKnown(*file.value());
        if (comparison == Comparison::Failed) return {};
        if (comparison == Comparison::Different) {
            forget();
            file = open();
            if (!file) return {};
            before = file.value()->stamp();
        }
    }
    Known known = m_known ? std::move(*m_known) : Known();
    m_known.reset();
    if (!readRest(*file.value(), known)) return {};
    qint64 bytes = 0;
    for (const Block& block : known.blocks)
        bytes += block.length;
    known.stamp = certain(before, file.value()->stamp(), bytes);
    m_known = std::move(known);
    return m_known->log;
}

} // namespace vantle

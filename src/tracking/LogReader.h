// The incremental reader of the log.
#pragma once

#include "platform/FileSystem.h"
#include "tracking/SessionList.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace vantle {

class AppPaths;

/// Remembers the records of the log and what tells whether its bytes are still the same. Blocks;
/// one thread at a time.
///
/// Another program may append to the log, replace it or edit it in place, so the reader decides by
/// the weakest sign that is certain:
/// - The file's stamp is the same, was two seconds old when the bytes were read, and they were read
///   within the last minute: nothing is read. Costs microseconds.
/// - All bytes read before have the same checksums: only the lines behind them are decoded. Costs a
///   quarter of a full reading or less.
/// - Everything else: reads the whole log again.
class LogReader {
public:
    explicit LogReader(const AppPaths& paths) : m_paths(paths) {}

    struct Log {
        SessionList sessions; ///< oldest end first; equal ends in file order
        int unreadable = 0;   ///< number of lines without a valid record
    };

    /// Returns all valid records. A missing, unreadable or non-UTF-8 file gives none and a count of
    /// 0.
    [[nodiscard]] Log read();

    /// Frees the memory; the next call reads the whole log.
    void forget() { m_known.reset(); }

private:
    struct Block {
        qsizetype length = 0;
        std::uint64_t checksum = 0;
    };
    /// What is known of the file, and the records in it.
    struct Known {
        Log log;
        std::vector<Block> blocks;      ///< all bytes, in order
        bool endsWithLine = true;       ///< the last byte is a line feed, or there is none
        std::optional<FileStamp> stamp; ///< set when equal stamps mean equal bytes
    };

    enum class Comparison { Same, Different, Failed };
    [[nodiscard]] Comparison compareKnown(File& file) const;
    [[nodiscard]] bool isCurrent(const std::optional<FileStamp>& stamp) const;
    [[nodiscard]] static bool readRest(File& file, Known& known);

    const AppPaths& m_paths;
    std::optional<Known> m_known;
};

} // namespace vantle

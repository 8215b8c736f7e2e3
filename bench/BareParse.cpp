#include "BareParse.h"

#include <simdjson.h>

#include <stdexcept>

namespace vantle::bench {

namespace {

std::uint64_t textOf(simdjson::ondemand::object& object, const char* key) {
    const std::string_view text = object[key].get_string();
    return text.size() + static_cast<unsigned char>(text.empty() ? 0 : text.back());
}

} // namespace

std::uint64_t bareParse(const QString& path) {
    const auto bytes = simdjson::padded_string::load(path.toStdString());
    if (bytes.error()) throw std::runtime_error("can't read the sample log");
    simdjson::ondemand::parser parser;
    parser.threaded = false;
    simdjson::ondemand::document_stream lines;
    if (parser.iterate_many(bytes.value_unsafe()).get(lines))
        throw std::runtime_error("can't parse the sample log");
    std::uint64_t sum = 0;
    for (auto line : lines) {
        simdjson::ondemand::object object = line.get_object();
        sum += static_cast<std::uint64_t>(std::int64_t(object["activeSeconds"].get_int64()));
        for (const char* key : {"endedAt", "id", "note", "skillId", "source", "startedAt"})
            sum += textOf(object, key);
    }
    return sum;
}

} // namespace vantle::bench

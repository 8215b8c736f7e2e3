// Makes the ids of a test program a function of a seed.
//
// The program has QUuid draw its ids and the names of its temporary files from the system. With
// those, two lives of one seed could not be compared.
#pragma once

#include <cstdint>

namespace vantle::tests {

/// Begins a sequence of ids. Without a call the sequence begins at 0.
void seedIds(std::uint32_t seed);

} // namespace vantle::tests

// The records of a "_STRINGMAP" resource: no header, no alignment, each record a 16-bit
// little-endian identifier followed by a zero-terminated narrow name. The data ends at its
// size, or earlier at an identifier followed by two zero bytes.
#pragma once

#include <cstddef>
#include <cstring>

namespace kiv::rules {

struct StringMapRecord
{
    unsigned int id;
    const char* name;    // inside the resource data, not terminated when it was cut off
    std::size_t length;  // bytes of the name, without its terminator
};

// Hands each record to store(const StringMapRecord&) and answers how many it handed over.
// Nothing is read at or past data + size: an odd trailing byte is no record, and a last
// name without its terminating zero ends at the end of the data and is kept as far as it goes.
template <typename Store> std::size_t WalkStringMapRecords(const void* data, std::size_t size, Store&& store)
{
    const unsigned char* p = static_cast<const unsigned char*>(data);
    const unsigned char* const end = p + size;
    std::size_t stored = 0;
    while (end - p > 2)
    {
        unsigned int id = static_cast<unsigned int>(p[0]) | (static_cast<unsigned int>(p[1]) << 8);
        const unsigned char* name = p + 2;
        // The end mark; a zero name byte as the very last byte is that mark cut short.
        if (name[0] == 0 && (name + 1 == end || name[1] == 0))
            break;
        std::size_t room = static_cast<std::size_t>(end - name);
        const void* zero = std::memchr(name, 0, room);
        std::size_t length = zero ? static_cast<std::size_t>(static_cast<const unsigned char*>(zero) - name) : room;
        store(StringMapRecord{id, reinterpret_cast<const char*>(name), length});
        ++stored;
        p = zero ? name + length + 1 : end;
    }
    return stored;
}

}  // namespace kiv::rules

// Any bytes as a "_STRINGMAP" resource: every name handed over lies inside the data and
// holds no zero byte, and the walk never reads past the end (AddressSanitizer watches).
#include "StringMapRecords.h"

#include <cstdint>
#include <cstdlib>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    // A copy of exactly the input's size on the heap, so one byte too far is a finding.
    std::vector<std::uint8_t> bytes(data, data + size);
    const std::uint8_t* begin = bytes.data();
    const std::uint8_t* end = begin + bytes.size();
    std::size_t seen = 0;
    auto check = [&](const kiv::rules::StringMapRecord& r) {
        const std::uint8_t* name = reinterpret_cast<const std::uint8_t*>(r.name);
        if (name < begin + 2 || name + r.length > end || r.id > 0xFFFF)
            std::abort();
        for (std::size_t i = 0; i < r.length; ++i)
            if (name[i] == 0)
                std::abort();
        if (name + r.length < end && name[r.length] != 0)
            std::abort();
        ++seen;
    };
    std::size_t handed = kiv::rules::WalkStringMapRecords(begin, bytes.size(), check);
    if (handed != seen || handed > size / 3 + 1)
        std::abort();
    return 0;
}

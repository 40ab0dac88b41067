// Any bytes as a "_TIPTEXT" resource: every text handed over lies inside the data and holds
// no zero byte, its tip is inside the text, and the walk never reads past the end.
#include "TipTextRecords.h"

#include <cstdint>
#include <cstdlib>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    std::vector<std::uint8_t> bytes(data, data + size);
    const char* begin = reinterpret_cast<const char*>(bytes.data());
    const char* end = begin + bytes.size();
    std::size_t seen = 0;
    auto check = [&](const kiv::rules::TipTextRecord& r) {
        if (r.text.data() < begin + 2 || r.text.data() + r.text.size() > end || r.id > 0xFFFF)
            std::abort();
        if (r.text.find('\0') != std::string_view::npos)
            std::abort();
        std::string_view tip;
        if (kiv::rules::TextPart(r.text, 1, '\n', tip) &&
            (tip.data() < r.text.data() || tip.data() + tip.size() > r.text.data() + r.text.size()))
            std::abort();
        ++seen;
    };
    std::size_t handed = kiv::rules::WalkTipTextRecords(begin, bytes.size(), check);
    if (handed != seen || handed > size / 3 + 1)
        std::abort();
    return 0;
}

// Any name, narrow and as 16-bit units: every part lies inside the name, the parts follow
// each other in order (drive, path, name, extension) and meet where the rules say.
#include "FileNameParts.h"

#include <cstdint>
#include <cstdlib>
#include <vector>

namespace {

using kiv::rules::FilePart;

void Inside(const FilePart& part, int length)
{
    if (part.present && (part.first < 0 || part.count < 0 || part.first + part.count > length))
        std::abort();
}

template <typename Ch> void Check(const Ch* text, int length)
{
    FilePart drive = kiv::rules::DrivePart(text, length);
    FilePart path = kiv::rules::PathPart(text, length);
    FilePart nameExt = kiv::rules::NameExtPart(text, length);
    FilePart name = kiv::rules::NamePart(text, length);
    FilePart ext = kiv::rules::ExtPart(text, length);
    for (const FilePart& part : {drive, path, nameExt, name, ext})
        Inside(part, length);
    if (name.present && nameExt.present && name.first != nameExt.first)
        std::abort();
    if (ext.present && nameExt.present && ext.first + ext.count != nameExt.first + nameExt.count)
        std::abort();
    kiv::rules::HasDriveColon(text, length);
    kiv::rules::NeedsSeparator(text, length);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    // Exact-size copies on the heap, so a read one unit too far is a finding.
    std::vector<char> narrow(data, data + size);
    Check(narrow.data(), static_cast<int>(narrow.size()));
    std::vector<std::uint16_t> wide(size / 2);
    for (std::size_t i = 0; i < wide.size(); ++i)
        wide[i] = static_cast<std::uint16_t>(data[2 * i] | (data[2 * i + 1] << 8));
    Check(wide.data(), static_cast<int>(wide.size()));
    return 0;
}

// Any bytes: reading never fails badly, and whatever reads is written back as it was and
// reads again the same, also after every entry has been written anew from its fields.
#include "PoCatalog.h"
#include "PoFile.h"

#include <cstdint>
#include <cstdlib>
#include <string_view>

using namespace kiv::rules;

namespace {

void Check(bool condition)
{
    if (!condition)
        std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    std::string_view bytes(reinterpret_cast<const char*>(data), size);
    std::string header;
    ParsePoHeader(bytes, header);

    PoFile file;
    if (!ParsePo(std::string(bytes), file))
        return 0;
    std::string written = WritePo(file);
    Check(written == WithoutByteOrderMark(bytes));

    for (PoEntry& entry : file.entries)
        entry.MarkChanged();
    PoFile again;
    Check(ParsePo(WritePo(file), again));
    Check(again == file);

    // The store's view: a file that loads saves into one that loads with the same records.
    PoCatalog catalog;
    if (catalog.Load(std::string(bytes)))
    {
        std::size_t records = catalog.Records().size();
        bool inserted = catalog.Insert("fuzz\nkey", "\"\n\\", "\t\xF0\x9F\x98\x80\n") == PoCatalog::kDone;
        PoCatalog saved;
        Check(saved.Load(catalog.Save({"xx", "2024-01-01 00:00+0000"})));
        Check(saved.Records().size() == records + (inserted ? 1 : 0));
    }
    return 0;
}

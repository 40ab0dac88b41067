#include "StringBlock.h"

#include "Utf8.h"

#include <algorithm>
#include <cstring>

namespace {

constexpr std::size_t kChunkBytes = 1 << 20;
constexpr std::size_t kAlignment = alignof(CStringData);
constexpr long kBlockReference = 1;  // the reference the block holds on each of its strings

std::size_t StringBytes(int characters)
{
    std::size_t bytes = sizeof(CStringData) + (std::size_t)(characters + 1) * sizeof(wchar_t);
    return (bytes + kAlignment - 1) / kAlignment * kAlignment;
}

}  // namespace

StringBlock::~StringBlock()
{
    // A copy outlives the table: its string stays, and with it the block.
    if (!IsUnused())
        for (Chunk& chunk : m_chunks)
            chunk.bytes.release();
}

bool StringBlock::IsUnused() const noexcept
{
    for (const Chunk& chunk : m_chunks)
        for (std::size_t at = 0; at < chunk.used;)
        {
            const CStringData* header = reinterpret_cast<const CStringData*>(chunk.bytes.get() + at);
            if (header->nRefs != kBlockReference)
                return false;
            at += StringBytes(header->nAllocLength);
        }
    return true;
}

void StringBlock::Assign(CStringW& target, std::string_view utf8)
{
    int length = (int)kiv::rules::Utf16Length(utf8);
    if (length == 0)
    {
        target.Empty();
        return;
    }
    CStringData* header = Allocate(length);
    wchar_t* characters = static_cast<wchar_t*>(header->data());
    kiv::rules::DecodeUtf8(utf8, characters);
    characters[length] = 0;
    // A CStringW is nothing but the pointer to the characters behind its header.
    static_assert(sizeof(CStringW) == sizeof(wchar_t*), "CStringW holds one pointer");
    target.Empty();
    std::memcpy(static_cast<void*>(&target), &characters, sizeof(characters));
}

CStringData* StringBlock::Allocate(int characters)
{
    std::size_t bytes = StringBytes(characters);
    if (m_chunks.empty() || m_chunks.back().size - m_chunks.back().used < bytes)
    {
        Chunk chunk;
        chunk.size = std::max(bytes, kChunkBytes);
        chunk.bytes.reset(new char[chunk.size]);
        m_chunks.push_back(std::move(chunk));
    }
    Chunk& chunk = m_chunks.back();
    CStringData* header = reinterpret_cast<CStringData*>(chunk.bytes.get() + chunk.used);
    chunk.used += bytes;
    header->nRefs = kBlockReference + 1;  // and the CStringW about to refer to it
    header->nDataLength = characters;
    header->nAllocLength = characters;
    return header;
}

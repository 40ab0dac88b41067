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

std::size_t StringBlock::MostBytes(std::string_view utf8) noexcept
{
    return utf8.empty() ? 0 : StringBytes((int)utf8.size());
}

void StringBlock::Reserve(std::size_t bytes)
{
    if (bytes == 0 || (!m_chunks.empty() && m_chunks.back().size - m_chunks.back().used >= bytes))
        return;
    Chunk chunk;
    chunk.size = bytes;
    chunk.bytes.reset(new char[chunk.size]);
    m_chunks.push_back(std::move(chunk));
}

void StringBlock::Assign(CStringW& target, std::string_view utf8)
{
    if (utf8.empty())
        return;
    // UTF-16 takes no more units than UTF-8 takes bytes: room for that many, and what the
    // decoded text leaves over stays in the chunk for the next string.
    Chunk& chunk = Room(MostBytes(utf8));
    CStringData* header = reinterpret_cast<CStringData*>(chunk.bytes.get() + chunk.used);
    wchar_t* characters = static_cast<wchar_t*>(header->data());
    int length = (int)(kiv::rules::DecodeUtf8(utf8, characters) - characters);
    characters[length] = 0;
    header->nRefs = kBlockReference + 1;  // and the CStringW about to refer to it
    header->nDataLength = length;
    header->nAllocLength = length;
    chunk.used += StringBytes(length);
    // A CStringW is nothing but the pointer to the characters behind its header.
    static_assert(sizeof(CStringW) == sizeof(wchar_t*), "CStringW holds one pointer");
    std::memcpy(static_cast<void*>(&target), &characters, sizeof(characters));
}

void StringBlock::Share(CStringW& target, const CStringW& source) noexcept
{
    const wchar_t* characters = source.GetString();
    CStringData* header = reinterpret_cast<CStringData*>(const_cast<wchar_t*>(characters)) - 1;
    if (header->IsNil())
        return;
    // No other thread holds the string yet: a plain count is enough, where a copy would lock.
    ++header->nRefs;
    std::memcpy(static_cast<void*>(&target), &characters, sizeof(characters));
}

StringBlock::Chunk& StringBlock::Room(std::size_t bytes)
{
    if (m_chunks.empty() || m_chunks.back().size - m_chunks.back().used < bytes)
    {
        Chunk chunk;
        chunk.size = std::max(bytes, kChunkBytes);
        chunk.bytes.reset(new char[chunk.size]);
        m_chunks.push_back(std::move(chunk));
    }
    return m_chunks.back();
}

// The cache's lookups: one open-addressed table over (section, key), hashed once over both
// texts, beside the two-level maps that stay the cache itself. A slot keeps its entry and the
// cell of the key map that holds it, so a lookup reads no map and a text recorded again
// replaces its entry without walking the maps. Internal to the library.
#pragma once

#include <afx.h>

#include <cstddef>
#include <cstdint>
#include <vector>

struct TranslationEntry;

namespace kiv::localization {

// A text of the caller's, with its length already known.
struct IndexText
{
    const char* text;
    std::size_t length;
};

// A default text and its widening, kept for the texts asked for again without translation.
struct WideDefault
{
    CString narrow;
    CStringW wide;
};

struct alignas(64) IndexSlot
{
    std::uint64_t hash;  // 0 marks a free slot
    TranslationEntry* entry;
    void** cell;          // the entry's value cell in its key map
    const char* section;  // the section map's own text
    const char* longKey;  // the key map's own text, when it does not fit in shortKey
    WideDefault* wideDefault;
    std::uint32_t keyLength;
    char shortKey[12];
};
static_assert(sizeof(IndexSlot) == 64, "one slot per cache line");

class TranslationIndex
{
public:
    using Slot = IndexSlot;

    explicit TranslationIndex(const void* cache) : m_cache(cache) {}
    ~TranslationIndex() { Reset(nullptr); }
    TranslationIndex(const TranslationIndex&) = delete;
    TranslationIndex& operator=(const TranslationIndex&) = delete;

    // Attributes
    // The cache this index follows; null once that cache is gone.
    const void* Cache() const noexcept { return m_cache; }
    std::size_t Count() const noexcept { return m_count; }
    static std::uint64_t Hash(IndexText section, IndexText key) noexcept;
    Slot* Find(std::uint64_t hash, IndexText section, IndexText key) noexcept;

    // Operations
    // Adds (section, key), which Find does not know; texts are the maps' own.
    void Add(std::uint64_t hash, const char* section, IndexText key, const char* ownKey, TranslationEntry* entry,
             void** cell);
    // defaultText widened, made once per slot and text.
    static const CStringW& Widened(Slot& slot, const CString& defaultText);
    // Forgets every slot and, with a null cache, the cache too.
    void Reset(const void* cache) noexcept;

    // Shared by managers that share their cache.
    void AddRef() noexcept { ++m_refs; }
    static void Release(TranslationIndex* index) noexcept;

private:
    static bool Matches(const Slot& slot, std::uint64_t hash, IndexText section, IndexText key) noexcept;
    void Grow();

    const void* m_cache;
    std::vector<Slot> m_slots;
    std::size_t m_count = 0;
    int m_refs = 1;
};

}  // namespace kiv::localization

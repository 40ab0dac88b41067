// TranslationIndex: linear probing over a power-of-two table, at most three quarters full.
#include "TranslationIndex.h"

#include <cstring>

namespace kiv::localization {

namespace {

constexpr std::size_t kFirstSize = 256;

}  // namespace

std::uint64_t TranslationIndex::Hash(IndexText section, IndexText key) noexcept
{
    // FNV-1a over section, a line feed and key, then mixed so that the low bits pick well.
    std::uint64_t hash = 0xCBF29CE484222325ull;
    for (std::size_t i = 0; i < section.length; ++i)
        hash = (hash ^ (unsigned char)section.text[i]) * 0x100000001B3ull;
    hash = (hash ^ '\n') * 0x100000001B3ull;
    for (std::size_t i = 0; i < key.length; ++i)
        hash = (hash ^ (unsigned char)key.text[i]) * 0x100000001B3ull;
    hash ^= hash >> 29;
    hash *= 0xBF58476D1CE4E5B9ull;
    hash ^= hash >> 32;
    return hash | 1;  // never 0, the mark of a free slot
}

bool TranslationIndex::Matches(const Slot& slot, std::uint64_t hash, IndexText section, IndexText key) noexcept
{
    if (slot.hash != hash || slot.keyLength != key.length)
        return false;
    const char* own = key.length < sizeof(slot.shortKey) ? slot.shortKey : slot.longKey;
    return std::memcmp(own, key.text, key.length) == 0 &&
           std::strncmp(slot.section, section.text, section.length) == 0 && slot.section[section.length] == '\0';
}

TranslationIndex::Slot* TranslationIndex::Find(std::uint64_t hash, IndexText section, IndexText key) noexcept
{
    if (m_slots.empty())
        return nullptr;
    std::size_t mask = m_slots.size() - 1;
    for (std::size_t i = hash & mask;; i = (i + 1) & mask)
    {
        Slot& slot = m_slots[i];
        if (slot.hash == 0)
            return nullptr;
        if (Matches(slot, hash, section, key))
            return &slot;
    }
}

void TranslationIndex::Add(std::uint64_t hash, const char* section, IndexText key, const char* ownKey,
                           TranslationEntry* entry, void** cell)
{
    if ((m_count + 1) * 4 > m_slots.size() * 3)
        Grow();
    std::size_t mask = m_slots.size() - 1;
    std::size_t i = hash & mask;
    while (m_slots[i].hash != 0)
        i = (i + 1) & mask;
    Slot& slot = m_slots[i];
    slot.hash = hash;
    slot.entry = entry;
    slot.cell = cell;
    slot.section = section;
    slot.keyLength = (std::uint32_t)key.length;
    slot.longKey = ownKey;
    slot.wideDefault = nullptr;
    if (key.length < sizeof(slot.shortKey))
    {
        std::memcpy(slot.shortKey, key.text, key.length);
        slot.shortKey[key.length] = '\0';
    }
    ++m_count;
}

void TranslationIndex::Grow()
{
    std::vector<Slot> old(m_slots.empty() ? kFirstSize : m_slots.size() * 2, Slot{});
    old.swap(m_slots);
    std::size_t mask = m_slots.size() - 1;
    for (const Slot& slot : old)
    {
        if (slot.hash == 0)
            continue;
        std::size_t i = slot.hash & mask;
        while (m_slots[i].hash != 0)
            i = (i + 1) & mask;
        m_slots[i] = slot;
    }
}

const CStringW& TranslationIndex::Widened(Slot& slot, const CString& defaultText)
{
    if (slot.wideDefault == nullptr)
        slot.wideDefault = new WideDefault{defaultText, CStringW(defaultText)};
    else if (slot.wideDefault->narrow.GetString() != defaultText.GetString() && slot.wideDefault->narrow != defaultText)
        *slot.wideDefault = WideDefault{defaultText, CStringW(defaultText)};
    return slot.wideDefault->wide;
}

void TranslationIndex::Reset(const void* cache) noexcept
{
    for (Slot& slot : m_slots)
        delete slot.wideDefault;
    m_slots.clear();
    m_slots.shrink_to_fit();
    m_count = 0;
    m_cache = cache;
}

void TranslationIndex::Release(TranslationIndex* index) noexcept
{
    if (index != nullptr && --index->m_refs == 0)
        delete index;
}

}  // namespace kiv::localization

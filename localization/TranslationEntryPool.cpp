// The blocks that TranslationEntry objects come from.
#include "LocalizationManager.h"

#include <atomic>
#include <new>
#include <vector>

namespace {

class EntryPool
{
public:
    ~EntryPool()
    {
        for (char* block : m_blocks)
            ::operator delete(block);
    }

    void* Take()
    {
        Lock lock(m_busy);
        if (m_free != nullptr)
        {
            FreeEntry* entry = m_free;
            m_free = entry->next;
            return entry;
        }
        if (m_left == 0)
        {
            m_blocks.push_back(static_cast<char*>(::operator new(kEntriesPerBlock * sizeof(TranslationEntry))));
            m_next = m_blocks.back();
            m_left = kEntriesPerBlock;
        }
        void* entry = m_next;
        m_next += sizeof(TranslationEntry);
        --m_left;
        return entry;
    }

    // A freed entry is the next one taken.
    void Give(void* entry) noexcept
    {
        Lock lock(m_busy);
        auto* free = static_cast<FreeEntry*>(entry);
        free->next = m_free;
        m_free = free;
    }

private:
    static constexpr std::size_t kEntriesPerBlock = 4096;
    struct FreeEntry
    {
        FreeEntry* next;
    };
    static_assert(sizeof(FreeEntry) <= sizeof(TranslationEntry), "a free entry fits in place of an entry");

    // Callers are mostly one thread; a spin is cheaper than the heap's own lock.
    class Lock
    {
    public:
        explicit Lock(std::atomic_flag& busy) noexcept : m_busy(busy)
        {
            while (m_busy.test_and_set(std::memory_order_acquire))
                ::SwitchToThread();
        }
        ~Lock() { m_busy.clear(std::memory_order_release); }

    private:
        std::atomic_flag& m_busy;
    };

    std::atomic_flag m_busy = ATOMIC_FLAG_INIT;
    std::vector<char*> m_blocks;
    char* m_next = nullptr;
    std::size_t m_left = 0;
    FreeEntry* m_free = nullptr;
};

EntryPool& Pool()
{
    static EntryPool pool;  // its blocks go with the library
    return pool;
}

}  // namespace

void* TranslationEntry::operator new(size_t size)
{
    // A class derived from the entry is larger: the heap makes it.
    return size == sizeof(TranslationEntry) ? Pool().Take() : ::operator new(size);
}

void TranslationEntry::operator delete(void* entry, size_t size) noexcept
{
    if (entry == nullptr)
        return;
    if (size == sizeof(TranslationEntry))
        Pool().Give(entry);
    else
        ::operator delete(entry);
}

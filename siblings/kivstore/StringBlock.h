// The characters of a record table's strings, in large blocks instead of one allocation per
// string: a table of a hundred thousand records would otherwise spend most of its time in the heap.
//
// Each string has the shared header a CStringW keeps in front of its characters, with one
// reference more than the CStringW objects hold: no release by any holder frees it, and a
// holder that writes to it copies it first, as for any shared string. The blocks are freed when
// no CStringW outside the table refers to them any more; otherwise they stay, so that a copy a
// caller kept remains valid.
#pragma once

#include <afx.h>

#include <memory>
#include <string_view>
#include <vector>

class StringBlock
{
public:
    StringBlock() = default;
    ~StringBlock();
    StringBlock(const StringBlock&) = delete;
    StringBlock& operator=(const StringBlock&) = delete;

    // Attributes
    // True when only the block's own reference is left on every string.
    bool IsUnused() const noexcept;

    // Operations
    // Makes target, an empty string, refer to a new string of the block holding the UTF-8 text.
    void Assign(CStringW& target, std::string_view utf8);

private:
    struct Chunk
    {
        std::unique_ptr<char[]> bytes;
        std::size_t used = 0;
        std::size_t size = 0;
    };
    CStringData* Allocate(int characters);

    std::vector<Chunk> m_chunks;
};

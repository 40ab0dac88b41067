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

    // The most bytes Assign takes for a UTF-8 text.
    static std::size_t MostBytes(std::string_view utf8) noexcept;

    // Operations
    // Makes room for strings of that many bytes in one piece.
    void Reserve(std::size_t bytes);
    // Makes target, an empty string, refer to a new string of the block holding the UTF-8 text.
    void Assign(CStringW& target, std::string_view utf8);
    // Makes target, an empty string, refer to source, a string that Assign made and that no
    // other thread can see yet.
    static void Share(CStringW& target, const CStringW& source) noexcept;

private:
    struct Chunk
    {
        std::unique_ptr<char[]> bytes;
        std::size_t used = 0;
        std::size_t size = 0;
    };
    Chunk& Room(std::size_t bytes);

    std::vector<Chunk> m_chunks;
};

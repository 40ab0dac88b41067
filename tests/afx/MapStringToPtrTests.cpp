// CMapStringToPtr: hashing, overwriting, iteration and removal.
#include <afxcoll.h>
#include <gtest/gtest.h>

#include <map>
#include <string>

namespace {

void* P(intptr_t n)
{
    return reinterpret_cast<void*>(n);
}

}  // namespace

TEST(CMapStringToPtr, HashKeyMultipliesByThirtyThreeWithSignedCharacters)
{
    EXPECT_EQ(0u, HashKey(""));
    EXPECT_EQ(97u, HashKey("a"));
    EXPECT_EQ(97u * 33 + 98, HashKey("ab"));
    EXPECT_EQ(static_cast<UINT>(-28), HashKey("\xe4"));
}

TEST(CMapStringToPtr, KeysAreCaseSensitive)
{
    CMapStringToPtr map(10);
    map.SetAt("Title", P(1));
    map.SetAt("title", P(2));
    EXPECT_EQ(2, map.GetCount());
    void* v = nullptr;
    ASSERT_TRUE(map.Lookup("Title", v));
    EXPECT_EQ(P(1), v);
    ASSERT_TRUE(map.Lookup("title", v));
    EXPECT_EQ(P(2), v);
    EXPECT_FALSE(map.Lookup("TITLE", v));
}

TEST(CMapStringToPtr, ASecondSetAtOverwrites)
{
    CMapStringToPtr map;
    map.SetAt("k", P(1));
    map.SetAt("k", P(2));
    map["k2"] = P(3);
    EXPECT_EQ(2, map.GetCount());
    void* v = nullptr;
    ASSERT_TRUE(map.Lookup("k", v));
    EXPECT_EQ(P(2), v);
}

TEST(CMapStringToPtr, LookupOfAMissingKeyLeavesTheValue)
{
    CMapStringToPtr map;
    void* v = P(7);
    EXPECT_FALSE(map.Lookup("none", v));
    EXPECT_EQ(P(7), v);
}

TEST(CMapStringToPtr, IterationVisitsEveryAssociationOnce)
{
    CMapStringToPtr map(10);
    for (int i = 0; i < 100; ++i)
    {
        CString key;
        key.Format("%d", i);
        map.SetAt(key, P(i + 1));
    }
    std::map<std::string, intptr_t> seen;
    POSITION pos = map.GetStartPosition();
    while (pos != nullptr)
    {
        CString key;
        void* value = nullptr;
        map.GetNextAssoc(pos, key, value);
        EXPECT_TRUE(seen.emplace(key.GetString(), reinterpret_cast<intptr_t>(value)).second);
    }
    ASSERT_EQ(100u, seen.size());
    for (int i = 0; i < 100; ++i)
        EXPECT_EQ(i + 1, seen[std::to_string(i)]);
}

TEST(CMapStringToPtr, IterationFollowsBucketsThenNewestFirst)
{
    // "a" hashes to bucket 97 % 17 = 12, "b" to 13; "r" (114) to 12 as well.
    CMapStringToPtr map;
    map.SetAt("b", P(1));
    map.SetAt("a", P(2));
    map.SetAt("r", P(3));
    CString order;
    POSITION pos = map.GetStartPosition();
    while (pos)
    {
        CString key;
        void* v;
        map.GetNextAssoc(pos, key, v);
        order += key;
    }
    EXPECT_STREQ("rab", order);
}

TEST(CMapStringToPtr, CountsAfterRemovals)
{
    CMapStringToPtr map;
    map.SetAt("a", P(1));
    map.SetAt("b", P(2));
    map.SetAt("c", P(3));
    EXPECT_TRUE(map.RemoveKey("b"));
    EXPECT_FALSE(map.RemoveKey("b"));
    EXPECT_FALSE(map.RemoveKey("B"));
    EXPECT_EQ(2, map.GetCount());
    EXPECT_TRUE(map.RemoveKey("a"));
    EXPECT_TRUE(map.RemoveKey("c"));
    EXPECT_EQ(0, map.GetCount());
    EXPECT_TRUE(map.IsEmpty());
    EXPECT_EQ(nullptr, map.GetStartPosition());
    map.SetAt("again", P(4));
    EXPECT_EQ(1, map.GetCount());
    map.RemoveAll();
    EXPECT_TRUE(map.IsEmpty());
}

TEST(CMapStringToPtr, DefaultTableHasSeventeenBuckets)
{
    CMapStringToPtr map;
    EXPECT_EQ(17u, map.GetHashTableSize());
}

TEST(CMapStringToPtr, RemovalDuringIterationOfOthersKeepsTheRest)
{
    CMapStringToPtr map(3);
    for (int i = 0; i < 20; ++i)
    {
        CString key;
        key.Format("k%d", i);
        map[key] = P(i);
    }
    for (int i = 0; i < 20; i += 2)
    {
        CString key;
        key.Format("k%d", i);
        EXPECT_TRUE(map.RemoveKey(key));
    }
    EXPECT_EQ(10, map.GetCount());
    int visited = 0;
    for (POSITION pos = map.GetStartPosition(); pos;)
    {
        CString key;
        void* v;
        map.GetNextAssoc(pos, key, v);
        EXPECT_EQ(1, reinterpret_cast<intptr_t>(v) % 2);
        ++visited;
    }
    EXPECT_EQ(10, visited);
}

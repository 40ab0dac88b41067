// mfcCStringMap over the test host's own "_STRINGMAP" resources, found through the current
// resource handle of the module state.
#include <KivMFC.h>
#include <gtest/gtest.h>

#include <string.h>

#include <set>
#include <string>

#include "strings_tests_res.h"

namespace {

// The identifier stored under a name, or -1 when Lookup does not find it.
long long IdOf(const mfcCStringMap& map, const char* name)
{
    unsigned int id = 0xDEADBEEF;
    if (!map.Lookup(name, &id))
    {
        EXPECT_EQ(0xDEADBEEFu, id) << name;
        return -1;
    }
    return id;
}

// The stored texts in the map's own order.
std::string TextsInOrder(const mfcCStringMap& map)
{
    std::string out;
    POSITION pos = map.GetStartPosition();
    while (pos)
    {
        CString key;
        void* value = nullptr;
        map.GetNextAssoc(pos, key, value);
        out += key;
        out += ' ';
    }
    return out;
}

}  // namespace

TEST(mfcCStringMap, LookupIgnoresCase)
{
    mfcCStringMap map(IDR_MAP_OPEN_CLOSE);
    EXPECT_EQ(2, map.GetCount());
    EXPECT_EQ(1, IdOf(map, "open"));
    EXPECT_EQ(2, IdOf(map, "CLOSE"));
    EXPECT_EQ(1, IdOf(map, "OpEn"));
    EXPECT_EQ(-1, IdOf(map, "save"));
    EXPECT_EQ(-1, IdOf(map, ""));
}

TEST(mfcCStringMap, ReverseLookupGivesTheStoredCase)
{
    mfcCStringMap map(IDR_MAP_OPEN_CLOSE);
    EXPECT_STREQ("Close", map[2]);
    EXPECT_STREQ("OPEN", map[1]);
    EXPECT_EQ(nullptr, map[3]);
}

TEST(mfcCStringMap, KeysAreTheNamesInUpperCase)
{
    mfcCStringMap map(IDR_MAP_OPEN_CLOSE);
    std::set<std::string> keys;
    POSITION pos = map.GetStartPosition();
    while (pos)
    {
        CString key;
        void* value = nullptr;
        map.GetNextAssoc(pos, key, value);
        keys.insert(std::string(key));
    }
    EXPECT_EQ((std::set<std::string>{"OPEN", "CLOSE"}), keys);
}

TEST(mfcCStringMap, SameNameInOtherCaseKeepsOneEntryWithTheLaterIdentifier)
{
    mfcCStringMap map(IDR_MAP_CASE_DUPLICATES);
    EXPECT_EQ(2, map.GetCount());
    EXPECT_EQ(7, IdOf(map, "Open"));
    EXPECT_STREQ("open", map[7]);
    EXPECT_EQ(nullptr, map[1]);
    EXPECT_EQ(nullptr, map[5]);
    EXPECT_EQ(8, IdOf(map, "close"));
}

// "BETA" hashes to an earlier bucket of the 17 than "ALPHA", so the map meets it first.
TEST(mfcCStringMap, SharedIdentifierGivesTheNameTheIterationMeetsFirst)
{
    mfcCStringMap map(IDR_MAP_SHARED_ID);
    EXPECT_EQ(3, map.GetCount());
    EXPECT_EQ("BETA GAMMA ALPHA ", TextsInOrder(map));
    EXPECT_STREQ("BETA", map[3]);
    EXPECT_STREQ("GAMMA", map[4]);
}

TEST(mfcCStringMap, IdentifierWithTwoZeroBytesEndsTheData)
{
    mfcCStringMap map(IDR_MAP_END_MARK);
    EXPECT_EQ(1, map.GetCount());
    EXPECT_EQ(1, IdOf(map, "a"));
    EXPECT_EQ(-1, IdOf(map, "b"));
    EXPECT_EQ(nullptr, map[7]);
}

TEST(mfcCStringMap, EndMarkAfterTheLastRecordStoresNothing)
{
    mfcCStringMap map(IDR_MAP_END_MARK_LAST);
    EXPECT_EQ(2, map.GetCount());
    EXPECT_EQ(nullptr, map[0]);
    mfcCStringMap empty(IDR_MAP_EMPTY);
    EXPECT_TRUE(empty.IsEmpty());
}

// Malformed data is read up to its end and no further; what was read is kept.
TEST(mfcCStringMap, LastNameWithoutItsZeroEndsAtTheEndOfTheData)
{
    mfcCStringMap map;
    EXPECT_EQ(0, map.LoadResource(IDR_MAP_UNTERMINATED));
    EXPECT_EQ(2, map.GetCount());
    EXPECT_EQ(1, IdOf(map, "A"));
    EXPECT_EQ(2, IdOf(map, "ope"));
    EXPECT_STREQ("OPE", map[2]);
}

TEST(mfcCStringMap, OddTrailingByteIsIgnored)
{
    mfcCStringMap map;
    EXPECT_EQ(0, map.LoadResource(IDR_MAP_ODD_BYTE));
    EXPECT_EQ(1, map.GetCount());
    EXPECT_STREQ("A", map[1]);
}

TEST(mfcCStringMap, MissingResourceAnswers899AndLeavesTheMap)
{
    mfcCStringMap map(IDR_MAP_OPEN_CLOSE);
    EXPECT_EQ(899, map.LoadResource(IDR_MAP_MISSING));
    EXPECT_EQ(899, map.LoadResource("NOSUCHMAP"));
    EXPECT_EQ(2, map.GetCount());
    EXPECT_EQ(1, IdOf(map, "open"));
    mfcCStringMap missing(IDR_MAP_MISSING);
    EXPECT_TRUE(missing.IsEmpty());
    EXPECT_EQ(0, missing.GetCount());
}

TEST(mfcCStringMap, SecondLoadAddsToTheMap)
{
    mfcCStringMap map;
    EXPECT_TRUE(map.IsEmpty());
    EXPECT_EQ(0, map.LoadResource(IDR_MAP_OPEN_CLOSE));
    EXPECT_EQ(0, map.LoadResource(IDR_MAP_SAVE));
    EXPECT_FALSE(map.IsEmpty());
    EXPECT_EQ(3, map.GetCount());
    EXPECT_EQ(3, IdOf(map, "SAVE"));
    EXPECT_EQ(1, IdOf(map, "open"));
}

TEST(mfcCStringMap, ResourceNamedByText)
{
    mfcCStringMap map("NAMEDMAP");
    EXPECT_EQ(2, map.GetCount());
    EXPECT_EQ(0xFFFF, IdOf(map, "last"));
    EXPECT_EQ(0x1234, IdOf(map, "MID"));
    EXPECT_STREQ("Last", map[0xFFFF]);
}

TEST(mfcCStringMap, OnlyTheLowSixteenBitsNameTheResource)
{
    mfcCStringMap map(0x10000u + IDR_MAP_OPEN_CLOSE);
    EXPECT_EQ(2, map.GetCount());
    mfcCStringMap loaded;
    EXPECT_EQ(0, loaded.LoadResource(0xABCD0000u + IDR_MAP_SAVE));
    EXPECT_EQ(3, IdOf(loaded, "save"));
}

TEST(mfcCStringMap, ResourcesComeFromTheCurrentResourceModule)
{
    AFX_MODULE_STATE* state = AfxGetModuleState();
    HINSTANCE saved = state->m_hCurrentResourceHandle;
    state->m_hCurrentResourceHandle = ::GetModuleHandleA("KivMFC64.dll");
    ASSERT_NE(nullptr, state->m_hCurrentResourceHandle);
    mfcCStringMap map;
    int result = map.LoadResource(IDR_MAP_OPEN_CLOSE);
    state->m_hCurrentResourceHandle = saved;
    EXPECT_EQ(899, result);
    EXPECT_TRUE(map.IsEmpty());
    EXPECT_EQ(0, map.LoadResource(IDR_MAP_OPEN_CLOSE));
}

TEST(mfcCStringMap, RemoveAllEmptiesTheMap)
{
    mfcCStringMap map(IDR_MAP_OPEN_CLOSE);
    map.RemoveAll();
    EXPECT_TRUE(map.IsEmpty());
    EXPECT_EQ(-1, IdOf(map, "open"));
    EXPECT_EQ(nullptr, map[1]);
    EXPECT_EQ(0, map.LoadResource(IDR_MAP_OPEN_CLOSE));
    EXPECT_EQ(2, map.GetCount());
}

// The entry a later name replaces stays allocated: its text is still readable, and the
// heap does not hand its block out again.
TEST(mfcCStringMap, ReplacedEntryStaysAllocated)
{
    mfcCStringMap map(IDR_MAP_OPEN_CLOSE);
    const char* replaced = map[1];
    ASSERT_STREQ("OPEN", replaced);
    EXPECT_EQ(0, map.LoadResource(IDR_MAP_OPEN_AGAIN));
    EXPECT_EQ(2, map.GetCount());
    EXPECT_EQ(9, IdOf(map, "OPEN"));
    EXPECT_EQ(nullptr, map[1]);
    char* fresh[16];
    for (char*& p : fresh)
        p = _strdup("XXXX");
    for (char* p : fresh)
        EXPECT_NE(replaced, p);
    EXPECT_STREQ("OPEN", replaced);
    for (char* p : fresh)
        free(p);
}

TEST(mfcCStringMap, LookupWithoutATargetOnlyAnswers)
{
    mfcCStringMap map(IDR_MAP_OPEN_CLOSE);
    EXPECT_NE(0, map.Lookup("open", nullptr));
    EXPECT_EQ(0, map.Lookup("none", nullptr));
    unsigned int id = 5;
    EXPECT_EQ(0, map.Lookup(nullptr, &id));
    EXPECT_EQ(5u, id);
}

TEST(mfcCStringMap, IsACMapStringToPtrWithBlocksOfTen)
{
    mfcCStringMap map;
    CMapStringToPtr* base = &map;
    EXPECT_TRUE(base->IsKindOf(RUNTIME_CLASS(CMapStringToPtr)));
    EXPECT_EQ(17u, base->GetHashTableSize());
}

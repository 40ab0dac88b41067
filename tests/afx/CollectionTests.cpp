// CObList and CPtrArray.
#include <afxcoll.h>
#include <gtest/gtest.h>

namespace {

class Item : public CObject
{
public:
    explicit Item(int v) : value(v) {}
    int value;
};

int ValueAt(CObList& list, POSITION pos)
{
    return static_cast<Item*>(list.GetAt(pos))->value;
}

}  // namespace

TEST(CObList, AddHeadAndTailKeepOrder)
{
    Item a(1), b(2), c(3);
    CObList list;
    list.AddTail(&b);
    list.AddHead(&a);
    list.AddTail(&c);
    ASSERT_EQ(3, list.GetCount());
    POSITION pos = list.GetHeadPosition();
    EXPECT_EQ(1, static_cast<Item*>(list.GetNext(pos))->value);
    EXPECT_EQ(2, static_cast<Item*>(list.GetNext(pos))->value);
    EXPECT_EQ(3, static_cast<Item*>(list.GetNext(pos))->value);
    EXPECT_EQ(nullptr, pos);
}

TEST(CObList, RemoveAtFindAndInsert)
{
    Item a(1), b(2), c(3), d(4);
    CObList list(2);
    list.AddTail(&a);
    list.AddTail(&b);
    list.AddTail(&c);
    POSITION pb = list.Find(&b);
    ASSERT_NE(nullptr, pb);
    list.RemoveAt(pb);
    EXPECT_EQ(2, list.GetCount());
    EXPECT_EQ(nullptr, list.Find(&b));
    list.InsertAfter(list.GetHeadPosition(), &d);
    EXPECT_EQ(4, ValueAt(list, list.FindIndex(1)));
    EXPECT_EQ(&a, list.RemoveHead());
    EXPECT_EQ(&c, list.RemoveTail());
    EXPECT_EQ(&d, list.RemoveHead());
    EXPECT_TRUE(list.IsEmpty());
}

TEST(CPtrArray, GrowsAndRemoves)
{
    CPtrArray arr;
    for (intptr_t i = 0; i < 50; ++i)
        EXPECT_EQ(i, arr.Add(reinterpret_cast<void*>(i)));
    EXPECT_EQ(50, arr.GetSize());
    arr.RemoveAt(10, 5);
    EXPECT_EQ(45, arr.GetSize());
    EXPECT_EQ(reinterpret_cast<void*>(15), arr[10]);
    arr.InsertAt(0, nullptr, 2);
    EXPECT_EQ(47, arr.GetSize());
    EXPECT_EQ(nullptr, arr[1]);
    EXPECT_EQ(reinterpret_cast<void*>(0), arr[2]);
    arr.SetAtGrow(60, reinterpret_cast<void*>(9));
    EXPECT_EQ(61, arr.GetSize());
    arr.RemoveAll();
    EXPECT_TRUE(arr.IsEmpty());
}

TEST(CStringArray, GrowsShrinksAndEmptiesDroppedElements)
{
    CStringArray arr;
    for (int i = 0; i < 30; ++i)
    {
        CString s;
        s.Format("s%d", i);
        arr.Add(s);
    }
    EXPECT_EQ(30, arr.GetSize());
    EXPECT_STREQ("s29", arr[29]);
    arr.RemoveAt(0, 10);
    EXPECT_STREQ("s10", arr[0]);
    EXPECT_EQ(20, arr.GetSize());
    arr.SetSize(25);
    EXPECT_TRUE(arr[24].IsEmpty());
    arr.SetSize(0);
    EXPECT_TRUE(arr.IsEmpty());
}

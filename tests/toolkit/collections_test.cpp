#include "toolkit/toolkit.h"
#include <algorithm>
#include <gtest/gtest.h>
#include <list>
#include <map>
#include <random>
#include <stdexcept>
#include <string>
#include <vector>

class CStringArray; // as sources declare it that only name it

namespace {

// Counts how many live, and is not moved by its bytes: it knows where it lies.
class Counted
{
public:
    Counted(int value = 0)
        : value_(value)
    {
        ++alive;
    }
    Counted(const Counted& other)
        : value_(other.value_)
    {
        ++alive;
    }
    Counted& operator=(const Counted&) = default;
    ~Counted()
    {
        EXPECT_EQ(self_, this);
        --alive;
    }
    bool operator==(const Counted& other) const { return value_ == other.value_; }
    int value_;
    static int alive;

private:
    class SelfTP // not assigned
    {
    public:
        explicit SelfTP(const Counted* self)
            : self_(self)
        {
        }
        SelfTP& operator=(const SelfTP&) { return *this; }
        bool operator==(const Counted* self) const { return self_ == self; }

    private:
        const Counted* self_;
    };
    SelfTP self_ { this };
};
int Counted::alive = 0;

std::vector<int> valuesOf(const CArray<Counted>& array)
{
    std::vector<int> values;
    for (INT_PTR k = 0; k < array.GetSize(); ++k) {
        values.push_back(array[k].value_);
    }
    return values;
}

} // namespace

TEST(Arrays, DoWhatAVectorDoes)
{
    std::mt19937 random(7);
    const auto pick
        = [&](size_t most) { return std::uniform_int_distribution<int>(0, static_cast<int>(most))(random); };
    {
        CArray<Counted> array;
        std::vector<int> plain;
        for (int round = 0; round < 5000; ++round) {
            const int value = round + 1;
            const int at = pick(plain.size() + 2);
            const size_t place = static_cast<size_t>(at);
            switch (pick(5)) {
            case 0:
                ASSERT_EQ(array.Add(value), static_cast<INT_PTR>(plain.size()));
                plain.push_back(value);
                break;
            case 1: {
                const int count = pick(3);
                array.InsertAt(at, value, count);
                plain.resize(std::max(plain.size(), place));
                plain.insert(plain.begin() + at, static_cast<size_t>(count), value);
                break;
            }
            case 2: {
                const int count = pick(4);
                if (place + static_cast<size_t>(count) > plain.size()) {
                    ASSERT_THROW(array.RemoveAt(at, count), std::out_of_range);
                } else {
                    array.RemoveAt(at, count);
                    plain.erase(plain.begin() + at, plain.begin() + at + count);
                }
                break;
            }
            case 3:
                array.SetAtGrow(at, value);
                plain.resize(std::max(plain.size(), place + 1));
                plain[place] = value;
                break;
            case 4:
                if (place < plain.size()) {
                    array[at] = value;
                    plain[place] = value;
                } else {
                    ASSERT_THROW(array.SetAt(at, value), std::out_of_range);
                }
                break;
            default:
                array.SetSize(at, pick(3));
                plain.resize(place);
            }
            ASSERT_EQ(valuesOf(array), plain) << round;
            ASSERT_EQ(array.GetUpperBound(), static_cast<INT_PTR>(plain.size()) - 1);
            ASSERT_EQ(Counted::alive, static_cast<int>(plain.size()));
        }
    }
    EXPECT_EQ(Counted::alive, 0);
}

TEST(Arrays, TakeElementsAndArraysThatAreTheirOwn)
{
    CArray<CString> array;
    array.Add("a");
    for (int k = 0; k < 20; ++k) {
        array.Add(array[0]);
        array.InsertAt(0, array[array.GetUpperBound()], 2);
        array.SetAtGrow(array.GetSize() + 1, array[0]);
    }
    EXPECT_EQ(array[array.GetUpperBound()], "a");
    CArray<CString> other;
    other.Copy(array);
    const INT_PTR size = array.GetSize();
    EXPECT_EQ(array.Append(array), size);
    array.InsertAt(1, &array);
    EXPECT_EQ(array.GetSize(), 4 * size);
    EXPECT_EQ(array[1], "a");
    EXPECT_EQ(other.GetSize(), size);
    array.Copy(array);
    EXPECT_EQ(array.GetSize(), 4 * size);
    array.RemoveAll();
    EXPECT_TRUE(array.IsEmpty());
    EXPECT_EQ(array.GetData(), nullptr);
}

TEST(Arrays, RefuseIndicesOutside)
{
    CUIntArray array;
    array.SetSize(2);
    EXPECT_EQ(array[1], 0u);
    EXPECT_THROW(array[-1], std::out_of_range);
    EXPECT_THROW(array.GetAt(2), std::out_of_range);
    EXPECT_THROW(array.SetAtGrow(-1, 5), std::out_of_range);
    EXPECT_THROW(array.InsertAt(-1, 5), std::out_of_range);
    EXPECT_THROW(array.InsertAt(0, 5, -1), std::out_of_range);
    EXPECT_THROW(array.RemoveAt(-1), std::out_of_range);
    EXPECT_THROW(array.RemoveAt(0, -1), std::out_of_range);
    EXPECT_THROW(array.SetSize(-1), std::out_of_range);
    EXPECT_EQ(array.GetSize(), 2);
}

TEST(Arrays, OfEveryKindHoldTheirElements)
{
    CStringArray names;
    names.Add("narrow");
    names.Add(L"\x4E2D");
    names.SetAt(0, _T("again"));
    EXPECT_EQ(names[0] + names[1], "again\xD6\xD0");
    CDWordArray numbers;
    numbers.Add(0xFFFFFFFF);
    numbers.Add(2);
    EXPECT_EQ(numbers.GetData()[1], 2u);
    CPtrArray pointers;
    pointers.Add(&names);
    EXPECT_EQ(pointers[0], &names);
    CObArray objects;
    objects.Add(&names);
    EXPECT_EQ(objects[0], &names);
    CByteArray bytes;
    bytes.Add(255);
    CWordArray words;
    words.Add(65535);
    EXPECT_EQ(bytes[0] + words[0], 255 + 65535);
    CArray<bool, bool> truths;
    truths.Add(true);
    bool* const truth = &truths[0];
    *truth = false;
    EXPECT_FALSE(truths.GetAt(0));
}

TEST(Lists, DoWhatAListDoes)
{
    CList<Counted> list;
    list.AddTail(2);
    list.AddHead(1);
    const POSITION three = list.AddTail(3);
    list.InsertBefore(three, 25);
    list.InsertAfter(three, 35);
    std::vector<int> values;
    for (POSITION at = list.GetHeadPosition(); at != nullptr;) {
        values.push_back(list.GetNext(at).value_);
    }
    EXPECT_EQ(values, (std::vector<int> { 1, 2, 25, 3, 35 }));
    values.clear();
    for (POSITION at = list.GetTailPosition(); at != nullptr;) {
        values.push_back(list.GetPrev(at).value_);
    }
    EXPECT_EQ(values, (std::vector<int> { 35, 3, 25, 2, 1 }));
    EXPECT_EQ(list.Find(3), three);
    EXPECT_EQ(list.Find(3, three), nullptr);
    EXPECT_EQ(list.FindIndex(3), three);
    EXPECT_EQ(list.FindIndex(5), nullptr);
    EXPECT_EQ(list.FindIndex(-1), nullptr);
    list.RemoveAt(three);
    list.SetAt(list.FindIndex(2), 26);
    EXPECT_EQ(list.RemoveHead().value_, 1);
    EXPECT_EQ(list.RemoveTail().value_, 35);
    EXPECT_EQ(list.GetHead().value_, 2);
    EXPECT_EQ(list.GetTail().value_, 26);
    list.AddTail(&list);
    list.AddHead(&list);
    EXPECT_EQ(list.GetCount(), 8);
    EXPECT_EQ(list.GetHead().value_, 2);
    EXPECT_EQ(list.GetTail().value_, 26);
    EXPECT_EQ(Counted::alive, 8);
    list.RemoveAll();
    EXPECT_EQ(Counted::alive, 0);
    EXPECT_TRUE(list.IsEmpty());
    EXPECT_THROW(list.RemoveHead(), std::out_of_range);
    EXPECT_THROW(list.GetAt(nullptr), std::out_of_range);
    CStringList names;
    names.AddTail("a");
    names.AddTail(L"\x4E2D");
    EXPECT_NE(names.Find("\xD6\xD0"), nullptr);
}

TEST(Maps, DoWhatAMapDoes)
{
    CMapStringToString names;
    std::map<std::string, std::string> plain;
    for (int k = 0; k < 500; ++k) {
        const std::string key = std::to_string(k * 37 % 101);
        names.SetAt(key.c_str(), std::to_string(k).c_str());
        plain[key] = std::to_string(k);
    }
    names["5"] = "five";
    plain["5"] = "five";
    EXPECT_TRUE(names.RemoveKey("7"));
    EXPECT_FALSE(names.RemoveKey("7"));
    plain.erase("7");
    EXPECT_EQ(names.GetCount(), static_cast<INT_PTR>(plain.size()));
    std::map<std::string, std::string> seen;
    for (POSITION at = names.GetStartPosition(); at != nullptr;) {
        CString key;
        CString value;
        names.GetNextAssoc(at, key, value);
        seen[key.GetString()] = value.GetString();
        if (key == "9") {
            names.RemoveKey(key);
        }
    }
    EXPECT_EQ(seen, plain);
    CString value("unchanged");
    EXPECT_FALSE(names.Lookup("9", value));
    EXPECT_EQ(value, "unchanged");
    EXPECT_TRUE(names.Lookup("5", value));
    EXPECT_EQ(value, "five");
    names.RemoveAll();
    EXPECT_TRUE(names.IsEmpty());
    EXPECT_EQ(names.GetStartPosition(), nullptr);

    CMap<int, int, CString, const CString&> byNumber;
    byNumber[3] = "three";
    byNumber.SetAt(4, L"four");
    EXPECT_EQ(byNumber[3] + byNumber[4], "threefour");
    CMapStringToPtr pointers;
    pointers.SetAt("a", &names);
    EXPECT_EQ(pointers["a"], &names);
    EXPECT_EQ(pointers["b"], nullptr);
}

TEST(Lists, OfPointersDoNotOwnWhatTheyHold)
{
    CWnd object;
    int number = 0;
    CObList objects;
    CPtrList pointers;
    objects.AddTail(&object);
    pointers.AddHead(&number);
    EXPECT_EQ(objects.GetHead(), &object);
    EXPECT_EQ(pointers.RemoveTail(), &number);
    EXPECT_TRUE(pointers.IsEmpty());
    objects.RemoveAll();
    EXPECT_TRUE(objects.IsEmpty());
}

TEST(Maps, OfPointersFindThemByPointerOrWord)
{
    int one = 1;
    int two = 2;
    CMapPtrToPtr byPointer;
    CMapWordToPtr byWord;
    byPointer.SetAt(&one, &two);
    byWord[0xFFFF] = &one;
    void* found = nullptr;
    EXPECT_TRUE(byPointer.Lookup(&one, found));
    EXPECT_EQ(found, &two);
    EXPECT_FALSE(byPointer.Lookup(&two, found));
    EXPECT_TRUE(byWord.Lookup(0xFFFF, found));
    EXPECT_EQ(found, &one);
    EXPECT_FALSE(byWord.RemoveKey(1));
    EXPECT_TRUE(byWord.RemoveKey(0xFFFF));
    EXPECT_TRUE(byWord.IsEmpty());
}

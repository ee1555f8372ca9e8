#include "baselib/io.h"
#include "baselib/string.h"
#include "support/temp_file.h"
#include <cstring>
#include <gtest/gtest.h>
#include <vector>

TEST(CharArr, HoldsItsOwnCopy)
{
    char source[] = "text";
    CharArr text(source);
    source[0] = 'n';
    EXPECT_STREQ(text.TextM(), "text");
    EXPECT_EQ(text.LengthM(), 4U);
    EXPECT_FALSE(text.EmptyM());
    text.SetM(nullptr);
    EXPECT_TRUE(text.EmptyM());
    EXPECT_STREQ(CharArr().TextM(), "");
}

TEST(CharArr, CopiesAreIndependent)
{
    CharArr first("one");
    CharArr second(first);
    CharArr third;
    third = first;
    first.SetM("changed");
    EXPECT_STREQ(second.TextM(), "one");
    EXPECT_STREQ(third.TextM(), "one");
    const CharArr& same = third;
    third = same;
    EXPECT_STREQ(third.TextM(), "one");
}

TEST(CharArr, MayBeSetToAPartOfItself)
{
    CharArr text("abcdef");
    text.SetM(text.TextM() + 2);
    EXPECT_STREQ(text.TextM(), "cdef");
}

TEST(CharArr, TextEndsAtANul)
{
    CharArr text;
    text.SetM("ab\0cd", 5);
    EXPECT_EQ(text.LengthM(), 2U);
    text.SetM("\0", 1);
    EXPECT_TRUE(text.EmptyM());
}

TEST(CharArr, GetIsCutToTheBuffer)
{
    char out[4];
    EXPECT_EQ(CharArr("a\xD6\xD0\xD6\xD0").GetM(out, 4), 1);
    EXPECT_STREQ(out, "a\xD6\xD0");
}

TEST(CharArr, MayBeMovedByBytes)
{
    EXPECT_EQ(sizeof(CharArr), sizeof(void*));
    alignas(CharArr) unsigned char from[sizeof(CharArr)];
    alignas(CharArr) unsigned char to[sizeof(CharArr)];
    new (from) CharArr("moved");
    std::memcpy(to, from, sizeof to);
    CharArr* const moved = reinterpret_cast<CharArr*>(to);
    EXPECT_STREQ(moved->TextM(), "moved");
    moved->~CharArr();
}

TEST(CharArr, TextsOfAPoolOutliveItInAnyOrder)
{
    std::vector<CharArr> texts(3000);
    const auto wanted = [](std::size_t i) { return std::string(i % 700, static_cast<char>('a' + i % 26)); };
    {
        TextPoolCL pool;
        for (std::size_t i = 0; i < texts.size(); ++i) {
            texts[i].SetInM(pool, wanted(i).data(), wanted(i).size());
        }
        texts[7].SetInM(pool, "anew", 4);
    }
    TextPoolCL unused;
    EXPECT_STREQ(texts[7].TextM(), "anew");
    texts[8].SetM(texts[8].TextM() + 1); // A part of itself.
    EXPECT_EQ(texts[8].TextM(), wanted(8).substr(1));
    CharArr moved(std::move(texts[9]));
    EXPECT_STREQ(texts[9].TextM(), "");
    texts[10] = std::move(moved);
    EXPECT_EQ(texts[10].TextM(), wanted(9));
    const CharArr copied(texts[11]);
    for (std::size_t i = 1; i < texts.size(); i += 2) {
        texts[i] = CharArr("other");
    }
    for (std::size_t i = 12; i < texts.size(); i += 2) {
        ASSERT_EQ(texts[i].TextM(), wanted(i));
    }
    texts.clear();
    EXPECT_EQ(copied.TextM(), wanted(11));
}

TEST(String, AddStringSetsTheTextAndKeepsTheTag)
{
    VrStringCL string(AliveTag);
    char out[260];
    EXPECT_NE(string.AddStringM("one"), 0);
    EXPECT_NE(string.AddStringM("two"), 0);
    EXPECT_EQ(string.GetStringM(out), 1);
    EXPECT_STREQ(out, "two");
    EXPECT_TRUE(string.IsAliveM());
    EXPECT_EQ(string.AddStringM(nullptr), 0);
    EXPECT_STREQ(string.TextM(), "two");
    EXPECT_NE(string.AddStringM(""), 0);
    EXPECT_STREQ(string.TextM(), "");
    EXPECT_FALSE(VrStringCL().IsAliveM());
}

TEST(String, LongTextIsHeldWholeAndCutWhenGot)
{
    VrStringCL string;
    string.AddStringM((std::string("a") + std::string(300, '\xD6')).c_str());
    char out[261];
    out[260] = '#';
    string.GetStringM(out);
    EXPECT_EQ(std::strlen(out), 259U);
    EXPECT_EQ(out[260], '#');
    EXPECT_EQ(std::strlen(string.TextM()), 301U);
    string.GetStringM(out, 3);
    EXPECT_STREQ(out, "a");
}

TEST(String, MergedStringIsAliveWithTheOthersText)
{
    VrStringCL from(AliveTag), to;
    from.AddStringM("text");
    to.SetByMergeM(from, 3);
    from.AddStringM("other");
    EXPECT_TRUE(to.IsAliveM());
    EXPECT_STREQ(to.TextM(), "text");
    VrStringCL untouched;
    untouched.SetByMergeM(VrBaseCL(AliveTag), 0);
    EXPECT_FALSE(untouched.IsAliveM());
}

TEST(String, StreamGivesTagAndTextBack)
{
    for (const char* mode : { "", "b" }) {
        const TempFile file;
        const char* const texts[] = { "", " a\n b ", "\xD6\xD0", "31 5" };
        VrIOCL io;
        io.OpenM(file.path(), (std::string("w") + mode).c_str());
        for (const char* text : texts) {
            for (char tag : { AliveTag, DeletedTag }) {
                VrStringCL string(tag);
                string.AddStringM(text);
                string.FmOutputEvrFileM(&io);
            }
        }
        io.OpenM(file.path(), (std::string("r") + mode).c_str());
        for (const char* text : texts) {
            for (char tag : { AliveTag, DeletedTag }) {
                VrStringCL string(tag == AliveTag ? DeletedTag : AliveTag);
                string.FmInputEvrFileM(&io);
                EXPECT_STREQ(string.TextM(), text);
                EXPECT_EQ(string.GetDeleteTagM(), tag);
            }
        }
        EXPECT_EQ(io.BytesLeftM(), 0U);
    }
}

TEST(String, WhatCannotBeReadIsDeletedAndEmpty)
{
    for (const char* bytes : { "", "31", "31 9 abc", "x", "33 1 a" }) {
        const TempFile file(bytes);
        VrIOCL io;
        io.OpenM(file.path(), "r");
        VrStringCL string(AliveTag);
        string.AddStringM("old");
        string.FmInputEvrFileM(&io);
        EXPECT_FALSE(string.IsAliveM()) << bytes;
        EXPECT_STRNE(string.TextM(), "old") << bytes;
    }
}

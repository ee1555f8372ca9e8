#include "toolkit/toolkit.h"
#include <cstdlib>
#include <gtest/gtest.h>
#include <string>
#include <type_traits>

#define ZHONG "\xD6\xD0" // U+4E2D
#define WEN "\xCE\xC4"   // U+6587

namespace {

std::string bytesOf(const CString& text)
{
    return std::string(text.GetString(), static_cast<size_t>(text.GetLength()));
}

} // namespace

TEST(CString, IsMadeFromEveryKindOfText)
{
    EXPECT_EQ(bytesOf(CString()), "");
    EXPECT_EQ(bytesOf(CString("a" ZHONG)), "a" ZHONG);
    EXPECT_EQ(bytesOf(CString("abc", 2)), "ab");
    EXPECT_EQ(bytesOf(CString(std::string("a\0b", 3).data(), 3)), std::string("a\0b", 3));
    EXPECT_EQ(bytesOf(CString(L"a\x4E2D")), "a" ZHONG);
    EXPECT_EQ(bytesOf(CString(L"\x4E2D\x6587", 1)), ZHONG);
    EXPECT_EQ(bytesOf(CString('x', 3)), "xxx");
    EXPECT_EQ(bytesOf(CString('x', -1)), "");
    EXPECT_EQ(bytesOf(CString(L'\x4E2D', 2)), ZHONG ZHONG);
    EXPECT_EQ(bytesOf(CString(reinterpret_cast<const unsigned char*>("abc"))), "abc");
    EXPECT_EQ(bytesOf(CString(nullptr)), "");
    EXPECT_EQ(bytesOf(CString(static_cast<const wchar_t*>(nullptr))), "");
    EXPECT_EQ(bytesOf(CString(_T("abc"))), "abc");
    const CString none = NULL;
    EXPECT_EQ(bytesOf(none), "");
}

TEST(CString, IsAssignedEveryKindOfText)
{
    CString text("before");
    text = "a";
    EXPECT_EQ(bytesOf(text), "a");
    text = L"\x4E2D";
    EXPECT_EQ(bytesOf(text), ZHONG);
    text = 'c';
    EXPECT_EQ(bytesOf(text), "c");
    text = NULL;
    EXPECT_EQ(bytesOf(text), "");
    text.SetString("abc", 2);
    EXPECT_EQ(bytesOf(text), "ab");
    text.SetString(L"\x4E2D");
    EXPECT_EQ(bytesOf(text), ZHONG);
    text.SetString("ab");
    const CString copy(text);
    text.Empty();
    EXPECT_EQ(bytesOf(copy), "ab");
    EXPECT_TRUE(text.IsEmpty());
}

TEST(CString, IsAppendedAndJoinedToEveryKindOfText)
{
    CString text("a");
    text += "b";
    text += L"\x4E2D";
    text += 'c';
    text += L'\x6587';
    text += CString("d");
    text.Append("efg", 2);
    text.AppendChar('!');
    text += static_cast<const char*>(nullptr);
    EXPECT_EQ(bytesOf(text), "ab" ZHONG "c" WEN "def!");
    const CString one("1");
    EXPECT_EQ(bytesOf(one + one), "11");
    EXPECT_EQ(bytesOf(one + "x"), "1x");
    EXPECT_EQ(bytesOf("x" + one), "x1");
    EXPECT_EQ(bytesOf(one + L"\x4E2D"), "1" ZHONG);
    EXPECT_EQ(bytesOf(L"\x4E2D" + one), ZHONG "1");
    EXPECT_EQ(bytesOf(one + 'x'), "1x");
    EXPECT_EQ(bytesOf('x' + one), "x1");
    EXPECT_EQ(bytesOf(one + "a" + 'b' + one), "1ab1");
}

TEST(CString, IsComparedWithEveryKindOfText)
{
    const CString b("b");
    EXPECT_TRUE(b == "b" && "b" == b && b == CString("b") && b == 'b' && 'b' == b && b == L"b" && L"b" == b);
    EXPECT_FALSE(b != "b" || "b" != b || b != CString("b") || b != 'b' || 'b' != b || b != L"b" || L"b" != b);
    EXPECT_TRUE(b < "c" && "a" < b && b < CString("c") && b < 'c' && b < L"c");
    EXPECT_TRUE(b > "a" && "c" > b && b > CString("a") && 'c' > b && L"c" > b);
    EXPECT_TRUE(b <= "b" && "b" <= b && b >= "b" && "b" >= b && b <= CString("b") && b >= CString("b"));
    EXPECT_FALSE(b < "b" || b > "b" || b <= "a" || b >= "c");
    EXPECT_TRUE(CString() == "" && CString() == nullptr);
    EXPECT_TRUE(CString(L"\x4E2D") == ZHONG);
    EXPECT_LT(b.Compare("c"), 0);
    EXPECT_GT(b.Compare("B"), 0);
    EXPECT_EQ(b.CompareNoCase("B"), 0);
    EXPECT_EQ(b.CollateNoCase("B"), 0);
    EXPECT_LT(b.Collate("C"), 0);
    // 0x61 as a second byte is no letter: these two are different characters.
    EXPECT_NE(CString("\xD6\x41").CompareNoCase("\xD6\x61"), 0);
}

TEST(CString, TakesPartsOfItself)
{
    CString text("abcd");
    text = text.Mid(1);
    EXPECT_EQ(bytesOf(text), "bcd");
    text = text.GetString() + 1;
    EXPECT_EQ(bytesOf(text), "cd");
    for (int k = 0; k < 6; ++k) {
        text += text;
    }
    EXPECT_EQ(text.GetLength(), 128);
    EXPECT_EQ(text.Replace("cd", text.GetString() + 126), 64);
    EXPECT_EQ(text.Left(4), "cdcd");
    text = "ab";
    text += text.GetString() + 1;
    EXPECT_EQ(bytesOf(text), "abb");
    EXPECT_EQ(text.Insert(1, text.GetString()), 6);
    EXPECT_EQ(bytesOf(text), "aabbbb");
    CString& same = text;
    text = same;
    EXPECT_EQ(bytesOf(text), "aabbbb");
    text.Trim(text.GetString());
    EXPECT_EQ(bytesOf(text), "");
    text = "x";
    text.Append(text, 1);
    text.SetString(text, 1);
    EXPECT_EQ(bytesOf(text), "x");
}

TEST(CString, BlanksAreTrimmed)
{
    EXPECT_EQ(CString(" \t\r\n a b \v\f").Trim(), "a b");
    EXPECT_EQ(CString("  a ").TrimLeft(), "a ");
    EXPECT_EQ(CString("  a ").TrimRight(), "  a");
    EXPECT_EQ(CString("xxaxx").Trim('x'), "a");
    EXPECT_EQ(CString("xxaxx").TrimLeft('x'), "axx");
    EXPECT_EQ(CString("xxaxx").TrimRight('x'), "xxa");
    EXPECT_EQ(CString(" a ").Trim(static_cast<const char*>(nullptr)), " a ");
    EXPECT_EQ(CString("   ").Trim(), "");
}

TEST(CString, WideTextsAreFoundAndPutIn)
{
    CString text(L"a\x4E2D\x6587");
    EXPECT_EQ(text.Find(L"\x6587"), 3);
    EXPECT_EQ(text.Replace(L"\x6587", L"b"), 1);
    EXPECT_EQ(text.Insert(0, L"\x6587"), 6);
    EXPECT_EQ(text.Insert(6, 'c'), 7);
    EXPECT_TRUE(text
        == L"\x6587"
           L"a\x4E2D"
           L"bc");
    int at = 0;
    EXPECT_EQ(text.Tokenize(L"\x4E2D", at),
        "\xCE\xC4"
        "a");
    EXPECT_EQ(text.SpanIncluding(L"\x6587"
                                 L"a"),
        "\xCE\xC4"
        "a");
    EXPECT_EQ(text.SpanExcluding(L"\x4E2D"),
        "\xCE\xC4"
        "a");
    EXPECT_EQ(CString("a").Collate(L"a"), 0);
    EXPECT_EQ(CString("a").CollateNoCase(L"A"), 0);
    text.Append(L"\x6587");
    EXPECT_EQ(text.Trim(L"\x6587").TrimLeft(L"a").TrimRight(L"c"),
        "\xD6\xD0"
        "b");
}

TEST(CString, GivesItsBytes)
{
    CString text("a" ZHONG);
    EXPECT_EQ(text[0], 'a');
    EXPECT_EQ(text.GetAt(2), '\xD0');
    EXPECT_EQ(text[3], '\0');
    EXPECT_EQ(text.GetAt(-1), '\0');
    EXPECT_EQ(text.GetAt(100), '\0');
    text.SetAt(0, 'b');
    text.SetAt(3, 'x');
    text.SetAt(-1, 'x');
    EXPECT_EQ(bytesOf(text), "b" ZHONG);
    EXPECT_EQ(std::wstring(CStringW(text)), L"b\x4E2D");
    EXPECT_EQ(CStringW(text).GetLength(), 2);
}

TEST(CString, GivesARoomToWriteIn)
{
    CString text("ab");
    char* room = text.GetBuffer(10);
    strcpy(room, "abcde");
    text.ReleaseBuffer();
    EXPECT_EQ(bytesOf(text), "abcde");
    text.GetBuffer()[0] = 'x';
    EXPECT_EQ(bytesOf(text), "xbcde");
    text.ReleaseBufferSetLength(2);
    EXPECT_EQ(bytesOf(text), "xb");
    memcpy(text.GetBufferSetLength(4), "1234", 4);
    EXPECT_EQ(bytesOf(text), "1234");
    memcpy(text.GetBufferSetLength(2), "56", 2);
    EXPECT_EQ(bytesOf(text), "56");
    text.LockBuffer()[1] = '7';
    text.UnlockBuffer();
    text.Preallocate(100);
    EXPECT_GE(text.GetAllocLength(), 100);
    text.FreeExtra();
    EXPECT_EQ(bytesOf(text), "57");
    text = "a" ZHONG;
    text.Truncate(2);
    EXPECT_EQ(bytesOf(text), "a");
}

TEST(CString, IsLoadedFromAStringTable)
{
    CString text("before");
    EXPECT_FALSE(text.LoadString(4711));
    EXPECT_EQ(bytesOf(text), "before");
    EXPECT_TRUE(text.LoadString(1002));
    EXPECT_EQ(bytesOf(text), ZHONG WEN);
    EXPECT_EQ(bytesOf(CString(MAKEINTRESOURCEA(1002))), ZHONG WEN);
    EXPECT_EQ(bytesOf(CString(MAKEINTRESOURCEA(4711))), "");
    AfxFormatString2(text, 1003, "x", "y");
    EXPECT_EQ(bytesOf(text), "x and y and x%3");
    AfxFormatString2(text, 1003, L"\x4E2D", L"y");
    EXPECT_EQ(bytesOf(text), ZHONG " and y and " ZHONG "%3");
    AfxFormatString1(text, 1003, "x");
    EXPECT_EQ(bytesOf(text), "x and %2 and x%3");
}

TEST(CString, IsReadFromTheEnvironment)
{
    ASSERT_TRUE(::SetEnvironmentVariableW(L"PANELKIT_CSTRING", L"\x4E2D"));
    CString text;
    EXPECT_TRUE(text.GetEnvironmentVariable("PANELKIT_CSTRING"));
    EXPECT_EQ(bytesOf(text), ZHONG);
    EXPECT_FALSE(text.GetEnvironmentVariable("PANELKIT_NO_SUCH_NAME"));
    EXPECT_TRUE(text.IsEmpty());
}

// Objects that hold one are moved by their bytes.
TEST(CString, MayBeMovedByItsBytes)
{
    alignas(CString) char from[sizeof(CString)];
    alignas(CString) char to[sizeof(CString)];
    new (from) CString("short");
    memcpy(to, from, sizeof from);
    memset(from, 0xEE, sizeof from);
    CString* moved = reinterpret_cast<CString*>(to);
    *moved += " and long enough for the heap";
    EXPECT_EQ(bytesOf(*moved), "short and long enough for the heap");
    moved->~CString();
}

// Sources written for these classes.
TEST(TextNames, AreNarrow)
{
    static_assert(std::is_same<LPCTSTR, const char*>::value, "");
    static_assert(std::is_same<LPTSTR, char*>::value, "");
    TCHAR room[16] = _T("abc");
    EXPECT_EQ(_tcslen(room), 3u);
    LPCTSTR text = _TEXT("abc");
    EXPECT_EQ(_tcscmp(room, text), 0);
    EXPECT_EQ(_ttoi(_T("12")), 12);
}

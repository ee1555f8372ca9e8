// The suite runs at code page 1252 and parts of it once more at 936: this proves that both are so.
#include <cstdlib>
#include <gtest/gtest.h>
#include <windows.h>

TEST(Codepage, SystemHasTheCodePageThatTheRunAsksFor)
{
    const char* wanted = std::getenv("PANELKIT_CODEPAGE");
    ASSERT_NE(wanted, nullptr);
    EXPECT_EQ(GetACP(), static_cast<UINT>(std::atoi(wanted)));
    WCHAR wide[2] = {};
    // "字" in GBK; at 1252 the same bytes are two characters.
    EXPECT_EQ(MultiByteToWideChar(CP_ACP, 0, "\xd7\xd6", 2, wide, 2), std::atoi(wanted) == 936 ? 1 : 2);
}

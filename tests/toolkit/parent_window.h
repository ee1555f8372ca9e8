#pragma once
#include "toolkit/toolkit.h"

// A window without a frame to hold the controls under test.
class ParentWindowCL : public CWnd
{
public:
    ParentWindowCL()
    {
        CreateEx(0, nullptr, "parent", WS_POPUP | WS_VISIBLE, 50, 50, 400, 300, nullptr, nullptr);
    }
};

const char ChineseText[] = "\xD6\xD0\xCE\xC4"; // 中文
const wchar_t ChineseWide[] = L"\u4E2D\u6587";
const RECT Place = { 10, 10, 210, 160 };

#pragma once
#include "dialog/basic_dialog.h"
#include "support/description.h"

// Ids of the children from the top of the stacking order down.
inline std::string stackOf(HWND parent)
{
    std::string ids;
    for (HWND child = ::GetWindow(parent, GW_CHILD); child != nullptr;
         child = ::GetWindow(child, GW_HWNDNEXT)) {
        ids += (ids.empty() ? "" : " ") + std::to_string(::GetDlgCtrlID(child));
    }
    return ids;
}

// The dialog of a description (UTF-8), built in mode 1. Its window exists, not yet shown, until the object
// goes.
class TestDialogCL : public DuBasicDialogCL
{
public:
    explicit TestDialogCL(const std::string& utf8)
        : file_(utf8)
    {
        SetConfigFileM(file_.path());
        CreateM();
    }

    const char* PathM() const { return file_.path(); }

    // The child window with that id, null if there is none.
    HWND ItemM(int id) const { return ::GetDlgItem(m_hWnd, id); }

    std::string StackM() const { return stackOf(m_hWnd); }

private:
    DescriptionFileCL file_;
};

// A plain top-level window of the test: a parent that no library code restyles or fills.
class PlainWindowCL : public CWnd
{
public:
    explicit PlainWindowCL(int width = 400, int height = 300)
    {
        CreateEx(0, "Static", "plain", WS_POPUP | WS_VISIBLE, 50, 40, width, height, nullptr, nullptr);
    }
};

inline int childrenOf(HWND window)
{
    int count = 0;
    for (HWND child = ::GetWindow(window, GW_CHILD); child != nullptr;
         child = ::GetWindow(child, GW_HWNDNEXT)) {
        ++count;
    }
    return count;
}

inline std::string textOf(HWND window)
{
    wchar_t text[600] = L"";
    const int length = ::GetWindowTextW(window, text, 600);
    return slGbkToUtf8(slWideToGbk(std::wstring(text, static_cast<size_t>(length))).c_str());
}

inline DWORD styleOf(HWND window)
{
    return static_cast<DWORD>(::GetWindowLongW(window, GWL_STYLE));
}
inline DWORD exStyleOf(HWND window)
{
    return static_cast<DWORD>(::GetWindowLongW(window, GWL_EXSTYLE));
}

// The window rectangle as left, top, width, height in the client coordinates of the parent.
inline std::string placeOf(HWND window)
{
    RECT rect {};
    ::GetWindowRect(window, &rect);
    ::MapWindowPoints(nullptr, ::GetParent(window), reinterpret_cast<POINT*>(&rect), 2);
    return std::to_string(rect.left) + " " + std::to_string(rect.top) + " "
        + std::to_string(rect.right - rect.left) + " " + std::to_string(rect.bottom - rect.top);
}

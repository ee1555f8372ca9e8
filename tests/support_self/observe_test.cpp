// That the observers see what they are made for.
#include "support/all.h"
#include <gtest/gtest.h>

using namespace testing_support;

namespace {

constexpr UINT Posted = WM_USER + 400;
constexpr UINT Sent = WM_USER + 401;

// A dialog without a resource: one edit, OK and a title.
std::vector<WORD> dialogTemplate()
{
    std::vector<WORD> words;
    const auto put
        = [&words](DWORD value) { words.push_back(LOWORD(value)), words.push_back(HIWORD(value)); };
    const auto item = [&](DWORD style, short x, short y, short width, short height, WORD id, WORD type) {
        while (words.size() % 2) {
            words.push_back(0);
        }
        put(WS_CHILD | WS_VISIBLE | WS_TABSTOP | style);
        put(0);
        words.insert(words.end(), { WORD(x), WORD(y), WORD(width), WORD(height), id, 0xffff, type, 0, 0 });
    };
    put(WS_POPUP | WS_VISIBLE | WS_CAPTION);
    put(0);
    words.insert(words.end(), { 2, 20, 20, 120, 60, 0, 0, L'D', 0 });
    item(ES_AUTOHSCROLL, 5, 5, 80, 12, 10, 0x81);
    item(BS_DEFPUSHBUTTON, 5, 25, 50, 14, IDOK, 0x80);
    return words;
}

wchar_t typed[50];

INT_PTR CALLBACK dialogProcedure(HWND dialog, UINT message, WPARAM wParam, LPARAM)
{
    if (message == WM_COMMAND && LOWORD(wParam) == IDOK) {
        GetDlgItemTextW(dialog, 10, typed, 50);
        EndDialog(dialog, IDOK);
        return TRUE;
    }
    return message == WM_INITDIALOG;
}

} // namespace

TEST(Pump, GivesUpAtTheDeadline)
{
    const ULONGLONG before = GetTickCount64();
    EXPECT_FALSE(PumpUntil([] { return false; }, 50));
    EXPECT_GE(GetTickCount64() - before, 50u);
    EXPECT_TRUE(PumpUntil([] { return true; }, 0));
}

TEST(MessageBoxWatcher, NotesAndAnswersABoxWithAnIcon)
{
    PlainWindow window;
    MessageBoxWatcher watcher;
    EXPECT_EQ(
        MessageBoxW(window.HandleM(), L"数值 out of range", L"Caption", MB_OK | MB_ICONEXCLAMATION), IDOK);
    ASSERT_EQ(watcher.SeenM().size(), 1u);
    const MessageBoxSeen seen = watcher.SeenM().front();
    EXPECT_EQ(seen.text, L"数值 out of range");
    EXPECT_EQ(seen.caption, L"Caption");
    EXPECT_EQ(seen.icon, static_cast<UINT>(MB_ICONEXCLAMATION));
    EXPECT_EQ(seen.owner, window.HandleM());
    EXPECT_EQ(seen.buttons, 1);
}

TEST(MessageBoxWatcher, TellsBoxesApart)
{
    MessageBoxWatcher watcher(IDNO);
    EXPECT_EQ(MessageBoxW(nullptr, L"plain", L"", MB_OK), IDOK);
    EXPECT_EQ(MessageBoxW(nullptr, L"?", L"b", MB_YESNO | MB_ICONQUESTION), IDNO);
    EXPECT_EQ(MessageBoxW(nullptr, L"same", L"", MB_OK | MB_ICONHAND), IDOK);
    EXPECT_EQ(MessageBoxW(nullptr, L"same", L"", MB_OK | MB_ICONASTERISK), IDOK);
    const auto seen = watcher.SeenM();
    ASSERT_EQ(seen.size(), 4u);
    EXPECT_EQ(seen[0].icon, 0u);
    EXPECT_EQ(seen[0].owner, nullptr);
    EXPECT_EQ(seen[1].icon, static_cast<UINT>(MB_ICONQUESTION));
    EXPECT_EQ(seen[1].buttons, 2);
    EXPECT_EQ(seen[2].icon, static_cast<UINT>(MB_ICONHAND));
    EXPECT_EQ(seen[3].icon, static_cast<UINT>(MB_ICONASTERISK));
}

TEST(MessageBoxWatcher, LeavesOtherDialogsAlone)
{
    MessageBoxWatcher watcher;
    const auto bytes = dialogTemplate();
    HWND dialog = CreateDialogIndirectParamW(GetModuleHandleW(nullptr),
        reinterpret_cast<LPCDLGTEMPLATEW>(bytes.data()), nullptr, dialogProcedure, 0);
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(MessageBoxW(dialog, L"only this", L"", MB_OK), IDOK);
    EXPECT_EQ(watcher.SeenM().size(), 1u);
    EXPECT_TRUE(IsWindow(dialog));
    DestroyWindow(dialog);
}

TEST(Script, DrivesAModalDialogWithRealInput)
{
    typed[0] = 0;
    const auto bytes = dialogTemplate();
    HWND dialog = nullptr;
    Script script([&] { EndDialog(dialog, -2); });
    script
        .WaitM([&] { return (dialog = FindWindowW(L"#32770", L"D")) && GetForegroundWindow() == dialog; },
            "the dialog")
        .DoM([&] { ClickM(GetDlgItem(dialog, 10), 5, 5); })
        .WaitM([&] { return GetFocus() == GetDlgItem(dialog, 10); }, "the focus")
        .DoM([] { TypeM(L"42"); })
        .DoM([] { KeyM(VK_TAB); })
        .WaitM([&] { return GetFocus() == GetDlgItem(dialog, IDOK); }, "the focus on OK")
        .DoM([] { KeyM(VK_RETURN); });
    EXPECT_EQ(DialogBoxIndirectParamW(GetModuleHandleW(nullptr),
                  reinterpret_cast<LPCDLGTEMPLATEW>(bytes.data()), nullptr, dialogProcedure, 0),
        IDOK);
    EXPECT_STREQ(typed, L"42");
    EXPECT_TRUE(script.DoneM());
}

TEST(MessageRecorder, TellsPostedFromSent)
{
    PlainWindow window;
    MessageRecorder recorder(window.HandleM());
    PostMessageW(window.HandleM(), Posted, 7, -1);
    SendMessageW(window.HandleM(), Sent, 8, 2);
    PumpPending();
    EXPECT_EQ(recorder.ListM(), (std::vector<std::string> { "sent 1425 w=8 l=2", "posted 1424 w=7 l=-1" }));
    recorder.ClearM();
    PostMessageW(window.HandleM(), Posted, 0, 0);
    PostMessageW(window.HandleM(), Sent, 0, 0);
    PumpPending();
    SendMessageW(window.HandleM(), Sent, 0, 0);
    EXPECT_EQ(recorder.ListM(),
        (std::vector<std::string> { "posted 1424 w=0 l=0", "posted 1425 w=0 l=0", "sent 1425 w=0 l=0" }));
}

TEST(Pixels, ReadsWhatStandsOnTheWindow)
{
    PlainWindow window(60, 40);
    HDC dc = GetDC(window.HandleM());
    const RECT square = { 10, 5, 20, 15 };
    HBRUSH brush = CreateSolidBrush(RGB(200, 100, 50));
    FillRect(dc, &square, brush);
    DeleteObject(brush);
    ReleaseDC(window.HandleM(), dc);
    const Pixels pixels(window.HandleM());
    EXPECT_EQ(pixels.WidthM(), 60);
    EXPECT_EQ(pixels.HeightM(), 40);
    EXPECT_EQ(pixels.AtM(10, 5), RGB(200, 100, 50));
    EXPECT_EQ(pixels.AtM(9, 5), GetSysColor(COLOR_BTNFACE));
    EXPECT_EQ(pixels.AtM(60, 0), CLR_INVALID);
    EXPECT_EQ(pixels.CountM(RGB(200, 100, 50)), 100);
    InvalidateRect(window.HandleM(), nullptr, TRUE);
    PumpPending();
    EXPECT_EQ(pixels.DifferencesM(Pixels(window.HandleM())), 100);
}

TEST(Pixels, SavesAPng)
{
    PlainWindow window(60, 40);
    wchar_t path[MAX_PATH + 20];
    GetTempPathW(MAX_PATH, path);
    wcscat(path, L"panelkit_pixels.png");
    DeleteFileW(path);
    EXPECT_TRUE(Pixels(window.HandleM()).SavePngM(path));
    WIN32_FILE_ATTRIBUTE_DATA data = {};
    ASSERT_TRUE(GetFileAttributesExW(path, GetFileExInfoStandard, &data));
    EXPECT_GT(data.nFileSizeLow, 60u);
    DeleteFileW(path);
}

TEST(Handles, CountsWindows)
{
    const int before = LiveWindowsM();
    {
        PlainWindow window;
        window.AddM(L"Button", L"", 0, { 0, 0, 5, 5 }, 1);
        HWND hidden
            = CreateWindowExW(0, L"Static", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
        EXPECT_EQ(LiveWindowsM(), before + 3) << testing::PrintToString(LiveWindowClassesM());
        DestroyWindow(hidden);
    }
    EXPECT_EQ(LiveWindowsM(), before);
}

TEST(Handles, CountsGdiObjects)
{
    const int before = LiveGdiObjectsM();
    EXPECT_GT(before, 0);
    std::vector<HGDIOBJ> objects;
    for (int i = 0; i < 100; ++i) {
        objects.push_back(CreateSolidBrush(RGB(i, i, 1)));
    }
    objects.push_back(CreatePen(PS_SOLID, 1, 0));
    objects.push_back(CreateRectRgn(0, 0, 1, 1));
    objects.push_back(CreateBitmap(4, 4, 1, 1, nullptr));
    HDC dc = CreateCompatibleDC(nullptr);
    EXPECT_GE(LiveGdiObjectsM(), before + 104);
    EXPECT_LE(LiveGdiObjectsM(), before + 106) << "a device context may keep objects of its own";
    DeleteDC(dc);
    for (HGDIOBJ object : objects) {
        DeleteObject(object);
    }
    EXPECT_LE(LiveGdiObjectsM(), before + 2);
}

TEST(Handles, CountsTheHeap)
{
    const HeapUse before = LiveHeapM();
    std::vector<char*> blocks(300);
    for (char*& block : blocks) {
        block = new char[1000];
    }
    const HeapUse during = LiveHeapM();
    EXPECT_GE(during.bytes, before.bytes + 300000);
    EXPECT_GE(during.blocks, before.blocks + 300);
    for (char* block : blocks) {
        delete[] block;
    }
    blocks = std::vector<char*>();
    EXPECT_LE(LiveHeapM().bytes, before.bytes + 2000);
}

// Dialogs at other scales than their files', and dialogs that change their scale while they are used.
#include "baselib/scale.h"
#include "support/description_files.h"
#include "support/pixels.h"
#include "support/shown_dialog.h"
#include "support/small_picture.h"
#include <filesystem>
#include <map>

using namespace testing_support;

namespace {

constexpr int Scales[] = { 125, 150, 175, 200, 300 };
constexpr UINT DpiChanged = 0x02E0;

// Pictures are found from the current folder.
class FolderCL
{
public:
    explicit FolderCL(const std::filesystem::path& folder)
        : before_(std::filesystem::current_path())
    {
        std::filesystem::current_path(folder);
    }
    FolderCL(const FolderCL&) = delete;
    FolderCL& operator=(const FolderCL&) = delete;
    ~FolderCL() { std::filesystem::current_path(before_); }

private:
    std::filesystem::path before_;
};

class ScaledDialogCL : public DuBasicDialogCL
{
public:
    explicit ScaledDialogCL(const std::string& path, int percent = -1)
    {
        SetConfigFileM(path.c_str());
        if (percent >= 0) {
            EXPECT_EQ(SetScaleM(percent), 1);
        }
        CreateM();
    }
};

int fontHeight(HWND window)
{
    LOGFONTW font {};
    ::GetObjectW(reinterpret_cast<HFONT>(::SendMessageW(window, WM_GETFONT, 0, 0)), sizeof font, &font);
    return static_cast<int>(font.lfHeight);
}

RECT rectIn(HWND window, HWND parent)
{
    RECT rect {};
    ::GetWindowRect(window, &rect);
    ::MapWindowPoints(nullptr, parent, reinterpret_cast<POINT*>(&rect), 2);
    return rect;
}

// All that the scale changes of the windows.
std::string seen(HWND dialog)
{
    RECT rect {};
    ::GetWindowRect(dialog, &rect);
    std::string all = std::to_string(rect.right - rect.left) + "x" + std::to_string(rect.bottom - rect.top);
    for (HWND child = ::GetWindow(dialog, GW_CHILD); child != nullptr;
         child = ::GetWindow(child, GW_HWNDNEXT)) {
        CWnd* const object = CWnd::FromHandlePermanent(child);
        all += "\n" + std::to_string(::GetDlgCtrlID(child)) + ": " + placeOf(child) + " font "
            + std::to_string(fontHeight(child));
        if (dynamic_cast<CListBox*>(object) != nullptr) {
            all += " lines " + std::to_string(::SendMessageW(child, LB_GETITEMHEIGHT, 0, 0));
        } else if (auto* const table = dynamic_cast<CListCtrl*>(object)) {
            all += " columns " + std::to_string(table->GetColumnWidth(0)) + " "
                + std::to_string(table->GetColumnWidth(1));
        } else if (auto* const tree = dynamic_cast<DuTreeCL*>(object)) {
            IMAGEINFO image {};
            tree->ImagesM().GetImageInfo(0, &image);
            all += " images " + std::to_string(tree->ImagesM().GetImageCount()) + " of "
                + std::to_string(image.rcImage.right - image.rcImage.left) + " line "
                + std::to_string(::SendMessageW(child, TVM_GETITEMHEIGHT, 0, 0));
        }
    }
    return all;
}

bool fits(HWND window, int taken)
{
    RECT client {};
    ::GetClientRect(window, &client);
    const HDC dc = ::GetDC(window);
    const auto font = reinterpret_cast<HFONT>(::SendMessageW(window, WM_GETFONT, 0, 0));
    const HGDIOBJ before = ::SelectObject(dc, font);
    wchar_t text[600] = L"";
    ::GetWindowTextW(window, text, 600);
    RECT needed { 0, 0, client.right - taken, 0 };
    ::DrawTextW(dc, text, -1, &needed, DT_CALCRECT | (taken == 0 ? DT_WORDBREAK : DT_SINGLELINE));
    ::SelectObject(dc, before);
    ::ReleaseDC(window, dc);
    return needed.right <= client.right - taken && needed.bottom <= client.bottom;
}

// The captions, by their place among the children, that are whole.
std::set<int> wholeCaptions(HWND dialog)
{
    std::set<int> whole;
    int number = 0;
    for (HWND child = ::GetWindow(dialog, GW_CHILD); child != nullptr;
         child = ::GetWindow(child, GW_HWNDNEXT), ++number) {
        CWnd* const object = CWnd::FromHandlePermanent(child);
        const bool isLabel = dynamic_cast<DuLabelCL*>(object) != nullptr;
        const bool hasBox = dynamic_cast<DuRadioBoxCL*>(object) != nullptr
            || dynamic_cast<DuCheckBoxCL*>(object) != nullptr;
        if ((isLabel || dynamic_cast<CButton*>(object) != nullptr)
            && fits(child,
                isLabel      ? 0
                    : hasBox ? 18
                             : 6)) {
            whole.insert(number);
        }
    }
    return whole;
}

std::vector<std::string> files()
{
    std::vector<std::string> all = descriptionFiles(PANELKIT_EXAMPLES);
    all.emplace_back(PANELKIT_SAMPLES "/every_kind.dlg");
    return all;
}

// What a user types into, checks, selects and scrolls.
std::string usedDialog()
{
    std::string lines = "[文本列表框初始值]\n30\n0\n";
    for (int i = 0; i < 30; ++i) {
        lines += "15 line\n";
    }
    return std::string(HeaderSections)
        + "[单行文本]\n2\n0\n1 11 20 20 101 25 1 0 100 0 0 1 5 0 1 255 255 255\n"
          "2 12 140 20 101 25 1 0 100 0 0 1 6 0 1 255 255 255\n"
          "[多选按钮]\n1\n0\n3 13 20 60 101 25 0\ncheck\n[标准按钮]\n1\n0\n4 14 20 100 101 25\nok\n0\n"
          "[文本列表框]\n1\n0\n5 15 140 60 101 81 16 1 1 255 255 255 0\n"
        + lines;
}

} // namespace

TEST(ScaledDialog, OneHundredPercentIsWhatTheFileSays)
{
    for (const std::string& file : files()) {
        const FolderCL folder(std::filesystem::path(file).parent_path());
        ScaledDialogCL plain(file);
        ScaledDialogCL scaled(file, 100);
        EXPECT_EQ(seen(scaled), seen(plain)) << file;
        EXPECT_EQ(plain.ScaleM(), 100);
    }
}

TEST(ScaledDialog, EdgesAndTheClientAreaAreScaledAndCaptionsStayWhole)
{
    for (const std::string& file : files()) {
        const FolderCL folder(std::filesystem::path(file).parent_path());
        ScaledDialogCL plain(file);
        RECT client {};
        plain.GetClientRect(&client);
        const std::set<int> wholeBefore = wholeCaptions(plain);
        for (const int percent : Scales) {
            const ScaleCL scale(percent);
            ScaledDialogCL scaled(file, percent);
            EXPECT_EQ(scaled.ScaleM(), percent);
            RECT now {};
            scaled.GetClientRect(&now);
            EXPECT_EQ(now.right, scale.PlaceM(client.right)) << file << ' ' << percent;
            EXPECT_EQ(now.bottom, scale.PlaceM(client.bottom)) << file << ' ' << percent;
            HWND before = ::GetWindow(plain.m_hWnd, GW_CHILD);
            for (HWND child = ::GetWindow(scaled.m_hWnd, GW_CHILD); child != nullptr && before != nullptr;
                 child = ::GetWindow(child, GW_HWNDNEXT), before = ::GetWindow(before, GW_HWNDNEXT)) {
                CWnd* const object = CWnd::FromHandlePermanent(child);
                const RECT then = rectIn(before, plain);
                const RECT rect = rectIn(child, scaled);
                // Arrows overlap their field by what the platform's edges have.
                const bool isJoined = dynamic_cast<DuSpinEditCL*>(object) != nullptr
                    || dynamic_cast<DuSpinButtonCL*>(object) != nullptr;
                const bool isCombo = dynamic_cast<CComboBox*>(object) != nullptr;
                const std::string where
                    = file + " " + std::to_string(percent) + " " + std::to_string(::GetDlgCtrlID(child));
                if (!isJoined) {
                    EXPECT_EQ(rect.left, scale.PlaceM(then.left)) << where;
                    EXPECT_EQ(rect.top, scale.PlaceM(then.top)) << where;
                    EXPECT_EQ(rect.right, scale.PlaceM(then.right)) << where;
                }
                if (!isJoined && !isCombo) { // That of a combo box comes of its font.
                    EXPECT_EQ(rect.bottom, scale.PlaceM(then.bottom)) << where;
                }
            }
            const std::set<int> wholeNow = wholeCaptions(scaled);
            for (const int number : wholeBefore) {
                EXPECT_EQ(wholeNow.count(number), 1U) << file << ' ' << percent << ' ' << number;
            }
        }
    }
}

TEST(ScaledDialog, TextsThatJustFitStayWholeInASmallerFont)
{
    int smaller = 0;
    for (const int height : { 9, 10, 11, 13 }) {
        std::string text = HeaderSections;
        text.replace(text.find("\n14 "), 4, "\n" + std::to_string(height) + " ");
        text += "[标题]\n24\n0\n";
        for (int i = 0; i < 24; ++i) { // Of widths at which the words stand in two lines or no longer.
            text += "1 " + std::to_string(11 + i) + " " + std::to_string(i % 4 * 100) + " "
                + std::to_string(i / 4 * 42) + " " + std::to_string(4 * height + 2 * i) + " "
                + std::to_string(5 * height / 2) + " 1\nwords in a row\n0 255 255 255\n";
        }
        const DescriptionFileCL file(text);
        ScaledDialogCL plain(file.path());
        const std::set<int> wholeBefore = wholeCaptions(plain);
        EXPECT_GT(wholeBefore.size(), 5U) << height;
        for (const int percent : { 125, 150, 175 }) {
            ScaledDialogCL scaled(file.path(), percent);
            const std::set<int> wholeNow = wholeCaptions(scaled);
            for (const int number : wholeBefore) {
                EXPECT_EQ(wholeNow.count(number), 1U) << height << ' ' << percent << ' ' << number;
            }
            const int font = -fontHeight(scaled.GetDlgItem(11)->m_hWnd);
            EXPECT_LE(font, ScaleCL(percent).SizeM(height));
            smaller += font < ScaleCL(percent).SizeM(height) ? 1 : 0;
        }
    }
    EXPECT_GT(smaller, 0);
}

TEST(ScaledDialog, AFontWithoutAHeightIsThatOfTheSystemScaled)
{
    std::string text = std::string(HeaderSections) + "[标准按钮]\n1\n0\n4 14 20 100 101 25\nok\n0\n";
    text.replace(text.find("\n14 "), 4, "\n0 ");
    const DescriptionFileCL file(text);
    const auto heightOfLetters = [](HWND window) {
        const HDC dc = ::GetDC(window);
        const HGDIOBJ before
            = ::SelectObject(dc, reinterpret_cast<HFONT>(::SendMessageW(window, WM_GETFONT, 0, 0)));
        TEXTMETRICW metrics {};
        ::GetTextMetricsW(dc, &metrics);
        ::SelectObject(dc, before);
        ::ReleaseDC(window, dc);
        return static_cast<int>(metrics.tmHeight - metrics.tmInternalLeading);
    };
    ScaledDialogCL plain(file.path());
    ScaledDialogCL scaled(file.path(), 200);
    EXPECT_EQ(fontHeight(plain.GetDlgItem(14)->m_hWnd), 0);
    EXPECT_EQ(fontHeight(scaled.GetDlgItem(14)->m_hWnd), -2 * heightOfLetters(plain.GetDlgItem(14)->m_hWnd));
}

TEST(ScaledDialog, ATreeHasTheFontOfTheSystemScaled)
{
    LOGFONTW system {};
    ASSERT_TRUE(::SystemParametersInfoW(SPI_GETICONTITLELOGFONT, sizeof system, &system, 0));
    TestDialogCL dialog(std::string(HeaderSections)
        + "[树形控件]\n1\n0\n1 24 10 10 90 60\n[树形控件数据]\n1\n0\n24 0 1 501 root\nNULL\nNULL\n");
    const int before = fontHeight(dialog.ItemM(24));
    for (const int percent : { 200, 150 }) {
        EXPECT_EQ(dialog.SetScaleM(percent), 1);
        EXPECT_EQ(fontHeight(dialog.ItemM(24)), ScaleCL(percent).SizeM(static_cast<int>(system.lfHeight)));
    }
    EXPECT_EQ(dialog.SetScaleM(100), 1);
    EXPECT_EQ(fontHeight(dialog.ItemM(24)), before != 0 ? before : static_cast<int>(system.lfHeight));
}

TEST(ScaledDialog, OneThatChangesIsLikeOneBuiltAtThatScale)
{
    for (const std::string& file : files()) {
        const FolderCL folder(std::filesystem::path(file).parent_path());
        ScaledDialogCL dialog(file);
        const std::string before = seen(dialog);
        for (const int percent : { 150, 125 }) {
            EXPECT_EQ(dialog.SetScaleM(percent), 1);
            ScaledDialogCL anew(file, percent);
            EXPECT_EQ(seen(dialog), seen(anew)) << file << ' ' << percent;
        }
        EXPECT_EQ(dialog.SetScaleM(100), 1);
        EXPECT_EQ(seen(dialog), before) << file;
    }
}

TEST(ScaledDialog, OtherNumbersAreRefused)
{
    TestDialogCL dialog(usedDialog());
    const std::string before = seen(dialog);
    for (const int percent : { -1, 1, 49, 801, INT_MAX, INT_MIN }) {
        EXPECT_EQ(dialog.SetScaleM(percent), 0) << percent;
    }
    EXPECT_EQ(seen(dialog), before);
    EXPECT_EQ(dialog.ScaleM(), 100);
}

TEST(ScaledDialog, MovedToAnotherMonitorItKeepsWhatTheUserIsDoing)
{
    ShownDialogCL dialog(usedDialog());
    ASSERT_EQ(dialog.SetScaleM(DuBasicDialogCL::AutomaticScale), 1);
    EXPECT_EQ(dialog.ScaleM(), 100);
    ::SendMessageW(dialog.ItemM(15), LB_SETCURSEL, 12, 0);
    ::SendMessageW(dialog.ItemM(15), LB_SETTOPINDEX, 10, 0);
    dialog.ClickItemM(13);
    dialog.StartAtM(11);
    ChordM(VK_CONTROL, 'A');
    TypeM(L"12-"); // No number yet.
    KeyM(VK_LEFT); // The caret is before the sign.
    const HWND field = dialog.ItemM(11);
    dialog.StoryM();

    RECT place {};
    dialog.GetWindowRect(&place);
    RECT client {};
    dialog.GetClientRect(&client);
    SIZE wanted {};
    EXPECT_EQ(dialog.SendMessage(0x02E4, 144, reinterpret_cast<LPARAM>(&wanted)), TRUE);
    RECT suggested { place.left + 30, place.top + 20, place.left + 30 + wanted.cx,
        place.top + 20 + wanted.cy };
    dialog.SendMessage(DpiChanged, MAKEWPARAM(144, 144), reinterpret_cast<LPARAM>(&suggested));

    EXPECT_EQ(dialog.StoryM(), "");
    EXPECT_EQ(dialog.ScaleM(), 150);
    RECT now {};
    dialog.GetWindowRect(&now);
    EXPECT_EQ(now.left, suggested.left); // Its size has the frame of this system's only monitor.
    EXPECT_EQ(now.top, suggested.top);
    RECT nowClient {};
    dialog.GetClientRect(&nowClient);
    EXPECT_EQ(nowClient.right, ScaleCL(150).PlaceM(client.right));
    EXPECT_EQ(nowClient.bottom, ScaleCL(150).PlaceM(client.bottom));
    EXPECT_EQ(placeOf(field), "30 30 152 38");
    EXPECT_EQ(dialog.ItemM(11), field);
    EXPECT_EQ(::GetFocus(), field);
    EXPECT_EQ(textOf(field), "12-");
    DWORD from = 9;
    DWORD to = 9;
    ::SendMessageW(field, EM_GETSEL, reinterpret_cast<WPARAM>(&from), reinterpret_cast<LPARAM>(&to));
    EXPECT_EQ(from, 2U);
    EXPECT_EQ(to, 2U);
    EXPECT_EQ(::SendMessageW(dialog.ItemM(15), LB_GETCURSEL, 0, 0), 12);
    EXPECT_EQ(::SendMessageW(dialog.ItemM(15), LB_GETTOPINDEX, 0, 0), 10);
    EXPECT_EQ(dialog.ValuesM().CheckedM(13), true);

    KeyM(VK_DELETE); // What was half typed is finished.
    EXPECT_EQ(textOf(field), "12");
    dialog.SendMessage(DpiChanged, MAKEWPARAM(96, 96), reinterpret_cast<LPARAM>(&place));
    dialog.GetWindowRect(&now);
    EXPECT_TRUE(::EqualRect(&now, &place));
    EXPECT_EQ(dialog.ValuesM().IntM(11), 12);
}

TEST(ScaledDialog, WhatTheApplicationHasMovedStaysInProportion)
{
    TestDialogCL dialog(usedDialog());
    ::SetWindowPos(dialog.ItemM(12), nullptr, 200, 180, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    dialog.SetScaleM(200);
    EXPECT_EQ(placeOf(dialog.ItemM(12)), "400 360 202 50");
}

TEST(ScaledDialog, AnExplicitScaleDoesNotFollowTheMonitor)
{
    TestDialogCL dialog(usedDialog());
    dialog.SetScaleM(150);
    RECT place { 10, 10, 900, 700 };
    dialog.SendMessage(DpiChanged, MAKEWPARAM(192, 192), reinterpret_cast<LPARAM>(&place));
    EXPECT_EQ(dialog.ScaleM(), 150);
}

TEST(ScaledDialog, WithoutControlsItLeavesTheMonitorToTheApplication)
{
    TestDialogCL dialog(usedDialog());
    dialog.SetScaleM(DuBasicDialogCL::AutomaticScale);
    dialog.DestroyM();
    RECT before {};
    dialog.GetWindowRect(&before);
    const RECT suggested { 40, 40, 790, 540 };
    SIZE wanted { 7, 7 };
    EXPECT_EQ(dialog.SendMessage(0x02E4, 144, reinterpret_cast<LPARAM>(&wanted)), 0);
    EXPECT_EQ(wanted.cx, 7);
    dialog.SendMessage(DpiChanged, MAKEWPARAM(144, 144), reinterpret_cast<LPARAM>(&suggested));
    RECT now {};
    dialog.GetWindowRect(&now);
    EXPECT_TRUE(::EqualRect(&now, &before));
    EXPECT_EQ(dialog.ScaleM(), 100);
}

TEST(ScaledDialog, AWindowThatTheUserHasSizedTakesTheRectangleThatTheSystemSuggests)
{
    ShownDialogCL dialog(usedDialog());
    dialog.SetScaleM(DuBasicDialogCL::AutomaticScale);
    ::SetWindowPos(dialog.m_hWnd, nullptr, 20, 20, 500, 333, SWP_NOZORDER);
    const RECT suggested { 40, 40, 790, 540 };
    dialog.SendMessage(DpiChanged, MAKEWPARAM(144, 144), reinterpret_cast<LPARAM>(&suggested));
    RECT now {};
    dialog.GetWindowRect(&now);
    EXPECT_TRUE(::EqualRect(&now, &suggested));
}

TEST(ScaledDialog, PicturesAreThoseOfTheScaleOrResampled)
{
    const SmallPictureCL plain(0x2040C0, 33, 21);
    const SmallPictureCL drawn(0xC02040, 66, 42);
    const std::string name = slGetFileName(plain.path());
    const FolderCL folder(std::filesystem::path(plain.path()).parent_path());
    const std::string drawnName = name.substr(0, name.size() - 4) + "@200.bmp";
    std::filesystem::remove(drawnName); // Of a run that was broken off.
    std::filesystem::rename(std::filesystem::path(drawn.path()), drawnName);
    TestDialogCL dialog(std::string(HeaderSections) + "[位图按钮]\n1\n0\n0 31 11 7 33 21\n" + name
        + "\nNULL\nNULL\nNULL\nNULL\n[图片列表框]\n1\n0\n0 32 60 10 80 120 3 1 2 "
          "1\n[图片列表框位图]\n1\n0\n32 "
        + name + "\n");
    ASSERT_NE(dialog.ItemM(31), nullptr);
    ASSERT_NE(dialog.ItemM(32), nullptr);
    EXPECT_TRUE(dialog.ValuesM().AddLineM(32, ValueTextCL(name.c_str()), 5)); // The application's own.
    dialog.ShowWindow(SW_SHOW);
    ASSERT_TRUE(PumpUntil([&] { return dialog.IsWindowVisible() != FALSE; }));
    dialog.SetScaleM(150);
    RECT client {};
    ::GetClientRect(dialog.ItemM(31), &client);
    dialog.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
    EXPECT_EQ(Pixels(dialog.ItemM(31)).AtM(client.right - 1, client.bottom - 1), RGB(0x20, 0x40, 0xC0));
    EXPECT_EQ(Pixels(dialog.ItemM(32)).AtM(40, 80), RGB(0x20, 0x40, 0xC0));
    dialog.SetScaleM(200);
    dialog.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
    ::GetClientRect(dialog.ItemM(31), &client);
    EXPECT_EQ(Pixels(dialog.ItemM(31)).AtM(client.right - 1, client.bottom - 1), RGB(0xC0, 0x20, 0x40));
    EXPECT_EQ(Pixels(dialog.ItemM(32)).AtM(60, 100), RGB(0xC0, 0x20, 0x40));
    std::filesystem::remove(drawnName);
}

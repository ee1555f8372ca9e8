// A dialog that the user makes larger: its frame, and every kind of control in it.
#include "support/shown_dialog.h"
#include "support/small_picture.h"
#include <map>

using namespace testing_support;

namespace {

const char* const BoundIds[] = { "11", "13", "15", "16", "17", "18", "20", "21", "22", "23", "24", "31", "32",
    "33", "34", "35", "36", "37", "38" };

// How the kinds follow; what is not listed moves with the lower right corner.
const std::map<std::string, BindingCL> Bindings = {
    { "13", { 13, 0, 0, 2, 0 } },
    { "15", { 15, 0, 1, 2, 1 } },
    { "16", { 16, 0, 0, 2, 1 } },
    { "17", { 17, 2, 0, 2, 2 } },
    { "18", { 18, 2, 2, 2, 2 } },
    { "20", { 20, 2, 2, 1, 1 } },
    { "22", { 22, 2, 2, 2, 2 } },
    { "23", { 23, 2, 0, 1, 1 } },
    { "24", { 24, 0, 1, 1, 1 } },
    { "31", { 31, 1, 0, 1, 0 } },
    { "33", { 33, 2, 2, 2, 2 } },
    { "37", { 37, 0, 1, 2, 1 } },
    { "38", { 38, 0, 2, 1, 1 } },
};
BindingCL bindingOf(const std::string& id)
{
    const auto found = Bindings.find(id);
    return found != Bindings.end() ? found->second : BindingCL { std::stoi(id), 1, 1, 1, 1 };
}

// The section for all of them.
std::string bindings()
{
    std::string all = "[随窗口变化]\n" + std::to_string(std::size(BoundIds)) + "\n0\n";
    for (const std::string id : BoundIds) {
        const BindingCL binding = bindingOf(id);
        for (const int value : { std::stoi(id), binding.left, binding.top, binding.right, binding.bottom }) {
            all += std::to_string(value) + " ";
        }
        all += "\n";
    }
    return all;
}

const GrowthCL NoGrowth({ 1, 1 }, 1, 1);

// A dialog with a control of each kind, each where it stands when the dialog has grown so. field: the height
// of a closed combo box.
std::string everyKind(const std::string& picture, const GrowthCL& growth = NoGrowth, int width = 420,
    int height = 260, int field = 20)
{
    const auto at = [&growth, field](const char* id, int x, int y, int w, int h) {
        const bool isPicture = id[0] == '3' && (id[1] == '2' || id[1] == '3' || id[1] == '4');
        const bool isCombo = std::string(id) == "18";
        EdgesCL edges = slBoundEdges({ x, y, x + w, y + (isCombo ? field : h) }, bindingOf(id), growth,
            { isPicture, isPicture || isCombo });
        edges.bottom += isCombo ? h - field : 0;
        return "1 " + std::string(id) + " " + std::to_string(edges.left) + " " + std::to_string(edges.top)
            + " " + std::to_string(edges.right - edges.left) + " " + std::to_string(edges.bottom - edges.top)
            + " ";
    };
    return "[版本号]\n1.0\n[对话框]\n0\n100 80\n" + std::to_string(width) + " " + std::to_string(height)
        + "\n1\n参数\n14 2 4\n" + picture + "\n[标题]\n1\n0\n" + at("11", 10, 10, 70, 20)
        + "1\n标题\n0 -1 0 0\n[单行文本]\n1\n0\n" + at("13", 10, 40, 70, 22)
        + "3 0 20 0 0 2\n文本\n0 1 255 255 255\n[带spin的文本]\n1\n0\n" + at("15", 10, 190, 70, 24)
        + "1 0 100 0 1 2 88 12 1015 16\n[多行文本]\n1\n0\n" + at("16", 10, 70, 70, 50)
        + "1 200\n多行\n0 1 255 255 255\n[文本列表框]\n1\n0\n" + at("17", 90, 10, 60, 58)
        + "14 1 1 255 255 255 0\n[文本列表框初始值]\n2\n0\n17 甲\n17 乙\n[下拉列表框]\n1\n0\n"
        + at("18", 90, 75, 60, 90) + "0\n[下拉列表框初始值]\n1\n0\n18 甲\n[列表控件]\n1\n0\n"
        + at("20", 160, 75, 110, 60)
        + "1 1\n[列表控件列标题]\n1\n0\n20 0 80 列\n[列表控件初始值]\n1\n0\n20 0 0 格\n[单选按钮]\n1\n0\n"
        + at("21", 240, 16, 60, 20) + "1 1\n选项\n[多选按钮]\n1\n0\n" + at("22", 90, 110, 60, 20)
        + "1\n多选\n[成组控件]\n1\n0\n" + at("23", 155, 5, 250, 60) + "成组\n[树形控件]\n1\n0\n"
        + at("24", 90, 150, 60, 55) + "[树形控件数据]\n1\n0\n24 0 1 501 根\n" + picture + "\n" + picture
        + "\n[标准按钮]\n1\n0\n" + at("31", 310, 20, 70, 24) + "按钮\n0\n[位图按钮]\n1\n0\n"
        + at("32", 350, 200, 20, 20) + picture + "\n" + picture + "\nNULL\n" + picture
        + "\nnull\n[多态按钮]\n1\n0\n" + at("33", 300, 150, 20, 20) + "7\nNULL\n[多态按钮数据]\n1\n0\n33 7 "
        + picture + "\n[旋转按钮]\n1\n0\n" + at("34", 290, 75, 40, 40)
        + "0 0 10 10 1 -1 10 -10 7.5 1 90 -90 22.5 3\n" + picture + "\n" + picture
        + "\nNULL\n[图片列表框]\n1\n0\n" + at("35", 340, 75, 60, 40) + "2 1 2 1\n[图片列表框位图]\n1\n0\n35 "
        + picture + "\n[普通动画控件]\n1\n0\n" + at("36", 300, 195, 20, 20)
        + "2 0 0 0\n[普通动画控件位图]\n1\n0\n36 " + picture + "\n[特殊动画控件]\n1\n0\n"
        + at("37", 160, 150, 50, 50) + "3 1\n[特殊动画控件位图]\n1\n0\n37 " + picture
        + "\n[二维绘图控件]\n1\n0\n" + at("38", 220, 145, 60, 70) + "10 90 200\n";
}

class ResizedDialogCL : public TestDialogCL
{
public:
    using TestDialogCL::TestDialogCL;

    SIZE ClientM() const
    {
        RECT client {};
        ::GetClientRect(m_hWnd, &client);
        return { client.right, client.bottom };
    }
    SIZE WindowM() const
    {
        RECT rect {};
        ::GetWindowRect(m_hWnd, &rect);
        return { rect.right - rect.left, rect.bottom - rect.top };
    }
    // Makes the window larger, or smaller.
    void GrowM(int x, int y)
    {
        const SIZE size = WindowM();
        ::SetWindowPos(m_hWnd, nullptr, 0, 0, size.cx + x, size.cy + y, SWP_NOMOVE | SWP_NOZORDER);
    }
    void ShowM()
    {
        ShowWindow(SW_SHOWNOACTIVATE);
        PumpPending();
    }
    std::string PlaceM(int id) const { return placeOf(ItemM(id)); }
};

std::string textOf(const SIZE& size)
{
    return std::to_string(size.cx) + " " + std::to_string(size.cy);
}

const std::string TwoEdits = HeaderSections
    + std::string("[单行文本]\n2\n0\n1 11 10 10 80 22 3 0 20 0 0 2\na\n0 1 255 255 255\n"
                  "2 12 100 10 80 22 3 0 20 0 0 2\nb\n0 1 255 255 255\n");
const std::string TwoBound = TwoEdits + "[随窗口变化]\n2\n0\n11 0 0 1 0\n12 1 1 1 1\n";

} // namespace

TEST(Resizing, TheFrameStandsAroundTheClientAreaOfTheFile)
{
    const ResizedDialogCL plain(TwoEdits);
    const ResizedDialogCL bound(TwoBound);
    EXPECT_EQ(textOf(bound.ClientM()), textOf(plain.ClientM()));
    EXPECT_EQ(bound.PlaceM(11), plain.PlaceM(11));
    EXPECT_EQ(styleOf(plain.m_hWnd) & (WS_THICKFRAME | WS_MAXIMIZEBOX), 0U);
    EXPECT_EQ(styleOf(bound.m_hWnd), styleOf(plain.m_hWnd) | WS_THICKFRAME | WS_MAXIMIZEBOX);
    const ResizedDialogCL none(TwoEdits + "[随窗口变化]\n0\n");
    EXPECT_EQ(styleOf(none.m_hWnd), styleOf(bound.m_hWnd));
}

TEST(Resizing, WhatShallHaveNoFrameGetsNone)
{
    for (const char* const kinds : { "14 2 1", "14 3 4" }) {
        const std::string header = "[版本号]\n1.0\n[对话框]\n0\n100 80\n420 260\n1\n参数设置\n";
        PlainWindowCL parent;
        const DescriptionFileCL file(header + kinds + TwoBound.substr(TwoBound.find("\nNULL")));
        DuBasicDialogCL dialog;
        dialog.SetConfigFileM(file.path());
        ASSERT_EQ(dialog.CreateM(&parent), 1);
        EXPECT_EQ(styleOf(dialog.m_hWnd) & WS_THICKFRAME, 0U) << kinds;
        const std::string before = placeOf(::GetDlgItem(dialog.m_hWnd, 11));
        dialog.SetWindowPos(nullptr, 0, 0, 600, 500, SWP_NOMOVE | SWP_NOZORDER);
        EXPECT_NE(placeOf(::GetDlgItem(dialog.m_hWnd, 11)), before) << kinds;
    }
}

TEST(Resizing, BoundControlsFollowAndComeBack)
{
    ResizedDialogCL dialog(TwoBound);
    EXPECT_EQ(dialog.PlaceM(11), "10 10 80 22");
    dialog.GrowM(50, 30);
    EXPECT_EQ(dialog.PlaceM(11), "10 10 130 22");
    EXPECT_EQ(dialog.PlaceM(12), "150 40 80 22");
    dialog.GrowM(-20, 0);
    EXPECT_EQ(dialog.PlaceM(11), "10 10 110 22");
    dialog.GrowM(-30, -30);
    EXPECT_EQ(dialog.PlaceM(11), "10 10 80 22");
    EXPECT_EQ(dialog.PlaceM(12), "100 10 80 22");
}

TEST(Resizing, NothingMakesItSmallerThanTheFileSays)
{
    ResizedDialogCL dialog(TwoBound);
    const SIZE least = dialog.WindowM();
    dialog.GrowM(-100, 40);
    EXPECT_EQ(textOf(dialog.WindowM()), textOf({ least.cx, least.cy + 40 }));
    MINMAXINFO limits {};
    dialog.SendMessage(WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&limits));
    EXPECT_EQ(limits.ptMinTrackSize.x, least.cx);
    EXPECT_EQ(limits.ptMinTrackSize.y, least.cy);
    EXPECT_GE(limits.ptMaxTrackSize.x, least.cx); // However small the screen is.
    EXPECT_GE(limits.ptMaxTrackSize.y, least.cy);
    EXPECT_EQ(dialog.ResizeM(10, -7), 1);
    EXPECT_EQ(dialog.PlaceM(12), "100 10 80 22");
}

namespace {

// Its frame is wider than the system says, as on a screen of another scale.
class WideFrameDialogCL : public DuBasicDialogCL
{
protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        const LRESULT result = DuBasicDialogCL::WindowProc(message, wParam, lParam);
        if (message == WM_NCCALCSIZE && (styleOf(m_hWnd) & WS_THICKFRAME) != 0) {
            auto* const client = reinterpret_cast<RECT*>(lParam);
            client->right -= 6;
            client->bottom -= 4;
        }
        return result;
    }
};

} // namespace

TEST(Resizing, AWiderFrameTakesNothingOfTheClientArea)
{
    const ResizedDialogCL usual(TwoBound);
    const DescriptionFileCL file(TwoBound);
    WideFrameDialogCL dialog;
    dialog.SetConfigFileM(file.path());
    ASSERT_EQ(dialog.CreateM(), 1);
    RECT client {};
    ::GetClientRect(dialog.m_hWnd, &client);
    EXPECT_EQ(client.right, usual.ClientM().cx);
    EXPECT_EQ(client.bottom, usual.ClientM().cy);
    RECT window {};
    ::GetWindowRect(dialog.m_hWnd, &window);
    EXPECT_EQ(window.right - window.left, usual.WindowM().cx + 6);
    EXPECT_EQ(window.bottom - window.top, usual.WindowM().cy + 4);
}

TEST(Resizing, TheUserDragsTheFrame)
{
    ShownDialogCL dialog(TwoBound);
    RECT before {};
    dialog.GetWindowRect(&before);
    const std::string place = placeOf(dialog.ItemM(12));
    RECT after {};
    ASSERT_TRUE(MoveMouseToM(::GetDesktopWindow(), before.right - 1, before.bottom - 1));
    Script drag; // Its steps begin as soon as anything pumps.
    drag.DoM([&] { MoveMouseToM(::GetDesktopWindow(), before.right + 60, before.bottom + 45); })
        .WaitM(
            [&] {
                ::GetWindowRect(dialog.m_hWnd, &after);
                return after.right > before.right && after.bottom > before.bottom;
            },
            "the window to follow")
        .DoM([] { ReleaseM(); });
    PressM(); // The loop of the drag runs in here, and the script in that.
    PumpUntil([&] { return drag.DoneM() && ::GetCapture() == nullptr; });
    dialog.GetWindowRect(&after);
    const int x = static_cast<int>(after.right - before.right);
    const int y = static_cast<int>(after.bottom - before.bottom);
    EXPECT_GT(x, 30);
    EXPECT_GT(y, 20);
    EXPECT_EQ(place, "100 10 80 22");
    EXPECT_EQ(placeOf(dialog.ItemM(12)), std::to_string(100 + x) + " " + std::to_string(10 + y) + " 80 22");
}

TEST(Resizing, EveryKindLooksAsIfTheFileHadItThere)
{
    const SmallPictureCL picture(0x0000FF, 20, 20);
    ResizedDialogCL dialog(everyKind(picture.path()) + bindings());
    const SIZE file = dialog.ClientM();
    RECT closed {};
    ::GetWindowRect(dialog.ItemM(18), &closed);
    const int field = static_cast<int>(closed.bottom - closed.top);
    // A selected text shows where the focus is, which the display may give to either: it is at the button.
    const auto show = [](ResizedDialogCL& shown) {
        shown.ShowM();
        ::SetFocus(shown.ItemM(31));
        PumpPending();
    };
    show(dialog);
    const SIZE more[] = { { 57, 0 }, { 120, 91 }, { -150, -60 }, { -27, -31 } };
    for (const SIZE& by : more) {
        dialog.GrowM(by.cx, by.cy);
        PumpPending();
        const SIZE now = dialog.ClientM();
        const Pixels seen(dialog.m_hWnd);
        const GrowthCL growth({ static_cast<int>(file.cx), static_cast<int>(file.cy) },
            static_cast<int>(now.cx), static_cast<int>(now.cy));
        dialog.ShowWindow(SW_HIDE);
        ResizedDialogCL there(
            everyKind(picture.path(), growth, 420 + growth.more[0], 260 + growth.more[1], field));
        show(there);
        ASSERT_EQ(textOf(there.ClientM()), textOf(now));
        const Pixels wanted(there.m_hWnd);
        EXPECT_EQ(seen.DifferencesM(wanted), 0) << by.cx << " " << by.cy;
        for (const std::string id : BoundIds) {
            EXPECT_EQ(dialog.PlaceM(std::stoi(id)), there.PlaceM(std::stoi(id))) << id;
        }
        EXPECT_EQ(dialog.PlaceM(1015), there.PlaceM(1015)) << "arrows";
        RECT dropped[2] {};
        ::SendMessageW(dialog.ItemM(18), CB_GETDROPPEDCONTROLRECT, 0, reinterpret_cast<LPARAM>(&dropped[0]));
        ::SendMessageW(there.ItemM(18), CB_GETDROPPEDCONTROLRECT, 0, reinterpret_cast<LPARAM>(&dropped[1]));
        EXPECT_EQ(dropped[0].bottom - dropped[0].top, dropped[1].bottom - dropped[1].top);
        there.DestroyWindow();
        show(dialog);
    }
}

TEST(Resizing, APainterIsAskedForTheNewSize)
{
    ResizedDialogCL dialog(HeaderSections
        + std::string("[二维绘图控件]\n1\n0\n1 38 10 10 60 40 10 90 200\n[随窗口变化]\n1\n0\n38 0 0 1 1\n"));
    std::string sizes;
    dialog.SetPainterM(38, [&sizes](CDC&, const CSize& size) { sizes += textOf(size) + "; "; });
    dialog.ShowM();
    dialog.GrowM(25, 15);
    PumpPending();
    EXPECT_EQ(sizes, "60 40; 85 55; ");
}

namespace {

class ErasedDialogCL : public ResizedDialogCL
{
public:
    using ResizedDialogCL::ResizedDialogCL;

    std::vector<std::string> erased; // The ids of controls beneath which something was erased.

protected:
    afx_msg BOOL OnEraseBkgnd(CDC* dc)
    {
        // Controls ask for what is behind them on contexts of their own.
        const HWND first = ::WindowFromDC(dc->m_hDC) == m_hWnd ? ::GetWindow(m_hWnd, GW_CHILD) : nullptr;
        for (HWND child = first; child != nullptr; child = ::GetWindow(child, GW_HWNDNEXT)) {
            RECT rect {};
            ::GetWindowRect(child, &rect);
            ::MapWindowPoints(nullptr, m_hWnd, reinterpret_cast<POINT*>(&rect), 2);
            if (::RectVisible(dc->m_hDC, &rect)) {
                erased.push_back(std::to_string(::GetDlgCtrlID(child)));
            }
        }
        return DuBasicDialogCL::OnEraseBkgnd(dc);
    }
    afx_msg void OnSize(UINT type, int width, int height)
    {
        DuBasicDialogCL::OnSize(type, width, height);
        seenBySize = ItemM(32) != nullptr ? PlaceM(32) : "";
    }
    DECLARE_MESSAGE_MAP()

public:
    std::string seenBySize; // Where the bitmap button was when the application heard of the new size.
};
BEGIN_MESSAGE_MAP(ErasedDialogCL, DuBasicDialogCL)
ON_WM_ERASEBKGND()
ON_WM_SIZE()
END_MESSAGE_MAP()

} // namespace

TEST(Resizing, WhatPaintsItselfIsNotErasedBefore)
{
    const SmallPictureCL picture(0x0000FF, 20, 20);
    ErasedDialogCL dialog(everyKind(picture.path()) + bindings());
    dialog.ShowM();
    dialog.erased.clear();
    dialog.GrowM(40, 40);
    PumpPending();
    const auto isErased = [&dialog](const char* id) {
        return std::find(dialog.erased.begin(), dialog.erased.end(), id) != dialog.erased.end();
    };
    for (const char* const id : { "13", "15", "16", "17", "18", "20", "24", "35" }) {
        EXPECT_FALSE(isErased(id)) << id;
    }
    for (const char* const id : { "11", "21", "22", "23" }) { // Something of the dialog shows through these.
        EXPECT_TRUE(isErased(id)) << id;
    }
}

TEST(Resizing, OnAnotherContextEverythingIsErased)
{
    const SmallPictureCL picture(0x0000FF, 20, 20);
    ResizedDialogCL dialog(everyKind(picture.path()) + bindings());
    dialog.ShowM();
    CRect client;
    dialog.GetClientRect(&client);
    CClientDC like(&dialog);
    CDC dc;
    CBitmap bitmap;
    ASSERT_TRUE(dc.CreateCompatibleDC(&like));
    ASSERT_TRUE(bitmap.CreateCompatibleBitmap(&like, client.Width(), client.Height()));
    CBitmap* const before = dc.SelectObject(&bitmap);
    dc.FillSolidRect(&client, RGB(1, 2, 3));
    dialog.SendMessage(WM_ERASEBKGND, reinterpret_cast<WPARAM>(dc.m_hDC));
    RECT field {};
    ::GetWindowRect(dialog.ItemM(13), &field);
    ::MapWindowPoints(nullptr, dialog, reinterpret_cast<POINT*>(&field), 2);
    EXPECT_NE(dc.GetPixel(field.left + 3, field.top + 3), RGB(1, 2, 3));
    dc.SelectObject(before);
}

TEST(Resizing, TheApplicationHearsOfTheSizeWhenTheControlsHaveMoved)
{
    const SmallPictureCL picture(0x0000FF, 20, 20);
    ErasedDialogCL dialog(everyKind(picture.path()) + bindings());
    dialog.GrowM(40, 30);
    EXPECT_EQ(dialog.seenBySize, "390 230 20 20");
}

TEST(Resizing, InAWindowOfTheApplicationThatAsksForIt)
{
    const ResizedDialogCL own(TwoBound);
    const SIZE file = own.ClientM();
    PlainWindowCL parent(500, 400);
    const DescriptionFileCL description(TwoBound);
    DuBasicDialogCL dialog;
    dialog.SetConfigFileM(description.path());
    EXPECT_EQ(dialog.ResizeM(800, 600), 0); // Nothing is built.
    ASSERT_EQ(dialog.InitDlgM(&parent, 0), 1);
    EXPECT_EQ(styleOf(parent.m_hWnd) & WS_THICKFRAME, 0U);
    const auto placeIn = [&parent](int id) { return placeOf(::GetDlgItem(parent.m_hWnd, id)); };
    EXPECT_EQ(placeIn(12), "100 10 80 22");
    EXPECT_EQ(dialog.ResizeM(static_cast<int>(file.cx) + 80, static_cast<int>(file.cy) + 7), 1);
    EXPECT_EQ(placeIn(11), "10 10 160 22");
    EXPECT_EQ(placeIn(12), "180 17 80 22");
    dialog.DestroyM();
    EXPECT_EQ(dialog.ResizeM(800, 600), 0);
    const ResizedDialogCL unbound(TwoEdits);
    EXPECT_EQ(const_cast<ResizedDialogCL&>(unbound).ResizeM(800, 600), 0);
}

TEST(Resizing, TheSizeOutlivesARebuild)
{
    ResizedDialogCL dialog(TwoBound);
    dialog.GrowM(200, 100);
    const SIZE size = dialog.ClientM();
    const std::string place = dialog.PlaceM(12);
    dialog.DestroyM();
    ASSERT_EQ(dialog.InitDlgM(&dialog, 1), 1);
    EXPECT_EQ(textOf(dialog.ClientM()), textOf(size));
    EXPECT_EQ(dialog.PlaceM(12), place);
    dialog.DestroyWindow();
    ASSERT_EQ(dialog.CreateM(), 1); // A new window begins anew.
    EXPECT_EQ(dialog.PlaceM(12), "100 10 80 22");
}

TEST(Resizing, OnlyAWidthOrAHeightOutlivesARebuildToo)
{
    for (const auto& [x, y] : { std::pair(0, 100), std::pair(200, 0) }) {
        ResizedDialogCL dialog(TwoBound);
        dialog.GrowM(x, y);
        const SIZE size = dialog.ClientM();
        dialog.DestroyM();
        ASSERT_EQ(dialog.InitDlgM(&dialog, 1), 1);
        EXPECT_EQ(textOf(dialog.ClientM()), textOf(size));
    }
}

TEST(Resizing, AFileWithoutTheSectionTakesTheFrameAway)
{
    ResizedDialogCL dialog(TwoBound);
    const ResizedDialogCL plain(TwoEdits);
    dialog.GrowM(200, 100);
    dialog.SetConfigFileM(plain.PathM());
    dialog.DestroyM();
    ASSERT_EQ(dialog.InitDlgM(&dialog, 1), 1);
    EXPECT_EQ(textOf(dialog.WindowM()), textOf(plain.WindowM()));
    EXPECT_EQ(styleOf(dialog.m_hWnd), styleOf(plain.m_hWnd));
    dialog.GrowM(50, 50);
    EXPECT_EQ(dialog.PlaceM(12), "100 10 80 22");
}

TEST(Resizing, ControlsThatComeAndGoAreNoTrouble)
{
    ResizedDialogCL dialog(TwoBound);
    int kind = 0;
    auto* const first = static_cast<DuSingleEditCL*>(dialog.GetContrlPtrM(11, &kind));
    first->DestroyWindow();
    dialog.GrowM(10, 10);
    EXPECT_EQ(dialog.PlaceM(12), "110 20 80 22");
    ASSERT_EQ(first->Create(&dialog), 1);
    dialog.GrowM(10, 10);
    EXPECT_EQ(dialog.PlaceM(11), "10 10 100 22");
    first->DelItemM();
    dialog.GrowM(10, 10);
    EXPECT_EQ(dialog.PlaceM(12), "130 40 80 22");
}

TEST(Resizing, AMaximizedDialogFollowsToo)
{
    ResizedDialogCL dialog(TwoBound);
    const SIZE file = dialog.ClientM();
    dialog.ShowWindow(SW_SHOWMAXIMIZED);
    PumpPending();
    const SIZE now = dialog.ClientM();
    ASSERT_GT(now.cx, file.cx + 100);
    const std::string wanted
        = std::to_string(100 + now.cx - file.cx) + " " + std::to_string(10 + now.cy - file.cy) + " 80 22";
    EXPECT_EQ(dialog.PlaceM(12), wanted);
    dialog.DestroyM();
    ASSERT_EQ(dialog.InitDlgM(&dialog, 1), 1);
    EXPECT_TRUE(dialog.IsZoomed());
    EXPECT_EQ(dialog.PlaceM(12), wanted);
}

TEST(Resizing, ABindingOfNoControlIsTold)
{
    const DescriptionFileCL file(TwoEdits + "[随窗口变化]\n2\n0\n99 1 1 1 1\n12 1 1 1 1\n");
    DuBasicDialogCL dialog;
    std::string told;
    dialog.SetDiagnosticsM(
        [](const DiagnosticCL& what, void* context) {
            *static_cast<std::string*>(context) += std::to_string(what.line) + " " + what.code + "; ";
        },
        &told);
    dialog.SetConfigFileM(file.path());
    ASSERT_EQ(dialog.CreateM(), 1);
    EXPECT_EQ(told, "23 unknown-id; ");
}

TEST(Resizing, AtAnotherScaleItGoesOnInProportion)
{
    ResizedDialogCL dialog(TwoBound);
    const SIZE file = dialog.ClientM();
    dialog.GrowM(100, 60);
    ASSERT_EQ(dialog.SetScaleM(150), 1);
    const SIZE larger = dialog.ClientM();
    EXPECT_NEAR(larger.cx, (file.cx + 100) * 3 / 2, 1);
    EXPECT_NEAR(larger.cy, (file.cy + 60) * 3 / 2, 1);
    const auto placeAt
        = [&](int x, int y) { return std::to_string(150 + x) + " " + std::to_string(15 + y) + " 120 33"; };
    const int scaled[2] = { static_cast<int>(file.cx * 3 + 1) / 2, static_cast<int>(file.cy * 3 + 1) / 2 };
    EXPECT_EQ(dialog.PlaceM(12),
        placeAt(static_cast<int>(larger.cx) - scaled[0], static_cast<int>(larger.cy) - scaled[1]));
    dialog.GrowM(-1000, -1000);
    EXPECT_EQ(textOf(dialog.ClientM()), textOf({ scaled[0], scaled[1] }));
    EXPECT_EQ(dialog.PlaceM(12), placeAt(0, 0));
    ASSERT_EQ(dialog.SetScaleM(100), 1);
    EXPECT_EQ(textOf(dialog.ClientM()), textOf(file));
    EXPECT_EQ(dialog.PlaceM(11), "10 10 80 22");
    EXPECT_EQ(dialog.PlaceM(12), "100 10 80 22");
    dialog.GrowM(31, 7);
    EXPECT_EQ(dialog.PlaceM(12), "131 17 80 22");
}

TEST(Resizing, ADialogBuiltAtAScaleFollowsFromThere)
{
    ResizedDialogCL plain(TwoEdits);
    const DescriptionFileCL file(TwoBound);
    DuBasicDialogCL dialog;
    dialog.SetConfigFileM(file.path());
    ASSERT_EQ(dialog.SetScaleM(200), 1);
    ASSERT_EQ(dialog.CreateM(), 1);
    RECT client {};
    dialog.GetClientRect(&client);
    EXPECT_EQ(
        textOf({ client.right, client.bottom }), textOf({ plain.ClientM().cx * 2, plain.ClientM().cy * 2 }));
    EXPECT_EQ(placeOf(::GetDlgItem(dialog.m_hWnd, 12)), "200 20 160 44");
    RECT window {};
    dialog.GetWindowRect(&window);
    dialog.SetWindowPos(nullptr, 0, 0, window.right - window.left + 9, window.bottom - window.top + 4,
        SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(placeOf(::GetDlgItem(dialog.m_hWnd, 12)), "209 24 160 44");
    EXPECT_EQ(placeOf(::GetDlgItem(dialog.m_hWnd, 11)), "20 20 169 44");
}

// The ids over the controls.
#include "id_overlay.h"
#include "tools/live/live_preview.h"

using namespace testing_support;

namespace {

ViewOptionsCL withIds()
{
    ViewOptionsCL options;
    options.showsIds = true;
    return options;
}

const std::string LabelSection = "[标题]\n1\n0\n3 103 20 10 80 20 3\n转速\n1 255 128 0\n";
const std::string Sections = "[标准按钮]\n2\n0\n2 118 20 40 150 24\n乙\n0\n1 119 20 70 150 24\n甲\n0\n"
                             "[下拉列表框]\n1\n0\n4 113 200 30 150 90 1\n[下拉列表框初始值]\n0\n0\n";

std::string labelsOf(HWND dialog)
{
    std::string all;
    for (const IdLabelCL& label : idLabels(dialog)) {
        std::string words = slWideToGbk(label.words);
        std::replace(words.begin(), words.end(), '\n', '/');
        all += (all.empty() ? "" : "; ") + words;
    }
    return all;
}

} // namespace

TEST(Ids, EachControlHasItsIdPlaceAndTabStop)
{
    const WorkFolderCL folder;
    writeDescription(LabelSection + Sections);
    const LivePreviewCL dialog(withIds());
    // In the stacking order, which is that of Tab; the label is passed over. A combo box has the height of
    // its open list in the file.
    EXPECT_EQ(labelsOf(dialog.m_hWnd),
        "119 #1  20,70,150,24; 118 #2  20,40,150,24; 103 #-/20,10,80,20; 113 #3  200,30,150,90");
}

TEST(Ids, TabNumbersAreTheOrderInWhichTabGoes)
{
    const WorkFolderCL folder;
    // Group boxes too are Tab stops.
    writeDescription(LabelSection + "[成组控件]\n1\n0\n4 122 10 150 200 60\n参数\n" + Sections
        + "[单选按钮]\n2\n0\n5 115 20 170 80 20 1 1\n甲\n6 116 120 170 80 20 1 0\n乙\n");
    const LivePreviewCL dialog(withIds());
    std::map<int, std::string> numbers; // By Tab stop.
    for (const IdLabelCL& label : idLabels(dialog.m_hWnd)) {
        const std::string words = slWideToGbk(label.words);
        const int number = std::atoi(words.c_str() + words.find('#') + 1);
        if (number > 0) {
            numbers[number] = words.substr(0, words.find(' '));
        }
    }
    ASSERT_EQ(numbers.size(), 5U); // Of the radio buttons the one that is checked.
    for (const auto& [number, id] : numbers) {
        const HWND focus = ::GetFocus();
        const int focused = ::GetDlgCtrlID(::GetParent(focus) == dialog.m_hWnd ? focus : ::GetParent(focus));
        EXPECT_EQ(std::to_string(focused), id) << number;
        KeyM(VK_TAB);
    }
    EXPECT_EQ(std::to_string(::GetDlgCtrlID(::GetFocus())), numbers[1]);
}

TEST(Ids, NoLabelCoversAnother)
{
    const WorkFolderCL folder;
    copyExample("lists");
    const LivePreviewCL dialog(withIds());
    const std::vector<IdLabelCL> labels = idLabels(dialog.m_hWnd);
    ASSERT_GT(labels.size(), 5U);
    RECT common {};
    for (std::size_t i = 0; i < labels.size(); ++i) {
        for (std::size_t j = 0; j < i; ++j) {
            EXPECT_FALSE(::IntersectRect(&common, &labels[i].box, &labels[j].box)) << i << " " << j;
        }
    }
}

TEST(Ids, LabelsAreSeenAndLetClicksThrough)
{
    const WorkFolderCL folder;
    writeDescription("[多选按钮]\n1\n0\n17 21 90 20 180 20 0\n甲\n");
    const LivePreviewCL dialog(withIds());
    ASSERT_TRUE(
        PumpUntil([&] { return dialog.OverlayM() != nullptr && ::IsWindowVisible(dialog.OverlayM()); }));
    PumpPending();
    const IdLabelCL label = idLabels(dialog.m_hWnd).at(0);
    EXPECT_GT(Pixels(dialog.OverlayM()).CountM(RGB(255, 255, 170)), 100);
    const auto isOnTop = [] { return Pixels(::GetDesktopWindow()).CountM(RGB(255, 255, 170)) > 100; };
    EXPECT_TRUE(PumpUntil(isOnTop));
    EXPECT_EQ(::GetForegroundWindow(), dialog.m_hWnd);
    ClickM(dialog.m_hWnd, label.box.left + 3, label.box.top + 3);
    EXPECT_EQ(::SendMessageW(dialog.ItemM(21), BM_GETCHECK, 0, 0), BST_CHECKED);
}

TEST(Ids, LabelsFollowTheDialogAndItsFile)
{
    const WorkFolderCL folder;
    writeDescription(Sections);
    ViewOptionsCL options = watching();
    options.showsIds = true;
    LivePreviewCL dialog(options);
    ASSERT_TRUE(
        PumpUntil([&] { return dialog.OverlayM() != nullptr && ::IsWindowVisible(dialog.OverlayM()); }));
    dialog.ChangeToM(Sections);
    ::SetWindowPos(dialog.m_hWnd, nullptr, 333, 222, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    POINT corner { 0, 0 };
    ::ClientToScreen(dialog.m_hWnd, &corner);
    RECT overlay {};
    ::GetWindowRect(dialog.OverlayM(), &overlay);
    EXPECT_EQ(overlay.left, corner.x);
    EXPECT_EQ(overlay.top, corner.y);
    EXPECT_NE(labelsOf(dialog.m_hWnd).find("901 #-"), std::string::npos);
}

// Of all controls the one whose id a file holds, and soon another one when the file says so.
TEST(Ids, OneControlIsMarkedByAFile)
{
    const WorkFolderCL folder;
    writeDescription(Sections);
    writeBytes("mark", "118\n");
    ViewOptionsCL options;
    options.mark = "mark";
    const LivePreviewCL dialog(options);
    const auto marks = [&dialog](int id) {
        RECT control {};
        ::GetWindowRect(dialog.ItemM(id), &control);
        const auto region = ::CreateRectRgn(0, 0, 0, 0);
        RECT marked {};
        const bool isThere = dialog.OverlayM() != nullptr && ::IsWindowVisible(dialog.OverlayM())
            && ::GetWindowRgn(dialog.OverlayM(), region) != ERROR
            && ::GetRgnBox(region, &marked) != NULLREGION;
        ::DeleteObject(region);
        POINT corner { 0, 0 };
        ::ClientToScreen(dialog.m_hWnd, &corner);
        ::OffsetRect(&marked, corner.x, corner.y);
        return isThere && marked.top == control.top && marked.bottom == control.bottom;
    };
    EXPECT_TRUE(PumpUntil([&] { return marks(118); }));
    writeBytes("mark", "119\n");
    EXPECT_TRUE(PumpUntil([&] { return marks(119); }));
    writeBytes("mark", "\n");
    EXPECT_TRUE(PumpUntil([&] { return !::IsWindowVisible(dialog.OverlayM()); }));
}

// The small host applications of examples, as programs.
#include "idiom/child_program.h"

using namespace testing_support;

namespace {

// The middle of the pictures of the lamp.
constexpr COLORREF Yellow = RGB(0xF0, 0xC8, 0x28);
constexpr COLORREF Green = RGB(0x32, 0xAF, 0x46);

std::string folderOf(const std::string& example)
{
    return "\"" PANELKIT_EXAMPLES "/" + example + "\"";
}

} // namespace

TEST(Plotter, TakesItsValuesByOkAndNoneByEsc)
{
    for (const bool isTaken : { true, false }) {
        ChildProgram program("plotter", folderOf("plotter"));
        const HWND dialog = program.WindowM(L"绘图仪参数");
        ASSERT_NE(dialog, nullptr);
        EXPECT_FALSE(TextOf(dialog, 1051).empty());
        if (isTaken) {
            ClickMiddle(::GetDlgItem(dialog, IDOK));
        } else {
            KeyM(VK_ESCAPE);
        }
        EXPECT_EQ(program.ExitCodeM(), isTaken ? 0 : 1);
    }
}

TEST(Pictures, AClickOnTheLampChangesIt)
{
    ChildProgram program("pictures", folderOf("pictures"));
    const HWND dialog = program.WindowM(L"图片控件");
    ASSERT_NE(dialog, nullptr);
    const HWND lamp = ::GetDlgItem(dialog, 1201);
    EXPECT_TRUE(Becomes([lamp] { return ScreenPixel(lamp, 16, 16) == Yellow; }));
    ClickMiddle(lamp);
    EXPECT_TRUE(Becomes([lamp] { return ScreenPixel(lamp, 16, 16) == Green; }));
    EXPECT_NE(::GetDlgItem(dialog, 1401), nullptr); // The lever that the program itself makes.
    KeyM(VK_ESCAPE);
    EXPECT_EQ(program.ExitCodeM(), 0);
}

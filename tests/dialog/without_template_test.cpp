// The host shown without a template, beside the same host with the template that it stands for.
#include "support/pump.h"
#include "support/test_dialog.h"
#include <gtest/gtest.h>

using namespace testing_support;

namespace {

struct EmptyTemplateCL
{
    DLGTEMPLATE header { WS_POPUP | WS_CAPTION | WS_SYSMENU, 0, 0, 0, 0, 100, 100 };
    WORD menu { 0 };
    WORD windowClass { 0 };
    WORD title { 0 };
};

// Without header sections the window stays as the template made it; with them it is restyled and placed.
const std::string Labels
    = "[标题]\n2\n0\n2 12 20 60 100 20 1\nb\n0 -1 0 0\n1 11 20 30 120 20 1\na\n0 -1 0 0\n";
const std::string Files[] = { Labels, HeaderSections + Labels };

// Notes every message and how the dialog stood when it was built.
class NotingCL : public DuBasicDialogCL
{
public:
    explicit NotingCL(const char* file, bool endsAtOnce = false)
        : endsAtOnce_(endsAtOnce)
    {
        SetConfigFileM(file);
    }
    std::string StoryM() const { return story_; }

protected:
    BOOL OnInitDialog() override
    {
        const BOOL result = DuBasicDialogCL::OnInitDialog();
        story_ += "\nowner " + std::to_string(reinterpret_cast<ULONG_PTR>(::GetWindow(m_hWnd, GW_OWNER)));
        for (HWND window = m_hWnd; window != nullptr;
             window = ::GetWindow(window, window == m_hWnd ? GW_CHILD : GW_HWNDNEXT)) {
            wchar_t name[64] = L"";
            ::GetClassNameW(window, name, 64);
            story_ += "\n" + placeOf(window) + " " + std::to_string(styleOf(window)) + " "
                + std::to_string(exStyleOf(window)) + " '" + textOf(window) + "' "
                + slWideToGbk(std::wstring(name)) + "\n";
        }
        if (endsAtOnce_) {
            EndDialog(17);
        }
        return result;
    }
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        story_ += std::to_string(message) + " ";
        return DuBasicDialogCL::WindowProc(message, wParam, lParam);
    }

private:
    const bool endsAtOnce_;
    std::string story_;
};

} // namespace

TEST(WithoutTemplate, AModelessDialogIsBuiltAsWithAnEmptyOne)
{
    const EmptyTemplateCL empty;
    PlainWindowCL owner;
    for (const std::string& text : Files) {
        const DescriptionFileCL file(text);
        for (CWnd* const parent : { static_cast<CWnd*>(nullptr), static_cast<CWnd*>(&owner) }) {
            NotingCL with(file.path());
            ASSERT_TRUE(with.CreateIndirect(&empty.header, parent));
            with.DestroyWindow();
            NotingCL without(file.path());
            ASSERT_EQ(without.CreateM(parent), 1);
            without.DestroyWindow();
            EXPECT_NE(with.StoryM(), "");
            EXPECT_EQ(without.StoryM(), with.StoryM());
        }
    }
}

TEST(WithoutTemplate, AModelessDialogShowsItselfSoon)
{
    const DescriptionFileCL file(Files[1]);
    DuBasicDialogCL dialog;
    dialog.SetConfigFileM(file.path());
    ASSERT_EQ(dialog.CreateM(), 1);
    EXPECT_FALSE(dialog.IsWindowVisible());
    EXPECT_TRUE(PumpUntil([&dialog] { return dialog.IsWindowVisible() != FALSE; }));
}

TEST(WithoutTemplate, AModalDialogRunsAsWithAnEmptyOne)
{
    const EmptyTemplateCL empty;
    PlainWindowCL owner;
    for (const std::string& text : Files) {
        const DescriptionFileCL file(text);
        NotingCL with(file.path(), true);
        with.InitModalIndirect(&empty.header, &owner);
        EXPECT_EQ(with.DoModal(), 17);
        NotingCL without(file.path(), true);
        EXPECT_EQ(without.DoModalM(&owner), 17);
        EXPECT_EQ(without.m_hWnd, nullptr);
        EXPECT_EQ(without.StoryM(), with.StoryM());
    }
}

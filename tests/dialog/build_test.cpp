#include "support/test_dialog.h"
#include <algorithm>
#include <gtest/gtest.h>
#include <random>

// What an application sees of building and destroying: what its dialog is told, and which controls it finds
// then.

namespace {

// Two labels, an edit, a list box, a combo box, a check box, a push button, a tree.
const char* Controls
    = "[标题]\n2\n0\n7 11 0 0 50 20 1\na\n0 -1 0 0\n2 12 0 20 50 20 1\nb\n0 -1 0 0\n"
      "[单行文本]\n1\n0\n1 13 60 0 90 20 3 0 20 0 0 1\ntext\n0 1 255 255 255\n"
      "[文本列表框]\n1\n0\n4 14 60 30 90 60 16 1 1 255 255 255 0\n[文本列表框初始值]\n1\n0\n14 line\n"
      "[下拉列表框]\n1\n0\n3 15 60 100 90 90 0\n[下拉列表框初始值]\n1\n0\n15 line\n"
      "[多选按钮]\n1\n0\n6 16 0 130 50 20 1\nc\n"
      "[标准按钮]\n1\n0\n5 17 0 150 50 20\nd\n0\n"
      "[树形控件]\n1\n0\n8 18 160 0 90 90\n[树形控件数据]\n0\n0\n";

class HearingDialogCL : public DuBasicDialogCL
{
public:
    explicit HearingDialogCL(const std::string& utf8)
        : file_(utf8)
    {
        SetConfigFileM(file_.path());
        CreateM();
    }
    BOOL OnInitDialog() override { return TRUE; }

    std::vector<std::string> heard;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        const auto child = reinterpret_cast<HWND>(lParam);
        if (message == WM_PARENTNOTIFY) {
            CWnd* const object = CWnd::FromHandlePermanent(child);
            heard.push_back((LOWORD(wParam) == WM_CREATE ? "made " : "goes ") + std::to_string(HIWORD(wParam))
                + ' ' + textOf(child)
                + (dynamic_cast<DControlCommonCL*>(object) != nullptr ? "" : " without object")
                + (::SendMessageW(child, BM_GETCHECK, 0, 0) == BST_CHECKED && HIWORD(wParam) == 16
                        ? " checked"
                        : ""));
        } else if (message == WM_COMMAND) {
            heard.push_back("told " + std::to_string(LOWORD(wParam)) + ' ' + std::to_string(HIWORD(wParam)));
        } else if (message == WM_NOTIFY) {
            heard.push_back("notified " + std::to_string(wParam));
        } else if (message == WM_DESTROY || message == WM_NCDESTROY) {
            int kind = 0;
            heard.push_back((message == WM_DESTROY ? "destroyed" : "gone")
                + std::string(GetContrlPtrM(11, &kind) != nullptr ? " before its controls" : ""));
        }
        return DuBasicDialogCL::WindowProc(message, wParam, lParam);
    }

private:
    DescriptionFileCL file_;
};

std::vector<std::string> heardOfDestroying(bool oneByOne)
{
    HearingDialogCL dialog(HeaderSections + std::string(Controls));
    dialog.InitDlgM(&dialog, 1);
    dialog.heard.clear();
    if (oneByOne) {
        dialog.DestroyM();
    }
    EXPECT_TRUE(dialog.DestroyWindow());
    EXPECT_EQ(dialog.m_hWnd, nullptr);
    int kind = 0;
    EXPECT_EQ(dialog.GetContrlPtrM(11, &kind), nullptr);
    return dialog.heard;
}

} // namespace

TEST(Build, ADialogIsToldOfEachControlOnceItHasItsObjectAndItsText)
{
    HearingDialogCL dialog(HeaderSections + std::string(Controls));
    dialog.InitDlgM(&dialog, 1);
    const std::string update = std::to_string(EN_UPDATE);
    const std::string change = std::to_string(EN_CHANGE);
    const std::vector<std::string> first { "made 11 a", "made 12 b", "told 13 " + update, "told 13 " + change,
        "made 13 text", "made 14 ", "made 15 ", "made 16 c checked", "made 17 d" };
    ASSERT_GE(dialog.heard.size(), first.size());
    EXPECT_EQ(
        std::vector<std::string>(dialog.heard.begin(), dialog.heard.begin() + static_cast<int>(first.size())),
        first);
}

TEST(Build, ADialogHearsTheSameWhetherItsControlsGoBeforeItOrWithIt)
{
    const auto together = heardOfDestroying(false);
    EXPECT_EQ(together, heardOfDestroying(true));
    ASSERT_GE(together.size(), 10U);
    EXPECT_EQ(together[0], "goes 11 a");
    EXPECT_EQ(together[1], "goes 12 b");
    EXPECT_EQ(together[together.size() - 2], "destroyed");
    EXPECT_EQ(together.back(), "gone");
}

TEST(Build, ADialogMayDeleteItselfOnceItsWindowIsGone)
{
    class PassingDialogCL : public HearingDialogCL
    {
    public:
        PassingDialogCL(const std::string& utf8, bool* isDeleted)
            : HearingDialogCL(utf8)
            , isDeleted_(isDeleted)
        {
        }
        ~PassingDialogCL() override { *isDeleted_ = true; }
        void PostNcDestroy() override { delete this; }

    private:
        bool* isDeleted_;
    };
    bool isDeleted = false;
    auto* const dialog = new PassingDialogCL(HeaderSections + std::string(Controls), &isDeleted);
    dialog->InitDlgM(dialog, 1);
    EXPECT_TRUE(dialog->DestroyWindow());
    EXPECT_TRUE(isDeleted);
}

TEST(Build, ADestroyedDialogCanBeMadeAndBuiltAgain)
{
    TestDialogCL dialog(HeaderSections + std::string(Controls));
    const std::string stack = dialog.StackM();
    dialog.DestroyWindow();
    dialog.CreateM();
    EXPECT_EQ(dialog.StackM(), stack);
    EXPECT_EQ(textOf(dialog.ItemM(13)), "text");
}

// Ids that several controls share, windows that are no controls: as if each control in turn were moved just
// behind the one before.
TEST(Build, StacksAsMovingEachControlWould)
{
    std::mt19937 random(7); // NOLINT: the same dialogs each time.
    const auto number
        = [&random](int below) { return static_cast<int>(random() % static_cast<unsigned>(below)); };
    for (int round = 0; round < 30; ++round) {
        const int count = 1 + number(24);
        const int foreign = number(3) == 0 ? number(4) : 0;
        std::string text = HeaderSections + std::string("[标题]\n") + std::to_string(count) + "\n0\n";
        std::vector<std::pair<int, int>> steps; // Window index and id.
        for (int i = 0; i < count; ++i) {
            steps.emplace_back(
                number(2) == 0 ? i : number(count), number(4) == 0 ? 100 + number(count) : 100 + i);
            text += std::to_string(steps.back().first) + ' ' + std::to_string(steps.back().second)
                + " 20 30 120 20 1\nx\n0 -1 0 0\n";
        }
        HearingDialogCL dialog(text);
        std::vector<int> ids;
        for (int i = 0; i < foreign; ++i) {
            ids.push_back(number(2) == 0 ? 100 + number(count) : i);
            ::CreateWindowExW(0, L"Static", L"", WS_CHILD, 0, 0, 9, 9, dialog.m_hWnd,
                reinterpret_cast<HMENU>(static_cast<INT_PTR>(ids.back())), nullptr, nullptr);
        }
        dialog.InitDlgM(&dialog, 1);
        // Each window is its place in the order of creation.
        for (const auto& step : steps) {
            ids.push_back(step.second);
        }
        std::stable_sort(steps.begin(), steps.end(), [](auto& a, auto& b) { return a.first < b.first; });
        std::vector<int> expected(ids.size());
        for (size_t i = 0; i < expected.size(); ++i) {
            expected[i] = static_cast<int>(i);
        }
        int above = -1;
        for (const auto& step : steps) {
            const auto at = std::find_if(expected.begin(), expected.end(),
                [&](int window) { return ids[static_cast<size_t>(window)] == step.second; });
            const int window = *at;
            if (window != above) {
                expected.erase(at);
                const auto behind = std::find(expected.begin(), expected.end(), above);
                expected.insert(behind == expected.end() ? expected.begin() : behind + 1, window);
            }
            above = window;
        }
        std::string wanted;
        for (const int window : expected) {
            wanted += (wanted.empty() ? "" : " ") + std::to_string(ids[static_cast<size_t>(window)]);
        }
        ASSERT_EQ(stackOf(dialog.m_hWnd), wanted) << "round " << round;
    }
}

// Of many controls few move, and the arrows of spin edits end below all of them in the order that they had.
TEST(Build, StacksSpinEditsAndTheirArrows)
{
    std::mt19937 random(11); // NOLINT: the same dialogs each time.
    const auto number
        = [&random](int below) { return static_cast<int>(random() % static_cast<unsigned>(below)); };
    for (int round = 0; round < 30; ++round) {
        const int spins = number(4);
        const int counts[] = { 1 + number(20), spins, 1 + number(20) }; // Labels, spin edits, buttons.
        const bool isForeign = number(4) == 0;
        std::vector<std::pair<int, int>> steps; // Window index and id.
        const auto indexOf = [&](int id) {
            steps.emplace_back(number(3) == 0 ? number(40) : id % 100, id);
            return std::to_string(steps.back().first);
        };
        std::string text = HeaderSections + std::string("[标题]\n") + std::to_string(counts[0]) + "\n0\n";
        for (int i = 0; i < counts[0]; ++i) {
            text += indexOf(100 + i) + ' ' + std::to_string(100 + i) + " 20 30 120 20 1\nx\n0 -1 0 0\n";
        }
        text += "[带spin的文本]\n" + std::to_string(spins) + "\n0\n";
        for (int i = 0; i < spins; ++i) {
            text += "1 " + std::to_string(200 + i) + " 10 130 90 24 1 0 100 0 1 2 88 " + indexOf(200 + i)
                + ' ' + std::to_string(900 + i) + " 16\n";
        }
        text += "[标准按钮]\n" + std::to_string(counts[2]) + "\n0\n";
        for (int i = 0; i < counts[2]; ++i) {
            text += indexOf(300 + i) + ' ' + std::to_string(300 + i) + " 20 30 120 20\nx\n0\n";
        }
        HearingDialogCL dialog(text);
        std::string wanted;
        std::stable_sort(steps.begin(), steps.end(), [](auto& a, auto& b) { return a.first < b.first; });
        for (const auto& step : steps) {
            wanted += (wanted.empty() ? "" : " ") + std::to_string(step.second);
        }
        if (isForeign) {
            ::CreateWindowExW(0, L"Static", L"", WS_CHILD, 0, 0, 9, 9, dialog.m_hWnd,
                reinterpret_cast<HMENU>(static_cast<INT_PTR>(7)), nullptr, nullptr);
            wanted += " 7";
        }
        for (int i = 0; i < spins; ++i) {
            wanted += ' ' + std::to_string(900 + i);
        }
        dialog.InitDlgM(&dialog, 1);
        ASSERT_EQ(stackOf(dialog.m_hWnd), wanted) << "round " << round;
    }
}

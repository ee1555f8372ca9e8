#pragma once
#include "support/all.h"
#include "support/test_dialog.h"
#include <gtest/gtest.h>

// A dialog as the user has it: shown, in the foreground, its keys handled as a dialog's, the messages that
// reach it recorded.
class ShownDialogCL : public TestDialogCL
{
public:
    explicit ShownDialogCL(const std::string& utf8)
        : TestDialogCL(utf8)
        , recorder_(m_hWnd)
    {
        testing_support::PumpUntil([this] { return IsWindowVisible() != FALSE; }); // Its timer shows it.
        EXPECT_TRUE(testing_support::ActivateM(m_hWnd));
        testing_support::pumpFilter = [](MSG* message) { return AfxPreTranslateMessage(message) != FALSE; };
    }
    ~ShownDialogCL() override { testing_support::pumpFilter = nullptr; }

    // Gives the focus to the child with that id, then forgets the messages so far.
    void StartAtM(int id)
    {
        EXPECT_NE(ItemM(id), nullptr);
        EXPECT_TRUE(testing_support::FocusM(ItemM(id)));
        testing_support::PumpPending();
        recorder_.ClearM();
    }
    static int FocusedIdM() { return ::GetDlgCtrlID(::GetFocus()); }
    void ClickItemM(int id) { testing_support::ClickM(ItemM(id), 5, 5); }

    // The messages of controls that reached the dialog since the last call, in order: "sent 1424 w=7 l=0; …".
    // The window system's own questions about default buttons are left out.
    std::string StoryM()
    {
        testing_support::PumpPending();
        std::string story;
        for (const std::string& message : recorder_.ListM()) {
            if (message.rfind("sent 1024 ", 0) == 0 || message.rfind("sent 1025 ", 0) == 0) {
                continue;
            }
            story += (story.empty() ? "" : "; ") + message;
        }
        recorder_.ClearM();
        return story;
    }

private:
    testing_support::MessageRecorder recorder_;
};

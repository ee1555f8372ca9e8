#pragma once
#include "support/all.h"
#include "support/test_dialog.h"
#include <gtest/gtest.h>

// One single-line edit of a description: type, limits, decimals, initial value.
inline std::string editRecord(int id, const std::string& typeAndRange, const std::string& initial,
    int decimals = 0, const std::string& rest = "0 1 255 0 0")
{
    return std::to_string(id) + " " + std::to_string(id) + " 20 " + std::to_string(20 + 30 * (id % 10))
        + " 120 24 " + typeAndRange + " " + std::to_string(decimals) + " 0 2\n" + initial + "\n" + rest
        + "\n";
}

inline std::string editSection(const std::vector<std::string>& records)
{
    std::string all = HeaderSections + ("[单行文本]\n" + std::to_string(records.size()) + "\n0\n");
    for (const std::string& record : records) {
        all += record;
    }
    return all;
}

// A button that reports the focus as the kinds of the library do.
class ReportingButtonCL : public ControlCL<CButton>
{
public:
    void PutM(CWnd* parent, int id, int left)
    {
        SetFunctionIDM(id);
        createdM(CButton::Create("ok", WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(left, 180, left + 60, 205),
            parent, static_cast<UINT>(id)));
    }

protected:
    afx_msg void OnSetFocus(CWnd* old) { reportFocusM(old); }
    DECLARE_MESSAGE_MAP()
};

// A shown dialog as an application has it, routing the reports of its fields, with a button 31 and the cancel
// button 32 at the end of the tab order. What the parent sees is recorded and the message boxes are answered.
class EditStoryCL : public TestDialogCL
{
public:
    explicit EditStoryCL(const std::vector<std::string>& records)
        : TestDialogCL(editSection(records))
    {
        button.PutM(this, 31, 180);
        cancel.PutM(this, 32, 260);
        button.SetWindowPos(&CWnd::wndBottom, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
        cancel.SetWindowPos(&CWnd::wndBottom, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
        SetCancelIdM(32);
        ShowWindow(SW_SHOW);
        testing_support::pumpFilter = [this](MSG* message) { return PreTranslateMessage(message) != FALSE; };
        EXPECT_TRUE(testing_support::ActivateM(m_hWnd));
        recorder = std::make_unique<testing_support::MessageRecorder>(m_hWnd, std::set<UINT> { 1624, 1625 });
    }
    ~EditStoryCL() override
    {
        recorder.reset();
        testing_support::pumpFilter = nullptr;
    }

    void EnterM(int id)
    {
        EXPECT_TRUE(testing_support::FocusM(ItemM(id)));
        testing_support::PumpPending();
        recorder->ClearM();
    }
    // Puts a text into a field as if typed, whatever the filter.
    void FillM(int id, const char* utf8)
    {
        ::SetWindowTextW(ItemM(id), slGbkToWide(slUtf8ToGbk(utf8).c_str()).c_str());
    }
    int FocusM() const { return ::GetFocus() == nullptr ? 0 : ::GetDlgCtrlID(::GetFocus()); }
    std::string TextM(int id) const { return textOf(ItemM(id)); }

    // What the parent saw since, and what the user was told.
    std::string ReportsM() const
    {
        std::string all;
        for (const std::string& line : recorder->ListM()) {
            all += (all.empty() ? "" : ", ") + line;
        }
        return all;
    }
    std::string ToldM() const
    {
        std::string all;
        for (const auto& box : watcher.SeenM()) {
            all += (all.empty() ? "" : " | ") + slGbkToUtf8(slWideToGbk(box.text).c_str());
        }
        return all;
    }

    ReportingButtonCL button;
    ReportingButtonCL cancel;
    testing_support::MessageBoxWatcher watcher;
    std::unique_ptr<testing_support::MessageRecorder> recorder;
    int cancelled { 0 };

protected:
    void OnCancel() override
    {
        ++cancelled;
        ::DestroyWindow(m_hWnd);
    }
    DECLARE_MESSAGE_MAP()
};

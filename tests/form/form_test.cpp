// panelkit::Form.
#include "form/form.h"
#include "form/form_host.h"
#include "form/opened_dialog.h"
#include <stdexcept>

using namespace testing_support;
using panelkit::Form;

namespace {

class FormTest : public testing::Test
{
protected:
    static HWND windowOf(const Form& form) { return static_cast<HWND>(form.Native()); }
    static HWND item(const Form& form, int id) { return ::GetDlgItem(windowOf(form), id); }
    static void show(Form& form)
    {
        EXPECT_TRUE(form.Show()) << form.Error();
        EXPECT_TRUE(ActivateM(windowOf(form)));
        PumpPending();
    }
    void click(const Form& form, int id)
    {
        ClickM(item(form, id), 5, 5);
        PumpPending();
    }

    const SmallPictureCL picture_ { 0x0000FF, 20, 20 };
    const DescriptionFileCL file_ { valuedSections(picture_.path()) };
};

} // namespace

TEST_F(FormTest, RunsModallyAndKeepsItsValues)
{
    Form form(file_.path());
    ASSERT_TRUE(form) << form.Error();
    EXPECT_TRUE(form.Set(11, 7));
    std::string story;
    form.OnClick(43,
            [&] {
                story += "click ";
                form.Close(form.Int(11).value_or(-1));
            })
        .OnClosed([&](int result) { story += "closed " + std::to_string(result); });
    Script script([&] { form.Close(-7); });
    script.WaitM([&] { return ::GetForegroundWindow() == windowOf(form); }, "the form").DoM([&] {
        ClickM(item(form, 43), 5, 5);
    });
    EXPECT_EQ(form.Run(), 7);
    EXPECT_EQ(story, "click closed 7");
    EXPECT_EQ(form.Int(11), 7);
    EXPECT_FALSE(form.IsOpen());
    EXPECT_EQ(form.Result(), 7);
}

TEST_F(FormTest, HandlersHearOfWhatTheUserDoes)
{
    Form form(file_.path());
    std::string story;
    const auto note = [&story](const char* what) { return [&story, what] { story += what; }; };
    form.OnChange(13, note("change "))
        .OnLeave(13, [&](bool good) { story += good ? "good " : "bad "; })
        .OnSelect(17, note("select "))
        .OnDoubleClick(17, note("double "))
        .OnFocus(13, note("focus "))
        .OnClosing([&](int result) {
            story += "closing" + std::to_string(result) + " ";
            return false;
        });
    show(form);
    click(form, 13);
    TypeM(L"x");
    click(form, 17);
    EXPECT_EQ(story, "focus change good select ");
    form.OnSelect(17, nullptr); // No longer.
    DoubleClickM(item(form, 17), 5, 5);
    KeyM(VK_ESCAPE);
    ::SendMessageW(windowOf(form), WM_CLOSE, 0, 0);
    PumpPending();
    EXPECT_EQ(story, "focus change good select double closing2 ");
    EXPECT_TRUE(form.IsOpen());
}

TEST_F(FormTest, EveryValueIsReadSetAndKept)
{
    Form form(file_.path());
    EXPECT_TRUE(form.Set(12, 3)); // An integer in a field with a real.
    EXPECT_EQ(form.Real(12), 3.0);
    EXPECT_TRUE(form.Set(12, 2.5));
    EXPECT_EQ(form.Real(12), 2.5);
    EXPECT_TRUE(form.Set(13, u8"笔"));
    EXPECT_EQ(form.Text(13), u8"笔");
    EXPECT_TRUE(form.Set(13, std::string()));
    EXPECT_EQ(form.Text(13), "");
    EXPECT_TRUE(form.Set(42, true));
    EXPECT_EQ(form.Checked(42), true);
    EXPECT_TRUE(form.Set(32, true));
    EXPECT_EQ(form.Group(31), 32);
    EXPECT_TRUE(form.SetIndex(17, 2));
    EXPECT_EQ(form.Index(17), 2);
    EXPECT_TRUE(form.SetSelection(18, { 2, 0 }));
    EXPECT_EQ(form.Selection(18), (std::vector<int> { 0, 2 }));
    EXPECT_TRUE(form.SetSelection(18, {}));
    EXPECT_EQ(form.Selection(18), std::vector<int>());
    EXPECT_TRUE(form.SetPath(46, "top"));
    EXPECT_EQ(form.Path(46), "top");
    EXPECT_EQ(form.Save(11), "5");
    EXPECT_TRUE(form.Restore(11, "6"));
    const auto all = form.SaveAll();
    ASSERT_TRUE(all);
    Form other(file_.path());
    EXPECT_TRUE(other.RestoreAll(*all));
    EXPECT_EQ(other.SaveAll(), all);
    EXPECT_FALSE(other.RestoreAll("11 900\n"));

    EXPECT_FALSE(form.Set(11, 900));
    EXPECT_EQ(form.Error(), panelkit_status_text(PANELKIT_ERROR_REFUSED));
    EXPECT_EQ(form.Int(999), std::nullopt);
    EXPECT_EQ(form.Error(), "there is no control 999");
    EXPECT_TRUE(form.AddLine(17, "d"));
    EXPECT_TRUE(form.InsertLine(17, 0, "0"));
    EXPECT_EQ(form.LineCount(17), 5);
    EXPECT_EQ(form.Line(17, 4), "d");
    EXPECT_TRUE(form.DeleteLine(17, 0));
    EXPECT_TRUE(form.ClearLines(17));
    EXPECT_TRUE(form.EnableControl(11, false));
    EXPECT_EQ(form.IsControlEnabled(11), false);
    EXPECT_TRUE(form.ShowControl(11, false));
    EXPECT_EQ(form.IsControlShown(11), false);
    EXPECT_EQ(form.Controls().size(), 26u);
    EXPECT_TRUE(form.SetTitle(u8"标题"));
    EXPECT_EQ(form.Title(), u8"标题");
    EXPECT_EQ(slHostOf(form)->m_hWnd, windowOf(form));
}

TEST_F(FormTest, ABadFileGivesAFormWithoutADialog)
{
    Form form("no such.dlg");
    EXPECT_FALSE(form);
    EXPECT_EQ(form.Error(), "can't read no such.dlg");
    EXPECT_FALSE(form.Show());
    EXPECT_EQ(form.Run(), -1);
    EXPECT_EQ(form.Int(11), std::nullopt);
    EXPECT_EQ(form.Error(), "can't read no such.dlg");
}

TEST_F(FormTest, OneThatWasMovedFromDoesNothing)
{
    Form form(file_.path());
    const HWND window = windowOf(form);
    Form moved(std::move(form));
    EXPECT_EQ(windowOf(moved), window);
    const auto useless = [](Form& empty) {
        EXPECT_FALSE(empty);
        EXPECT_EQ(empty.Run(), -1);
        EXPECT_FALSE(empty.Set(11, 1));
        EXPECT_EQ(empty.SaveAll(), std::nullopt);
        EXPECT_TRUE(empty.Controls().empty());
        EXPECT_EQ(empty.Native(), nullptr);
        EXPECT_EQ(empty.Title(), "");
        EXPECT_FALSE(empty.OnClick(43, [] {}).OnTimer(1, 1, [] {}));
        EXPECT_EQ(empty.Error(), "the form has no dialog");
    };
    useless(form); // NOLINT: that is the test.
    Form none;
    useless(none);
    form = std::move(moved);
    EXPECT_EQ(windowOf(form), window);
    form = Form(file_.path());
    EXPECT_FALSE(::IsWindow(window)); // The one before is destroyed.
    Form& same = form;
    form = std::move(same);
    EXPECT_TRUE(form);
}

TEST_F(FormTest, AHandlerMayDestroyItsForm)
{
    auto form = std::make_unique<Form>(file_.path());
    const auto alive = std::make_shared<int>(1);
    const std::string text(100, 'x');
    std::string after;
    form->OnClick(43, [&form, alive, text, &after] {
        form.reset();
        after = text + std::to_string(*alive); // What the handler holds still lives.
    });
    show(*form);
    const HWND window = windowOf(*form);
    ClickM(item(*form, 43), 5, 5);
    EXPECT_TRUE(PumpUntil([window] { return !::IsWindow(window); }));
    EXPECT_EQ(form, nullptr);
    EXPECT_EQ(after, text + "1");
    EXPECT_EQ(alive.use_count(), 1);
}

TEST_F(FormTest, WhatAHandlerThrowsComesOutOfRun)
{
    Form form(file_.path());
    form.OnTimer(1, 10, [] { throw std::runtime_error("by a timer"); });
    try {
        form.Run();
        ADD_FAILURE() << "nothing was thrown";
    } catch (const std::runtime_error& thrown) {
        EXPECT_STREQ(thrown.what(), "by a timer");
    }
    EXPECT_FALSE(form.IsOpen());
    EXPECT_TRUE(form.OnTimer(1, 10, [&form] { form.Close(3); }));
    EXPECT_EQ(form.Run(), 3); // It is not thrown again.
    EXPECT_TRUE(form.OnTimer(1, 10, [] { throw std::runtime_error("in the loop"); }));
    EXPECT_TRUE(form.Show());
    EXPECT_THROW(Form::RunLoop(), std::runtime_error);
    EXPECT_TRUE(form.StopTimer(1));
}

TEST_F(FormTest, DiagnosticsAreTold)
{
    const DescriptionFileCL file(
        "[版本号]\n1.0\n[对话框]\n0\n100 80\n420 260\n1\n参数设置\n14 2 4\n笔.bmp\n");
    std::string told;
    panelkit::FormOptions options;
    options.diagnostics = [&told](const panelkit_diagnostic& what) { told += what.code; };
    EXPECT_TRUE(Form(file.path(), options));
    EXPECT_EQ(told, "missing-file");
}

// Typed values by function id: what the user did, and what the program sets.
#include "dialog/valued_dialog.h"
#include <cmath>

using namespace testing_support;

namespace {

using LinesTP = std::vector<int>;

std::string utf8(const std::optional<ValueTextCL>& text)
{
    return text ? text->Utf8M() : "(none)";
}

// Types over what stands in the edit with the focus.
void retypeM(const wchar_t* text)
{
    KeyM(VK_HOME);
    ChordM(VK_SHIFT, VK_END);
    TypeM(text);
}

// Whether every typed getter refuses the id.
bool hasNoValue(DialogValuesCL& values, int id)
{
    char buffer[4] = "abc";
    const bool isUntouched = values.TextM(id, buffer, 4) == 0 && std::string(buffer) == "abc";
    return isUntouched && !values.IntM(id) && !values.RealM(id) && !values.TextM(id) && !values.CheckedM(id)
        && !values.GroupM(id) && !values.IndexM(id) && !values.SelectionM(id) && !values.PathM(id)
        && !values.SavedM(id) && values.PartsM(id) == 0 && values.ValueM(id).PartsM() == 0;
}

// Whether every typed setter refuses the id.
bool takesNoValue(DialogValuesCL& values, int id)
{
    return !values.SetIntM(id, 1) && !values.SetRealM(id, 1) && !values.SetTextM(id, "1")
        && !values.SetCheckedM(id, true) && !values.SetIndexM(id, 0) && !values.SetSelectionM(id, { 0 })
        && !values.SetPathM(id, "") && !values.RestoreM(id, "1") && !values.SetValueM(id, ControlValueCL());
}

} // namespace

TEST(ValuesById, OfUnknownIdsAndControlsWithoutAValueAreNone)
{
    ValuedDialogCL dialog;
    for (const int id : { ValuedDialogCL::ButtonId, ValuedDialogCL::UnknownId, 0, -1, 1014 }) {
        EXPECT_TRUE(hasNoValue(dialog.ValuesM(), id)) << id;
        EXPECT_TRUE(takesNoValue(dialog.ValuesM(), id)) << id;
    }
    DuBasicDialogCL unborn;
    EXPECT_TRUE(hasNoValue(unborn.ValuesM(), 11));
    EXPECT_TRUE(takesNoValue(unborn.ValuesM(), 11));
}

TEST(ValuesById, OfAnotherTypeAreRefused)
{
    ValuedDialogCL dialog;
    auto& values = dialog.ValuesM();
    const auto before = values.AllM();
    EXPECT_FALSE(values.RealM(11));
    EXPECT_FALSE(values.TextM(11));
    EXPECT_FALSE(values.IntM(12));
    EXPECT_FALSE(values.IntM(13));
    EXPECT_FALSE(values.CheckedM(17));
    EXPECT_FALSE(values.IndexM(41));
    EXPECT_FALSE(values.GroupM(41));
    EXPECT_FALSE(values.SetRealM(11, 5));
    EXPECT_FALSE(values.SetTextM(11, "5"));
    EXPECT_FALSE(values.SetIntM(12, 5));
    EXPECT_FALSE(values.SetIntM(41, 1));
    EXPECT_FALSE(values.SetCheckedM(11, true));
    EXPECT_FALSE(values.SetIndexM(41, 0));
    EXPECT_FALSE(values.SetPathM(13, "abc"));
    EXPECT_FALSE(values.SetTextM(46, "top"));
    EXPECT_EQ(values.AllM(), before);
}

TEST(ValuesById, OfADestroyedWindowAreNone)
{
    ValuedDialogCL dialog;
    auto& values = dialog.ValuesM();
    for (const auto& [id, saved] : values.AllM()) {
        ::DestroyWindow(dialog.ItemM(id));
        EXPECT_FALSE(values.SavedM(id)) << id;
        EXPECT_FALSE(values.RestoreM(id, saved)) << id;
        EXPECT_FALSE(values.CheckedM(id) || values.IsEnabledM(id) || values.IsShownM(id)) << id;
        EXPECT_FALSE(values.EnableM(id, true) || values.ShowM(id, true)) << id;
    }
    EXPECT_TRUE(values.AllM().empty());
}

TEST(ValuesById, OfEditsAreWhatIsTypedButNotLeftYet)
{
    ValuedDialogCL dialog;
    auto& values = dialog.ValuesM();
    const MessageBoxWatcher watcher;
    dialog.StartAtM(11);
    retypeM(L"-");
    EXPECT_FALSE(values.IntM(11)); // Half a number.
    TypeM(L"4");
    EXPECT_EQ(values.IntM(11), -4);
    TypeM(L"2");
    EXPECT_FALSE(values.IntM(11)); // Below the minimum.
    EXPECT_EQ(textOf(dialog.ItemM(11)), "-42");
    EXPECT_EQ(ShownDialogCL::FocusedIdM(), 11);
    EXPECT_EQ(dialog.StoryM(), "");
    EXPECT_TRUE(watcher.SeenM().empty());
    EXPECT_TRUE(values.SetIntM(11, 7)); // So nothing is told when the field is left.
    dialog.StartAtM(12);
    retypeM(L"2.999");
    EXPECT_EQ(values.RealM(12), 2.99F);
    dialog.StartAtM(13);
    retypeM(L"转速x");
    EXPECT_EQ(utf8(values.TextM(13)), "转速x");
    TypeM(L"yz");
    EXPECT_EQ(utf8(values.TextM(13)), "(none)"); // Seven bytes.
    KeyM(VK_BACK);
    dialog.StartAtM(11); // Left: six bytes are legal.
    EXPECT_TRUE(watcher.SeenM().empty());
}

// The value that the edit had accepted last stays what it was until it is left.
TEST(ValuesById, ReadingAnEditKeepsItsOwnValue)
{
    ValuedDialogCL dialog;
    auto& edit = dialog.ControlM<DuSingleEditCL>(11);
    ::SetWindowTextW(edit.m_hWnd, L"9");
    EXPECT_EQ(dialog.ValuesM().IntM(11), 9);
    edit.DispEditM();
    EXPECT_EQ(textOf(edit.m_hWnd), "5");
}

TEST(ValuesById, EditsTakeWhatTheyWouldNotRefuseOnLeaving)
{
    ValuedDialogCL dialog;
    auto& values = dialog.ValuesM();
    EXPECT_TRUE(values.SetIntM(11, 100));
    EXPECT_FALSE(values.SetIntM(11, 101));
    EXPECT_FALSE(values.SetIntM(11, -6));
    EXPECT_EQ(values.IntM(11), 100);
    EXPECT_EQ(textOf(dialog.ItemM(11)), "100");
    EXPECT_TRUE(values.SetRealM(12, 2.25));
    EXPECT_FALSE(values.SetRealM(12, 9.6));
    EXPECT_FALSE(values.SetRealM(12, std::nan("")));
    EXPECT_FALSE(values.SetRealM(12, 1e300));
    EXPECT_EQ(textOf(dialog.ItemM(12)), "2.25");
    EXPECT_TRUE(values.SetRealM(12, 1.259)); // The field has two decimals.
    EXPECT_EQ(values.RealM(12), 1.26F);
    EXPECT_TRUE(values.SetTextM(13, ValueTextCL::FromUtf8M("转速")));
    EXPECT_FALSE(values.SetTextM(13, "1234567"));
    EXPECT_FALSE(values.SetTextM(13, nullptr));
    EXPECT_FALSE(values.SetTextM(13, L"\x0E01")); // GBK has no Thai.
    EXPECT_EQ(values.TextM(13)->WideM(), L"转速");
    EXPECT_EQ(values.TextM(13)->GbkM(), "\xD7\xAA\xCB\xD9");
    int number = 0;
    EXPECT_EQ(dialog.GetSingleEditValM(11, &number), 1); // The old interface sees the same.
    EXPECT_EQ(number, 100);
}

TEST(ValuesById, GoIntoBuffersCutBetweenCharacters)
{
    ValuedDialogCL dialog;
    auto& values = dialog.ValuesM();
    ASSERT_TRUE(values.SetTextM(13, L"转速x"));
    char bytes[10] = "";
    EXPECT_EQ(values.TextM(13, bytes, 4), 6);
    EXPECT_STREQ(bytes, "\xD7\xAA");
    EXPECT_EQ(values.TextM(13, bytes, 6), 6);
    EXPECT_STREQ(bytes, "\xD7\xAA\xCB\xD9x");
    EXPECT_EQ(values.Utf8TextM(13, bytes, 6), 8);
    EXPECT_STREQ(bytes, "转");
    EXPECT_EQ(values.TextM(13, nullptr, 10), 6);
    EXPECT_EQ(values.Utf8TextM(13, bytes, 0), 8);
    wchar_t wide[4] = L"";
    EXPECT_EQ(values.WideTextM(13, wide, 3), 4);
    EXPECT_EQ(std::wstring(wide), L"转速");
    EXPECT_EQ(values.WideTextM(13, wide, 4), 4);
    EXPECT_EQ(std::wstring(wide), L"转速x");
    EXPECT_EQ(values.WideTextM(13, nullptr, 4), 4);
    ASSERT_TRUE(values.SetTextM(16, L"\xD83D\xDE00")); // One character of two units.
    EXPECT_EQ(values.WideTextM(16, wide, 2), 3);
    EXPECT_EQ(std::wstring(wide), L"");
    EXPECT_EQ(values.TextM(11, bytes, 10), 0); // A number is no text.
    EXPECT_EQ(values.WideTextM(11, wide, 4), 0);
}

TEST(ValuesById, OfSpinEditsFollowArrowsAndKeys)
{
    ValuedDialogCL dialog;
    auto& values = dialog.ValuesM();
    dialog.StartAtM(14);
    const HWND arrows = dialog.ItemM(1014);
    ClickM(arrows, 5, 3);
    EXPECT_EQ(values.IntM(14), 6);
    ClickM(arrows, 5, 3);
    EXPECT_EQ(values.IntM(14), 8);
    dialog.StartAtM(14);
    retypeM(L"3");
    EXPECT_EQ(values.IntM(14), 3);
    TypeM(L"3");
    EXPECT_FALSE(values.IntM(14)); // Above the maximum.
    EXPECT_EQ(dialog.StoryM(), "");
    EXPECT_FALSE(values.SetIntM(14, 11));
    EXPECT_TRUE(values.SetIntM(14, 2));
    ClickM(arrows, 5, 3); // The arrows go on from there.
    EXPECT_EQ(values.IntM(14), 4);
    EXPECT_EQ(values.RealM(15), 0.5F);
    EXPECT_TRUE(values.SetRealM(15, 0.125));
    EXPECT_EQ(textOf(dialog.ItemM(15)), "0.125");
    EXPECT_FALSE(values.SetRealM(15, 1.5));
    EXPECT_EQ(values.RealM(15), 0.125F);
}

TEST(ValuesById, OfMultiLineEditsAreTheWholeText)
{
    ValuedDialogCL dialog;
    auto& values = dialog.ValuesM();
    EXPECT_EQ(utf8(values.TextM(16)), "first");
    dialog.StartAtM(16);
    ChordM(VK_CONTROL, VK_END);
    TypeM(L"\r\u0e01"); // A letter that GBK has not.
    EXPECT_EQ(utf8(values.TextM(16)), "first\r\n\u0e01");
    EXPECT_TRUE(values.SetTextM(16, L"一\r\n\u0e02"));
    EXPECT_EQ(values.TextM(16)->WideM(), L"一\r\n\u0e02");
    EXPECT_FALSE(values.SetTextM(16, std::string(20, 'x'))); // The limit is 20 bytes, all shorter.
    EXPECT_TRUE(values.SetTextM(16, std::string(19, 'x')));
    EXPECT_FALSE(values.SetTextM(16, nullptr));
    EXPECT_EQ(utf8(values.TextM(16)), std::string(19, 'x'));
    char text[20] = "";
    EXPECT_EQ(dialog.ControlM<DuMultiEditCL>(16).GetTextM(text), 1);
    EXPECT_EQ(std::string(text), std::string(19, 'x'));
}

TEST(ValuesById, OfCheckBoxesFollowClicks)
{
    ValuedDialogCL dialog;
    auto& values = dialog.ValuesM();
    EXPECT_EQ(values.CheckedM(41), true);
    EXPECT_EQ(values.CheckedM(42), false);
    dialog.ClickItemM(42);
    EXPECT_EQ(values.CheckedM(42), true);
    dialog.StoryM();
    EXPECT_TRUE(values.SetCheckedM(42, false));
    EXPECT_TRUE(values.SetCheckedM(41, true));
    EXPECT_EQ(values.CheckedM(42), false);
    EXPECT_EQ(values.CheckedM(41), true);
    EXPECT_EQ(dialog.StoryM(), ""); // Nobody clicked.
}

TEST(ValuesById, OfRadioButtonsAreThoseOfTheirGroup)
{
    ValuedDialogCL dialog;
    auto& values = dialog.ValuesM();
    for (const int id : { 31, 32, 33 }) {
        EXPECT_EQ(values.GroupM(id), 31);
    }
    EXPECT_FALSE(values.GroupM(34)); // None is checked.
    dialog.ClickItemM(33);
    EXPECT_EQ(values.GroupM(31), 33);
    EXPECT_EQ(values.CheckedM(31), false);
    EXPECT_EQ(values.CheckedM(33), true);
    dialog.StoryM();
    EXPECT_TRUE(values.SetCheckedM(35, true));
    EXPECT_TRUE(values.SetCheckedM(32, true));
    EXPECT_EQ(values.GroupM(31), 32);
    EXPECT_EQ(values.GroupM(34), 35);
    EXPECT_EQ(values.CheckedM(33), false);
    EXPECT_TRUE(values.SetCheckedM(32, false));
    EXPECT_FALSE(values.GroupM(31));
    EXPECT_EQ(dialog.StoryM(), "");
}

TEST(ValuesById, OfAGroupCountDisabledAndHiddenButtonsToo)
{
    ValuedDialogCL dialog;
    auto& values = dialog.ValuesM();
    ASSERT_TRUE(values.EnableM(31, false));
    ASSERT_TRUE(values.ShowM(32, false));
    EXPECT_EQ(values.GroupM(33), 31);
    EXPECT_TRUE(values.SetCheckedM(32, true));
    EXPECT_EQ(values.GroupM(33), 32);
    EXPECT_EQ(values.CheckedM(31), false);
}

TEST(ValuesById, OfListBoxesAreTheLinesSelected)
{
    ValuedDialogCL dialog;
    auto& values = dialog.ValuesM();
    EXPECT_EQ(values.IndexM(17), -1);
    EXPECT_EQ(values.SelectionM(17), LinesTP());
    ClickM(dialog.ItemM(17), 20, 20);
    EXPECT_EQ(values.IndexM(17), 1);
    EXPECT_TRUE(values.SetIndexM(17, 2));
    EXPECT_EQ(values.SelectionM(17), LinesTP { 2 });
    for (const int none : { 3, -2 }) {
        EXPECT_FALSE(values.SetIndexM(17, none));
    }
    EXPECT_FALSE(values.SetSelectionM(17, { 0, 1 }));
    EXPECT_EQ(values.IndexM(17), 2);
    EXPECT_TRUE(values.SetIndexM(17, -1));
    EXPECT_EQ(values.IndexM(17), -1);
}

TEST(ValuesById, OfMultipleSelectionsAreAllLines)
{
    ValuedDialogCL dialog;
    auto& values = dialog.ValuesM();
    for (const int id : { 18, 20 }) {
        EXPECT_EQ(values.IndexM(id), -1);
        EXPECT_TRUE(values.SetSelectionM(id, { 2, 0 }));
        EXPECT_EQ(values.SelectionM(id), (LinesTP { 0, 2 }));
        EXPECT_FALSE(values.IndexM(id)); // Not one line.
        EXPECT_FALSE(values.SetSelectionM(id, { 0, 3 }));
        EXPECT_EQ(values.SelectionM(id), (LinesTP { 0, 2 }));
        EXPECT_TRUE(values.SetIndexM(id, 1));
        EXPECT_EQ(values.IndexM(id), 1);
    }
    ClickM(dialog.ItemM(18), 20, 5); // One more.
    EXPECT_EQ(values.SelectionM(18), (LinesTP { 0, 1 }));
    EXPECT_TRUE(values.SetSelectionM(18, {}));
    EXPECT_EQ(values.IndexM(18), -1);
}

TEST(ValuesById, OfAListBoxWithoutSelectionAreNone)
{
    ValuedDialogCL dialog;
    ClickM(dialog.ItemM(19), 20, 20);
    EXPECT_TRUE(hasNoValue(dialog.ValuesM(), 19));
    EXPECT_TRUE(takesNoValue(dialog.ValuesM(), 19));
}

TEST(ValuesById, OfBoxesOfPicturesAreLikeThoseOfTexts)
{
    ValuedDialogCL dialog;
    auto& values = dialog.ValuesM();
    ClickM(dialog.ItemM(21), 20, 40);
    EXPECT_EQ(values.IndexM(21), 1);
    EXPECT_TRUE(values.SetIndexM(21, 0));
    EXPECT_EQ(values.SelectionM(21), LinesTP { 0 });
    EXPECT_FALSE(values.SetIndexM(21, 2));
}

TEST(ValuesById, OfAComboBoxAreItsLineAndText)
{
    ValuedDialogCL dialog;
    auto& values = dialog.ValuesM();
    EXPECT_EQ(values.IndexM(22), -1);
    EXPECT_FALSE(values.TextM(22));
    dialog.StartAtM(22);
    KeyM(VK_DOWN);
    KeyM(VK_DOWN);
    EXPECT_EQ(values.IndexM(22), 1);
    EXPECT_EQ(utf8(values.TextM(22)), "green");
    dialog.StoryM();
    EXPECT_TRUE(values.SetTextM(22, "blue"));
    EXPECT_EQ(values.IndexM(22), 2);
    EXPECT_FALSE(values.SetTextM(22, "Blue")); // It has no such line, and no field.
    EXPECT_FALSE(values.SetIndexM(22, 3));
    EXPECT_EQ(values.IndexM(22), 2);
    EXPECT_TRUE(values.SetIndexM(22, 0));
    EXPECT_EQ(utf8(values.TextM(22)), "red");
    EXPECT_TRUE(values.SetIndexM(22, -1));
    EXPECT_FALSE(values.TextM(22));
    EXPECT_EQ(dialog.StoryM(), "");
}

TEST(ValuesById, OfAComboBoxWithAFieldAreWhatIsTyped)
{
    ValuedDialogCL dialog;
    auto& values = dialog.ValuesM();
    EXPECT_EQ(utf8(values.TextM(23)), "");
    ASSERT_TRUE(FocusM(::GetWindow(dialog.ItemM(23), GW_CHILD)));
    KeyM(VK_DOWN);
    EXPECT_EQ(values.IndexM(23), 0);
    EXPECT_EQ(utf8(values.TextM(23)), "red");
    retypeM(L"gre");
    EXPECT_EQ(values.IndexM(23), -1);
    EXPECT_EQ(utf8(values.TextM(23)), "gre");
    EXPECT_EQ(utf8(values.LineM(23, 0)), "red"); // Not left yet.
    EXPECT_TRUE(values.SetTextM(23, "pink"));
    EXPECT_EQ(values.IndexM(23), -1);
    dialog.StartAtM(43); // Left: what the program set replaces no line.
    EXPECT_EQ(utf8(values.LineM(23, 0)), "red");
    EXPECT_EQ(utf8(values.TextM(23)), "pink");
    EXPECT_TRUE(values.SetTextM(23, "green"));
    EXPECT_EQ(values.IndexM(23), 1);
    EXPECT_FALSE(values.SetTextM(23, nullptr));
}

TEST(ValuesById, OfTablesAreTheRowsSelected)
{
    ValuedDialogCL dialog;
    auto& values = dialog.ValuesM();
    EXPECT_EQ(values.IndexM(24), -1);
    RECT row {};
    row.left = LVIR_BOUNDS;
    ::SendMessageW(dialog.ItemM(24), LVM_GETITEMRECT, 1, reinterpret_cast<LPARAM>(&row));
    ClickM(dialog.ItemM(24), 20, (row.top + row.bottom) / 2);
    EXPECT_EQ(values.IndexM(24), 1);
    EXPECT_FALSE(values.SetSelectionM(24, { 0, 1 })); // One at most.
    EXPECT_TRUE(values.SetIndexM(24, 0));
    EXPECT_EQ(values.SelectionM(24), LinesTP { 0 });
    EXPECT_TRUE(values.SetSelectionM(25, { 2, 0 }));
    EXPECT_EQ(values.SelectionM(25), (LinesTP { 0, 2 }));
    EXPECT_FALSE(values.IndexM(25));
    EXPECT_FALSE(values.SetIndexM(25, 3));
    EXPECT_TRUE(values.SetSelectionM(25, { 1, 2 }));
    EXPECT_EQ(values.SelectionM(25), (LinesTP { 1, 2 }));
    EXPECT_TRUE(values.SetIndexM(25, -1));
    EXPECT_EQ(values.IndexM(25), -1);
}

TEST(ValuesById, OfATreeArePathsOfTexts)
{
    ValuedDialogCL dialog;
    auto& values = dialog.ValuesM();
    EXPECT_EQ(utf8(values.PathM(46)), "");
    EXPECT_TRUE(values.SetPathM(46, "top/a\\/b"));
    const auto selectedData = [&dialog] {
        int data = 0;
        dialog.ControlM<DuTreeCL>(46).GetCurSelM(&data);
        return data;
    };
    EXPECT_EQ(selectedData(), 502);
    dialog.StartAtM(46);
    KeyM(VK_DOWN);
    EXPECT_EQ(utf8(values.PathM(46)), "top/same");
    KeyM(VK_DOWN);
    EXPECT_EQ(selectedData(), 504);
    EXPECT_EQ(utf8(values.PathM(46)), "top/same\\#2"); // Two items of one text are not one.
    EXPECT_TRUE(values.SetPathM(46, "top/same\\#2/leaf"));
    EXPECT_EQ(selectedData(), 505);
    EXPECT_EQ(utf8(values.PathM(46)), "top/same\\#2/leaf");
    for (const char* none : { "top/same/leaf", "to", "top/", "/top", "top/same\\#3", "top/a/b" }) {
        EXPECT_FALSE(values.SetPathM(46, none)) << none;
    }
    EXPECT_FALSE(values.SetPathM(46, nullptr));
    EXPECT_EQ(selectedData(), 505);
    EXPECT_TRUE(values.SetPathM(46, ""));
    EXPECT_EQ(utf8(values.PathM(46)), "");
}

TEST(ValuesById, OfAMultiStateButtonAreItsStatuses)
{
    ValuedDialogCL dialog;
    auto& values = dialog.ValuesM();
    EXPECT_EQ(values.IntM(44), 7);
    dialog.ClickItemM(44);
    EXPECT_EQ(values.IntM(44), 9);
    dialog.StoryM();
    EXPECT_FALSE(values.SetIntM(44, 8));
    EXPECT_EQ(values.IntM(44), 9);
    EXPECT_TRUE(values.SetIntM(44, 7));
    EXPECT_EQ(values.IntM(44), 7);
    EXPECT_EQ(dialog.StoryM(), "");
    dialog.ControlM<DuMultiStateButtonCL>(44).DelAllM();
    EXPECT_FALSE(values.IntM(44));
}

TEST(ValuesById, OfAKnobAreItsAngleAndCounter)
{
    ValuedDialogCL dialog;
    auto& values = dialog.ValuesM();
    EXPECT_EQ(values.RealM(45), 22.5F);
    EXPECT_EQ(values.IntM(45), 3);
    ClickM(dialog.ItemM(45), 20, 20);
    EXPECT_EQ(values.RealM(45), 30.0F);
    EXPECT_EQ(values.IntM(45), 13);
    dialog.StoryM();
    EXPECT_TRUE(values.SetRealM(45, -90));
    EXPECT_EQ(values.IntM(45), 13); // Each for itself.
    EXPECT_FALSE(values.SetRealM(45, 90.5));
    EXPECT_FALSE(values.SetRealM(45, std::nan("")));
    EXPECT_EQ(values.RealM(45), -90.0F);
    EXPECT_TRUE(values.SetIntM(45, -7));
    EXPECT_EQ(values.SavedM(45), "-90 -7");
    EXPECT_EQ(dialog.StoryM(), "");
}

TEST(ValuesById, WorkInAWindowThatTheApplicationOwns)
{
    PlainWindowCL frame;
    const SmallPictureCL picture(0x0000FF, 20, 20);
    const DescriptionFileCL file(valuedSections(picture.path()));
    DuBasicDialogCL host;
    host.SetConfigFileM(file.path());
    host.InitDlgM(&frame, 0);
    auto& values = host.ValuesM();
    EXPECT_TRUE(values.SetIntM(11, 42));
    EXPECT_EQ(textOf(::GetDlgItem(frame.m_hWnd, 11)), "42");
    EXPECT_TRUE(values.SetCheckedM(33, true));
    EXPECT_EQ(values.GroupM(31), 33);
    EXPECT_EQ(values.AllM().size(), 24U);
    host.DestroyM();
    EXPECT_TRUE(values.AllM().empty());
}

TEST(ValuesById, OfTheFirstControlWithAnIdAreMeant)
{
    TestDialogCL dialog(HeaderSections
        + std::string(
            "[标题]\n1\n0\n1 11 0 0 50 20 1\na\n0 -1 0 0\n"
            "[多选按钮]\n3\n0\n2 11 0 30 50 20 1\na\n3 12 0 50 50 20 1\nb\n4 12 0 70 50 20 0\nc\n"));
    auto& values = dialog.ValuesM();
    EXPECT_FALSE(values.CheckedM(11)); // The label.
    EXPECT_EQ(values.CheckedM(12), true);
    EXPECT_TRUE(values.SetCheckedM(12, false));
    EXPECT_EQ(values.AllM(), (DialogValuesCL::SavedTP { { 12, "0" } }));
}

// The preview follows its file.
#include "support/catalogue_file.h"
#include "tools/live/live_preview.h"

using namespace testing_support;

namespace {

std::string labelOf(const std::string& text)
{
    return "[标题]\n1\n0\n1 11 20 20 120 20 2\n" + text + "\n0 -1 0 0\n";
}
const std::string BrokenLabel = "[标题]\n1\n0\n1 11 twenty 20 120 20 2\ntext\n0 -1 0 0\n";

std::string placeOnScreen(HWND window)
{
    RECT rect {};
    ::GetWindowRect(window, &rect);
    return std::to_string(rect.left) + " " + std::to_string(rect.top);
}

} // namespace

TEST(Watch, ChangeIsShownWithinHalfASecond)
{
    const WorkFolderCL folder;
    writeDescription(labelOf("first"));
    const LivePreviewCL dialog;
    ASSERT_TRUE(dialog.ShowsM(11, "first"));
    std::vector<ULONGLONG> times;
    for (int i = 0; i < 7; ++i) {
        const std::string text = "change " + std::to_string(i);
        const ULONGLONG start = ::GetTickCount64();
        writeDescription(labelOf(text));
        ASSERT_TRUE(PumpUntil([&] { return dialog.ShowsM(11, text); }));
        times.push_back(::GetTickCount64() - start);
    }
    std::sort(times.begin(), times.end());
    EXPECT_LE(times[3], 500U) << "the fastest: " << times[0] << ", the slowest: " << times[6];
    RecordProperty("milliseconds", static_cast<int>(times[3]));
}

TEST(Watch, TheCatalogueOfTheLanguageIsFollowedToo)
{
    const WorkFolderCL folder;
    writeDescription(labelOf("first"));
    ViewOptionsCL options = watching();
    options.textLanguage = "en_GB";
    const LivePreviewCL dialog(options);
    ASSERT_TRUE(dialog.ShowsM(11, "first"));
    {
        const CatalogueBesideCL catalogue("a.dlg", "en", TextsTP { { "first", "one" } });
        EXPECT_TRUE(PumpUntil([&] { return dialog.ShowsM(11, "one"); }));
        const CatalogueBesideCL narrower("a.dlg", "en_GB", TextsTP { { "first", "another" } });
        EXPECT_TRUE(PumpUntil([&] { return dialog.ShowsM(11, "another"); }));
    }
    EXPECT_TRUE(PumpUntil([&] { return dialog.ShowsM(11, "first"); }));
}

TEST(Watch, BrokenFileKeepsTheLastGoodDialogAndSaysWhy)
{
    const WorkFolderCL folder;
    writeDescription(labelOf("good"));
    const LivePreviewCL dialog;
    EXPECT_EQ(dialog.BarTextM(), "");
    writeDescription(BrokenLabel);
    ASSERT_TRUE(PumpUntil([&] { return dialog.BarTextM() != ""; }));
    EXPECT_NE(dialog.BarTextM().find("14:6: "), std::string::npos) << dialog.BarTextM();
    EXPECT_NE(dialog.BarTextM().find("'twenty'"), std::string::npos) << dialog.BarTextM();
    EXPECT_NE(dialog.BarTextM().find(" ["), std::string::npos) << dialog.BarTextM();
    EXPECT_TRUE(dialog.ShowsM(11, "good"));
    EXPECT_EQ(::GetForegroundWindow(), dialog.m_hWnd);
    writeDescription(labelOf("mended"));
    EXPECT_TRUE(PumpUntil([&] { return dialog.ShowsM(11, "mended"); }));
    EXPECT_EQ(dialog.BarTextM(), "");
}

TEST(Watch, FindingsStandOutsideTheDialogAndFollowIt)
{
    const WorkFolderCL folder;
    writeDescription(labelOf("good"));
    const LivePreviewCL dialog;
    const Pixels before(dialog.m_hWnd);
    writeDescription(BrokenLabel);
    ASSERT_TRUE(PumpUntil([&] { return dialog.BarTextM() != ""; }));
    EXPECT_EQ(Pixels(dialog.m_hWnd).DifferencesM(before), 0);
    ::SetWindowPos(dialog.m_hWnd, nullptr, 300, 200, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    RECT window {};
    RECT bar {};
    ::GetWindowRect(dialog.m_hWnd, &window);
    ::GetWindowRect(dialog.BarM(), &bar);
    EXPECT_EQ(bar.left, window.left);
    EXPECT_EQ(bar.top, window.bottom);
    EXPECT_GT(bar.bottom, bar.top + 10);
    // At the lower edge of the screen it stands above.
    const int lowest = ::GetSystemMetrics(SM_CYSCREEN) - (window.bottom - window.top);
    ::SetWindowPos(dialog.m_hWnd, nullptr, 300, lowest, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    ::GetWindowRect(dialog.BarM(), &bar);
    EXPECT_EQ(bar.bottom, lowest);
}

TEST(Watch, OfManyFindingsTheFirstAreSaid)
{
    const WorkFolderCL folder;
    writeDescription(labelOf("good"));
    const LivePreviewCL dialog;
    std::string sections = "[标题]\n9\n0\n";
    for (int i = 0; i < 9; ++i) {
        sections += "1 11 20 " + std::to_string(20 * i) + " 120 20 2\ntext\n0 -1 0 0\n"; // One id for all.
    }
    writeDescription(sections);
    ASSERT_TRUE(PumpUntil([&] { return dialog.BarTextM() != ""; }));
    EXPECT_NE(dialog.BarTextM().find("\r\nand 2 more"), std::string::npos) << dialog.BarTextM();
}

TEST(Watch, FindingsAreChineseForChineseUsers)
{
    const WorkFolderCL folder;
    writeDescription(labelOf("good"));
    ViewOptionsCL options = watching();
    options.language = "zh";
    const LivePreviewCL dialog(options);
    writeDescription(BrokenLabel);
    ASSERT_TRUE(PumpUntil([&] { return dialog.BarTextM() != ""; }));
    EXPECT_NE(dialog.BarTextM().find("数字"), std::string::npos) << dialog.BarTextM();
}

TEST(Watch, FileBrokenFromTheStartIsSaidToBe)
{
    const WorkFolderCL folder;
    writeDescription(BrokenLabel);
    const LivePreviewCL dialog;
    EXPECT_NE(dialog.BarTextM(), "");
    writeDescription(labelOf("mended"));
    EXPECT_TRUE(PumpUntil([&] { return dialog.ShowsM(11, "mended"); }));
    EXPECT_EQ(dialog.BarTextM(), "");
}

TEST(Watch, ChangedPictureIsShownAnew)
{
    const WorkFolderCL folder;
    const SmallPictureCL red(0xC01001, 40, 30);
    const SmallPictureCL green(0x02C020, 40, 30);
    writeBytes("p.bmp", red.bytes());
    writeDescription("[位图按钮]\n1\n0\n1 11 20 30 40 30\np.bmp\nNULL\nNULL\nNULL\nNULL\n");
    const LivePreviewCL dialog;
    ASSERT_TRUE(PumpUntil([&] { return Pixels(dialog.m_hWnd).CountM(RGB(0xC0, 0x10, 0x01)) == 1200; }));
    writeBytes("p.bmp", green.bytes());
    EXPECT_TRUE(PumpUntil([&] { return Pixels(dialog.m_hWnd).CountM(RGB(0x02, 0xC0, 0x20)) == 1200; }));
    EXPECT_EQ(Pixels(dialog.m_hWnd).CountM(RGB(0xC0, 0x10, 0x01)), 0);
}

TEST(Watch, PictureOfATreeThatComesLaterIsShown)
{
    const WorkFolderCL folder;
    const SmallPictureCL green(0x02C020, 20, 20);
    writeDescription(
        "[树形控件]\n1\n0\n1 12 20 30 120 100\n[树形控件数据]\n1\n0\n12 0 1 501 item\np.bmp\np.bmp\n");
    const LivePreviewCL dialog;
    ASSERT_NE(dialog.BarTextM(), ""); // No such picture.
    writeBytes("p.bmp", green.bytes());
    EXPECT_TRUE(PumpUntil([&] { return Pixels(dialog.m_hWnd).CountM(RGB(0x02, 0xC0, 0x20)) > 100; }));
    EXPECT_EQ(dialog.BarTextM(), "");
}

TEST(Watch, FileSavedByRenamingIsFollowed)
{
    const WorkFolderCL folder;
    writeDescription(labelOf("first"));
    const LivePreviewCL dialog;
    for (const std::string text : { "second", "third!" }) {
        writeDescription(labelOf(text), "a.dlg~");
        ASSERT_TRUE(::MoveFileExA("a.dlg~", "a.dlg", MOVEFILE_REPLACE_EXISTING));
        EXPECT_TRUE(PumpUntil([&] { return dialog.ShowsM(11, text); })) << text;
    }
}

TEST(Watch, FileThatGoesAndComesBackIsFollowed)
{
    const WorkFolderCL folder;
    writeDescription(labelOf("first"));
    const LivePreviewCL dialog;
    const HWND label = dialog.ItemM(11);
    ASSERT_TRUE(::DeleteFileA("a.dlg"));
    // It stays away for longer than the watch waits.
    const ULONGLONG start = ::GetTickCount64();
    PumpUntil([start] { return ::GetTickCount64() - start > 700; });
    EXPECT_EQ(dialog.ItemM(11), label);
    EXPECT_EQ(dialog.BarTextM(), "");
    writeDescription(labelOf("second"));
    EXPECT_TRUE(PumpUntil([&] { return dialog.ShowsM(11, "second"); }));
}

TEST(Watch, FileHeldByItsEditorIsReadOnceItIsFree)
{
    const WorkFolderCL folder;
    writeDescription(labelOf("first"));
    const LivePreviewCL dialog;
    const HANDLE held
        = ::CreateFileA("a.dlg", GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    ASSERT_NE(held, INVALID_HANDLE_VALUE);
    const std::string bytes = slUtf8ToGbk((HeaderSections + labelOf("second")).c_str());
    DWORD written = 0;
    ::WriteFile(held, bytes.data(), 100, &written, nullptr);
    const ULONGLONG start = ::GetTickCount64();
    PumpUntil([start] { return ::GetTickCount64() - start > 500; });
    EXPECT_TRUE(dialog.ShowsM(11, "first"));
    EXPECT_EQ(dialog.BarTextM(), "");
    ::WriteFile(held, bytes.data() + 100, static_cast<DWORD>(bytes.size() - 100), &written, nullptr);
    ::CloseHandle(held);
    EXPECT_TRUE(PumpUntil([&] { return dialog.ShowsM(11, "second"); }));
}

TEST(Watch, WindowStaysWhereTheUserHasIt)
{
    const WorkFolderCL folder;
    writeDescription(labelOf("first"));
    LivePreviewCL dialog;
    EXPECT_EQ(placeOnScreen(dialog.m_hWnd), "100 80");
    ::SetWindowPos(dialog.m_hWnd, nullptr, 321, 234, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    dialog.ChangeToM("");
    EXPECT_EQ(placeOnScreen(dialog.m_hWnd), "321 234");
    // Until the file itself says another place.
    std::string moved = HeaderSections + labelOf("moved");
    moved.replace(moved.find("100 80"), 6, "150 90");
    writeBytes("a.dlg", slUtf8ToGbk(moved.c_str()));
    EXPECT_TRUE(PumpUntil([&] { return dialog.ShowsM(11, "moved"); }));
    EXPECT_EQ(placeOnScreen(dialog.m_hWnd), "150 90");
}

TEST(Watch, RebuiltDialogLooksAsOneThatIsNew)
{
    const WorkFolderCL folder;
    writeDescription(labelOf("first"));
    copyExample("lists", "other.dlg");
    const std::string other = wholeFile("other.dlg");
    LivePreviewCL dialog;
    writeBytes("a.dlg", other);
    ASSERT_TRUE(PumpUntil([&] { return childrenOf(dialog.m_hWnd) > 1; })) << dialog.BarTextM();
    ASSERT_TRUE(
        PumpUntil([&] { return ::GetForegroundWindow() == dialog.m_hWnd; })); // Its caption is lit then.
    PumpPending();
    std::vector<std::string> places;
    for (HWND child = ::GetWindow(dialog.m_hWnd, GW_CHILD); child != nullptr;
         child = ::GetWindow(child, GW_HWNDNEXT)) {
        places.push_back(placeOf(child));
    }
    const int focused = ::GetDlgCtrlID(::GetFocus());
    ::SendMessageW(dialog.m_hWnd, WM_NCACTIVATE, TRUE, 0); // Its caption is lit, whatever the display says.
    const Pixels rebuilt(dialog.m_hWnd, Pixels::Part::Whole);
    dialog.DestroyWindow();
    LivePreviewCL fresh;
    std::vector<std::string> freshPlaces;
    for (HWND child = ::GetWindow(fresh.m_hWnd, GW_CHILD); child != nullptr;
         child = ::GetWindow(child, GW_HWNDNEXT)) {
        freshPlaces.push_back(placeOf(child));
    }
    PumpPending();
    EXPECT_EQ(places, freshPlaces);
    EXPECT_EQ(focused, ::GetDlgCtrlID(::GetFocus()));
    ::SendMessageW(fresh.m_hWnd, WM_NCACTIVATE, TRUE, 0);
    const auto differences = [&] { return Pixels(fresh.m_hWnd, Pixels::Part::Whole).DifferencesM(rebuilt); };
    EXPECT_TRUE(PumpUntil([&] { return differences() == 0; })) << differences();
}

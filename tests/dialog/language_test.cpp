// The texts of a description file in the user's language, and what stays as the file has it.
#include "dialog/valued_dialog.h"
#include "support/catalogue_file.h"

using namespace testing_support;

namespace {

// A dialog with a catalogue beside its file, built in that language.
class TranslatedDialogCL : public DuBasicDialogCL
{
public:
    TranslatedDialogCL(const std::string& utf8, const TextsTP& texts, const char* language = "xx")
        : file_(utf8)
        , catalogue_(file_.path(), "xx", texts)
    {
        SetConfigFileM(file_.path());
        if (language != nullptr) {
            EXPECT_EQ(SetLanguageM(language), 1);
        }
        CreateM();
    }
    ~TranslatedDialogCL() override { slSetMessageLanguage(""); }

    HWND ItemM(int id) const { return ::GetDlgItem(m_hWnd, id); }
    // What a control shows, in UTF-8.
    std::string ShownM(int id) const { return shownBy(ItemM(id)); }
    static std::string shownBy(HWND window)
    {
        wchar_t text[300] = L"";
        ::SendMessageW(window, WM_GETTEXT, 300, reinterpret_cast<LPARAM>(text));
        return utf8(text);
    }
    std::string LineShownM(int id, UINT message, int line) const
    {
        wchar_t text[300] = L"";
        ::SendMessageW(ItemM(id), message, static_cast<WPARAM>(line), reinterpret_cast<LPARAM>(text));
        return utf8(text);
    }
    std::string LineReadM(int id, int line)
    {
        const auto text = ValuesM().LineM(id, line);
        return text ? text->Utf8M() : "none";
    }
    static std::string utf8(const wchar_t* text) { return ValueTextCL(text).Utf8M(); }
    template <class ControlTP> ControlTP& ControlM(int id)
    {
        int kind = 0;
        return static_cast<ControlTP&>(*GetContrlPtrM(id, &kind));
    }

private:
    DescriptionFileCL file_;
    CatalogueBesideCL catalogue_;
};

const char* const Captions = "[标题]\n1\n0\n1 11 10 10 80 20 1\n速度\n0 -1 0 0\n"
                             "[标准按钮]\n2\n0\n2 12 10 40 80 24\n开\n0\n3 13 10 70 80 24\n开\n0\n"
                             "[单选按钮]\n1\n0\n4 14 110 10 90 20 1 1\n毫米\n"
                             "[多选按钮]\n1\n0\n5 15 110 40 90 20 1\n自动\n"
                             "[成组控件]\n1\n0\n6 16 110 70 90 50\n参数\n"
                             "[多行文本]\n2\n0\n7 17 210 10 90 50 1 99\n速度\n0 1 255 255 255\n"
                             "9 19 310 10 90 50 1 99\n速度\n1 1 255 255 255\n"
                             "[单行文本]\n1\n0\n8 18 210 70 90 22 3 0 20 0 0 1\n速度\n0 1 255 255 255\n";

// Lists 11 and 12 of lines, a combo box 13 and one with a field 14, a table 15, a tree 16.
std::string listSections(const std::string& picture)
{
    return HeaderSections
        + ("[文本列表框]\n1\n0\n1 11 10 10 80 60 14 1 1 255 255 255 0\n"
           "[文本列表框初始值]\n3\n0\n11 直线\n11 其他\n11 曲线\n"
           "[下拉列表框]\n2\n0\n3 13 100 10 80 90 0\n4 14 10 200 200 90 1\n"
           "[下拉列表框初始值]\n5\n0\n13 红\n13 绿\n13 蓝\n14 红\n14 绿\n"
           "[列表控件]\n1\n0\n5 15 190 10 120 80 2 1\n[列表控件列标题]\n2\n0\n15 0 60 名称\n15 1 50 其他\n"
           "[列表控件初始值]\n2\n0\n15 0 0 直线\n15 0 1 红\n"
           "[树形控件]\n1\n0\n6 16 10 100 150 90\n[树形控件数据]\n3\n0\n16 0 1 501 红\n"
            + picture + "\n" + picture + "\n16 1 2 502 绿\n" + picture + "\n" + picture
            + "\n16 1 3 503 其他\n" + picture + "\n" + picture + "\n");
}

const TextsTP ListTexts { { "直线", "Gerade – ß" }, { "曲线", "Кривая" }, { "红", "красный" },
    { "绿", "зелёный" }, { "蓝", "青い" }, { "名称", "اسم" }, { "速度", "Speed" } };

class ListsInRussianCL : public TranslatedDialogCL
{
public:
    explicit ListsInRussianCL(const SmallPictureCL& picture = SmallPictureCL(0xFF, 20, 20))
        : TranslatedDialogCL(listSections(picture.path()), ListTexts)
    {
    }
};

} // namespace

TEST(DialogLanguage, CaptionsAndTheTitleGoWideToTheirWindows)
{
    const TextsTP texts { { "参数设置", "Настройки" }, { "速度", "Geschwindigkeit in m/s²" },
        { "开", "Пуск" }, { "standard button 13\4开", "開ける" }, { "毫米", "مليمتر" },
        { "自动", "automático" }, { "参数", "Größe" } };
    TranslatedDialogCL dialog(HeaderSections + std::string(Captions), texts);
    EXPECT_EQ(TranslatedDialogCL::shownBy(dialog.m_hWnd), "Настройки");
    EXPECT_EQ(dialog.ShownM(11), "Geschwindigkeit in m/s²");
    EXPECT_EQ(dialog.ShownM(12), "Пуск");
    EXPECT_EQ(dialog.ShownM(13), "開ける");
    EXPECT_EQ(dialog.ShownM(14), "مليمتر");
    EXPECT_EQ(dialog.ShownM(15), "automático");
    EXPECT_EQ(dialog.ShownM(16), "Größe");
    // What the user may change is a value.
    EXPECT_EQ(dialog.ShownM(17), "速度");
    EXPECT_EQ(dialog.ShownM(18), "速度");
    // What he may not is a text like others, and a value all the same.
    EXPECT_EQ(dialog.ShownM(19), "Geschwindigkeit in m/s²");
    EXPECT_EQ(dialog.ValuesM().TextM(19)->Utf8M(), "速度");
    char text[TextSize] = "";
    EXPECT_EQ(dialog.ControlM<DuMultiEditCL>(19).GetTextM(text), 1);
    EXPECT_EQ(slGbkToUtf8(text), "速度");
    EXPECT_TRUE(dialog.ValuesM().SetTextM(19, "new"));
    EXPECT_EQ(dialog.ValuesM().TextM(19)->Utf8M(), "new");
    // What the application reads by the window classes is what is shown, as far as GBK can say it.
    CString caption;
    dialog.GetDlgItem(12)->GetWindowText(caption);
    EXPECT_STREQ(caption, ValueTextCL::FromUtf8M("Пуск").GbkM().c_str());
    EXPECT_EQ(dialog.ControlM<DuLabelCL>(11).CaptionM(), ValueTextCL(L"Geschwindigkeit in m/s²"));
}

TEST(DialogLanguage, WithoutALanguageTheCatalogueIsNotLookedAt)
{
    TranslatedDialogCL dialog(
        HeaderSections + std::string(Captions), { { "速度", "Speed" }, { "参数设置", "Settings" } }, nullptr);
    EXPECT_EQ(dialog.ShownM(11), "速度");
    EXPECT_EQ(TranslatedDialogCL::shownBy(dialog.m_hWnd), "参数设置");
    EXPECT_STREQ(dialog.LanguageM(), "");
}

TEST(DialogLanguage, ChangesWithTheNextBuildAndBack)
{
    TranslatedDialogCL dialog(HeaderSections + std::string(Captions), { { "速度", "Speed" } });
    EXPECT_EQ(dialog.ShownM(11), "Speed");
    for (const auto& [language, shown] :
        { std::pair<const char*, const char*> { "de", "速度" }, { "xx_YY", "Speed" }, { nullptr, "速度" } }) {
        EXPECT_EQ(dialog.SetLanguageM(language), 1);
        dialog.DestroyM();
        dialog.InitDlgM(&dialog, 1);
        EXPECT_EQ(dialog.ShownM(11), shown);
    }
    EXPECT_EQ(dialog.SetLanguageM("xx"), 1);
    EXPECT_EQ(dialog.SetLanguageM("../xx"), 0);
    EXPECT_STREQ(dialog.LanguageM(), "xx");
    EXPECT_EQ(dialog.SetLanguageM(""), 1); // The system has one.
    EXPECT_STRNE(dialog.LanguageM(), "");
}

TEST(DialogLanguage, LinesAreShownTranslatedAndReadAsInTheFile)
{
    ListsInRussianCL dialog;
    EXPECT_EQ(dialog.LineShownM(11, LB_GETTEXT, 0), "Gerade – ß");
    EXPECT_EQ(dialog.LineShownM(11, LB_GETTEXT, 1), "其他");
    EXPECT_EQ(dialog.LineShownM(11, LB_GETTEXT, 2), "Кривая");
    EXPECT_EQ(dialog.LineReadM(11, 0), "直线");
    EXPECT_EQ(dialog.LineReadM(11, 1), "其他");
    EXPECT_EQ(dialog.LineReadM(11, 2), "曲线");
    EXPECT_EQ(dialog.LineShownM(13, CB_GETLBTEXT, 2), "青い");
    EXPECT_EQ(dialog.LineReadM(13, 2), "蓝");
    int index = 0;
    int number = 0;
    char text[TextSize] = "";
    EXPECT_TRUE(dialog.ValuesM().SetTextM(13, ValueTextCL::FromUtf8M("绿")));
    EXPECT_EQ(dialog.ControlM<DuComboBoxCL>(13).GetCurItemM(&index, &number, text), 1);
    EXPECT_EQ(index, 1);
    EXPECT_EQ(slGbkToUtf8(text), "绿");
    EXPECT_EQ(dialog.ShownM(13), "зелёный");
    EXPECT_EQ(dialog.ValuesM().TextM(13)->Utf8M(), "绿");
    EXPECT_FALSE(dialog.ValuesM().SetTextM(13, ValueTextCL::FromUtf8M("зелёный")));
}

// The numbers that the file gives lines, and those that come and go.
TEST(DialogLanguage, LinesThatComeAndGoTakeTheirTextsAlong)
{
    for (const int id : { 11, 14 }) {
        ListsInRussianCL dialog;
        DialogValuesCL& values = dialog.ValuesM();
        const int count = *values.LineCountM(id);
        const std::string first = dialog.LineReadM(id, 0);
        const std::string last = dialog.LineReadM(id, count - 1);
        const UINT get = id == 11 ? LB_GETTEXT : CB_GETLBTEXT;
        const std::string shown = dialog.LineShownM(id, get, count - 1);
        EXPECT_NE(shown, last);
        EXPECT_TRUE(values.InsertLineM(id, 0, "new", 7));
        EXPECT_TRUE(values.AddLineM(id, ValueTextCL::FromUtf8M(last)));
        EXPECT_EQ(dialog.LineReadM(id, 0), "new");
        EXPECT_EQ(dialog.LineReadM(id, 1), first);
        EXPECT_EQ(dialog.LineReadM(id, count), last);
        EXPECT_EQ(dialog.LineShownM(id, get, count), shown);
        EXPECT_EQ(dialog.LineShownM(id, get, count + 1), last); // The application's own words.
        EXPECT_TRUE(values.DeleteLineM(id, 1));
        EXPECT_EQ(dialog.LineReadM(id, count - 1), last);
        EXPECT_EQ(dialog.LineShownM(id, get, count - 1), shown);
        EXPECT_TRUE(values.ClearLinesM(id));
        EXPECT_TRUE(values.AddLineM(id, "again"));
        EXPECT_EQ(dialog.LineReadM(id, 0), "again");
    }
}

TEST(DialogLanguage, TheFieldOfAComboBoxGivesTheLineOrWhatWasTyped)
{
    ListsInRussianCL dialog;
    dialog.ShowWindow(SW_SHOW);
    ASSERT_TRUE(ActivateM(dialog.m_hWnd));
    const HWND field = ::GetWindow(dialog.ItemM(14), GW_CHILD);
    ASSERT_TRUE(FocusM(field));
    DialogValuesCL& values = dialog.ValuesM();
    EXPECT_TRUE(values.SetIndexM(14, 1));
    EXPECT_EQ(dialog.ShownM(14), "зелёный");
    EXPECT_EQ(values.TextM(14)->Utf8M(), "绿");
    const std::string saved = *values.SavedM(14);
    // Something is typed and taken back, and the field left: nothing has changed.
    ::SendMessageW(field, EM_SETSEL, 0, 0);
    TypeM(L"x");
    EXPECT_EQ(values.TextM(14)->Utf8M(), "xзелёный");
    ::SendMessageW(field, EM_SETSEL, 0, 1);
    KeyM(VK_DELETE);
    EXPECT_EQ(dialog.ShownM(14), "зелёный");
    ::SetFocus(dialog.ItemM(11));
    PumpPending();
    EXPECT_EQ(dialog.ShownM(14), "зелёный");
    EXPECT_EQ(values.TextM(14)->Utf8M(), "绿");
    EXPECT_EQ(*values.IndexM(14), 1);
    EXPECT_TRUE(values.SetIndexM(14, -1));
    EXPECT_TRUE(values.RestoreM(14, saved));
    EXPECT_EQ(*values.IndexM(14), 1);
    // What is typed takes the line's place, and is its text.
    ASSERT_TRUE(FocusM(field));
    ::SetWindowTextW(dialog.ItemM(14), L"own");
    ::SetFocus(dialog.ItemM(11));
    PumpPending();
    EXPECT_EQ(dialog.LineReadM(14, 1), "own");
    EXPECT_EQ(dialog.LineReadM(14, 0), "红");
}

TEST(DialogLanguage, HeadingsAreTranslatedAndCellsAreData)
{
    ListsInRussianCL dialog;
    auto& table = dialog.ControlM<DuListCtrlCL>(15);
    const auto heading = [&table](int column) {
        wchar_t text[100] = L"";
        LVCOLUMNW what {};
        what.mask = LVCF_TEXT | LVCF_WIDTH;
        what.pszText = text;
        what.cchTextMax = 100;
        EXPECT_TRUE(table.GetColumn(column, &what));
        return TranslatedDialogCL::utf8(text) + " " + std::to_string(what.cx);
    };
    EXPECT_EQ(heading(0), "اسم 60");
    EXPECT_EQ(heading(1), "其他 50");
    EXPECT_EQ(dialog.LineReadM(15, 0), "直线");
    EXPECT_EQ(slGbkToUtf8(table.GetItemText(0, 1)), "红");
}

TEST(DialogLanguage, ItemsOfATreeAreShownTranslatedAndTheirPathIsTheFiles)
{
    ListsInRussianCL dialog;
    auto& tree = dialog.ControlM<DuTreeCL>(16);
    const HTREEITEM root = tree.GetRootItem();
    wchar_t text[100] = L"";
    TVITEMW what {};
    what.mask = TVIF_TEXT;
    what.hItem = tree.GetChildItem(root);
    what.pszText = text;
    what.cchTextMax = 100;
    ASSERT_TRUE(::SendMessageW(tree.m_hWnd, TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&what)));
    EXPECT_EQ(TranslatedDialogCL::utf8(text), "зелёный");
    EXPECT_EQ(tree.ItemTextM(what.hItem).Utf8M(), "绿");
    EXPECT_EQ(tree.GetItemData(what.hItem), 502u);
    EXPECT_TRUE(dialog.ValuesM().SetPathM(16, ValueTextCL::FromUtf8M("红/绿")));
    EXPECT_EQ(tree.GetSelectedItem(), what.hItem);
    EXPECT_EQ(dialog.ValuesM().PathM(16)->Utf8M(), "红/绿");
    tree.SetItemText(what.hItem, "renamed");
    EXPECT_EQ(tree.ItemTextM(what.hItem), ValueTextCL("renamed"));
    tree.DeleteItem(what.hItem);
    const HTREEITEM added = tree.InsertItem("added", root);
    EXPECT_EQ(tree.ItemTextM(added), ValueTextCL("added"));
    EXPECT_EQ(tree.ItemTextM(root).Utf8M(), "红");
    EXPECT_EQ(tree.ItemTextM(nullptr), ValueTextCL(""));
}

TEST(DialogLanguage, AllValuesAreThoseOfTheFile)
{
    const SmallPictureCL picture(0xFF, 20, 20);
    const std::string sections = valuedSections(picture.path());
    TextsTP texts;
    for (const char* const text : { "red", "green", "blue", "a", "b", "c", "top", "a/b", "same", "leaf",
             "one", "two", "yes", "first", "abc", "p", "q" }) {
        texts.emplace_back(text, std::string("Ж") + text);
    }
    TranslatedDialogCL chinese(sections, texts, nullptr);
    TranslatedDialogCL translated(sections, texts);
    EXPECT_EQ(translated.ShownM(31), "Жone");
    EXPECT_EQ(translated.ValuesM().AllM(), chinese.ValuesM().AllM());
    for (TranslatedDialogCL* const dialog : { &chinese, &translated }) {
        EXPECT_TRUE(dialog->ValuesM().SetTextM(23, "green"));
        EXPECT_TRUE(dialog->ValuesM().SetIndexM(22, 2));
        EXPECT_TRUE(dialog->ValuesM().SetPathM(46, "top/same\\#2/leaf"));
        ::SetWindowTextW(dialog->ItemM(11), L" 42x");
    }
    EXPECT_EQ(translated.ValuesM().AllM(), chinese.ValuesM().AllM());
    const auto saved = chinese.ValuesM().AllM();
    EXPECT_TRUE(translated.ValuesM().SetAllM(saved).empty());
    EXPECT_EQ(translated.ValuesM().AllM(), saved);
}

TEST(DialogLanguage, TheLibrarysMessagesFollow)
{
    const std::string field = HeaderSections
        + std::string("[单行文本]\n2\n0\n1 11 10 10 80 20 1 0 100 0 0 1 5 0 1 255 255 255\n"
                      "2 12 10 40 80 20 1 0 100 0 0 1 5 0 1 255 255 255\n");
    TranslatedDialogCL dialog(field,
        { { "message 2\4输入数太大,请重新输入!\n(不得大于{maximum})",
            "Слишком большое число: больше {maximum}" } });
    dialog.ShowWindow(SW_SHOW);
    ASSERT_TRUE(ActivateM(dialog.m_hWnd));
    const auto told = [&dialog](const wchar_t* typed) {
        const MessageBoxWatcher boxes;
        EXPECT_TRUE(FocusM(dialog.ItemM(11)));
        ::SetWindowTextW(dialog.ItemM(11), typed);
        ::SetFocus(dialog.ItemM(12));
        const auto seen = boxes.SeenM();
        ::SetWindowTextW(dialog.ItemM(11), L"1");
        return seen.size() == 1 ? TranslatedDialogCL::utf8(seen[0].text.c_str()) : "no box";
    };
    EXPECT_EQ(told(L"999"), "Слишком большое число: больше 100");
    EXPECT_EQ(told(L"-9"), "输入数太小,请重新输入!\n(不得小于0)");
    dialog.SetLanguageM("en");
    EXPECT_EQ(
        told(L"999"), "This number is too large. Please enter it again.\n(It must not be more than 100)");
    DuBasicDialogCL::SetMessageTextM(NumberTooLargeMessage, "No!");
    EXPECT_EQ(told(L"999"), "No!");
    DuBasicDialogCL::SetMessageTextM(NumberTooLargeMessage, nullptr);
    dialog.SetLanguageM(nullptr);
    EXPECT_EQ(told(L"999"), "输入数太大,请重新输入!\n(不得大于100)");
}

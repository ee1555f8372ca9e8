// Controls of classes that the library knows nothing of, made by the application's factories.
#include "controls/text/edit_story.h"
#include "support/description_files.h"
#include "support/kind_types.h"

using namespace testing_support;

namespace {

int living = 0;

// Any kind's control as an application derives it, larger than the library's own.
template <class ControlTP> class OwnCL : public ControlTP
{
public:
    explicit OwnCL(int id)
        : askedFor(id)
    {
        ++living;
    }
    ~OwnCL() override { --living; }
    OwnCL(const OwnCL&) = delete;
    OwnCL& operator=(const OwnCL&) = delete;

    const int askedFor;
    std::string more = "what the array has no room for";
};

// An edit of the application: the up key adds ten.
class TenUpCL : public OwnCL<DuSingleEditCL>
{
public:
    using OwnCL::OwnCL;

protected:
    afx_msg void OnKeyDown(UINT key, UINT repeats, UINT flags)
    {
        int value = 0;
        if (key == VK_UP && GetValueM(&value) == 1) {
            SetValueM(value + 10);
        } else {
            DuSingleEditCL::OnKeyDown(key, repeats, flags);
        }
    }
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(TenUpCL, DuSingleEditCL)
ON_WM_KEYDOWN()
END_MESSAGE_MAP()

const std::string Edits = editSection({ editRecord(11, "1 0 100", "5"), editRecord(12, "1 0 100", "6") });

// The application makes field 11; field 12 is the library's own.
class TenUpDialogCL : public DuBasicDialogCL
{
public:
    TenUpDialogCL()
    {
        SetConfigFileM(file_.path());
        SetFactoryM<DuSingleEditCL>([this](int id) {
            asked += std::to_string(id) + " ";
            return id == 11 ? std::make_unique<TenUpCL>(id) : nullptr;
        });
    }
    template <class ControlTP> ControlTP* FindM(int id)
    {
        int kind = 0;
        return dynamic_cast<ControlTP*>(GetContrlPtrM(id, &kind));
    }
    void ShowM()
    {
        CreateM();
        ShowWindow(SW_SHOW);
        EXPECT_TRUE(ActivateM(m_hWnd));
        EXPECT_TRUE(FocusM(::GetDlgItem(m_hWnd, 11)));
    }
    std::string asked;

private:
    DescriptionFileCL file_ { Edits };
};

// The sample with one of every kind. Its pictures are not there, which is the same for all.
class EveryKindDialogCL : public DuBasicDialogCL
{
public:
    explicit EveryKindDialogCL(bool ownClasses)
    {
        SetConfigFileM(PANELKIT_SAMPLES "/every_kind.dlg");
        if (ownClasses) {
            slEachKind([this](auto row) {
                using ControlTP = typename decltype(row)::Controls::ControlTP;
                SetFactoryM<ControlTP>([](int id) { return std::make_unique<OwnCL<ControlTP>>(id); });
            });
        }
        CreateM();
        ShowWindow(SW_SHOWNOACTIVATE);
        PumpPending();
    }
    std::string StackM() const
    {
        std::string all;
        for (HWND child = ::GetWindow(m_hWnd, GW_CHILD); child != nullptr;
             child = ::GetWindow(child, GW_HWNDNEXT)) {
            all += std::to_string(::GetDlgCtrlID(child)) + " at " + placeOf(child) + " style "
                + std::to_string(styleOf(child)) + "\n";
        }
        return all;
    }
};

} // namespace

TEST(OwnControls, TakeTheirOwnMessagesAndAreFoundAsAnyOther)
{
    TenUpDialogCL dialog;
    dialog.ShowM();
    EXPECT_EQ(dialog.asked, "11 12 ");
    auto* const own = dialog.FindM<TenUpCL>(11);
    ASSERT_NE(own, nullptr);
    EXPECT_EQ(dialog.FindM<TenUpCL>(12), nullptr);
    EXPECT_NE(dialog.FindM<DuSingleEditCL>(12), nullptr);
    EXPECT_EQ(CWnd::FromHandlePermanent(::GetDlgItem(dialog.m_hWnd, 11)), own);
    EXPECT_EQ(own->askedFor, 11);
    EXPECT_EQ(own->more, "what the array has no room for");
    KeyM(VK_UP);
    EXPECT_EQ(textOf(own->m_hWnd), "15");
    EXPECT_TRUE(FocusM(::GetDlgItem(dialog.m_hWnd, 12)));
    KeyM(VK_UP);
    EXPECT_EQ(textOf(::GetDlgItem(dialog.m_hWnd, 12)), "6");
}

TEST(OwnControls, HaveTheValuesOfTheirIds)
{
    TenUpDialogCL dialog;
    dialog.ShowM();
    EXPECT_EQ(dialog.ValuesM().IntM(11), 5);
    EXPECT_TRUE(dialog.ValuesM().SetIntM(11, 70));
    EXPECT_FALSE(dialog.ValuesM().SetIntM(11, 101)); // The limits are the description's.
    int value = 0;
    EXPECT_EQ(dialog.GetSingleEditValM(11, &value), 1);
    EXPECT_EQ(value, 70);
    EXPECT_EQ(dialog.SetSingleEditValM(11, 71), 1);
    EXPECT_EQ(dialog.ValuesM().AllM(), (DialogValuesCL::SavedTP { { 11, "71" }, { 12, "6" } }));
    dialog.EnableSingleEditM(-1, 0);
    EXPECT_EQ(dialog.ValuesM().IsEnabledM(11), false);
    EXPECT_EQ(dialog.ValuesM().IsEnabledM(12), false);
    dialog.EnableAllCtrlM(1);
    EXPECT_EQ(dialog.ValuesM().IsEnabledM(11), true);
    EXPECT_EQ(dialog.ShowContrlM(11, 0), 1);
    EXPECT_EQ(dialog.ValuesM().IsShownM(11), false);
}

TEST(OwnControls, AreFoundByTheIdThatTheyTake)
{
    TenUpDialogCL dialog;
    dialog.ShowM();
    auto* const own = dialog.FindM<TenUpCL>(11);
    ASSERT_NE(own, nullptr);
    own->SetFunctionIDM(99);
    EXPECT_EQ(dialog.FindM<TenUpCL>(99), own);
    EXPECT_EQ(dialog.FindM<TenUpCL>(11), nullptr);
}

TEST(OwnControls, TellOfBadValuesAsTheLibrarysOwn)
{
    MessageBoxWatcher told;
    TenUpDialogCL dialog;
    dialog.ShowM();
    MessageRecorder reports(dialog.m_hWnd, { ValueReportMsg });
    ChordM(VK_CONTROL, 'A');
    TypeM(L"500");
    ::SetFocus(::GetDlgItem(dialog.m_hWnd, 12));
    EXPECT_EQ(::GetDlgCtrlID(::GetFocus()), 11); // It has come back.
    EXPECT_EQ(told.SeenM().size(), 1U);
    EXPECT_EQ(textOf(::GetDlgItem(dialog.m_hWnd, 11)), "100");
    EXPECT_EQ(reports.ListM(), (std::vector<std::string> { "sent 1624 w=11 l=-1" }));
}

TEST(OwnControls, GoWithTheDialogAndComeAgainWithEachBuild)
{
    {
        TenUpDialogCL dialog;
        dialog.ShowM();
        EXPECT_EQ(living, 1);
        const HWND first = ::GetDlgItem(dialog.m_hWnd, 11);
        EXPECT_TRUE(dialog.ValuesM().SetIntM(11, 70));
        dialog.InitDlgM(&dialog, 1); // Without destroying the first.
        EXPECT_EQ(living, 1);
        EXPECT_FALSE(::IsWindow(first));
        EXPECT_NE(dialog.FindM<TenUpCL>(11), nullptr);
        EXPECT_EQ(dialog.ValuesM().IntM(11), 5);
        dialog.DestroyM();
        EXPECT_EQ(living, 0);
        EXPECT_EQ(dialog.FindM<CWnd>(11), nullptr);
        EXPECT_EQ(childrenOf(dialog.m_hWnd), 0);
        dialog.InitDlgM(&dialog, 1);
        EXPECT_EQ(living, 1);
        dialog.SetFactoryM<DuSingleEditCL>(nullptr);
        dialog.InitDlgM(&dialog, 1);
        EXPECT_EQ(living, 0);
        EXPECT_EQ(dialog.ValuesM().IntM(11), 5);
        dialog.SetFactoryM<DuSingleEditCL>([](int id) { return std::make_unique<TenUpCL>(id); });
        dialog.InitDlgM(&dialog, 1);
        EXPECT_EQ(living, 2);
    }
    EXPECT_EQ(living, 0);
}

TEST(OwnControls, OfEveryKindLookAndStandAsTheLibrarysOwn)
{
    const auto seenOf = [](bool ownClasses) {
        EveryKindDialogCL dialog(ownClasses);
        const int living_ = living;
        EXPECT_EQ(living_ > 0, ownClasses);
        return std::tuple(
            Pixels(dialog.m_hWnd, Pixels::Part::Whole), dialog.StackM(), dialog.ValuesM().AllM());
    };
    const auto [pixels, stack, values] = seenOf(false);
    const auto [ownPixels, ownStack, ownValues] = seenOf(true);
    EXPECT_GT(pixels.CountM(RGB(0, 0, 0)), 0);
    EXPECT_EQ(ownPixels.DifferencesM(pixels), 0);
    EXPECT_EQ(ownStack, stack);
    EXPECT_EQ(ownValues, values);
    EXPECT_GT(values.size(), 10U);
    EXPECT_EQ(living, 0);
}

namespace {

template <class RowTP> class OwnKindTest : public testing::Test
{
};

} // namespace

TYPED_TEST_SUITE(OwnKindTest, EveryRowTP, KindNamesCL);

TYPED_TEST(OwnKindTest, IsFoundAndDoesWhatTheDialogAsksOfAll)
{
    using ControlTP = typename TypeParam::Controls::ControlTP;
    int first = 0;
    typename TypeParam::Records records;
    VrIOCL io;
    io.OpenM(PANELKIT_SAMPLES "/every_kind.dlg", "r");
    int count = 0;
    ASSERT_EQ(slReadSection(io, records, &count), SectionStatus::Read);
    first = records.GetItemPM(0)->GetFuncIDM();
    EveryKindDialogCL dialog(true);
    int kind = 0;
    auto* const own = dynamic_cast<OwnCL<ControlTP>*>(dialog.GetContrlPtrM(first, &kind));
    ASSERT_NE(own, nullptr);
    EXPECT_EQ(kind, TypeParam::Code);
    EXPECT_EQ(own->askedFor, first);
    EXPECT_TRUE(::IsWindow(own->m_hWnd));
    dialog.EnableAllCtrlM(0);
    EXPECT_FALSE(own->IsWindowEnabled());
    dialog.ShowAllCtrlM(0);
    EXPECT_FALSE(own->IsWindowVisible());
}

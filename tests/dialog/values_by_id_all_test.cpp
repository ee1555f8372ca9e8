// All values at once, kept and given back.
#include "dialog/valued_dialog.h"
#include "support/kind_sample.h"
#include "support/kind_types.h"
#include <fstream>
#include <set>
#include <sstream>

using namespace testing_support;

namespace {

// Kinds with nothing that a user sets. Whoever adds a kind decides: it has a value, or stands here.
constexpr KindCode WithoutValue[] = { NormalAnimateCode, SpecAnimateCode, LabelCode, StandardButtonCode,
    BmpButtonCode, GroupBoxCode, Draw2DCode };

constexpr bool isWithoutValue(int code)
{
    for (const KindCode without : WithoutValue) {
        if (without == code) {
            return true;
        }
    }
    return false;
}

template <class RowTP> class EveryValueTest : public testing::Test
{
protected:
    using RecordsTP = typename RowTP::Records;
    using ControlsTP = typename RowTP::Controls;
    using ControlTP = typename ControlsTP::ControlTP;

    EveryValueTest()
    {
        readSample(records);
        controls.InitialSizeM(records.GetBoundM());
        for (int i = 0; i < records.GetBoundM(); ++i) {
            RetextingCL retexting(picture.path(), "x");
            if (RowTP::Code != TreeCode && RowTP::Code != ComboBoxCode) { // Whose values are their texts.
                records[i].EachFieldM(retexting);
            } else {
                RenamingCL renaming(picture.path());
                records[i].EachFieldM(renaming);
            }
            controls.SetItemM(ControlTP(AliveTag), i);
            (records.*RowTP::InitM)(i, &controls[i]);
        }
        EXPECT_EQ(controls.Create(&parent), 1);
        controls.AfterCreateM();
        if constexpr (!std::is_null_pointer_v<decltype(RowTP::FillM)>) {
            for (int i = 0; i < records.GetBoundM(); ++i) {
                (records.*RowTP::FillM)(i, &controls[i]);
            }
        }
    }

    // Gives every file name another one.
    class RenamingCL : public RetextingCL
    {
    public:
        explicit RenamingCL(const char* name)
            : RetextingCL(name, "")
        {
        }
        void CaptionM(const char*, CharArr&, const TextFormCL&) override { }
    };

    // What a control says of its value; "(none)" when it isn't legal.
    static std::string savedM(const ControlTP& control)
    {
        const ControlValueCL value = control.ReadValueM().OnlyM(control.ValuePartsM());
        return value.PartsM() == control.ValuePartsM() ? value.SavedM() : "(none)";
    }
    static bool restoreM(ControlTP& control, const std::string& saved)
    {
        const auto value = ControlValueCL::FromSavedM(saved, control.ValuePartsM());
        return value && control.WriteValueM(*value);
    }

    SmallPictureCL picture { 0x0000FF, 20, 20 };
    PlainWindowCL parent;
    RecordsTP records;
    ControlsTP controls;
};

// Values of all sorts, of which a control takes those that it can have.
const char* const Tried[] = { "0", "1", "2", "7", "9", "-4", "0.5", "0.25", "90 5", "-7.5 -3", "0 1", "",
    "abc", "转速", "a=b", "0=A4 纸", "1=A3 纸", "-1=", "-1=typed", "-1=A4 纸", "图纸", "图纸/第一页" };

} // namespace

TYPED_TEST_SUITE(EveryValueTest, EveryRowTP, KindNamesCL);

TYPED_TEST(EveryValueTest, ComesBackAsItWasSaved)
{
    static_assert(TypeParam::CanM(HasValue) != isWithoutValue(TypeParam::Code),
        "a kind has a value, or is named as one without");
    if constexpr (TypeParam::CanM(HasValue)) {
        auto& controls = this->controls;
        for (int i = 0; i < controls.GetBoundM(); ++i) {
            auto& control = controls[i];
            SCOPED_TRACE(i);
            std::vector<std::string> taken { TestFixture::savedM(control) };
            ASSERT_NE(taken[0], "(none)");
            for (const char* const saved : Tried) {
                const std::string before = TestFixture::savedM(control);
                if (TestFixture::restoreM(control, saved)) {
                    EXPECT_EQ(TestFixture::savedM(control), saved);
                    taken.emplace_back(saved);
                } else {
                    EXPECT_EQ(TestFixture::savedM(control), before) << saved;
                }
            }
            EXPECT_GE(std::set<std::string>(taken.begin(), taken.end()).size(), 2U);
            // Each from each other one.
            for (auto one = taken.begin(); one != taken.end(); ++one) {
                ASSERT_TRUE(TestFixture::restoreM(control, *one)) << *one;
                for (auto other = one; other != taken.end(); ++other) {
                    ASSERT_TRUE(TestFixture::restoreM(control, *other)) << *other;
                    ASSERT_EQ(TestFixture::savedM(control), *other) << *one;
                    ASSERT_TRUE(TestFixture::restoreM(control, *one)) << *one;
                    ASSERT_EQ(TestFixture::savedM(control), *one) << *other;
                }
            }
        }
    }
}

TEST(AllValues, AreThoseOfEveryControlThatHasOne)
{
    ValuedDialogCL dialog;
    const DialogValuesCL::SavedTP expected { { 11, "5" }, { 12, "1.5" }, { 13, "abc" }, { 16, "first" },
        { 14, "4" }, { 15, "0.5" }, { 17, "" }, { 18, "" }, { 20, "" }, { 21, "" }, { 22, "" }, { 23, "-1=" },
        { 24, "" }, { 25, "" }, { 31, "1" }, { 32, "0" }, { 33, "0" }, { 34, "0" }, { 35, "0" }, { 41, "1" },
        { 42, "0" }, { 44, "7" }, { 45, "22.5 3" }, { 46, "" } };
    EXPECT_EQ(dialog.ValuesM().AllM(), expected);
}

TEST(AllValues, GoIntoAnotherDialogAsTheUserLeftThem)
{
    DialogValuesCL::SavedTP saved;
    {
        ValuedDialogCL dialog;
        dialog.StartAtM(11);
        KeyM(VK_HOME);
        TypeM(L"1");
        dialog.ClickItemM(33);
        dialog.ClickItemM(42);
        dialog.ClickItemM(44);
        ClickM(dialog.ItemM(45), 20, 20);
        ClickM(dialog.ItemM(17), 20, 20);
        ClickM(dialog.ItemM(18), 20, 5);
        ClickM(dialog.ItemM(18), 20, 33);
        ASSERT_TRUE(FocusM(::GetWindow(dialog.ItemM(23), GW_CHILD)));
        TypeM(L"typed");
        ASSERT_TRUE(FocusM(dialog.ItemM(22)));
        KeyM(VK_DOWN);
        ASSERT_TRUE(FocusM(dialog.ItemM(46)));
        KeyM(VK_HOME);
        saved = dialog.ValuesM().AllM();
    }
    const DialogValuesCL::SavedTP expected { { 11, "15" }, { 12, "1.5" }, { 13, "abc" }, { 16, "first" },
        { 14, "4" }, { 15, "0.5" }, { 17, "1" }, { 18, "0 2" }, { 20, "" }, { 21, "" }, { 22, "0" },
        { 23, "-1=typed" }, { 24, "" }, { 25, "" }, { 31, "0" }, { 32, "0" }, { 33, "1" }, { 34, "0" },
        { 35, "0" }, { 41, "1" }, { 42, "1" }, { 44, "9" }, { 45, "30 13" }, { 46, "top" } };
    EXPECT_EQ(saved, expected);
    ValuedDialogCL dialog;
    EXPECT_EQ(dialog.ValuesM().SetAllM(saved), std::vector<int>());
    EXPECT_EQ(dialog.ValuesM().AllM(), expected);
}

TEST(AllValues, ThatDoNotFitAreNamedAndTheOthersAreSet)
{
    ValuedDialogCL dialog;
    auto& values = dialog.ValuesM();
    const auto before = values.AllM();
    const DialogValuesCL::SavedTP bad { { 11, "101" }, { 11, "x" }, { 12, "1,5" }, { 13, "1234567" },
        { 14, "" }, { 17, "5" }, { 22, "1=x" }, { 31, "yes" }, { 43, "1" }, { 44, "8" }, { 45, "91 1" },
        { 46, "top/none" }, { 999, "1" } };
    std::vector<int> ids;
    for (const auto& one : bad) {
        ids.push_back(one.first);
    }
    EXPECT_EQ(values.SetAllM(bad), ids);
    EXPECT_EQ(values.AllM(), before);
    EXPECT_EQ(values.SetAllM({ { 999, "1" }, { 41, "0" }, { 11, "101" }, { 14, "6" } }),
        (std::vector<int> { 999, 11 }));
    EXPECT_EQ(values.CheckedM(41), false);
    EXPECT_EQ(values.IntM(14), 6);
}

TEST(AllValues, LeaveOutAFieldInWhichNoLegalValueStands)
{
    ValuedDialogCL dialog;
    ::SetWindowTextW(dialog.ItemM(11), L"-");
    for (const auto& [id, saved] : dialog.ValuesM().AllM()) {
        EXPECT_NE(id, 11);
    }
}

// A line may have moved or gone in the next version of a dialog.
TEST(AllValues, OfAComboBoxKeepTheTextWhenItsLineHasAnother)
{
    ValuedDialogCL dialog;
    auto& values = dialog.ValuesM();
    EXPECT_TRUE(values.RestoreM(23, "0=green"));
    EXPECT_EQ(values.SavedM(23), "1=green");
    EXPECT_TRUE(values.RestoreM(23, "9=gone"));
    EXPECT_EQ(values.SavedM(23), "-1=gone");
}

TEST(AllValues, SendNoMessageOfTheLibrary)
{
    ValuedDialogCL dialog;
    auto& values = dialog.ValuesM();
    dialog.StartAtM(11);
    const MessageBoxWatcher watcher;
    const auto saved = values.AllM();
    values.SetAllM({ { 11, "7" }, { 22, "1" }, { 33, "1" }, { 42, "1" }, { 44, "9" }, { 45, "0 0" },
        { 46, "top" }, { 25, "1 2" } });
    EXPECT_EQ(values.SetAllM(saved), std::vector<int>());
    EXPECT_EQ(dialog.StoryM(), "");
    EXPECT_EQ(ShownDialogCL::FocusedIdM(), 11);
    EXPECT_TRUE(watcher.SeenM().empty());
}

// The page of values has a row for each kind with a value, and for no other.
TEST(ValuesPage, NamesEveryKindWithAValue)
{
    std::ifstream file(PANELKIT_DOCS "/values.md");
    std::set<std::string> told;
    for (std::string line; std::getline(file, line);) {
        const std::string link = "](kinds/";
        const std::size_t at = line.find(link);
        if (line.rfind("| [", 0) == 0 && at != std::string::npos) {
            told.insert(line.substr(at + link.size(), line.find(".md", at) - at - link.size()));
        }
    }
    std::set<std::string> kinds { "new_rotate_button" }; // Which the host does not build.
    slEachKind([&kinds](auto row) {
        using RowTP = decltype(row);
        if (RowTP::CanM(HasValue)) {
            kinds.insert(RowTP::Records::KindName);
        }
    });
    EXPECT_EQ(told, kinds);
}

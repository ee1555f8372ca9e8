// What the controls of every kind do, whatever else they are.
#include "dialog/basic_dialog.h"
#include "support/handles.h"
#include "support/kind_sample.h"
#include "support/kind_types.h"
#include "support/pump.h"
#include "support/small_picture.h"
#include "support/test_dialog.h"

using namespace testing_support;

namespace {

// Lets the thread create no window with that id while it lives.
class RefusedIdCL
{
public:
    explicit RefusedIdCL(int id)
        : hook_(::SetWindowsHookExW(WH_CBT, &refuse, nullptr, ::GetCurrentThreadId()))
    {
        id_ = id;
    }
    RefusedIdCL(const RefusedIdCL&) = delete;
    RefusedIdCL& operator=(const RefusedIdCL&) = delete;
    ~RefusedIdCL() { ::UnhookWindowsHookEx(hook_); }

private:
    static LRESULT CALLBACK refuse(int code, WPARAM wParam, LPARAM lParam)
    {
        if (code == HCBT_CREATEWND) {
            const auto* const create = reinterpret_cast<const CBT_CREATEWNDW*>(lParam)->lpcs;
            if ((create->style & WS_CHILD) != 0 && reinterpret_cast<INT_PTR>(create->hMenu) == id_) {
                return 1;
            }
        }
        return ::CallNextHookEx(nullptr, code, wParam, lParam);
    }
    static inline int id_ { 0 };
    HHOOK hook_;
};

// The place of all windows in the parent together: a spin edit has two.
std::string placeOfAll(HWND parent)
{
    RECT all {};
    for (HWND child = ::GetWindow(parent, GW_CHILD); child != nullptr;
         child = ::GetWindow(child, GW_HWNDNEXT)) {
        RECT rect {};
        ::GetWindowRect(child, &rect);
        ::UnionRect(&all, &all, &rect);
    }
    ::MapWindowPoints(nullptr, parent, reinterpret_cast<POINT*>(&all), 2);
    return std::to_string(all.left) + " " + std::to_string(all.top) + " "
        + std::to_string(all.right - all.left) + " " + std::to_string(all.bottom - all.top);
}

bool isShown(HWND window)
{
    return (styleOf(window) & WS_VISIBLE) != 0;
}
bool isEnabled(HWND window)
{
    return (styleOf(window) & WS_DISABLED) == 0;
}

template <class RowTP> class EveryKindTest : public testing::Test
{
protected:
    using RecordsTP = typename RowTP::Records;
    using RecordTP = typename RecordsTP::RecordTP;
    using ControlsTP = typename RowTP::Controls;
    using ControlTP = typename ControlsTP::ControlTP;

    static RecordTP describedM()
    {
        const DescriptionFileCL file("5 11 20 30 60 40");
        VrIOCL io;
        io.OpenM(file.path(), "r");
        RecordTP record(AliveTag);
        record.FmReadInterfaceM(&io);
        return record;
    }
    static int applyM(RecordsTP& records, int index, ControlTP* control)
    {
        return (records.*RowTP::InitM)(index, control);
    }
    // A control as its record describes it, without a window.
    static void describeM(ControlTP& control)
    {
        RecordsTP records;
        records.AddItemM(describedM());
        EXPECT_EQ(applyM(records, 0, &control), 1);
    }
    // Three controls with the ids 11, 12 and another one.
    void fillM(int lastId)
    {
        controls.InitialSizeM(3);
        for (int i = 0; i < 3; ++i) {
            controls.SetItemM(ControlTP(AliveTag), i);
            describeM(controls[i]);
            controls[i].SetFunctionIDM(i < 2 ? 11 + i : lastId);
        }
    }
    // The one control in the parent stands where its record says.
    void expectPlaceM() const
    {
        const std::string place = placeOfAll(parent.m_hWnd);
        if (RowTP::Code == ComboBoxCode) { // Its height is that of field and open list.
            EXPECT_EQ(place.substr(0, place.rfind(' ')), "20 30 60");
        } else if (RowTP::Code == SpinEditCode) { // The platform puts its arrows on the edit's frame.
            EXPECT_EQ(place.substr(0, 6) + place.substr(place.rfind(' ') + 1), "20 30 40");
        } else {
            EXPECT_EQ(place, "20 30 60 40");
        }
    }
    std::string shownM()
    {
        std::string all;
        for (int i = 0; i < 3; ++i) {
            all += isShown(controls[i].m_hWnd) ? "x" : "-";
        }
        return all;
    }
    std::string enabledM()
    {
        std::string all;
        for (int i = 0; i < 3; ++i) {
            all += isEnabled(controls[i].m_hWnd) ? "x" : "-";
        }
        return all;
    }

    PlainWindowCL parent;
    ControlsTP controls;
};

} // namespace

TYPED_TEST_SUITE(EveryKindTest, EveryRowTP, KindNamesCL);

TYPED_TEST(EveryKindTest, OnlyAliveRecordsAreApplied)
{
    typename TestFixture::RecordsTP records;
    for (int i = 0; i < 3; ++i) {
        records.AddItemM(TestFixture::describedM());
    }
    records.DelItemM(1);
    typename TestFixture::ControlTP control;
    for (const int none : { 1, 99, -1 }) {
        EXPECT_EQ(TestFixture::applyM(records, none, &control), 1) << none;
        EXPECT_EQ(control.GetFunctionIDM(), 0) << none;
    }
    EXPECT_EQ(TestFixture::applyM(records, 2, &control), 1);
    EXPECT_EQ(control.GetFunctionIDM(), 11);
}

TYPED_TEST(EveryKindTest, CommonFieldsReachTheControl)
{
    auto record = TestFixture::describedM();
    record.SetShowConditionM(7);
    typename TestFixture::RecordsTP records;
    records.AddItemM(record);
    typename TestFixture::ControlTP control;
    EXPECT_EQ(TestFixture::applyM(records, 0, &control), 1);
    // A spin edit is stacked by an index of its own, 0 here.
    EXPECT_EQ(control.GetWinIdxM(), TypeParam::Code == SpinEditCode ? 0 : 5);
    EXPECT_EQ(control.GetFunctionIDM(), 11);
    EXPECT_EQ(control.GetShowConditionM(), 7);
    int position[2] {};
    int size[2] {};
    control.GetPosM(position);
    control.GetSizeM(size);
    EXPECT_EQ(position[0], 20);
    EXPECT_EQ(position[1], 30);
    EXPECT_EQ(size[0], 60);
    EXPECT_EQ(size[1], 40);
    EXPECT_EQ(control.m_hWnd, nullptr);
}

TYPED_TEST(EveryKindTest, WindowHasTheDescribedPlaceAndId)
{
    typename TestFixture::ControlTP control;
    TestFixture::describeM(control);
    ASSERT_EQ(control.Create(&this->parent), 1);
    this->expectPlaceM();
    EXPECT_EQ(::GetDlgCtrlID(control.m_hWnd), 11);
    EXPECT_EQ(::GetParent(control.m_hWnd), this->parent.m_hWnd);
    EXPECT_TRUE(isShown(control.m_hWnd));
}

TYPED_TEST(EveryKindTest, EmptyArrayReportsZero)
{
    EXPECT_EQ(this->controls.Create(&this->parent), 0);
    EXPECT_EQ(this->controls.Create(nullptr), 0);
    EXPECT_EQ(this->controls.SetItemCmdM(-1, 4), 0);
    EXPECT_EQ(this->controls.GetControlPtrM(11), nullptr);
}

TYPED_TEST(EveryKindTest, CreationStopsAtTheFirstFailure)
{
    this->fillM(13);
    {
        const RefusedIdCL refused(12);
        EXPECT_EQ(this->controls.Create(&this->parent), 0);
    }
    EXPECT_TRUE(::IsWindow(this->controls[0].m_hWnd));
    EXPECT_EQ(this->controls[1].m_hWnd, nullptr);
    EXPECT_EQ(this->controls[2].m_hWnd, nullptr);
    EXPECT_EQ(this->controls.Create(&this->parent), 1); // Nothing is refused any more.
    EXPECT_TRUE(::IsWindow(this->controls[2].m_hWnd));
}

TYPED_TEST(EveryKindTest, CommandsReachAllOrTheFirstWithTheId)
{
    this->fillM(12);
    auto& controls = this->controls;
    ASSERT_EQ(controls.Create(&this->parent), 1);
    EXPECT_EQ(controls.SetItemCmdM(-1, 4), 1);
    EXPECT_EQ(this->shownM(), "---");
    EXPECT_EQ(controls.SetItemCmdM(12, 3), 1);
    EXPECT_EQ(this->shownM(), "-x-");
    EXPECT_EQ(controls.SetItemCmdM(-1, 3), 1);
    EXPECT_EQ(this->shownM(), "xxx");
    EXPECT_EQ(controls.SetItemCmdM(12, 4), 1);
    EXPECT_EQ(this->shownM(), "x-x");
    EXPECT_EQ(controls.SetItemCmdM(-1, 2), 1);
    EXPECT_EQ(this->enabledM(), "---");
    EXPECT_EQ(controls.SetItemCmdM(12, 1), 1);
    EXPECT_EQ(this->enabledM(), "-x-");
    EXPECT_EQ(controls.SetItemCmdM(-1, 1), 1);
    EXPECT_EQ(this->enabledM(), "xxx");
    EXPECT_EQ(controls.SetItemCmdM(11, 2), 1);
    EXPECT_EQ(this->enabledM(), "-xx");
}

TYPED_TEST(EveryKindTest, OtherCommandsAndUnknownIdsChangeNothing)
{
    this->fillM(12);
    auto& controls = this->controls;
    ASSERT_EQ(controls.Create(&this->parent), 1);
    controls.SetItemCmdM(11, 4);
    controls.SetItemCmdM(12, 2);
    for (const int command : { 0, 5, 6, 9, -1 }) {
        EXPECT_EQ(controls.SetItemCmdM(-1, command), 1) << command; // The array is not empty.
        EXPECT_EQ(controls.SetItemCmdM(12, command), 1) << command;
        EXPECT_EQ(controls[2].SetItemCmdM(command), command == 0 || command == 5 ? 1 : 0) << command;
    }
    for (int command = 1; command <= 4; ++command) {
        EXPECT_EQ(controls.SetItemCmdM(99, command), 1) << command;
    }
    EXPECT_EQ(this->shownM(), "-xx");
    EXPECT_EQ(this->enabledM(), "x-x");
}

TYPED_TEST(EveryKindTest, CommandsToAControlWithoutAWindowAreTaken)
{
    typename TestFixture::ControlTP control;
    for (int command = 0; command <= 5; ++command) {
        EXPECT_EQ(control.SetItemCmdM(command), 1) << command;
    }
    EXPECT_EQ(control.SetItemCmdM(6), 0);
    EXPECT_EQ(control.SetItemCmdM(-1), 0);
}

TYPED_TEST(EveryKindTest, LooksUpTheFirstAliveControlWithAnId)
{
    this->fillM(12);
    EXPECT_EQ(this->controls.GetControlPtrM(12), &this->controls[1]);
    EXPECT_EQ(this->controls.GetControlPtrM(13), nullptr);
    this->controls.DelItemM(1);
    EXPECT_EQ(this->controls.GetControlPtrM(12), &this->controls[2]);
    this->controls.DelItemM(2);
    EXPECT_EQ(this->controls.GetControlPtrM(12), nullptr);
}

TYPED_TEST(EveryKindTest, DeletingDestroysTheWindowAndMarksTheElement)
{
    this->fillM(13);
    ASSERT_EQ(this->controls.Create(&this->parent), 1);
    const int each = childrenOf(this->parent.m_hWnd) / 3; // A spin edit has two.
    const HWND window = this->controls[1].m_hWnd;
    this->controls.DelItemM(1);
    EXPECT_FALSE(::IsWindow(window));
    EXPECT_EQ(this->controls[1].GetDeleteTagM(), DeletedTag);
    EXPECT_EQ(childrenOf(this->parent.m_hWnd), 2 * each);
    this->controls.DelAllM();
    EXPECT_EQ(childrenOf(this->parent.m_hWnd), 0);
}

TYPED_TEST(EveryKindTest, CopiesHaveTheDescriptionAndNoWindow)
{
    using ControlTP = typename TestFixture::ControlTP;
    ControlTP control(AliveTag);
    TestFixture::describeM(control);
    ASSERT_EQ(control.Create(&this->parent), 1);
    const HWND window = control.m_hWnd;
    ControlTP copy(control);
    ControlTP assigned;
    assigned = control;
    for (ControlTP* const other : { &copy, &assigned }) {
        EXPECT_EQ(other->GetFunctionIDM(), 11);
        EXPECT_EQ(other->m_hWnd, nullptr);
        EXPECT_TRUE(other->IsAliveM());
        other->SetLeftM(90); // Would move the window if the copy took it for its own.
        other->DelItemM();
        EXPECT_TRUE(::IsWindow(window));
    }
    this->expectPlaceM();
    control = ControlTP(AliveTag);
    EXPECT_FALSE(::IsWindow(window)); // It showed what the control was before.
    EXPECT_EQ(childrenOf(this->parent.m_hWnd), 0);
}

TYPED_TEST(EveryKindTest, CopyIsCreatedWhereItsOriginalWasDescribed)
{
    typename TestFixture::ControlTP control(AliveTag);
    TestFixture::describeM(control);
    typename TestFixture::ControlTP copy(control);
    ASSERT_EQ(copy.Create(&this->parent), 1);
    this->expectPlaceM();
    EXPECT_EQ(::GetDlgCtrlID(copy.m_hWnd), 11);
    EXPECT_EQ(control.m_hWnd, nullptr);
}

// As the host builds them: applied, created, filled; with pictures that can be loaded.
TYPED_TEST(EveryKindTest, ManyBuildsLeaveNothingBehind)
{
    using ControlTP = typename TestFixture::ControlTP;
    const SmallPictureCL picture(0xFF0000, 20, 20);
    typename TestFixture::RecordsTP records;
    readSample(records);
    for (int i = 0; i < records.GetBoundM(); ++i) {
        RetextingCL retexting(picture.path(), "x"); // Wine leaves a block behind where a text is wrapped.
        records[i].EachFieldM(retexting);
    }
    auto& controls = this->controls;
    const auto build = [&](int times) {
        for (int i = 0; i < times; ++i) {
            controls.InitialSizeM(records.GetBoundM());
            for (int k = 0; k < records.GetBoundM(); ++k) {
                controls.SetItemM(ControlTP(AliveTag), k);
                TestFixture::applyM(records, k, &controls[k]);
            }
            ASSERT_EQ(controls.Create(&this->parent), 1);
            controls.AfterCreateM();
            if constexpr (!std::is_null_pointer_v<decltype(TypeParam::FillM)>) {
                for (int k = 0; k < records.GetBoundM(); ++k) {
                    (records.*TypeParam::FillM)(k, &controls[k]);
                }
            }
            this->parent.RedrawWindow();
            controls.DelAllM();
        }
        PumpPending();
    };
    // By then the system has made the device contexts that it keeps for the next user.
    build(50);
    build(50);
    const int windows = LiveWindowsM();
    const int objects = LiveGdiObjectsM();
    const HeapUse heap = LiveHeapM();
    constexpr int Builds = 200;
    build(Builds);
    const HeapUse after = LiveHeapM();
    EXPECT_EQ(LiveWindowsM(), windows);
    EXPECT_EQ(LiveGdiObjectsM(), objects);
    EXPECT_LT(after.blocks, heap.blocks + Builds / 10); // A leak in one build of ten is seen.
    EXPECT_LT(after.bytes, heap.bytes + Builds * 100);
}

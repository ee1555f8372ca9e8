#include "controls/base/control_common.h"
#include "controls/labels/label.h"
#include "pictures/rgn_record.h"
#include "records/common_box_record.h"
#include "support/test_dialog.h"
#include <cmath>
#include <gtest/gtest.h>

namespace {

// A bordered label at (30, 40) sized 100 by 20 in a window of 400 by 300.
struct PlacedCL
{
    explicit PlacedCL(int left = 30, int top = 40, int width = 100, int height = 20)
    {
        const int position[2] = { left, top };
        const int size[2] = { width, height };
        label.SetPositionM(position);
        label.SetSizeM(size);
        label.SetFunctionIDM(7);
        label.SetEdgeM(1);
        label.Create(&parent);
    }
    std::string PlaceM() const { return placeOf(label.m_hWnd); }
    PlainWindowCL parent;
    DuLabelCL label;
};

std::string described(const DControlCommonCL& control)
{
    int position[2];
    int size[2];
    EXPECT_EQ(control.GetPosM(position), 1);
    EXPECT_EQ(control.GetSizeM(size), 1);
    return std::to_string(position[0]) + " " + std::to_string(position[1]) + " " + std::to_string(size[0])
        + " " + std::to_string(size[1]);
}

} // namespace

TEST(ControlCommon, FreshControlHoldsNothingAndAsksNobody)
{
    DControlCommonCL control;
    EXPECT_EQ(described(control), "0 0 0 0");
    EXPECT_STREQ(control.GetDescriptM(), "");
    EXPECT_EQ(control.CheckLegalM(0), 0);
}

TEST(ControlCommon, WithoutAWindowGeometryIsZeroAndChangesNothing)
{
    DControlCommonCL control;
    control.SetLeftM(5);
    control.MoveM(1, 1);
    control.ShowObjectM(true);
    control.SetVisibleM(1);
    control.LayoutControlM();
    control.UpdatePositionM();
    EXPECT_EQ(control.GetRightM(), 0);
    EXPECT_EQ(described(control), "0 0 0 0");
}

TEST(ControlCommon, SetPosTakesTheTopFirst)
{
    PlacedCL placed;
    placed.label.SetPosM(10, 20);
    EXPECT_EQ(placed.PlaceM(), "20 10 100 20");
}

TEST(ControlCommon, SettersMoveTheWindowRectangleKeepingItsSize)
{
    PlacedCL placed(100, 40, 50, 20);
    placed.label.SetRightM(200);
    EXPECT_EQ(placed.PlaceM(), "150 40 50 20");
    placed.label.SetButtomM(100);
    EXPECT_EQ(placed.PlaceM(), "150 80 50 20");
    placed.label.SetLeftM(10);
    placed.label.SetTopM(12);
    EXPECT_EQ(placed.PlaceM(), "10 12 50 20");
    placed.label.SetWidthM(70);
    placed.label.SetHeightM(30);
    EXPECT_EQ(placed.PlaceM(), "10 12 70 30");
    placed.label.MoveM(-5, 3);
    EXPECT_EQ(placed.PlaceM(), "5 15 70 30");
}

TEST(ControlCommon, GettersLeaveOutTheFrameThatSettersInclude)
{
    PlacedCL placed;
    RECT client {};
    ::GetClientRect(placed.label.m_hWnd, &client);
    const int frame = (100 - client.right) / 2;
    ASSERT_GT(frame, 0);
    EXPECT_EQ(placed.label.GetLeftM(), 30 + frame);
    EXPECT_EQ(placed.label.GetTopM(), 40 + frame);
    EXPECT_EQ(placed.label.GetRightM(), 130 - frame);
    EXPECT_EQ(placed.label.GetButtomM(), 60 - frame);
    EXPECT_EQ(placed.label.GetWidthM(), 100 - 2 * frame);
    EXPECT_EQ(placed.label.GetHeightM(), 20 - 2 * frame);
}

TEST(ControlCommon, SetCenterHalvesTheClientSize)
{
    PlacedCL placed(30, 40, 101, 21);
    const int halfWidth = placed.label.GetWidthM() / 2;
    const int halfHeight = placed.label.GetHeightM() / 2;
    placed.label.SetCenterM(CPoint(200, 150));
    EXPECT_EQ(placed.PlaceM(),
        std::to_string(200 - halfWidth) + " " + std::to_string(150 - halfHeight) + " 101 21");
}

TEST(ControlCommon, AligningMovesTheOtherControl)
{
    PlacedCL placed(30, 40, 101, 21);
    DuLabelCL other;
    const int position[2] = { 200, 100 };
    const int size[2] = { 50, 10 };
    other.SetPositionM(position);
    other.SetSizeM(size);
    other.Create(&placed.parent);
    placed.label.AlignLeftM(&other);
    EXPECT_EQ(placeOf(other.m_hWnd), std::to_string(placed.label.GetLeftM()) + " 100 50 10");
    EXPECT_EQ(placed.PlaceM(), "30 40 101 21");

    const int left = other.GetLeftM();
    const auto half = [](int length) { return (length + 1) / 2; };
    placed.label.AlignCenterHorizonM(&other);
    EXPECT_EQ(placeOf(other.m_hWnd),
        std::to_string(left) + " "
            + std::to_string(half(placed.label.GetHeightM()) + placed.label.GetTopM() - 5) + " 50 10");
    placed.label.AlignCenterVerticalM(&other);
    EXPECT_EQ(other.GetLeftM(), half(placed.label.GetWidthM()) + placed.label.GetLeftM() - 25);
}

TEST(ControlCommon, LayoutMovesToTheDescribedPlace)
{
    PlacedCL placed;
    placed.label.MoveM(9, 9);
    placed.label.SetHeightM(90);
    placed.label.LayoutControlM();
    EXPECT_EQ(placed.PlaceM(), "30 40 100 20");
}

TEST(ControlCommon, PlacesThatNoWindowCanHaveAreClampedButKeptAsDescribed)
{
    PlacedCL placed(2000000000, -2000000000, 5, 5);
    EXPECT_EQ(described(placed.label), "2000000000 -2000000000 5 5");
    EXPECT_EQ(placed.PlaceM(), "32767 -32767 5 5");
}

TEST(ControlCommon, UpdatePositionTruncatesTowardZero)
{
    DControlCommonCL control;
    control.UpdatePositionM(10.9F, -3.7F, 5.5F, 0.2F);
    EXPECT_EQ(described(control), "10 -3 5 0");
    control.UpdatePositionM(1e30F, -1e30F, NAN, 0);
    EXPECT_EQ(described(control), "2147483647 -2147483648 0 0");
    control.UpdatePositionM(2147483648.0F, -2147483648.0F, 2147483520.0F, -2147484160.0F);
    EXPECT_EQ(described(control), "2147483647 -2147483648 2147483520 -2147483648");
}

TEST(ControlCommon, UpdatePositionFromTheWindowStoresZerosInsideTheParent)
{
    PlacedCL placed;
    placed.label.UpdatePositionM();
    EXPECT_EQ(described(placed.label), "0 0 0 0");
    placed.label.SetLeftM(850);
    placed.label.UpdatePositionM();
    EXPECT_EQ(described(placed.label), "2 0 0 0");
    placed.label.SetLeftM(30);
    placed.parent.SetWindowPos(nullptr, 0, 0, 1, 1, SWP_NOMOVE | SWP_NOZORDER);
    placed.label.UpdatePositionM();
    EXPECT_EQ(described(placed.label), "33 43 94 14"); // In pixels, as the parent has one.
    placed.parent.SetWindowPos(nullptr, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOZORDER);
    placed.label.UpdatePositionM();
    EXPECT_EQ(described(placed.label), "0 0 0 0"); // Of a parent without a size there is no share.
}

TEST(ControlCommon, ShowsAndHidesOnlyAnExistingWindow)
{
    PlacedCL placed;
    placed.label.ShowObjectM(false);
    EXPECT_FALSE(styleOf(placed.label.m_hWnd) & WS_VISIBLE);
    placed.label.SetVisibleM(5);
    EXPECT_TRUE(styleOf(placed.label.m_hWnd) & WS_VISIBLE);
    placed.label.SetVisibleM(0);
    EXPECT_FALSE(styleOf(placed.label.m_hWnd) & WS_VISIBLE);
    placed.label.DestroyWindow();
    placed.label.ShowObjectM(true);
}

TEST(ControlCommon, DescriptionIsCutToItsBufferAtACharacter)
{
    DControlCommonCL control;
    control.SetDescriptM((std::string(126, 'x') + "\xD6\xD0").c_str());
    EXPECT_EQ(control.GetDescriptM(), std::string(126, 'x'));
    control.SetDescriptM(nullptr);
    EXPECT_STREQ(control.GetDescriptM(), "");
}

TEST(ControlCommon, AssignmentKeepsRelationItemsAndLegalFlagOfTheTarget)
{
    DControlCommonCL source;
    source.SetBaseInfoM(1, 2, 3);
    source.SetShowConditionM(4);
    source.SetDescriptM("text");
    source.AddRelationItemM(1, 2, 3);
    DControlCommonCL target;
    target.AddRelationItemM(7, 8, 9);
    target.AddRelationItemM(4, 5, 6);
    target = source;
    EXPECT_EQ(target.GetWinIdxM(), 1);
    EXPECT_EQ(target.GetFunctionIDM(), 3);
    EXPECT_EQ(target.GetShowConditionM(), 4);
    EXPECT_STREQ(target.GetDescriptM(), "text");
    ASSERT_EQ(target.GetRelationItemsM().GetAvailableNumM(), 2);
    int triple[3];
    target.GetRelationItemsM().GetItemM(triple, 0);
    EXPECT_EQ(triple[1], 8);
}

TEST(ControlCommon, CopySharesTheRelationItems)
{
    DControlCommonCL source;
    EXPECT_EQ(source.AddRelationItemM(1, 2, 3), 0);
    const DControlCommonCL copy(source);
    EXPECT_EQ(source.AddRelationItemM(4, 5, 6), 1);
    EXPECT_EQ(copy.GetRelationItemsM().GetAvailableNumM(), 2);
}

TEST(ControlCommon, RelationHookOnlyTellsWhetherTheItemExists)
{
    PlacedCL placed;
    EXPECT_EQ(placed.label.doRelationItemM(0, 7, 0), 1);
    EXPECT_EQ(placed.label.doRelationItemM(0, 8, 0), 0);
    placed.label.AddRelationItemM(0, 7, 0);
    placed.label.doRelationM();
    EXPECT_EQ(placed.PlaceM(), "30 40 100 20");
}

namespace {

// The application's main window: answers the permission query and keeps the pointer report.
class AnsweringWindowCL : public PlainWindowCL
{
public:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == 1361) {
            *reinterpret_cast<int*>(wParam) = answer;
            ++asked;
            return 0;
        }
        if (message == 3044) {
            report = *reinterpret_cast<const PointerReportCL*>(wParam);
            text = reinterpret_cast<const char*>(lParam);
            return 0;
        }
        return PlainWindowCL::WindowProc(message, wParam, lParam);
    }
    int answer { 1 };
    int asked { 0 };
    PointerReportCL report {};
    std::string text;
};

// An application object for as long as a test needs one.
class TestAppCL : public CWinApp
{
public:
    explicit TestAppCL(CWnd* mainWindow) { m_pMainWnd = mainWindow; }
};

} // namespace

TEST(ControlCommon, PermissionIsAskedOfTheMainWindowAndRemembered)
{
    AnsweringWindowCL main;
    TestAppCL application(&main);
    DControlCommonCL control;
    EXPECT_EQ(control.CheckLegalM(0), 0);
    EXPECT_EQ(main.asked, 0);
    EXPECT_EQ(control.CheckLegalM(1), 1);
    EXPECT_EQ(main.asked, 1);
    EXPECT_EQ(control.CheckLegalM(0), 1);
    EXPECT_EQ(main.asked, 1);
    main.answer = 7;
    EXPECT_EQ(control.CheckLegalM(2), 7);
}

TEST(ControlCommon, PointerReportCarriesScreenPointControlAndDescription)
{
    AnsweringWindowCL target;
    PlacedCL placed;
    placed.label.SetDescriptM("help");
    placed.label.OnMouseMove(&target, 0, CPoint(3, 4));
    CPoint expected(3, 4);
    placed.label.ClientToScreen(&expected);
    EXPECT_EQ(target.report.x, expected.x);
    EXPECT_EQ(target.report.y, expected.y);
    EXPECT_EQ(target.report.control, &placed.label);
    EXPECT_EQ(target.text, "help");
    placed.label.OnMouseMove(nullptr, 0, CPoint(3, 4));
}

namespace {

// A record read as a region reader reads it: with region kind and size.
DVrCommonBoxCL boxRecord(int regionKind, int width, int height)
{
    const TempFile file("3 9 0 " + std::to_string(regionKind) + " 10 20 " + std::to_string(width) + " "
        + std::to_string(height) + " -1");
    VrIOCL io;
    io.OpenM(file.path(), "r");
    DVrCommonBoxCL record;
    record.FmInputInterfaceM(7, &io);
    return record;
}

} // namespace

TEST(CommonBox, ButtonAndDrawRegionsCoverTheControlFromItsOwnCorner)
{
    const DVrCommonBoxCL record = boxRecord(0, 40, 20);
    CRgn expected;
    expected.CreateRectRgn(0, 0, 40, 20);
    DVrRgnCL region;
    region.CreateRectRgn(500, 500, 600, 600); // A region held before goes.
    record.GetButtonRgnM(&region);
    EXPECT_TRUE(region.EqualRgn(&expected));
    record.GetDrawRgnM(&region);
    EXPECT_TRUE(region.EqualRgn(&expected));
}

TEST(CommonBox, RotateRegionIsTheInscribedEllipse)
{
    DVrRgnCL region;
    region.CreateRectRgn(500, 500, 600, 600);
    boxRecord(0, 40, 20).GetRotateButtonRgnM(&region);
    CRgn expected;
    expected.CreateEllipticRgn(0, 0, 40, 20);
    EXPECT_TRUE(region.EqualRgn(&expected));
    EXPECT_FALSE(region.PtInRegion(0, 0));
}

TEST(CommonBox, OtherRegionKindEmptiesTheButtonRegion)
{
    DVrRgnCL region;
    region.CreateRectRgn(0, 0, 5, 5);
    boxRecord(1, 40, 20).GetButtonRgnM(&region);
    EXPECT_EQ(region.GetSafeHandle(), nullptr);
}

TEST(CommonBox, ControlGetsIdsPlaceAndShowCondition)
{
    DControlCommonCL control;
    EXPECT_EQ(boxRecord(0, 40, 20).InitCommonCtrlM(&control), 1);
    EXPECT_EQ(control.GetWinIdxM(), 7);
    EXPECT_EQ(control.GetFunctionIDM(), 9);
    EXPECT_EQ(control.GetShowConditionM(), -1);
    EXPECT_EQ(described(control), "10 20 40 20");
}

TEST(ControlCommon, AssignmentKeepsThePermissionOfTheTarget)
{
    AnsweringWindowCL main;
    TestAppCL application(&main);
    DControlCommonCL allowed;
    EXPECT_EQ(allowed.CheckLegalM(1), 1);
    DControlCommonCL fresh;
    fresh = allowed;
    EXPECT_EQ(fresh.CheckLegalM(0), 0);
    allowed = DControlCommonCL();
    EXPECT_EQ(allowed.CheckLegalM(0), 1);
}

#pragma once
#include "controls/buttons/new_rotate_btn.h"
#include "dialog/basic_dialog.h"
#include "soak/picked_arguments.h"

// The public functions of controls, each with arguments by chance.
template <class ControlTP> struct ControlOperationCL
{
    const char* name;
    void (*run)(ControlTP& control, PickedArgumentsCL& pick);
};

template <class ControlTP> class ControlOperationsCL
{
public:
    using ListTP = std::vector<ControlOperationCL<ControlTP>>;

    static const ListTP& ListM()
    {
        static const ListTP list = makeM();
        return list;
    }

private:
    using PickTP = PickedArgumentsCL;
    template <class ClassTP> static constexpr bool Is = std::is_base_of_v<ClassTP, ControlTP>;

#define OPERATION(name, call)                                                                                \
    list.push_back({ name, [](ControlTP& c, [[maybe_unused]] PickTP& p) { static_cast<void>(call); } })

    static void addCommonM(ListTP& list)
    {
        OPERATION("SetItemCmdM", c.SetItemCmdM(p.PlaceM()));
        OPERATION("SetZOrderM", c.SetZOrderM(p.NullM() ? nullptr : &c));
        OPERATION(
            "SetTextColourM", c.SetTextColourM(p.ChanceM(30) ? std::nullopt : std::optional<COLORREF>(5)));
        OPERATION("SetAccessibleNameM", c.SetAccessibleNameM(p.TextM(), p.PlaceM()));
        OPERATION("SetDescriptM", c.SetDescriptM(p.TextM()));
        OPERATION("SetPositionM", c.SetPositionM(p.PairM()));
        OPERATION("SetSizeM", c.SetSizeM(p.PairM()));
        OPERATION("GetPosM", c.GetPosM(p.PairOutM()));
        OPERATION("GetSizeM", c.GetSizeM(p.PairOutM()));
        OPERATION("AddRelationItemM", c.AddRelationItemM(p.NumberM(), p.NumberM(), p.NumberM()));
        OPERATION("doRelationM", c.doRelationM());
        OPERATION("doRelationItemM", c.doRelationItemM(p.NumberM(), p.NumberM(), p.NumberM()));
        OPERATION("ShowObjectM", c.DControlCommonCL::ShowObjectM(p.ChanceM(70)));
        OPERATION("edges", c.GetLeftM() + c.GetTopM() + c.GetRightM() + c.GetButtomM());
        OPERATION("sizes", c.GetWidthM() + c.GetHeightM());
        OPERATION("SetPosM", c.SetPosM(p.NumberM(), p.NumberM()));
        OPERATION("SetLeftM", c.SetLeftM(p.BelowM(400)));
        OPERATION("SetTopM", c.SetTopM(p.BelowM(300)));
        OPERATION("SetRightM", c.SetRightM(p.BelowM(400)));
        OPERATION("SetButtomM", c.SetButtomM(p.BelowM(300)));
        OPERATION("SetWidthM", c.SetWidthM(p.BelowM(200)));
        OPERATION("SetHeightM", c.SetHeightM(p.BelowM(200)));
        OPERATION("MoveM", c.MoveM(p.BelowM(50) - 25, p.BelowM(50) - 25));
        OPERATION("SetCenterM", c.SetCenterM(CPoint(p.BelowM(400), p.BelowM(300))));
        OPERATION("LayoutControlM", c.LayoutControlM());
        OPERATION("AlignLeftM", c.AlignLeftM(p.NullM() ? nullptr : &c));
        OPERATION("AlignCenterHorizonM", c.AlignCenterHorizonM(p.NullM() ? nullptr : &c));
        OPERATION("AlignCenterVerticalM", c.AlignCenterVerticalM(p.NullM() ? nullptr : &c));
        OPERATION("UpdatePositionM, given", c.UpdatePositionM(p.RealM(), p.RealM(), p.RealM(), p.RealM()));
        OPERATION("UpdatePositionM", c.UpdatePositionM());
        OPERATION("CheckLegalM", c.CheckLegalM(p.BelowM(2)));
        OPERATION("OnMouseMove", c.DControlCommonCL::OnMouseMove(p.NullM() ? nullptr : &c, 0, CPoint(1, 1)));
        OPERATION("RescaledM", c.RescaledM(100, 50 + p.BelowM(150)));
    }

    static void addPictureM(ListTP& list)
    {
        if constexpr (Is<PictureStaticCL>) {
            OPERATION("UseKeyboardM", c.UseKeyboardM(p.ChanceM(50)));
        }
        if constexpr (Is<DuNormalAnimateCL> || Is<DuSpecAnimateCL>) {
            OPERATION("SetInitBmpNumM", c.SetInitBmpNumM(p.FewM()));
            OPERATION("DeleteBmpM", c.DeleteBmpM(p.PlaceM()));
            OPERATION("HasBmpM", c.HasBmpM(p.PlaceM()));
            OPERATION("AddBmpM", c.AddBmpM(p.FileM()));
            OPERATION("DelAllBmpM", c.DelAllBmpM());
            OPERATION("DispBmpM", c.DispBmpM(p.PlaceM()));
        }
        if constexpr (Is<DuNormalAnimateCL>) {
            OPERATION("SetBmpM", c.SetBmpM(p.PlaceM(), p.FileM()));
            OPERATION("SetCtrlModeM", c.SetCtrlModeM(p.BelowM(4)));
            OPERATION("SetFirstIdxM", c.SetFirstIdxM());
            OPERATION("GetCurIdxM", c.GetCurIdxM(p.OutM()));
            OPERATION("RedrawWindowM", c.RedrawWindowM());
        }
        if constexpr (Is<DuSpecAnimateCL> || Is<DuDraw2DCL>) {
            OPERATION("SetPainterM",
                c.SetPainterM(p.NullM() ? PainterTP() : [](CDC& dc, CSize) { dc.LineTo(5, 5); }));
            OPERATION("RepaintM", c.RepaintM());
        }
        if constexpr (Is<DuBmpButtonCL>) {
            OPERATION("SetBtnBmpM", c.SetBtnBmpM(p.FileM(), p.FileM(), p.FileM(), p.FileM()));
            OPERATION(
                "SetBtnStatusM", c.SetBtnStatusM(static_cast<decltype(c.GetBtnStatusM())>(p.BelowM(4))));
        }
        if constexpr (Is<DuMultiStateButtonCL>) {
            OPERATION("SetInitBmpNumM", c.SetInitBmpNumM(p.FewM()));
            OPERATION("AddStatusM", c.AddStatusM(p.PlaceM(), p.FileM()));
            OPERATION("SetInitStatusM", c.SetInitStatusM(p.PlaceM()));
            OPERATION("SetCurStatusM", c.SetCurStatusM(p.PlaceM()));
            OPERATION("GetCurStatusM", c.GetCurStatusM(p.OutM()));
            OPERATION("DelStatusM", c.DelStatusM(p.PlaceM()));
            OPERATION("DelAllM", c.DelAllM());
            OPERATION("InitRgnM", c.InitRgnM());
        }
        if constexpr (Is<DuNewRotateBtnCL>) {
            OPERATION("InitialM", c.InitialM(p.PairM(), p.PlaceM(), VrStringArr()));
            OPERATION("SetCurIndxM", c.SetCurIndxM(p.NumberM()));
            OPERATION("OnTimerM", c.OnTimerM());
        }
        if constexpr (Is<DuRotateBtnCL>) {
            OPERATION("SetAngleM", c.SetAngleM(p.RealPairM(), p.RealM(), p.RealM()));
            OPERATION("SetRotPosM", c.SetRotPosM(p.PairM(), p.PairM()));
            OPERATION("SetSignM", c.SetSignM(p.PairM(), p.PairM()));
            OPERATION("SetBmpM", c.SetBmpM(p.FileM(), p.FileM()));
            OPERATION("EnableButtonM", c.EnableButtonM(p.BelowM(3)));
            OPERATION("drawBkM", c.drawBkM(nullptr));
            OPERATION("drawRotM", c.drawRotM(nullptr, p.RealM()));
        }
    }

    static void addListM(ListTP& list)
    {
        if constexpr (Is<DuTextListBoxCL> || Is<DuComboBoxCL> || Is<DuBmpListBoxCL>) {
            OPERATION("AddItemM", c.AddItemM(p.NumberM(), p.FileM()));
            OPERATION("InsertItemM", c.InsertItemM(p.PlaceM(), p.NumberM(), p.FileM()));
            OPERATION("DelItemM, a line", c.DelItemM(p.PlaceM()));
            OPERATION("DelAllItemM", c.DelAllItemM());
            OPERATION("SetSelM", c.SetSelM(p.PlaceM()));
        }
        if constexpr (Is<DuTextListBoxCL> || Is<DuBmpListBoxCL>) {
            OPERATION("SetSelModeM", c.SetSelModeM(p.BelowM(6)));
            OPERATION("GetSelNumM", c.GetSelNumM(p.OutM()));
        }
        if constexpr (Is<DuTextListBoxCL>) {
            OPERATION("SetItemInitHeightM", c.SetItemInitHeightM(p.NumberM()));
            OPERATION("GetItemM", c.GetItemM(p.OutM(), p.OutM()));
            OPERATION("SetItemHeightM", c.SetItemHeightM(p.NumberM()));
            OPERATION("SetItemHeightM, kept", c.SetItemHeightM());
        }
        if constexpr (Is<DuBmpListBoxCL>) {
            OPERATION("SetRowColNumM", c.SetRowColNumM(p.PairM()));
            OPERATION("SetInitBmpNumM", c.SetInitBmpNumM(p.FewM()));
            OPERATION("GetFirstItemM", c.GetFirstItemM(p.OutM(), p.OutM()));
            OPERATION("GetNextItemM", c.GetNextItemM(p.PlaceM(), p.OutM(), p.OutM()));
            OPERATION("MeasureItem", c.MeasureItem(nullptr));
            OPERATION("DrawItem", c.DrawItem(nullptr));
        }
        if constexpr (Is<DuComboBoxCL>) {
            OPERATION("SetEditAvailableM", c.SetEditAvailableM(p.BelowM(2)));
            OPERATION("GetCurItemM", c.GetCurItemM(p.OutM(), p.OutM(), p.RoomM(TextSize)));
            OPERATION("SetDataSelM", c.SetDataSelM(p.NumberM()));
        }
        if constexpr (Is<DuListCtrlCL>) {
            OPERATION("InsertColumnM", c.InsertColumnM(p.PlaceM(), p.BelowM(90), p.TextM()));
            OPERATION("InsertItemM", c.InsertItemM(p.PlaceM(), p.NumberM(), p.TextM()));
            OPERATION("SetItemTextM", c.SetItemTextM(p.PlaceM(), p.PlaceM(), p.TextM()));
            OPERATION("DeleteItemM", c.DeleteItemM(p.PlaceM()));
            OPERATION("DelAllM", c.DelAllM());
            OPERATION("GetRowNumM", c.GetRowNumM(p.OutM()));
            OPERATION("GetSelNumM", c.GetSelNumM(p.OutM()));
            OPERATION("GetFirstSelM", c.GetFirstSelM(p.OutM(), p.OutM()));
            OPERATION("GetNextSelM", c.GetNextSelM(p.PlaceM(), p.OutM(), p.OutM()));
            OPERATION("GetCurSelM", c.GetCurSelM(p.OutM(), p.OutM()));
            OPERATION("SetSelM", c.SetSelM(p.PlaceM()));
        }
        if constexpr (Is<DuTreeCL>) {
            OPERATION("InsertItemM",
                c.InsertItemM(
                    p.ChanceM(80) ? TVI_ROOT : nullptr, p.NumberM(), p.TextM(), p.FileM(), p.FileM()));
            OPERATION("GetCurSelM", c.GetCurSelM(p.OutM()));
            OPERATION("ItemTextM", c.ItemTextM(nullptr));
        }
    }

    static void addTextM(ListTP& list)
    {
        if constexpr (Is<DuLabelCL> || Is<DuGroupBoxCL> || Is<DuMultiEditCL>) {
            OPERATION("SetInitTextM", c.SetInitTextM(p.TextM()));
        }
        if constexpr (
            Is<DuLabelCL> || Is<DuGroupBoxCL> || Is<DuMultiEditCL> || Is<CheckableButtonCL> || Is<DuStandardButtonCL>) {
            OPERATION("SetTextM", c.SetTextM(p.TextM()));
        }
        if constexpr (Is<CaptionedCL<CButton>> || Is<CaptionedCL<CStatic>>) {
            OPERATION("CaptionM", c.CaptionM());
            OPERATION("SetCaptionM", c.SetCaptionM(p.TextM()));
        }
        if constexpr (Is<CheckableButtonCL>) {
            OPERATION("SetInitCheckM", c.SetInitCheckM(p.BelowM(3)));
            OPERATION("CheckFromStartM", c.CheckFromStartM());
            OPERATION("SetCurCheckM", c.SetCurCheckM(p.BelowM(3)));
        }
        if constexpr (Is<DuRadioBoxCL>) {
            OPERATION("CheckedInGroupM", c.CheckedInGroupM());
            OPERATION("GetGroupNoM", c.GetGroupNoM(p.OutM()));
            OPERATION("SetGroupM", c.SetGroupM(p.ChanceM(80) ? 1 : p.BelowM(3)));
        }
        if constexpr (Is<DuMultiEditCL>) {
            OPERATION("SetMaxNumM", c.SetMaxNumM(p.NumberM()));
            OPERATION("GetTextM", c.GetTextM(p.RoomM(70000)));
        }
        if constexpr (Is<DuSingleEditCL> || Is<DuSpinEditCL>) {
            OPERATION("SetDataTypeM", c.SetDataTypeM(p.BelowM(5), p.PlaceM()));
            OPERATION("SetRangeM", c.SetRangeM(valueM(p)));
            OPERATION("SetInitValM", c.SetInitValM(valueM(p)));
            OPERATION("GetCurValM", getCurVal(c, p));
            OPERATION("DispEditM", c.DispEditM());
        }
        if constexpr (Is<DuSingleEditCL>) {
            OPERATION("SetCurValM", c.SetCurValM(valueM(p)));
            OPERATION("GetValueM, int", c.GetValueM(p.OutM()));
            OPERATION("GetValueM, real", c.GetValueM(p.RealOutM()));
            OPERATION("GetValueM, text", c.GetValueM(p.RoomM(TextSize)));
            OPERATION("SetValueM, int", c.SetValueM(p.NumberM()));
            OPERATION("SetValueM, real", c.SetValueM(p.RealM()));
            OPERATION("SetValueM, text", c.SetValueM(p.TextM()));
            OPERATION("UpdateDataM", c.UpdateDataM(p.BelowM(2)));
        }
        if constexpr (Is<DuSpinEditCL>) {
            OPERATION("SetStepM", c.SetStepM(valueM(p)));
            OPERATION("SetSpinLenM", c.SetSpinLenM(p.NumberM()));
        }
    }
#undef OPERATION

    static simpleValD valueM(PickTP& pick)
    {
        simpleValD value {};
        if (pick.ChanceM(50)) {
            value.numbers[0] = pick.NumberM();
            value.numbers[1] = pick.NumberM();
        } else {
            std::snprintf(value.text, sizeof value.text, "%s", pick.SomeTextM().c_str());
        }
        return value;
    }
    static int getCurVal(ControlTP& control, PickTP& pick)
    {
        simpleValD value {};
        return control.GetCurValM(pick.NullM() ? nullptr : &value);
    }

    static ListTP makeM()
    {
        ListTP list;
        addCommonM(list);
        addPictureM(list);
        addListM(list);
        addTextM(list);
        return list;
    }
};

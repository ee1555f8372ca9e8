// What the application does with controls by their function ids, values apart.
#include "dialog/basic_dialog.h"
#include "dialog/relation.h"

CWnd* DuBasicDialogCL::GetContrlPtrM(int id, int* kind)
{
    if (kind == nullptr) {
        return nullptr;
    }
    CWnd* found = nullptr;
    withControlM(id, [&found, kind](auto row, auto& control) {
        found = &control;
        *kind = row.Code;
    });
    return found;
}

int DuBasicDialogCL::GetNormalAnimateBmpIdxM(int id, int* index)
{
    if (index == nullptr) {
        return 0;
    }
    int result = 0;
    withControlM(id, [&result, index](auto row, auto& control) {
        if constexpr (decltype(row)::CanM(ShowsFrames)) {
            int current = 0;
            result = control.GetCurIdxM(&current);
            if (result == 1) {
                *index = current;
            }
        }
    });
    return result;
}

int DuBasicDialogCL::ChangeNormalAnimateM(int id, int index)
{
    int result = 0;
    const HWND child = ::GetDlgItem(parentM(), id);
    eachControlsM([&result, child, index](auto row, auto& controls) {
        if constexpr (decltype(row)::CanM(ShowsFrames)) {
            for (int i = controls.GetFirstIdxM(); i >= 0; i = controls.GetNextIdxM(i)) {
                if (child != nullptr && controls.ControlAtM(i).m_hWnd == child) {
                    result = controls.ControlAtM(i).DispBmpM(index);
                }
            }
        }
    });
    return result;
}

int DuBasicDialogCL::ShowContrlM(int id, int show)
{
    const auto command = [show](auto, auto& control) { control.SetItemCmdM(show == 1 ? 3 : 4); };
    return withControlM(id, command) ? 1 : 0;
}

int DuBasicDialogCL::ShowAllCtrlM(int show)
{
    eachControlsM([show](auto, auto& controls) { controls.SetItemCmdM(-1, show == 1 ? 3 : 4); });
    return 1;
}

int DuBasicDialogCL::EnableAllCtrlM(int enable)
{
    eachControlsM([enable](auto, auto& controls) { controls.SetItemCmdM(-1, enable == 1 ? 1 : 2); });
    return 1;
}

void DuBasicDialogCL::ShowObjectM(int kind, int index, bool show)
{
    if (kind != RadioBoxCode) {
        return;
    }
    eachControlsM([index, show](auto row, auto& controls) {
        if constexpr (decltype(row)::CanM(StandsInGroups)) {
            controls.ShowObjectM(index, show);
        }
    });
}

int DuBasicDialogCL::AddItemM(int id, int position, const char* text)
{
    if (text == nullptr) {
        return 0;
    }
    int result = 0;
    withControlM(id, [&result, position, text](auto row, auto& control) {
        if constexpr (decltype(row)::CanM(HoldsLines)) {
            result = control.AddItemM(position, text);
        }
    });
    return result;
}

int DuBasicDialogCL::DelItemM(int id)
{
    int result = 0;
    withControlM(id, [&result, id](auto row, auto& control) {
        if constexpr (decltype(row)::CanM(HoldsLines)) {
            control.DelItemM(id);
            result = 1;
        }
    });
    return result;
}

int DuBasicDialogCL::SetSelM(int id)
{
    int result = 0;
    withControlM(id, [&result, id](auto row, auto& control) {
        if constexpr (decltype(row)::CanM(HoldsLines)) {
            control.SetSelM(id);
            result = 1;
        }
    });
    return result;
}

int DuBasicDialogCL::initItemRelationM()
{
    VrIOCL io;
    openFileM(io);
    const SectionStatus status = slReadRelations(io, [this](const RelationCL& relation) {
        CWnd* child = CWnd::FromHandlePermanent(::GetDlgItem(parentM(), relation.control));
        if (auto* control = dynamic_cast<DControlCommonCL*>(child)) {
            control->AddRelationItemM(relation.values[0], relation.values[1], relation.values[2]);
        }
    });
    return status == SectionStatus::Missing || status == SectionStatus::Broken ? 0 : 1;
}

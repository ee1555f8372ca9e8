#include "toolkit/control_objects.h"
#include "toolkit/edit.h"
#include "toolkit/header_ctrl.h"
#include "toolkit/thread_state.h"
#include "toolkit/tool_tip_ctrl.h"

namespace {

template <class ControlTP> ControlTP* controlOfM(HWND hWnd)
{
    CWnd* permanent = CWnd::FromHandlePermanent(hWnd);
    ControlTP* known = DYNAMIC_DOWNCAST(ControlTP, permanent);
    return known != nullptr ? known : ThreadStateCL::ThisM().wnds.GetM<ControlTP, &CWnd::m_hWnd>(hWnd);
}

} // namespace

CEdit* AfxEditOf(HWND edit)
{
    return controlOfM<CEdit>(edit);
}

CHeaderCtrl* AfxHeaderOf(HWND header)
{
    return controlOfM<CHeaderCtrl>(header);
}

CToolTipCtrl* AfxToolTipsOf(HWND tips)
{
    return controlOfM<CToolTipCtrl>(tips);
}

#include "toolkit/data_exchange.h"
#include "toolkit/exceptions.h"
#include "toolkit/module.h"
#include "toolkit/thread_state.h"
#include "toolkit/wnd.h"
#include <utility>

HWND CDataExchange::PrepareCtrl(int id)
{
    const HWND control = ::GetDlgItem(m_pDlgWnd->m_hWnd, id);
    if (control == nullptr) {
        AfxLogFailure("data exchange with a control that is not there", nullptr);
        AfxThrowNotSupportedException();
    }
    m_hWndLastControl = control;
    m_idLastControl = id;
    m_bEditLastControl = false;
    return control;
}

HWND CDataExchange::PrepareEditCtrl(int id)
{
    PrepareCtrl(id);
    m_bEditLastControl = true;
    return m_hWndLastControl;
}

void CDataExchange::Fail()
{
    if (m_bSaveAndValidate && m_hWndLastControl != nullptr) {
        ::SetFocus(m_hWndLastControl);
        if (m_bEditLastControl) {
            ::SendMessageW(m_hWndLastControl, EM_SETSEL, 0, -1);
        }
    }
    AfxThrowUserException();
}

BOOL CWnd::UpdateData(BOOL saveAndValidate)
{
    CDataExchange exchange(this, saveAndValidate);
    struct LockCL
    {
        explicit LockCL(HWND hWnd)
            : before(std::exchange(ThreadStateCL::ThisM().exchanging, hWnd))
        {
        }
        ~LockCL() { ThreadStateCL::ThisM().exchanging = before; }
        HWND before;
    } const lock(m_hWnd);
    try {
        DoDataExchange(&exchange);
        return TRUE;
    } catch (CUserException* e) {
        e->Delete(); // the user knows
    } catch (CException* e) {
        e->ReportError(MB_OK | MB_ICONEXCLAMATION);
        e->Delete();
    }
    return FALSE;
}

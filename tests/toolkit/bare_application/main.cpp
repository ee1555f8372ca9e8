// A program that has an application object and no main function.
#include "panelkit.h"

namespace {

class BareAppCL : public CWinApp
{
public:
    BOOL InitInstance() override
    {
        m_nExitCode = m_hInstance == ::GetModuleHandleW(nullptr) && AfxGetApp() == this ? 42 : 1;
        return FALSE;
    }
};
BareAppCL application;

} // namespace

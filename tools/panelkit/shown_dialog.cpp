#include "shown_dialog.h"

namespace {

// An empty dialog: the description file says all the rest.
struct EmptyTemplateCL
{
    DLGTEMPLATE header { WS_POPUP | WS_CAPTION | WS_SYSMENU, 0, 0, 0, 0, 100, 100 };
    WORD menu { 0 };
    WORD windowClass { 0 };
    WORD title { 0 };
};

const EmptyTemplateCL emptyTemplate;

// Handles what is queued; false when nothing was.
bool handleQueued()
{
    MSG message;
    bool any = false;
    while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        ::TranslateMessage(&message);
        ::DispatchMessageW(&message);
        any = true;
    }
    return any;
}

} // namespace

ShownDialogCL::ShownDialogCL(const std::string& name)
{
    SetConfigFileM(name.c_str());
}

bool ShownDialogCL::BuildM()
{
    return CreateIndirect(&emptyTemplate.header, nullptr) != FALSE;
}

void ShownDialogCL::RunM()
{
    InitModalIndirect(&emptyTemplate.header, nullptr);
    DoModal();
}

bool ShownDialogCL::WaitUntilShownM()
{
    const DWORD start = ::GetTickCount();
    while (!IsWindowVisible()) {
        if (::GetTickCount() - start > 10000) {
            return false;
        }
        if (!handleQueued()) {
            ::MsgWaitForMultipleObjects(0, nullptr, FALSE, 100, QS_ALLINPUT);
        }
    }
    RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN | RDW_UPDATENOW);
    handleQueued();
    return true;
}

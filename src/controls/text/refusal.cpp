#include "controls/text/refusal.h"
#include "controls/base/leaving.h"

namespace {

HWND refusalOwner(const CEdit* field, const RefusalCL& how, const RefusalBoxCL& box)
{
    if (how.overDialog) {
        // Over a dialog that this one runs just now, too.
        return ::GetLastActivePopup(::GetAncestor(field->m_hWnd, GA_ROOT));
    }
    return box.hasOwnOwner ? field->m_hWnd : nullptr;
}

} // namespace

bool slTellRefusal(CEdit* field, const RefusalCL& how, const RefusalBoxCL& box, const std::u16string& text)
{
    const RefusalCL chosen = how; // The field may go.
    const std::wstring shown(text.begin(), text.end());
    const std::wstring caption = slWideMessageText(box.caption);
    const HWND owner = refusalOwner(field, how, box);
    const bool isThere
        = slTellAboutField(field, [&] { AfxShowMessage(shown.c_str(), box.type, owner, caption.c_str()); });
    if (isThere && chosen.selects) {
        ::SendMessageW(field->m_hWnd, EM_SETSEL, 0, -1);
    }
    return isThere;
}

#include "toolkit/message_map.h"

IMPLEMENT_DYNAMIC(CCmdTarget, CObject)

const AFX_MSGMAP* CCmdTarget::GetThisMessageMap()
{
    static const AFX_MSGMAP_ENTRY entries[] = { { 0, 0, 0, 0, nullptr } };
    static const AFX_MSGMAP messageMap = { nullptr, entries };
    return &messageMap;
}

const AFX_MSGMAP* CCmdTarget::GetMessageMap() const
{
    return GetThisMessageMap();
}

const AFX_MSGMAP_ENTRY* CCmdTarget::findEntryM(UINT message, int code, UINT id) const
{
    for (const AFX_MSGMAP* map = GetMessageMap(); map != nullptr;
         map = map->pfnGetBaseMap == nullptr ? nullptr : map->pfnGetBaseMap()) {
        for (const AFX_MSGMAP_ENTRY* entry = map->lpEntries; entry->pfn != nullptr; ++entry) {
            // Notification codes are signed 16-bit numbers, whatever type their macro has.
            if (entry->nMessage == message && static_cast<short>(entry->nCode) == static_cast<short>(code)
                && entry->nID <= id && id <= entry->nLastID) {
                return entry;
            }
        }
    }
    return nullptr;
}

BOOL CCmdTarget::OnCmdMsg(UINT nID, int nCode, void* extra, AFX_CMDHANDLERINFO* info)
{
    // The question about a command has a number of its own: combo boxes have a notification of its code.
    const bool isQuestion = nCode == CN_UPDATE_COMMAND_UI;
    const bool isNotify = !isQuestion && HIWORD(static_cast<DWORD>(nCode)) == WM_NOTIFY;
    const UINT kind = isQuestion ? WM_UPDATE_COMMAND_UI : isNotify ? WM_NOTIFY : WM_COMMAND;
    const int code = isQuestion ? 0 : static_cast<short>(LOWORD(static_cast<DWORD>(nCode)));
    const AFX_MSGMAP_ENTRY* entry = findEntryM(kind, code, nID);
    if (entry == nullptr) {
        return FALSE;
    }
    if (info != nullptr) {
        *info = { this, entry->pfn };
        return TRUE;
    }
    AFX_MESSAGE m = { kind, 0, 0, 0, code, nID, extra };
    return entry->pfn(this, m);
}

#pragma once
#include "toolkit/object.h"

class CCmdTarget;

// One message on its way through a map.
struct AFX_MESSAGE
{
    UINT message;   // its number
    WPARAM wParam;  // as it came
    LPARAM lParam;  // as it came
    LRESULT result; // what the handler gave
    int code;       // of WM_COMMAND, WM_NOTIFY and their reflected kinds
    UINT id;        // of the command or the control; of WM_CTLCOLOR the CTLCOLOR_ number
    void* extra;    // of WM_NOTIFY: AFX_NOTIFY*
};

// What a WM_NOTIFY handler gets and gives back.
struct AFX_NOTIFY
{
    LRESULT* pResult; // where the result goes
    NMHDR* pNMHDR;    // what lParam points to
};

// False from a handler: not dealt with after all, the message goes on.
typedef bool (*AFX_HANDLER)(CCmdTarget* target, AFX_MESSAGE& m);

// One line of a map.
struct AFX_MSGMAP_ENTRY
{
    UINT nMessage;   // the message
    UINT nCode;      // of a command or notification
    UINT nID;        // the first id
    UINT nLastID;    // the last one
    AFX_HANDLER pfn; // null ends the map
};

// The map of one class.
struct AFX_MSGMAP
{
    const AFX_MSGMAP* (*pfnGetBaseMap)(); // null: the root
    const AFX_MSGMAP_ENTRY* lpEntries;    // its lines
};

// Who would handle a command.
struct AFX_CMDHANDLERINFO
{
    CCmdTarget* pTarget; // the object
    AFX_HANDLER pfn;     // its handler
};

// Numbers under which a parent offers a child's notifications to the child itself.
#ifndef WM_CTLCOLOR
#define WM_CTLCOLOR 0x0019 // the one number that stands for the seven of the window system
#endif
#define WM_REFLECT_BASE 0xBC00 // added to the message's own
// Stands for the question that ON_UPDATE_COMMAND_UI answers; no such message is sent.
#define WM_UPDATE_COMMAND_UI 0xBBFF
#define CN_COMMAND 0              // the code of a menu's command
#define CN_UPDATE_COMMAND_UI (-1) // the code of that question

// Something with a message map.
class PANELKIT_API CCmdTarget : public CObject
{
    DECLARE_DYNAMIC(CCmdTarget)
public:
    CCmdTarget() = default;
    // Offers command or notification nCode of control nID to the map; a notification has WM_NOTIFY in the
    // high word of nCode. With info: only tells who would handle it. Result: handled.
    virtual BOOL OnCmdMsg(UINT nID, int nCode, void* extra, AFX_CMDHANDLERINFO* info);
    // The hourglass, as CWaitCursor shows it.
    void BeginWaitCursor();
    void EndWaitCursor();
    void RestoreWaitCursor();

protected:
    // The map of this class, of the object's class.
    static const AFX_MSGMAP* GetThisMessageMap();
    virtual const AFX_MSGMAP* GetMessageMap() const;
    // The line for a message in the maps of the class and its bases; null: none.
    const AFX_MSGMAP_ENTRY* findEntryM(UINT message, int code, UINT id) const;
};

// In a class that has a message map.
#define DECLARE_MESSAGE_MAP()                                                                                \
protected:                                                                                                   \
    static const AFX_MSGMAP* GetThisMessageMap();                                                            \
    AFX_DECLARED_BEGIN virtual const AFX_MSGMAP* GetMessageMap() const;                                      \
    AFX_DECLARED_END

// In the source of that class: its lines stand between this and END_MESSAGE_MAP.
#define BEGIN_MESSAGE_MAP(theClass, baseClass)                                                               \
    const AFX_MSGMAP* theClass::GetMessageMap() const                                                        \
    {                                                                                                        \
        return GetThisMessageMap();                                                                          \
    }                                                                                                        \
    const AFX_MSGMAP* theClass::GetThisMessageMap()                                                          \
    {                                                                                                        \
        typedef theClass ThisClass;                                                                          \
        typedef baseClass TheBaseClass;                                                                      \
        static const AFX_MSGMAP_ENTRY entries[] = {

// Ends the map.
#define END_MESSAGE_MAP()                                                                                    \
    {                                                                                                        \
        0, 0, 0, 0, nullptr                                                                                  \
    }                                                                                                        \
    }                                                                                                        \
    ;                                                                                                        \
    static const AFX_MSGMAP messageMap = { &TheBaseClass::GetThisMessageMap, entries };                      \
    static_cast<void>(sizeof(ThisClass));                                                                    \
    return &messageMap;                                                                                      \
    }

// A handler is called by name through the class itself, so the compiler checks its arguments.
#define AFX_ENTRY(message, code, first, last, ...)                                                           \
    { static_cast<UINT>(message), static_cast<UINT>(code), static_cast<UINT>(first),                         \
        static_cast<UINT>(last), [](CCmdTarget* target, [[maybe_unused]] AFX_MESSAGE& m) -> bool {           \
            ThisClass* self = static_cast<ThisClass*>(target);                                               \
            __VA_ARGS__                                                                                      \
        } },

// The line for a message: LRESULT handler(WPARAM, LPARAM).
#define ON_MESSAGE(message, memberFxn)                                                                       \
    AFX_ENTRY(message, 0, 0, 0, m.result = (self->*(memberFxn))(m.wParam, m.lParam); return true;)

// The same for a variable with a number of RegisterWindowMessage.
#define ON_REGISTERED_MESSAGE(variable, memberFxn) ON_MESSAGE(variable, memberFxn)
// The same for void handler(); the result is 0.
#define ON_MESSAGE_VOID(message, memberFxn)                                                                  \
    AFX_ENTRY(message, 0, 0, 0, (self->*(memberFxn))(); m.result = 0; return true;)

// The line for a message to a thread: void handler(WPARAM, LPARAM).
#define ON_THREAD_MESSAGE(message, memberFxn)                                                                \
    AFX_ENTRY(message, 0, 0, 0, (self->*(memberFxn))(m.wParam, m.lParam); return true;)
// The same for a registered number.
#define ON_REGISTERED_THREAD_MESSAGE(variable, memberFxn) ON_THREAD_MESSAGE(variable, memberFxn)

// The line for a notification by WM_COMMAND of controls with these ids: void handler(UINT id).
#define ON_CONTROL_RANGE(code, first, last, memberFxn)                                                       \
    AFX_ENTRY(WM_COMMAND, code, first, last, (self->*(memberFxn))(m.id); return true;)

// The same for one control: void handler().
#define ON_CONTROL(code, id, memberFxn)                                                                      \
    AFX_ENTRY(WM_COMMAND, code, id, id, (self->*(memberFxn))(); return true;)

// The line for a command of a menu, an accelerator or a button: void handler(); for several void handler(UINT
// id).
#define ON_COMMAND(id, memberFxn) ON_CONTROL(0, id, memberFxn)
#define ON_COMMAND_RANGE(first, last, memberFxn) ON_CONTROL_RANGE(0, first, last, memberFxn)
// The argument must not have the name of a member of m.
// The same for BOOL handler(UINT id). FALSE: the command goes on.
#define ON_COMMAND_EX(nID, memberFxn) ON_COMMAND_EX_RANGE(nID, nID, memberFxn)
#define ON_COMMAND_EX_RANGE(first, last, memberFxn)                                                          \
    AFX_ENTRY(WM_COMMAND, 0, first, last, return (self->*(memberFxn))(m.id) != FALSE;)

// The line for a notification by WM_NOTIFY: void handler(NMHDR*, LRESULT*).
#define ON_NOTIFY(code, id, memberFxn) ON_NOTIFY_BODY(code, id, id, memberFxn)
#define ON_NOTIFY_BODY(code, first, last, memberFxn)                                                         \
    AFX_ENTRY(WM_NOTIFY, code, first, last, AFX_NOTIFY* notify = static_cast<AFX_NOTIFY*>(m.extra);          \
              (self->*(memberFxn))(notify->pNMHDR, notify->pResult); return true;)

// The same for several controls: void handler(UINT id, NMHDR*, LRESULT*).
#define ON_NOTIFY_RANGE(code, first, last, memberFxn)                                                        \
    AFX_ENTRY(WM_NOTIFY, code, first, last, AFX_NOTIFY* notify = static_cast<AFX_NOTIFY*>(m.extra);          \
              (self->*(memberFxn))(m.id, notify->pNMHDR, notify->pResult); return true;)

// The same for BOOL handler(UINT id, NMHDR*, LRESULT*). FALSE: the notification goes on.
#define ON_NOTIFY_EX(code, nID, memberFxn) ON_NOTIFY_EX_RANGE(code, nID, nID, memberFxn)
#define ON_NOTIFY_EX_RANGE(code, first, last, memberFxn)                                                     \
    AFX_ENTRY(WM_NOTIFY, code, first, last, AFX_NOTIFY* notify = static_cast<AFX_NOTIFY*>(m.extra);          \
              return (self->*(memberFxn))(m.id, notify->pNMHDR, notify->pResult) != FALSE;)

// The line for a notification that the control itself gets first: void handler().
#define ON_CONTROL_REFLECT(code, memberFxn)                                                                  \
    AFX_ENTRY(WM_REFLECT_BASE + WM_COMMAND, code, 0, 0, (self->*(memberFxn))(); return true;)

// The same for BOOL handler(). FALSE: the parent gets it too.
#define ON_CONTROL_REFLECT_EX(code, memberFxn)                                                               \
    AFX_ENTRY(WM_REFLECT_BASE + WM_COMMAND, code, 0, 0, return (self->*(memberFxn))() != FALSE;)

// The line for one by WM_NOTIFY: void handler(NMHDR*, LRESULT*).
#define ON_NOTIFY_REFLECT(code, memberFxn)                                                                   \
    AFX_ENTRY(WM_REFLECT_BASE + WM_NOTIFY, code, 0, 0,                                                       \
              (self->*(memberFxn))(reinterpret_cast<NMHDR*>(m.lParam), &m.result);                           \
              return true;)

// The same for BOOL handler(NMHDR*, LRESULT*). FALSE: the parent gets it too.
#define ON_NOTIFY_REFLECT_EX(code, memberFxn)                                                                \
    AFX_ENTRY(WM_REFLECT_BASE + WM_NOTIFY, code, 0, 0,                                                       \
              return (self->*(memberFxn))(reinterpret_cast<NMHDR*>(m.lParam), &m.result) != FALSE;)

#define ON_BN_CLICKED(id, memberFxn) ON_CONTROL(BN_CLICKED, id, memberFxn)
#define ON_BN_DOUBLECLICKED(id, memberFxn) ON_CONTROL(BN_DOUBLECLICKED, id, memberFxn)
#define ON_BN_SETFOCUS(id, memberFxn) ON_CONTROL(BN_SETFOCUS, id, memberFxn)
#define ON_BN_KILLFOCUS(id, memberFxn) ON_CONTROL(BN_KILLFOCUS, id, memberFxn)
#define ON_STN_CLICKED(id, memberFxn) ON_CONTROL(STN_CLICKED, id, memberFxn)
#define ON_STN_DBLCLK(id, memberFxn) ON_CONTROL(STN_DBLCLK, id, memberFxn)
#define ON_EN_CHANGE(id, memberFxn) ON_CONTROL(EN_CHANGE, id, memberFxn)
#define ON_EN_UPDATE(id, memberFxn) ON_CONTROL(EN_UPDATE, id, memberFxn)
#define ON_EN_SETFOCUS(id, memberFxn) ON_CONTROL(EN_SETFOCUS, id, memberFxn)
#define ON_EN_KILLFOCUS(id, memberFxn) ON_CONTROL(EN_KILLFOCUS, id, memberFxn)
#define ON_EN_MAXTEXT(id, memberFxn) ON_CONTROL(EN_MAXTEXT, id, memberFxn)
#define ON_LBN_SELCHANGE(id, memberFxn) ON_CONTROL(LBN_SELCHANGE, id, memberFxn)
#define ON_LBN_DBLCLK(id, memberFxn) ON_CONTROL(LBN_DBLCLK, id, memberFxn)
#define ON_LBN_SETFOCUS(id, memberFxn) ON_CONTROL(LBN_SETFOCUS, id, memberFxn)
#define ON_LBN_KILLFOCUS(id, memberFxn) ON_CONTROL(LBN_KILLFOCUS, id, memberFxn)
#define ON_CBN_SELCHANGE(id, memberFxn) ON_CONTROL(CBN_SELCHANGE, id, memberFxn)
#define ON_CBN_SELENDOK(id, memberFxn) ON_CONTROL(CBN_SELENDOK, id, memberFxn)
#define ON_CBN_EDITCHANGE(id, memberFxn) ON_CONTROL(CBN_EDITCHANGE, id, memberFxn)
#define ON_CBN_DROPDOWN(id, memberFxn) ON_CONTROL(CBN_DROPDOWN, id, memberFxn)
#define ON_CBN_CLOSEUP(id, memberFxn) ON_CONTROL(CBN_CLOSEUP, id, memberFxn)
#define ON_CBN_DBLCLK(id, memberFxn) ON_CONTROL(CBN_DBLCLK, id, memberFxn)
#define ON_CBN_SETFOCUS(id, memberFxn) ON_CONTROL(CBN_SETFOCUS, id, memberFxn)
#define ON_CBN_KILLFOCUS(id, memberFxn) ON_CONTROL(CBN_KILLFOCUS, id, memberFxn)
#define ON_EN_HSCROLL(id, memberFxn) ON_CONTROL(EN_HSCROLL, id, memberFxn)
#define ON_EN_VSCROLL(id, memberFxn) ON_CONTROL(EN_VSCROLL, id, memberFxn)
#define ON_EN_ERRSPACE(id, memberFxn) ON_CONTROL(EN_ERRSPACE, id, memberFxn)
#define ON_LBN_ERRSPACE(id, memberFxn) ON_CONTROL(LBN_ERRSPACE, id, memberFxn)
#define ON_LBN_SELCANCEL(id, memberFxn) ON_CONTROL(LBN_SELCANCEL, id, memberFxn)
#define ON_CBN_ERRSPACE(id, memberFxn) ON_CONTROL(CBN_ERRSPACE, id, memberFxn)
#define ON_CBN_EDITUPDATE(id, memberFxn) ON_CONTROL(CBN_EDITUPDATE, id, memberFxn)
#define ON_CBN_SELENDCANCEL(id, memberFxn) ON_CONTROL(CBN_SELENDCANCEL, id, memberFxn)
#define ON_STN_ENABLE(id, memberFxn) ON_CONTROL(STN_ENABLE, id, memberFxn)
#define ON_STN_DISABLE(id, memberFxn) ON_CONTROL(STN_DISABLE, id, memberFxn)
#define ON_BN_PAINT(id, memberFxn) ON_CONTROL(BN_PAINT, id, memberFxn)

#include "toolkit/window_messages.h"

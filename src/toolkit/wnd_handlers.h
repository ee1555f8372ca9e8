#pragma once
#include "toolkit/wnd_relations.h"

class CListBox;

// The handlers of the window messages. Unless they say otherwise, those of the base hand the current message
// on as it came.
class PANELKIT_API WndHandlersCL : public WndRelationsCL
{
protected:
    LRESULT Default(); // what would happen to the current message without a handler

    afx_msg BOOL OnNcCreate(LPCREATESTRUCT) { return static_cast<BOOL>(Default()); }
    afx_msg int OnCreate(LPCREATESTRUCT) { return static_cast<int>(Default()); }
    afx_msg void OnDestroy() { Default(); }
    afx_msg void OnClose() { Default(); }
    afx_msg BOOL OnQueryEndSession() { return static_cast<BOOL>(Default()); }
    afx_msg void OnEndSession(BOOL) { Default(); }
    afx_msg void OnTimer(UINT_PTR) { Default(); }
    afx_msg BOOL OnCopyData(CWnd*, COPYDATASTRUCT*) { return static_cast<BOOL>(Default()); }
    afx_msg void OnDropFiles(HDROP) { Default(); }
    afx_msg BOOL OnHelpInfo(HELPINFO*) { return static_cast<BOOL>(Default()); }

    afx_msg void OnPaint() { Default(); }
    afx_msg BOOL OnEraseBkgnd(CDC*) { return static_cast<BOOL>(Default()); }
    afx_msg void OnMove(int, int) { Default(); }
    afx_msg void OnMoving(UINT, LPRECT) { Default(); }
    afx_msg void OnSize(UINT, int, int) { Default(); }
    afx_msg void OnSizing(UINT, LPRECT) { Default(); }
    afx_msg void OnEnterSizeMove() { Default(); }
    afx_msg void OnExitSizeMove() { Default(); }
    afx_msg void OnWindowPosChanging(WINDOWPOS*) { Default(); }
    afx_msg void OnWindowPosChanged(WINDOWPOS*) { Default(); }
    afx_msg void OnGetMinMaxInfo(MINMAXINFO*) { Default(); }
    afx_msg void OnShowWindow(BOOL, UINT) { Default(); }
    afx_msg void OnStyleChanging(int, LPSTYLESTRUCT) { Default(); }
    afx_msg void OnStyleChanged(int, LPSTYLESTRUCT) { Default(); }
    afx_msg BOOL OnQueryOpen() { return static_cast<BOOL>(Default()); }
    afx_msg HCURSOR OnQueryDragIcon() { return reinterpret_cast<HCURSOR>(Default()); }

    afx_msg void OnEnable(BOOL) { Default(); }
    afx_msg void OnActivate(UINT, CWnd*, BOOL) { Default(); }
    afx_msg void OnActivateApp(BOOL, DWORD) { Default(); }
    afx_msg void OnChildActivate() { Default(); }
    afx_msg void OnSetFocus(CWnd*) { Default(); }
    afx_msg void OnKillFocus(CWnd*) { Default(); }
    afx_msg void OnCaptureChanged(CWnd*) { Default(); }
    afx_msg void OnCancelMode() { Default(); }

    afx_msg BOOL OnSetCursor(CWnd*, UINT, UINT) { return static_cast<BOOL>(Default()); }
    afx_msg int OnMouseActivate(CWnd*, UINT, UINT) { return static_cast<int>(Default()); }
    afx_msg UINT OnGetDlgCode() { return static_cast<UINT>(Default()); }
    afx_msg void OnChar(UINT, UINT, UINT) { Default(); }
    afx_msg void OnDeadChar(UINT, UINT, UINT) { Default(); }
    afx_msg void OnKeyDown(UINT, UINT, UINT) { Default(); }
    afx_msg void OnKeyUp(UINT, UINT, UINT) { Default(); }
    afx_msg void OnSysChar(UINT, UINT, UINT) { Default(); }
    afx_msg void OnSysDeadChar(UINT, UINT, UINT) { Default(); }
    afx_msg void OnSysKeyDown(UINT, UINT, UINT) { Default(); }
    afx_msg void OnSysKeyUp(UINT, UINT, UINT) { Default(); }
    afx_msg void OnSysCommand(UINT, LPARAM) { Default(); }
    afx_msg void OnMouseMove(UINT, CPoint) { Default(); }
    afx_msg void OnMouseHover(UINT, CPoint) { Default(); }
    afx_msg void OnMouseLeave() { Default(); }
    afx_msg void OnLButtonDown(UINT, CPoint) { Default(); }
    afx_msg void OnLButtonUp(UINT, CPoint) { Default(); }
    afx_msg void OnLButtonDblClk(UINT, CPoint) { Default(); }
    afx_msg void OnRButtonDown(UINT, CPoint) { Default(); }
    afx_msg void OnRButtonUp(UINT, CPoint) { Default(); }
    afx_msg void OnRButtonDblClk(UINT, CPoint) { Default(); }
    afx_msg void OnMButtonDown(UINT, CPoint) { Default(); }
    afx_msg void OnMButtonUp(UINT, CPoint) { Default(); }
    afx_msg void OnMButtonDblClk(UINT, CPoint) { Default(); }
    afx_msg void OnXButtonDown(UINT, UINT, CPoint) { Default(); }
    afx_msg void OnXButtonUp(UINT, UINT, CPoint) { Default(); }
    afx_msg void OnXButtonDblClk(UINT, UINT, CPoint) { Default(); }
    afx_msg BOOL OnMouseWheel(UINT, short, CPoint) { return static_cast<BOOL>(Default()); }
    afx_msg void OnMouseHWheel(UINT, short, CPoint) { Default(); }
    afx_msg void OnContextMenu(CWnd*, CPoint) { Default(); }

    afx_msg LRESULT OnNcHitTest(CPoint) { return Default(); }
    afx_msg void OnNcPaint() { Default(); }
    afx_msg BOOL OnNcActivate(BOOL) { return static_cast<BOOL>(Default()); }
    afx_msg void OnNcCalcSize(BOOL, NCCALCSIZE_PARAMS*) { Default(); }
    afx_msg void OnNcMouseMove(UINT, CPoint) { Default(); }
    afx_msg void OnNcLButtonDown(UINT, CPoint) { Default(); }
    afx_msg void OnNcLButtonUp(UINT, CPoint) { Default(); }
    afx_msg void OnNcLButtonDblClk(UINT, CPoint) { Default(); }
    afx_msg void OnNcRButtonDown(UINT, CPoint) { Default(); }
    afx_msg void OnNcRButtonUp(UINT, CPoint) { Default(); }
    afx_msg void OnNcRButtonDblClk(UINT, CPoint) { Default(); }
    afx_msg void OnNcMButtonDown(UINT, CPoint) { Default(); }
    afx_msg void OnNcMButtonUp(UINT, CPoint) { Default(); }
    afx_msg void OnNcMButtonDblClk(UINT, CPoint) { Default(); }

    afx_msg void OnInitMenu(CMenu*) { Default(); }
    afx_msg void OnInitMenuPopup(CMenu* menu, UINT index, BOOL isSystemMenu); // has its items updated
    afx_msg void OnMenuSelect(UINT, UINT, HMENU) { Default(); }
    afx_msg LRESULT OnMenuChar(UINT, UINT, CMenu*) { return Default(); }
    afx_msg void OnEnterMenuLoop(BOOL) { Default(); }
    afx_msg void OnExitMenuLoop(BOOL) { Default(); }
    afx_msg void OnEnterIdle(UINT, CWnd*) { Default(); }

    afx_msg void OnSysColorChange() { Default(); }
    afx_msg void OnSettingChange(UINT, LPCWSTR) { Default(); }
    afx_msg void OnFontChange() { Default(); }
    afx_msg void OnTimeChange() { Default(); }
    afx_msg void OnDisplayChange(UINT, int, int) { Default(); }
    afx_msg BOOL OnDeviceChange(UINT, DWORD_PTR) { return static_cast<BOOL>(Default()); }
    afx_msg BOOL OnQueryNewPalette() { return static_cast<BOOL>(Default()); }
    afx_msg void OnPaletteIsChanging(CWnd*) { Default(); }
    afx_msg void OnPaletteChanged(CWnd*) { Default(); }
    afx_msg void OnDrawClipboard() { Default(); }
    afx_msg void OnChangeCbChain(HWND, HWND) { Default(); }
    afx_msg void OnDestroyClipboard() { Default(); }
    afx_msg void OnRenderFormat(UINT) { Default(); }
    afx_msg void OnRenderAllFormats() { Default(); }

    // What a control asks its parent: the base offers it to the control itself, and hands it on if that
    // declines.
    afx_msg void OnHScroll(UINT, UINT, CScrollBar*) { askChildM(); }
    afx_msg void OnVScroll(UINT, UINT, CScrollBar*) { askChildM(); }
    afx_msg void OnDrawItem(int, LPDRAWITEMSTRUCT) { askChildM(); }
    afx_msg void OnMeasureItem(int, LPMEASUREITEMSTRUCT) { askChildM(); }
    afx_msg int OnCompareItem(int, LPCOMPAREITEMSTRUCT) { return static_cast<int>(askChildM()); }
    afx_msg void OnDeleteItem(int, LPDELETEITEMSTRUCT) { askChildM(); }
    afx_msg int OnCharToItem(UINT, CListBox*, UINT) { return static_cast<int>(askChildM()); }
    afx_msg int OnVKeyToItem(UINT, CListBox*, UINT) { return static_cast<int>(askChildM()); }
    afx_msg void OnParentNotify(UINT, LPARAM) { askChildM(); }
    afx_msg HBRUSH OnCtlColor(CDC*, CWnd*, UINT) { return reinterpret_cast<HBRUSH>(askChildM()); }

private:
    LRESULT askChildM();
};

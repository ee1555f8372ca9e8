#pragma once
#include "toolkit/dc.h"
#include "toolkit/gdi_objects.h"
#include "toolkit/wide_text.h"
#include <commctrl.h>
#include <shellapi.h> // It renames ExtractIcon, for members too.

// A list of equally sized pictures; deletes it with itself.
class PANELKIT_API CImageList : public CObject
{
    DECLARE_DYNAMIC(CImageList)
public:
    CImageList() = default;
    ~CImageList() override { DeleteImageList(); }

    HIMAGELIST m_hImageList = nullptr; // null: none
    // The same.
    HIMAGELIST GetSafeHandle() const { return m_hImageList; }
    operator HIMAGELIST() const { return m_hImageList; }
    BOOL Attach(HIMAGELIST list);                   // takes it over; FALSE: null
    HIMAGELIST Detach();                            // gives it back, not deleted; null: there was none
    static CImageList* FromHandle(HIMAGELIST list); // temporary object; null for a null handle
    static BOOL IsOwned(HIMAGELIST list);           // an object that is not a temporary one will delete it

    // A list that the object still has is deleted first.
    BOOL Create(int width, int height, UINT flags, int initial, int grow);
    // The pictures of a bitmap of the resources, side by side, each so wide. mask: the colour that is not
    // drawn.
    BOOL Create(UINT bitmapId, int width, int grow, COLORREF mask);
    BOOL Create(LPCSTR bitmapName, int width, int grow, COLORREF mask);
    AFX_WIDE_TEXT BOOL Create(const WideTP* bitmapName, int width, int grow, COLORREF mask)
    {
        return loadM(bitmapName, width, grow, mask);
    }
    // One picture: the second drawn over the first, moved by dx and dy.
    BOOL Create(CImageList& one, int first, CImageList& two, int second, int dx, int dy);
    BOOL Create(CImageList* other); // a copy
    BOOL DeleteImageList();

    int GetImageCount() const { return ::ImageList_GetImageCount(m_hImageList); }
    BOOL SetImageCount(UINT count) { return ::ImageList_SetImageCount(m_hImageList, count); }
    BOOL GetImageInfo(int index, IMAGEINFO* info) const;
    // Result: the index of the new picture, -1 on failure. Bitmap and icon stay the caller's.
    int Add(CBitmap* bitmap, CBitmap* mask);
    int Add(CBitmap* bitmap, COLORREF maskColor);
    int Add(HICON icon) { return ::ImageList_ReplaceIcon(m_hImageList, -1, icon); }
    BOOL Replace(int index, CBitmap* bitmap, CBitmap* mask);
    int Replace(int index, HICON icon) { return ::ImageList_ReplaceIcon(m_hImageList, index, icon); }
    BOOL Remove(int index) { return ::ImageList_Remove(m_hImageList, index); } // -1: all
    BOOL Copy(int to, int from, UINT flags = ILCF_MOVE);
    BOOL Copy(int to, CImageList* source, int from, UINT flags = ILCF_MOVE);
    HICON ExtractIcon(int index) { return ::ImageList_GetIcon(m_hImageList, index, 0); } // the caller's
    // Makes a picture the overlay of that number, from 1; INDEXTOOVERLAYMASK in a style draws it.
    BOOL SetOverlayImage(int index, int overlay);

    COLORREF SetBkColor(COLORREF color) { return ::ImageList_SetBkColor(m_hImageList, color); }
    COLORREF GetBkColor() const { return ::ImageList_GetBkColor(m_hImageList); }
    BOOL Draw(CDC* dc, int index, POINT at, UINT style);
    BOOL DrawEx(CDC* dc, int index, POINT at, SIZE size, COLORREF back, COLORREF blend, UINT style);
    BOOL DrawIndirect(IMAGELISTDRAWPARAMS* params); // size and list are filled in
    BOOL DrawIndirect(CDC* dc, int index, POINT at, SIZE size, POINT origin, UINT style = ILD_NORMAL,
        DWORD rop = SRCCOPY, COLORREF back = CLR_DEFAULT, COLORREF blend = CLR_DEFAULT);

    // A picture that follows the pointer: one in the program.
    BOOL BeginDrag(int index, CPoint hotSpot);
    static void EndDrag() { ::ImageList_EndDrag(); }
    static BOOL DragEnter(CWnd* locked, CPoint at); // in the window's coordinates; null: the screen
    static BOOL DragLeave(CWnd* locked);
    static BOOL DragMove(CPoint at) { return ::ImageList_DragMove(at.x, at.y); }
    static BOOL DragShowNolock(BOOL show) { return ::ImageList_DragShowNolock(show); }
    static CImageList* GetDragImage(LPPOINT at, LPPOINT hotSpot); // temporary object
    BOOL SetDragCursorImage(int index, CPoint hotSpot);

private:
    BOOL loadM(LPCWSTR bitmapName, int width, int grow, COLORREF mask);
};

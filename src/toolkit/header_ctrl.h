#pragma once
#include "toolkit/common_control.h"

// The headings of columns. Texts are GBK; indexes count from 0, -1 stands for failure.
class PANELKIT_API CHeaderCtrl : public CWnd
{
    DECLARE_DYNAMIC(CHeaderCtrl)
public:
    BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);
    int GetItemCount() const { return AfxSendInt(*this, HDM_GETITEMCOUNT); }
    int InsertItem(int index, const HDITEMA* item);
    int InsertItem(int index, const HDITEMW* item);
    BOOL DeleteItem(int index) { return SendMessage(HDM_DELETEITEM, AfxWordOf(index)) != 0; }
    BOOL GetItem(int index, HDITEMA* item) const; // a text is cut between characters to cchTextMax bytes
    BOOL GetItem(int index, HDITEMW* item) const;
    BOOL SetItem(int index, const HDITEMA* item);
    BOOL SetItem(int index, const HDITEMW* item);
    BOOL GetItemRect(int index, LPRECT rect) const;
    int HitTest(HDHITTESTINFO* info) const
    {
        return AfxSendInt(*this, HDM_HITTEST, 0, reinterpret_cast<LPARAM>(info));
    }
    BOOL Layout(HDLAYOUT* layout)
    {
        return SendMessage(HDM_LAYOUT, 0, reinterpret_cast<LPARAM>(layout)) != 0;
    }
    int OrderToIndex(int order) const { return AfxSendInt(*this, HDM_ORDERTOINDEX, order); }
    BOOL GetOrderArray(LPINT order, int count = -1) const; // -1: as many as there are
    BOOL SetOrderArray(int count, LPINT order);
    int SetHotDivider(CPoint at)
    {
        return AfxSendInt(*this, HDM_SETHOTDIVIDER, TRUE, MAKELPARAM(at.x, at.y));
    }
    int SetHotDivider(int index) { return AfxSendInt(*this, HDM_SETHOTDIVIDER, FALSE, index); }
    int GetBitmapMargin() const { return AfxSendInt(*this, HDM_GETBITMAPMARGIN); }
    int SetBitmapMargin(int width) { return AfxSendInt(*this, HDM_SETBITMAPMARGIN, width); }
    CImageList* GetImageList() const { return AfxImagesOf(SendMessage(HDM_GETIMAGELIST)); }
    CImageList* SetImageList(CImageList* list) // result: the list before, null: none
    {
        return AfxImagesOf(SendMessage(HDM_SETIMAGELIST, 0, AfxHandleOf(list)));
    }
    CImageList* CreateDragImage(int index); // the caller's, made by new; null: no such item

    virtual void DrawItem(LPDRAWITEMSTRUCT) { } // of items with HDF_OWNERDRAW

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override;
};

#pragma once
#include "toolkit/common_library.h"
#include "toolkit/control_message.h"
#include "toolkit/image_list.h"
#include "toolkit/item_text.h"

// The object for the image list in a result; null for a null one.
inline CImageList* AfxImagesOf(LRESULT list)
{
    return CImageList::FromHandle(reinterpret_cast<HIMAGELIST>(list));
}

// The handle as a message parameter; null for null.
inline LPARAM AfxHandleOf(const CImageList* list)
{
    return reinterpret_cast<LPARAM>(list == nullptr ? nullptr : list->m_hImageList);
}
// A list that a control has made for its caller, by new; null for a null handle.
CImageList* AfxOwnedImages(HIMAGELIST list);

#include "toolkit/common_control.h"

CImageList* AfxOwnedImages(HIMAGELIST list)
{
    if (list == nullptr) {
        return nullptr;
    }
    CImageList* owner = new CImageList;
    owner->Attach(list);
    return owner;
}

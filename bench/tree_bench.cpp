// How long 10,000 tree items that share two picture files take, by a description file and item by item.
#include "filling.h"
#include "support/small_picture.h"
#include <commctrl.h>

namespace {

constexpr int Items = 10000;

// Items 0, 10, 20, ... stand at the top, each with the nine that follow it below it.
int parentKey(int item)
{
    return item % 10 == 0 ? 0 : item - item % 10 + 1;
}

std::string description(const std::string& normal, const std::string& selected)
{
    std::string text
        = "[树形控件]\n1\n0\n1 12 10 10 360 250\n[树形控件数据]\n" + std::to_string(Items) + "\n0\n";
    for (int i = 0; i < Items; ++i) {
        text += "12 " + std::to_string(parentKey(i)) + " " + std::to_string(i + 1) + " " + std::to_string(i)
            + " item\n" + normal + "\n" + selected + "\n";
    }
    return text;
}

HTREEITEM next(HWND tree, UINT which, HTREEITEM item)
{
    return reinterpret_cast<HTREEITEM>(
        ::SendMessageW(tree, TVM_GETNEXTITEM, which, reinterpret_cast<LPARAM>(item)));
}

// A tree of two levels.
std::string seen(HWND tree)
{
    std::string all = std::to_string(::SendMessageW(tree, TVM_GETCOUNT, 0, 0));
    const auto add = [tree, &all](HTREEITEM handle) {
        TVITEMW item {};
        item.mask = TVIF_HANDLE | TVIF_PARAM | TVIF_IMAGE | TVIF_SELECTEDIMAGE;
        item.hItem = handle;
        ::SendMessageW(tree, TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item));
        all += '|' + std::to_string(item.lParam) + ' ' + std::to_string(item.iImage) + ' '
            + std::to_string(item.iSelectedImage);
    };
    for (HTREEITEM top = next(tree, TVGN_ROOT, nullptr); top != nullptr; top = next(tree, TVGN_NEXT, top)) {
        add(top);
        for (HTREEITEM child = next(tree, TVGN_CHILD, top); child != nullptr;
             child = next(tree, TVGN_NEXT, child)) {
            add(child);
        }
    }
    return all;
}

int addPicture(HIMAGELIST images, const std::wstring& file)
{
    const auto bitmap = static_cast<HBITMAP>(
        ::LoadImageW(nullptr, file.c_str(), IMAGE_BITMAP, 0, 0, LR_LOADFROMFILE | LR_CREATEDIBSECTION));
    const int index = ::ImageList_AddMasked(images, bitmap, RGB(0, 0, 0));
    ::DeleteObject(bitmap);
    return index;
}

const SmallPictureCL* normal = nullptr;
const SmallPictureCL* selected = nullptr;

// Loads both files, adds both, inserts and sets the data, item after item.
void addItems(HWND tree, HIMAGELIST images)
{
    const std::wstring normalFile = slGbkToWide(normal->path());
    const std::wstring selectedFile = slGbkToWide(selected->path());
    HTREEITEM top = TVI_ROOT;
    for (int i = 0; i < Items; ++i) {
        const int selectedImage = addPicture(images, selectedFile);
        const int normalImage = addPicture(images, normalFile);
        wchar_t text[] = L"item";
        TVINSERTSTRUCTW insert {};
        insert.hParent = parentKey(i) == 0 ? TVI_ROOT : top;
        insert.hInsertAfter = TVI_LAST;
        insert.item.mask = TVIF_TEXT | TVIF_IMAGE | TVIF_SELECTEDIMAGE;
        insert.item.pszText = text;
        insert.item.iImage = normalImage;
        insert.item.iSelectedImage = selectedImage;
        TVITEMW data {};
        data.mask = TVIF_HANDLE | TVIF_PARAM;
        data.lParam = i;
        data.hItem = reinterpret_cast<HTREEITEM>(
            ::SendMessageW(tree, TVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&insert)));
        ::SendMessageW(tree, TVM_SETITEMW, 0, reinterpret_cast<LPARAM>(&data));
        if (parentKey(i) == 0) {
            top = data.hItem;
        }
    }
}

double fill(HWND parent, HWND* tree)
{
    *tree = ::CreateWindowExW(WS_EX_CLIENTEDGE, WC_TREEVIEWW, nullptr, 0x50810007, 10, 10, 360, 250, parent,
        nullptr, nullptr, nullptr);
    static HIMAGELIST images = nullptr; // Those of the tree that is gone.
    ::ImageList_Destroy(images);
    images = ::ImageList_Create(20, 20, ILC_COLOR24, 0, 30);
    ::SendMessageW(*tree, TVM_SETIMAGELIST, TVSIL_NORMAL, reinterpret_cast<LPARAM>(images));
    return secondsOf([tree] { addItems(*tree, images); });
}

} // namespace

int main()
{
    const SmallPictureCL normalPicture(0x4080C0, 20, 20);
    const SmallPictureCL selectedPicture(0xC08040, 20, 20);
    normal = &normalPicture;
    selected = &selectedPicture;
    return runFillingBench(
        { "tree_10000_over_raw", description(normal->path(), selected->path()), seen, fill }, 3);
}

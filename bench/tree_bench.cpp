// How long 10,000 tree items that share two picture files take, by a description file and item by item.
#include "dialog/basic_dialog.h"
#include "support/small_picture.h"
#include "support/test_dialog.h"
#include "timing.h"
#include <commctrl.h>
#include <cstdio>
#include <string>

namespace {

constexpr int Items = 10000;
constexpr int Rounds = 3;

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

// What a tree of two levels holds, summed up; equal trees give equal values.
unsigned long long checksum(HWND tree)
{
    unsigned long long sum = 0;
    const auto add = [tree, &sum](HTREEITEM handle) {
        TVITEMW item {};
        item.mask = TVIF_HANDLE | TVIF_PARAM | TVIF_IMAGE | TVIF_SELECTEDIMAGE;
        item.hItem = handle;
        ::SendMessageW(tree, TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item));
        sum = ((sum * 31 + static_cast<unsigned long long>(item.lParam)) * 31
                  + static_cast<unsigned>(item.iImage))
                * 31
            + static_cast<unsigned>(item.iSelectedImage);
    };
    for (HTREEITEM top = next(tree, TVGN_ROOT, nullptr); top != nullptr; top = next(tree, TVGN_NEXT, top)) {
        add(top);
        for (HTREEITEM child = next(tree, TVGN_CHILD, top); child != nullptr;
             child = next(tree, TVGN_NEXT, child)) {
            add(child);
        }
    }
    return sum + static_cast<unsigned long long>(::SendMessageW(tree, TVM_GETCOUNT, 0, 0));
}

// The whole building of the dialog, reading the file included.
double load(PlainWindowCL& parent, const char* path, unsigned long long* sum)
{
    DuBasicDialogCL dialog;
    dialog.SetConfigFileM(path);
    const auto begin = std::chrono::steady_clock::now();
    dialog.InitDlgM(&parent, 0);
    const double seconds = secondsSince(begin);
    *sum = checksum(::GetDlgItem(parent.m_hWnd, 12));
    return seconds;
}

int addPicture(HIMAGELIST images, const std::wstring& file)
{
    const auto bitmap = static_cast<HBITMAP>(
        ::LoadImageW(nullptr, file.c_str(), IMAGE_BITMAP, 0, 0, LR_LOADFROMFILE | LR_CREATEDIBSECTION));
    const int index = ::ImageList_AddMasked(images, bitmap, RGB(0, 0, 0));
    ::DeleteObject(bitmap);
    return index;
}

// The same tree by the raw calls: load both files, add both, insert, set the data, item after item.
double addRaw(const PlainWindowCL& parent, const std::wstring& normal, const std::wstring& selected,
    unsigned long long* sum)
{
    const HWND tree = ::CreateWindowExW(WS_EX_CLIENTEDGE, WC_TREEVIEWW, nullptr, 0x50810007, 10, 10, 360, 250,
        parent.m_hWnd, nullptr, nullptr, nullptr);
    const HIMAGELIST images = ::ImageList_Create(20, 20, ILC_COLOR24, 0, 30);
    ::SendMessageW(tree, TVM_SETIMAGELIST, TVSIL_NORMAL, reinterpret_cast<LPARAM>(images));
    const auto begin = std::chrono::steady_clock::now();
    HTREEITEM top = TVI_ROOT;
    for (int i = 0; i < Items; ++i) {
        const int selectedImage = addPicture(images, selected);
        const int normalImage = addPicture(images, normal);
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
    const double seconds = secondsSince(begin);
    *sum = checksum(tree);
    ::DestroyWindow(tree);
    ::ImageList_Destroy(images);
    return seconds;
}

} // namespace

int main()
{
    const SmallPictureCL normal(0x4080C0, 20, 20);
    const SmallPictureCL selected(0xC08040, 20, 20);
    const DescriptionFileCL file(description(normal.path(), selected.path()));
    PlainWindowCL parent;
    parent.ShowWindow(SW_HIDE); // As a dialog is while it is built.
    std::vector<double> loads;
    std::vector<double> raws;
    for (int round = 0; round < Rounds; ++round) {
        unsigned long long loaded = 0;
        unsigned long long raw = 1;
        loads.push_back(load(parent, file.path(), &loaded));
        raws.push_back(addRaw(parent, slGbkToWide(normal.path()), slGbkToWide(selected.path()), &raw));
        if (loaded != raw) {
            std::fprintf(stderr, "the trees differ\n");
            return 1;
        }
    }
    std::fprintf(stderr, "item by item %.1f ms, loaded %.1f ms\n", median(raws) * 1000, median(loads) * 1000);
    std::printf("{\"name\":\"tree_10000_over_raw\",\"value\":%.3f,\"unit\":\"x\",\"better\":\"lower\"}\n",
        median(loads) / median(raws));
    return 0;
}

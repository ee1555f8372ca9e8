#include "controls/lists/tree.h"
#include "controls/lists/filling.h"
#include "controls/lists/tree_pictures.h"
#include "controls/lists/tree_record.h"

template class PANELKIT_API Arr<DuTreeCL>;

BEGIN_MESSAGE_MAP(DuTreeCL, CTreeCtrl)
ON_WM_CREATE()
ON_WM_SETFOCUS()
END_MESSAGE_MAP()

int DVrTreeCL::InitTreeM(DuTreeCL* control) const
{
    InitCommonCtrlM(control); // A tree without a control is none to fill.
    return 1;
}

int DVrTreeCL::InitTreeStrM(DuTreeCL* control)
{
    return genTreeM(0, TVI_ROOT, control);
}

int DVrTreeCL::genTreeM(int parentKey, HTREEITEM parentItem, DuTreeCL* tree)
{
    if (tree == nullptr) {
        return 0;
    }
    const FillingCL filling(tree);
    TreePicturesCL pictures(tree->ImagesM(), tree->PictureScaleM().AnywhereM(), tree->ImageFilesM());
    lines_.GenerateM(
        parentKey, parentItem, [tree, &pictures](void* parent, const TreeLinesCL::LineCL& line) -> void* {
            return tree->InsertItemM(static_cast<HTREEITEM>(parent), line.data, line.text,
                line.selectedPicture, line.normalPicture, pictures);
        });
    pictures.FinishM();
    return 1;
}

BOOL DuTreeCL::PreCreateWindow(CREATESTRUCT& create)
{
    create.style
        |= WS_CHILD | WS_VISIBLE | WS_BORDER | WS_TABSTOP | TVS_HASBUTTONS | TVS_HASLINES | TVS_LINESATROOT;
    create.dwExStyle |= WS_EX_CLIENTEDGE;
    return CTreeCtrl::PreCreateWindow(create);
}

int DuTreeCL::OnCreate(LPCREATESTRUCT create)
{
    if (CTreeCtrl::OnCreate(create) == -1) {
        return -1;
    }
    originals_.ClearM();
    images_.DeleteImageList();
    images_.files.clear();
    TreePicturesCL::CreateListM(images_, PictureScaleM().AnywhereM());
    SetImageList(&images_, TVSIL_NORMAL);
    if (looks_.TextColourM()) {
        showTextColourM();
    }
    return 0;
}

void DuTreeCL::SetTextColourM(std::optional<COLORREF> colour)
{
    ControlCL::SetTextColourM(colour);
    if (m_hWnd != nullptr) {
        showTextColourM();
    }
}

void DuTreeCL::showTextColourM()
{
    constexpr COLORREF Platform = static_cast<COLORREF>(-1);
    SetTextColor(looks_.TextColourM().value_or(Platform));
}

// Items know their images by number: where a file is gone the list stays.
void DuTreeCL::RescaledM(int, int)
{
    const PictureScaleCL scale = PictureScaleM().AnywhereM();
    CImageList again;
    if (m_hWnd == nullptr || images_.GetSafeHandle() == nullptr
        || !TreePicturesCL::CreateListM(again, scale)) {
        return;
    }
    {
        ImageFilesTP files; // The same again.
        TreePicturesCL pictures(again, scale, files);
        for (const auto& file : images_.files) {
            if (file != nullptr) {
                pictures.AddM(file->c_str());
            }
        }
        pictures.FinishM();
    }
    if (again.GetImageCount() == images_.GetImageCount()) {
        SetImageList(&again, TVSIL_NORMAL);
        images_.DeleteImageList();
        images_.Attach(again.Detach());
    }
}

int DuTreeCL::addImagesM(const char* file)
{
    const int before = images_.GetImageCount();
    const int first = TreePicturesCL::AddFileM(images_, file, PictureScaleM().AnywhereM());
    if (first != -1) {
        TreePicturesCL::NoteM(
            images_.files, std::make_shared<const std::string>(file), images_.GetImageCount() - before);
    }
    return first;
}

HTREEITEM DuTreeCL::InsertItemM(
    HTREEITEM parent, int data, const char* text, const char* selectedPicture, const char* normalPicture)
{
    if (text == nullptr || selectedPicture == nullptr || normalPicture == nullptr) {
        return nullptr;
    }
    const int selected = addImagesM(selectedPicture);
    const int normal = selected != -1 ? addImagesM(normalPicture) : -1;
    return insertM(parent, data, text, selected, normal);
}

HTREEITEM DuTreeCL::InsertItemM(HTREEITEM parent, int data, const char* text, const char* selectedPicture,
    const char* normalPicture, TreePicturesCL& pictures)
{
    if (text == nullptr || selectedPicture == nullptr || normalPicture == nullptr) {
        return nullptr;
    }
    const int selected = pictures.AddM(selectedPicture);
    const int normal = selected != -1 ? pictures.AddM(normalPicture) : -1;
    return insertM(parent, data, text, selected, normal);
}

HTREEITEM DuTreeCL::insertM(HTREEITEM parent, int data, const char* text, int selected, int normal)
{
    if (normal == -1) {
        return nullptr;
    }
    const HTREEITEM item = InsertItem(
        TVIF_TEXT | TVIF_IMAGE | TVIF_SELECTEDIMAGE, text, normal, selected, 0, 0, 0, parent, TVI_LAST);
    if (item != nullptr) {
        SetItemData(item, static_cast<DWORD_PTR>(data));
    }
    return item;
}

HTREEITEM DuTreeCL::GetCurSelM(int* data) const
{
    if (data == nullptr) {
        return nullptr;
    }
    const HTREEITEM item = GetSelectedItem();
    if (item != nullptr) {
        *data = static_cast<int>(GetItemData(item));
    }
    return item;
}

void DuTreeCL::DelItemM()
{
    ControlCL::DelItemM();
    destroyM();
}

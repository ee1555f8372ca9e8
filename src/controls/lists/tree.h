#pragma once
#include "controls/base/control.h"
#include "controls/base/control_arr.h"
#include "controls/base/control_value.h"
#include "controls/base/translator.h"
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

class TreePicturesCL;

// The pictures of a tree's items. They go with the window: a copy of the control starts without.
class PANELKIT_API TreeImagesCL : public CImageList
{
public:
    TreeImagesCL() = default;
    TreeImagesCL(const TreeImagesCL&)
        : CImageList()
    {
    }
    TreeImagesCL& operator=(const TreeImagesCL& other)
    {
        if (this != &other) {
            DeleteImageList();
            files.clear();
        }
        return *this;
    }

    std::vector<std::shared_ptr<const std::string>> files; // Where they come from (tree_pictures.h).
};

// What items that show a translation say in the file. It belongs to the window: a copy of the control starts
// without.
class PANELKIT_API TreeOriginalsCL
{
public:
    TreeOriginalsCL() = default;
    TreeOriginalsCL(const TreeOriginalsCL&) { }
    TreeOriginalsCL& operator=(const TreeOriginalsCL& other)
    {
        if (this != &other) {
            ClearM();
        }
        return *this;
    }
    // Null: the item shows its own text, not that translation. Valid until the next PutM.
    const ValueTextCL* FindM(HTREEITEM item, const std::wstring& shown) const;
    void PutM(HTREEITEM item, const std::wstring& shown, const ValueTextCL& original);
    bool EmptyM() const { return texts_ == nullptr; } // No item shows a translation.
    void ClearM() { texts_.reset(); }                 // None does from now on.

private:
    struct TextCL
    {
        std::wstring shown;
        ValueTextCL original;
    };
    std::unique_ptr<std::unordered_map<HTREEITEM, TextCL>> texts_; // A control is moved by its bytes.
};

// A tree of texts, each with a picture for its normal and its selected state and a number of the application.
class PANELKIT_API DuTreeCL : public ControlCL<CTreeCtrl>
{
public:
    using ControlCL::ControlCL;

    // Adds an item below the parent, behind its other children, and its pictures, .bmp files as named, to the
    // image list: the selected one first. Null when a picture can't be loaded or the item not be made.
    HTREEITEM InsertItemM(
        HTREEITEM parent, int data, const char* text, const char* selectedPicture, const char* normalPicture);
    // The same for one of many items, whose pictures are shared.
    HTREEITEM InsertItemM(HTREEITEM parent, int data, const char* text, const char* selectedPicture,
        const char* normalPicture, TreePicturesCL& pictures);
    HTREEITEM GetCurSelM(int* data) const; // Null, and data stays, when no item is selected.
    // What the item says in the file, also while it shows a translation; else what it shows. Empty for null.
    ValueTextCL ItemTextM(HTREEITEM item) const;
    void TranslateM(const TranslatorTP& translate); // Has each item show its translation.
    // The value by id: the path of the selected item, which is the texts (ItemTextM) from the root down with
    // '/' between them; empty when no item is selected. In a text '\' and '/' have a '\' before them. Behind
    // a text '\#2' means the second child with it, '\#1' marks an empty text. Selecting opens what is above
    // the item, and the platform tells the parent.
    unsigned ValuePartsM() const { return PathPart; }
    ControlValueCL ReadValueM() const;
    bool WriteValueM(const ControlValueCL& value);
    void SetTextColourM(std::optional<COLORREF> colour); // Of the items' texts (ControlCL).
    // The pictures of its items; the control keeps them.
    CImageList& ImagesM() { return images_; }
    // Where it is kept from which files they come (tree_pictures.h).
    std::vector<std::shared_ptr<const std::string>>& ImageFilesM() { return images_.files; }
    void DelItemM();
    void RescaledM(int from, int to);
    void destroyM() { images_.DeleteImageList(); } // Deletes the image list.

protected:
    BOOL PreCreateWindow(CREATESTRUCT& create) override;
    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg void OnSetFocus(CWnd* oldFocus) { reportFocusM(oldFocus); }
    DECLARE_MESSAGE_MAP()

private:
    int addImagesM(const char* file);
    HTREEITEM insertM(HTREEITEM parent, int data, const char* text, int selected, int normal);

    void showTextColourM();

    TreeImagesCL images_;
    TreeOriginalsCL originals_;
};

extern template class PANELKIT_API Arr<DuTreeCL>;

class PANELKIT_API DuTreeArr : public ControlArr<DuTreeCL>
{
};

#pragma once
#include "baselib/gbk_texts.h"
#include "controls/lists/tree_lines.h"
#include "records/record_arr.h"

class DuTreeCL;
struct _TREEITEM; // The window system's handle of a tree item.

// One tree of a description file with its flat lines.
class PANELKIT_API DVrTreeCL : public RecordCL<DVrTreeCL>
{
public:
    using RecordCL::RecordCL;
    // Appends a line. triple: parent key (0: none), own key, item data; pictures are .bmp files. Always 1.
    int AddStringM(
        const int triple[3], const char* text, const char* selectedPicture, const char* normalPicture);
    void TakeRowM(const RowCL& row) { lines_.TakeM(row); } // The same, of the file.
    void destroyM() { lines_.DelAllM(); }                  // Empties the lines.
    int InitTreeM(DuTreeCL* control) const;                // The control may be null.
    int InitTreeStrM(DuTreeCL* control); // Inserts all lines from parent key 0 on into a live control.
    // Inserts the lines with that parent key below the item, each followed by its own children, in order. A
    // line is used up by that, also when its pictures fail: then its children stay out. 1; 0 for a null tree.
    int genTreeM(int parentKey, _TREEITEM* parentItem, DuTreeCL* tree);
    void EachFieldM(FieldVisitorCL& visitor);

private:
    TreeLinesCL lines_;
};

extern template class PANELKIT_API Arr<DVrTreeCL>;

class PANELKIT_API DVrTreeArr : public RecordArr<DVrTreeCL>
{
public:
    static constexpr const char* KindName = "tree";
    static constexpr const char* Header = TreeHeader;
    static constexpr std::array<SecondarySectionCL<RecordTP>, 1> Secondaries {
        { { TreeDataHeader, &slTreeRow, [](RecordTP& record, const RowCL& row) { record.TakeRowM(row); } } }
    };

    int InitTreeM(int index, DuTreeCL* control) const
    {
        return ifAliveM(index, &RecordTP::InitTreeM, control);
    }
    int InitTreeStrM(int index, DuTreeCL* control)
    {
        return ifAliveM(index, &RecordTP::InitTreeStrM, control);
    }
    int AddStringM(int index, const int triple[3], const char* text, const char* selectedPicture,
        const char* normalPicture)
    {
        return addM(index, &RecordTP::AddStringM, triple, text, selectedPicture, normalPicture);
    }
};

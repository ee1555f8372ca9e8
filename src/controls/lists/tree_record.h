#pragma once
#include "baselib/gbk_texts.h"
#include "controls/lists/tree_lines.h"
#include "records/common_box_record.h"
#include "records/record_arr.h"

class DuTreeCL;
struct _TREEITEM; // The window system's handle of a tree item.

// One tree of a description file with its flat lines. Holds no window.
class PANELKIT_API DVrTreeCL : public DVrCommonBoxCL
{
public:
    DVrTreeCL() = default;
    explicit DVrTreeCL(char tag)
        : DVrCommonBoxCL(tag)
    {
    }

    int FmReadInterfaceM(VrIOCL* io); // Reads one record; always 1.
    // Appends a line. triple: parent key (0: none), own key, item data; pictures are .bmp files. Always 1.
    int AddStringM(
        const int triple[3], const char* text, const char* selectedPicture, const char* normalPicture);
    void destroyM() { lines_.DelAllM(); }   // Empties the lines.
    int InitTreeM(DuTreeCL* control) const; // Copies the record into a control, if there is one; always 1.
    int InitTreeStrM(DuTreeCL* control);    // Inserts all lines from parent key 0 on; always 1.
    // Inserts the lines with that parent key below the item, each followed by its own children, in order. A
    // line is used up by that, also when its pictures fail: then its children stay out. Always 1.
    int genTreeM(int parentKey, _TREEITEM* parentItem, DuTreeCL* tree);
    void EachFieldM(FieldVisitorCL& visitor);

    TreeLinesCL& LinesM() { return lines_; }

private:
    TreeLinesCL lines_;
};

extern template class PANELKIT_API Arr<DVrTreeCL>;

class PANELKIT_API DVrTreeArr : public RecordArr<DVrTreeCL>
{
public:
    static constexpr const char* KindName = "tree";
    static constexpr const char* Header = TreeHeader;
    static constexpr std::array<SecondarySectionCL<DVrTreeCL>, 1> Secondaries { {
        { TreeDataHeader, 3, 3, TextSize,
            [](DVrTreeCL& record, const SectionEntryCL& entry) {
                return record.AddStringM(entry.numbers, entry.texts[0], entry.texts[2], entry.texts[1]);
            } },
    } };

    // For the record at index, if it is alive. Always 1.
    int InitTreeM(int index, DuTreeCL* control) const;
    int InitTreeStrM(int index, DuTreeCL* control);
    int AddStringM(int index, const int triple[3], const char* text, const char* selectedPicture,
        const char* normalPicture);
};

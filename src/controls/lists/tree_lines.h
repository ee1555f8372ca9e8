#pragma once
#include "containers/int3d_arr.h"
#include "records/rows.h"
#include <functional>

// A line: the keys are the application's own numbers.
inline void slTreeRow(FieldVisitorCL& visitor, const RowCL& row)
{
    visitor.IntM("parent", row.numbers[0]);
    visitor.IntM("key", row.numbers[1]);
    visitor.IntM("data", row.numbers[2]);
    visitor.CaptionM("text", *row.texts[0], NullWord::SkipsEntry);
    visitor.NameM("normal", *row.texts[1], NullWord::Kept);
    visitor.NameM("selected", *row.texts[2], NullWord::Kept);
}

// The lines of a tree: parallel lists, entry k of each belongs to line k.
class PANELKIT_API TreeLinesCL
{
public:
    // One line; texts are GBK.
    struct LineCL
    {
        int parentKey;               // The key of the line that it stands below; 0: none.
        int ownKey;                  // That by which its children name it.
        int data;                    // The application's number of it.
        const char* text;            // What is shown.
        const char* normalPicture;   // The name of a .bmp file.
        const char* selectedPicture; // The one while the item is selected.
    };

    // Null is an empty text; without the numbers nothing is added.
    void AddM(const int triple[3], const char* text, const char* selectedPicture, const char* normalPicture);
    void TakeM(const RowCL& row); // The same, of the file: takes its texts.
    void DelItemM(int index);     // The line is deleted from all lists; the others keep their index.
    void DelAllM();               // Empties all lists.
    // How many lines are alive; their indexes in order, -1 behind the last.
    int GetAvailableNumM() const { return keys_.GetAvailableNumM(); }
    int GetFirstIdxM() const { return keys_.GetFirstIdxM(); }
    int GetNextIdxM(int from) const { return keys_.GetNextIdxM(from); }
    void VisitM(FieldVisitorCL& visitor, const char* name); // Shows the alive lines as rows.
    LineCL LineM(int index) const;                          // Its texts are valid until the lists change.

    using PlaceTP = std::function<void*(void* parent, const LineCL& line)>; // Makes an item of a line.
    // Places the lines with that parent key below the parent, in order, each one's children (the lines that
    // name its own key as their parent) before the next line. place(parent, line) returns what it made of the
    // line, null if it failed; either way the line is deleted, so each is placed once. No place: nothing.
    void GenerateM(int parentKey, void* parent, const PlaceTP& place);

private:
    OwnListCL<Int3DArr> keys_;
    TextListCL texts_;
    TextListCL normalPictures_;
    TextListCL selectedPictures_;
};

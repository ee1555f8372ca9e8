#include "controls/lists/tree_lines.h"
#include "baselib/take_back.h"
#include <unordered_map>
#include <vector>

void TreeLinesCL::AddM(
    const int triple[3], const char* text, const char* selectedPicture, const char* normalPicture)
{
    if (triple == nullptr) {
        return;
    }
    int numbers[3] = { triple[0], triple[1], triple[2] };
    CharArr own[] = { CharArr(text), CharArr(normalPicture), CharArr(selectedPicture) };
    TakeM({ numbers, { &own[0], &own[1], &own[2] } });
}

void TreeLinesCL::TakeM(const RowCL& row)
{
    const int index = keys_.AddItemM(row.numbers);
    TakeBackCL half([this, index] { DelItemM(index); }); // What no list has by then is deleted in none.
    slTakeText(texts_, *row.texts[0]);
    slTakeText(normalPictures_, *row.texts[1]);
    slTakeText(selectedPictures_, *row.texts[2]);
    half.KeepM();
}

void TreeLinesCL::DelItemM(int index)
{
    keys_.DelItemM(index);
    texts_.DelItemM(index);
    normalPictures_.DelItemM(index);
    selectedPictures_.DelItemM(index);
}

void TreeLinesCL::DelAllM()
{
    keys_.DelAllM();
    texts_.DelAllM();
    normalPictures_.DelAllM();
    selectedPictures_.DelAllM();
}

TreeLinesCL::LineCL TreeLinesCL::LineM(int index) const
{
    int triple[3] = {};
    keys_.GetItemM(triple, index);
    return { triple[0], triple[1], triple[2], slTextAt(texts_, index), slTextAt(normalPictures_, index),
        slTextAt(selectedPictures_, index) };
}

void TreeLinesCL::VisitM(FieldVisitorCL& visitor, const char* name)
{
    slVisitRows(visitor, name, keys_, GetAvailableNumM(), &slTreeRow, [this](int slot) {
        return RowCL { keys_[slot],
            { &texts_.ElementAtM(slot).ValueM(), &normalPictures_.ElementAtM(slot).ValueM(),
                &selectedPictures_.ElementAtM(slot).ValueM() } };
    });
}

void TreeLinesCL::GenerateM(int parentKey, void* parent, const PlaceTP& place)
{
    if (place == nullptr) {
        return;
    }
    // The lines of one parent key, and how many of them are placed. Whoever comes by with that key takes the
    // next one: a walk over all alive lines would find the same.
    struct ChildrenCL
    {
        std::vector<int> lines;
        size_t placed { 0 };
    };
    std::unordered_map<int, ChildrenCL> childrenOf;
    for (int i = keys_.GetFirstIdxM(); i >= 0; i = keys_.GetNextIdxM(i)) {
        childrenOf[keys_[i][0]].lines.push_back(i);
    }
    struct LevelCL
    {
        void* parent;
        ChildrenCL* children;
    };
    // Not by recursion: a chain of lines may be as long as the file.
    std::vector<LevelCL> levels;
    const auto enter = [&](int key, void* below) {
        const auto found = childrenOf.find(key);
        if (found != childrenOf.end()) {
            levels.push_back({ below, &found->second });
        }
    };
    enter(parentKey, parent);
    while (!levels.empty()) {
        const LevelCL level = levels.back();
        if (level.children->placed == level.children->lines.size()) {
            levels.pop_back();
            continue;
        }
        const int index = level.children->lines[level.children->placed++];
        const LineCL line = LineM(index);
        void* const made = place(level.parent, line);
        DelItemM(index);
        if (made != nullptr) {
            enter(line.ownKey, made);
        }
    }
}

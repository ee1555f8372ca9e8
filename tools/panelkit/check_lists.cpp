// The entries of secondary sections: their texts and pictures, and the lists that they make.
#include "baselib/gbk.h"
#include "baselib/gbk_texts.h"
#include "baselib/path.h"
#include "control_list.h"
#include "row_shape.h"
#include <cstring>
#include <map>
#include <set>
#include <unordered_set>

namespace {

// Of the new rotate buttons' pictures a short extension is left to be added.
std::string pictureOf(const GrammarCL& grammar, std::string_view written)
{
    const std::string name(written);
    char extension[PathSize];
    slGetFileExtension(name.c_str(), extension);
    return grammar.row == nullptr && std::strlen(extension) < 2 ? name + ".bmp" : name;
}

void checkEntry(FileReadingCL& file, const GrammarCL& grammar, const RowShapeCL& shape,
    const SeenValueCL& value, PicturesCL& pictures, FindingsCL& findings)
{
    if (value.fate == Fate::Saturated) {
        findings.AddM(Says::NumberTooLarge, value.begin, { value.field, file.CutM(value) });
    }
    const RowShapeCL::TextCL* const text = shape.FindM(value.field);
    if (text == nullptr) {
        return;
    }
    if (value.fate == Fate::Cut) {
        findings.AddM(Says::TextTooLong, value.begin, { value.field, std::to_string(text->size - 1) });
    } else if (value.fate == Fate::Read && text->isPicture) {
        pictures.CheckM(pictureOf(grammar, file.BytesM(value)), value.begin, findings);
    }
}

// Items whose parents lead to no top item.
void checkTrees(FileReadingCL& file, FindingsCL& findings)
{
    struct ItemCL
    {
        int entry, parent, key;
    };
    const SeenSectionCL& section = file.SectionM(TreeDataHeader);
    if (!file.IsSoundM(TreeDataHeader)) {
        return;
    }
    std::map<int, std::vector<ItemCL>> trees;
    for (int i = 0; i < section.RecordsM(); ++i) {
        if (section.FindM(i, "text")->fate != Fate::NullWord) {
            trees[file.NumberM(section, i, "function_id")].push_back(
                { i, file.NumberM(section, i, "parent"), file.NumberM(section, i, "key") });
        }
    }
    for (const auto& [id, items] : trees) {
        std::map<int, std::vector<int>> childrenOf; // Keys by the parent's.
        std::map<int, int> parentOf;
        for (const ItemCL& item : items) {
            childrenOf[item.parent].push_back(item.key);
            parentOf.emplace(item.key, item.parent);
        }
        std::set<int> shown { 0 };
        std::vector<int> open { 0 };
        while (!open.empty()) {
            const int key = open.back();
            open.pop_back();
            for (const int child : childrenOf[key]) {
                if (shown.insert(child).second) {
                    open.push_back(child);
                }
            }
        }
        for (const ItemCL& item : items) {
            if (shown.count(item.parent) > 0) {
                continue;
            }
            const std::size_t at = section.FindM(item.entry, "parent")->begin;
            if (parentOf.count(item.parent) == 0) {
                findings.AddM(Says::OrphanItem, at, { std::to_string(item.parent) });
                continue;
            }
            int up = item.parent; // As many steps as there are items come round every cycle.
            for (std::size_t steps = 0; steps < items.size() && up != item.key && parentOf.count(up) > 0;
                 ++steps) {
                up = parentOf[up];
            }
            if (up == item.key) {
                findings.AddM(Says::ItemCycle, at);
                for (const ItemCL& other : items) { // Once a cycle.
                    shown.insert(other.parent);
                }
            }
        }
    }
}

// Cells without a row or a column.
void checkCells(FileReadingCL& file, FindingsCL& findings)
{
    const SeenSectionCL& titles = file.SectionM(ListCtrlTitleHeader);
    const SeenSectionCL& cells = file.SectionM(ListCtrlItemHeader);
    if (!file.IsSoundM(ListCtrlTitleHeader) || !file.IsSoundM(ListCtrlItemHeader)
        || !titles.dropped.empty()) {
        return;
    }
    std::map<int, int> columns;
    for (int i = 0; i < titles.RecordsM(); ++i) {
        if (titles.FindM(i, "text")->fate != Fate::NullWord) {
            ++columns[file.NumberM(titles, i, "function_id")];
        }
    }
    std::unordered_set<int> dropped;
    for (const EntryDroppedCL& entry : cells.dropped) {
        dropped.insert(entry.entry);
    }
    std::set<std::pair<int, int>> rows;
    for (int i = 0; i < cells.RecordsM(); ++i) {
        if (dropped.count(i) > 0) {
            continue;
        }
        const int id = file.NumberM(cells, i, "function_id");
        const int row = file.NumberM(cells, i, "row");
        const int column = file.NumberM(cells, i, "column");
        if (column == 0) {
            rows.emplace(id, row);
        } else if (rows.count({ id, row }) == 0) {
            findings.AddM(Says::LostCell, cells.FindM(i, "row")->begin, { std::to_string(row) });
            continue;
        }
        if (column < 0 || column >= columns[id]) {
            findings.AddM(Says::LostColumn, cells.FindM(i, "column")->begin, { std::to_string(column) });
        }
    }
}

// A button's status that stands first, but isn't there.
void checkStatuses(FileReadingCL& file, FindingsCL& findings)
{
    file.KeepValuesM(slGrammarOf(MultiStateButtonHeader));
    const SeenSectionCL& buttons = file.SectionM(MultiStateButtonHeader);
    const SeenSectionCL& states = file.SectionM(MultiStateButtonDataHeader);
    if (!file.IsSoundM(MultiStateButtonDataHeader) || !states.dropped.empty()) {
        return;
    }
    std::map<int, std::set<int>> statesOf;
    for (int i = 0; i < states.RecordsM(); ++i) {
        statesOf[file.NumberM(states, i, "function_id")].insert(file.NumberM(states, i, "status"));
    }
    for (int i = 0; i < buttons.soundRecords; ++i) {
        const auto found = statesOf.find(file.NumberM(buttons, i, "function_id"));
        const int first = file.NumberM(buttons, i, "initial_status");
        if (found != statesOf.end() && found->second.count(first) == 0) {
            findings.AddM(
                Says::NoStatusShown, buttons.FindM(i, "initial_status")->begin, { std::to_string(first) });
        }
    }
}

} // namespace

void checkEntries(FileReadingCL& file, PicturesCL& pictures, FindingsCL& findings)
{
    for (std::size_t i = 0; i < slGrammars().size(); ++i) {
        const GrammarCL& grammar = slGrammars()[i];
        const SeenSectionCL& section = file.SectionM(static_cast<int>(i));
        if (grammar.owner == nullptr || section.soundRecords == 0) {
            continue;
        }
        const RowShapeCL shape(grammar);
        for (int record = 0; record < section.soundRecords; ++record) {
            for (const SeenValueCL* value = section.FirstM(record); value < section.EndM(record); ++value) {
                checkEntry(file, grammar, shape, *value, pictures, findings);
            }
        }
    }
}

void checkLists(FileReadingCL& file, FindingsCL& findings)
{
    checkTrees(file, findings);
    checkCells(file, findings);
    checkStatuses(file, findings);
}

// The entries of secondary sections: their texts and pictures, and the lists that they make.
#include "baselib/gbk.h"
#include "baselib/gbk_texts.h"
#include "baselib/path.h"
#include "control_list.h"
#include "rising_set.h"
#include "row_shape.h"
#include "sort_rows.h"
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
    const SeenValueCL& value, std::size_t place, PicturesCL& pictures, FindingsCL& findings)
{
    if (value.fate == Fate::Saturated) {
        findings.AddM(Says::NumberTooLarge, value.begin, { value.field, file.CutM(value) });
    }
    const RowShapeCL::TextCL* const text = shape.FindM(value.field, place);
    if (text == nullptr) {
        return;
    }
    if (value.fate == Fate::Cut) {
        findings.AddM(Says::TextTooLong, value.begin, { value.field, std::to_string(text->size - 1) });
    } else if (value.fate == Fate::Read && text->isPicture) {
        pictures.CheckM(pictureOf(grammar, file.BytesM(value)), false, value.begin, findings);
    }
}

struct TreeItemCL
{
    int tree, entry, parent, key;
    bool operator<(const TreeItemCL& other) const { return tree < other.tree; }
};

// Mostly an item stands behind its parent: then all are shown.
bool standBehindParents(const TreeItemCL* first, const TreeItemCL* last, RisingSetCL<int>& keys)
{
    keys.ClearM();
    for (const TreeItemCL* item = first; item < last; ++item) {
        if (item->parent != 0 && !keys.HasM(item->parent)) {
            return false;
        }
        keys.AddM(item->key);
    }
    return true;
}

void checkTree(
    const SeenSectionCL& section, const TreeItemCL* first, const TreeItemCL* last, FindingsCL& findings)
{
    std::map<int, std::vector<int>> childrenOf; // Keys by the parent's.
    std::map<int, int> parentOf;
    for (const TreeItemCL* item = first; item < last; ++item) {
        childrenOf[item->parent].push_back(item->key);
        parentOf.emplace(item->key, item->parent);
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
    for (const TreeItemCL* item = first; item < last; ++item) {
        if (shown.count(item->parent) > 0) {
            continue;
        }
        const std::size_t at = section.FindM(item->entry, "parent")->begin;
        if (parentOf.count(item->parent) == 0) {
            findings.AddM(Says::OrphanItem, at, { std::to_string(item->parent) });
            continue;
        }
        int up = item->parent; // As many steps as there are items come round every cycle.
        for (std::ptrdiff_t steps = 0; steps < last - first && up != item->key && parentOf.count(up) > 0;
             ++steps) {
            up = parentOf[up];
        }
        if (up == item->key) {
            findings.AddM(Says::ItemCycle, at);
            for (const TreeItemCL* other = first; other < last; ++other) { // Once a cycle.
                shown.insert(other->parent);
            }
        }
    }
}

// Items whose parents lead to no top item.
void checkTrees(FileReadingCL& file, FindingsCL& findings)
{
    const SeenSectionCL& section = file.SectionM(TreeDataHeader);
    if (!file.IsSoundM(TreeDataHeader)) {
        return;
    }
    EntryColumnCL trees(file, section, "function_id");
    EntryColumnCL parents(file, section, "parent");
    EntryColumnCL keys(file, section, "key");
    EntryColumnCL texts(file, section, "text");
    std::vector<TreeItemCL> items;
    for (int i = 0; i < section.RecordsM(); ++i) {
        if (texts.FindM(i)->fate != Fate::NullWord) {
            items.push_back({ trees.NumberM(i), i, parents.NumberM(i), keys.NumberM(i) });
        }
    }
    sortRows(items);
    RisingSetCL<int> shown;
    const TreeItemCL* const end = items.data() + items.size();
    for (const TreeItemCL* first = items.data(); first < end;) {
        const TreeItemCL* const last
            = std::find_if(first, end, [first](const TreeItemCL& item) { return item.tree != first->tree; });
        if (!standBehindParents(first, last, shown)) {
            checkTree(section, first, last, findings);
        }
        first = last;
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
    EntryColumnCL titleTexts(file, titles, "text");
    EntryColumnCL titleIds(file, titles, "function_id");
    std::vector<int> columns; // The id of its table for each.
    for (int i = 0; i < titles.RecordsM(); ++i) {
        if (titleTexts.FindM(i)->fate != Fate::NullWord) {
            columns.push_back(titleIds.NumberM(i));
        }
    }
    sortRows(columns);
    const auto columnsOf = [&columns](int id) {
        const auto [first, last] = std::equal_range(columns.begin(), columns.end(), id);
        return last - first;
    };
    std::unordered_set<int> dropped;
    for (const EntryDroppedCL& entry : cells.dropped) {
        dropped.insert(entry.entry);
    }
    EntryColumnCL ids(file, cells, "function_id");
    EntryColumnCL rowsOfCells(file, cells, "row");
    EntryColumnCL columnsOfCells(file, cells, "column");
    RisingSetCL<std::pair<int, int>> rows;
    for (int i = 0; i < cells.RecordsM(); ++i) {
        if (!dropped.empty() && dropped.count(i) > 0) {
            continue;
        }
        const int id = ids.NumberM(i);
        const int row = rowsOfCells.NumberM(i);
        const int column = columnsOfCells.NumberM(i);
        if (column == 0) {
            rows.AddM({ id, row });
        } else if (!rows.HasM({ id, row })) {
            findings.AddM(Says::LostCell, rowsOfCells.FindM(i)->begin, { std::to_string(row) });
            continue;
        }
        if (column < 0 || column >= columnsOf(id)) {
            findings.AddM(Says::LostColumn, columnsOfCells.FindM(i)->begin, { std::to_string(column) });
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
    EntryColumnCL ids(file, states, "function_id");
    EntryColumnCL statuses(file, states, "status");
    RisingSetCL<int> known;                    // The buttons that have any,
    RisingSetCL<std::pair<int, int>> statesOf; // and those.
    for (int i = 0; i < states.RecordsM(); ++i) {
        known.AddM(ids.NumberM(i));
        statesOf.AddM({ ids.NumberM(i), statuses.NumberM(i) });
    }
    for (int i = 0; i < buttons.soundRecords; ++i) {
        const int id = file.NumberM(buttons, i, "function_id");
        const int first = file.NumberM(buttons, i, "initial_status");
        if (known.HasM(id) && !statesOf.HasM({ id, first })) {
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
            const SeenValueCL* const first = section.FirstM(record);
            const SeenValueCL* const end = section.EndM(record);
            for (const SeenValueCL* value = first; value < end; ++value) {
                const auto place = static_cast<std::size_t>(value - first);
                checkEntry(file, grammar, shape, *value, place, pictures, findings);
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

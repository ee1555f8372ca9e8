#pragma once
#include "controls/base/value_text.h"
#include <optional>
#include <string>
#include <vector>

// What the value of a control consists of. Kinds with two parts can be asked for each of them.
enum ValuePart : unsigned
{
    NoPart = 0,
    CheckedPart = 1, // Whether it is checked.
    NumberPart = 2,  // An integer.
    RealPart = 4,    // A single-precision number.
    TextPart = 8,    // A text.
    LinesPart = 16,  // The selected lines.
    PathPart = 32    // The selected item of a tree.
};

// The value of a control, or parts of it; none where there is no legal value. What a control is given must
// consist of its own parts only.
struct PANELKIT_API ControlValueCL
{
    std::optional<bool> checked;           // Whether it is.
    std::optional<int> number;             // Of edits, multi-state buttons, rotate buttons.
    std::optional<float> real;             // Of edits; degrees of a rotate button.
    std::optional<ValueTextCL> text;       // Of edits and combo boxes.
    std::optional<std::vector<int>> lines; // Ascending, from 0; empty: none is selected.
    std::optional<ValueTextCL> path;       // Empty: no item is selected.

    unsigned PartsM() const; // ValuePart bits.
    // Whether it has parts, all of them among these. Never, with a text or path that is none.
    bool IsOfM(unsigned parts) const;

    ControlValueCL OnlyM(unsigned parts) const; // Without all other parts.

    // The value as a text (UTF-8) that means the same at any locale and in any later version: 1 or 0 for
    // checked, decimal numbers, the shortest real that reads back as the same, lines with blanks between
    // them (-1 for the one that a combo box has not selected), texts and paths as they are. Of two parts:
    // "real number" and "lines=text".
    std::string SavedM() const;
    // The value of these parts that such a text means. None (nullopt) when it means none.
    static std::optional<ControlValueCL> FromSavedM(const std::string& saved, unsigned parts);

    // The lines to select of so many, ascending, each once. None when there are no lines part, one that does
    // not exist, or several where not many can be selected.
    std::optional<std::vector<int>> LinesOfM(int count, bool many) const;
};

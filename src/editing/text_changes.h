#pragma once
#include "baselib/api.h"
#include "baselib/file_text.h"
#include <string>
#include <vector>

// Some bytes of a text that become others.
struct TextChangeCL
{
    SpanCL span;      // Where they stand in the text before; empty: something is inserted there.
    std::string text; // The new ones, GBK as they are.
};

// Changes of one text: in rising order, none within another.
using TextChangesTP = std::vector<TextChangeCL>;

// Whether they are so, and lie in a text of so many bytes.
PANELKIT_API bool slAreInOrder(const TextChangesTP& changes, std::size_t size);
// The text with those changes, which must be in order.
PANELKIT_API std::string slWithChanges(std::string_view text, const TextChangesTP& changes);
// What undoes them: changes of the text that they make of `text`.
PANELKIT_API TextChangesTP slUndoing(std::string_view text, const TextChangesTP& changes);

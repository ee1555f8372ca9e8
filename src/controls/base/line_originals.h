#pragma once
#include "controls/base/value_text.h"
#include <algorithm>
#include <optional>
#include <vector>

// What lines that show a translation say in the file. It belongs to the window: a copy of the control starts
// without.
class LineOriginalsCL
{
public:
    LineOriginalsCL() = default;
    LineOriginalsCL(const LineOriginalsCL&) { }
    LineOriginalsCL& operator=(const LineOriginalsCL& other)
    {
        if (this != &other) {
            ClearM();
        }
        return *this;
    }

    bool EmptyM() const { return originals_.empty(); } // No line shows a translation.
    // Null: the line shows its own text. Valid until the lines change.
    const ValueTextCL* AtM(int line) const
    {
        const auto at = static_cast<std::size_t>(line);
        return line >= 0 && at < originals_.size() && originals_[at] ? &*originals_[at] : nullptr;
    }
    // The line shows a translation of this from now on.
    void PutM(int line, const ValueTextCL& original)
    {
        const auto at = static_cast<std::size_t>(line);
        originals_.resize(std::max(originals_.size(), at + 1));
        originals_[at] = original;
    }
    // A line came, one went, all did.
    void InsertedM(int line)
    {
        if (static_cast<std::size_t>(line) < originals_.size()) {
            originals_.emplace(originals_.begin() + line);
        }
    }
    void DeletedM(int line)
    {
        if (static_cast<std::size_t>(line) < originals_.size()) {
            originals_.erase(originals_.begin() + line);
        }
    }
    void ClearM() { originals_.clear(); }

private:
    std::vector<std::optional<ValueTextCL>> originals_; // Up to the last that has one.
};

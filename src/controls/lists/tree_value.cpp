// The selection of a tree as a path of texts.
#include "controls/lists/tree.h"
#include <string_view>
#include <unordered_map>

namespace {

// A text as a step of a path: the ordinal counts the children with it from 1. No step with a '/' behind it
// begins another one.
std::string pathStep(const std::string& text, int ordinal)
{
    std::string step;
    for (const char unit : text) {
        step += unit == '\\' || unit == '/' ? "\\" : "";
        step += unit;
    }
    return ordinal > 1 || text.empty() ? step + "\\#" + std::to_string(ordinal) : step;
}

std::string stepOfItem(const DuTreeCL& tree, HTREEITEM item)
{
    const std::string text = tree.ItemTextM(item).Utf8M();
    int ordinal = 1;
    for (HTREEITEM at = tree.GetPrevSiblingItem(item); at != nullptr; at = tree.GetPrevSiblingItem(at)) {
        ordinal += tree.ItemTextM(at).Utf8M() == text ? 1 : 0;
    }
    return pathStep(text, ordinal);
}

// The item with that path, null when there is none.
HTREEITEM itemAt(const DuTreeCL& tree, std::string_view path)
{
    std::unordered_map<std::string, int> ordinals;
    for (HTREEITEM item = tree.GetRootItem(); item != nullptr;) {
        const std::string text = tree.ItemTextM(item).Utf8M();
        const std::string step = pathStep(text, ++ordinals[text]);
        if (path == step) {
            return item;
        }
        if (path.size() > step.size() && path[step.size()] == '/' && path.substr(0, step.size()) == step) {
            path.remove_prefix(step.size() + 1);
            ordinals.clear();
            item = tree.GetChildItem(item);
        } else {
            item = tree.GetNextSiblingItem(item);
        }
    }
    return nullptr;
}

} // namespace

ControlValueCL DuTreeCL::ReadValueM() const
{
    ControlValueCL value;
    if (m_hWnd == nullptr) {
        return value;
    }
    std::string path;
    for (HTREEITEM item = GetSelectedItem(); item != nullptr; item = GetParentItem(item)) {
        path = stepOfItem(*this, item) + (path.empty() ? "" : "/") + path;
    }
    value.path = ValueTextCL::FromUtf8M(path);
    return value;
}

bool DuTreeCL::WriteValueM(const ControlValueCL& value)
{
    if (m_hWnd == nullptr || !value.IsOfM(PathPart)) {
        return false;
    }
    const std::string path = value.path->Utf8M();
    const HTREEITEM item = itemAt(*this, path);
    if (item == nullptr && !path.empty()) {
        return false;
    }
    return SelectItem(item) != FALSE;
}

#pragma once
#include "form/panelkit_c.h"
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace panelkit {

// The values and lines of a form by id; FormTP is Form. docs/values.md tells which kinds have which. nullopt
// and false as with Form.
template <class FormTP> class FormValuesCL
{
public:
    // The integer of an edit, the status of a multi-state button, the counter of a rotate button.
    std::optional<int> Int(int id) const { return get<std::int32_t>(panelkit_get_int, id); }
    // The real of an edit; the angle of a rotate button in degrees.
    std::optional<double> Real(int id) const { return get<double>(panelkit_get_real, id); }
    // Of an edit or a combo box.
    std::optional<std::string> Text(int id) const { return text(panelkit_get_text, id); }
    // Of a check box or radio button.
    std::optional<bool> Checked(int id) const { return flag(panelkit_get_checked, id); }
    // The id of the checked radio button in the group of this one; 0: none is.
    std::optional<int> Group(int id) const { return get<std::int32_t>(panelkit_get_group, id); }
    // The selected line of a list box or combo box, the selected row of a table, from 0; -1: none. nullopt
    // also when several are selected.
    std::optional<int> Index(int id) const { return get<std::int32_t>(panelkit_get_index, id); }
    // All selected lines or rows, ascending.
    std::optional<std::vector<int>> Selection(int id) const
    {
        size_t count = 0;
        if (panelkit_get_selection(handle(), id, nullptr, 0, &count) != PANELKIT_OK) {
            return std::nullopt;
        }
        std::vector<std::int32_t> lines(count + 1);
        if (panelkit_get_selection(handle(), id, lines.data(), lines.size(), &count) != PANELKIT_OK) {
            return std::nullopt;
        }
        return std::vector<int>(lines.begin(), lines.begin() + static_cast<std::ptrdiff_t>(count));
    }
    // The selected item of a tree: the texts from the root down with '/' between them; empty: none.
    std::optional<std::string> Path(int id) const { return text(panelkit_get_path, id); }

    // Sets what Int, Real, Checked or Text give; a field with a real takes an integer too. false also for a
    // value that the control refuses: it keeps the one that it has.
    bool Set(int id, int value)
    {
        const panelkit_status status = panelkit_set_int(handle(), id, value);
        return isOk(status == PANELKIT_ERROR_NO_VALUE ? panelkit_set_real(handle(), id, value) : status);
    }
    bool Set(int id, double value) { return isOk(panelkit_set_real(handle(), id, value)); }
    bool Set(int id, bool checked) { return isOk(panelkit_set_checked(handle(), id, checked ? 1 : 0)); }
    bool Set(int id, const char* value) { return isOk(panelkit_set_text(handle(), id, value)); }
    bool Set(int id, const std::string& value) { return Set(id, value.c_str()); }
    // Selects that line or row and no other; -1: none.
    bool SetIndex(int id, int index) { return isOk(panelkit_set_index(handle(), id, index)); }
    // Selects those lines or rows and no other, in any order.
    bool SetSelection(int id, const std::vector<int>& lines)
    {
        const std::vector<std::int32_t> given(lines.begin(), lines.end());
        return isOk(panelkit_set_selection(handle(), id, given.data(), given.size()));
    }
    // Selects that item of a tree.
    bool SetPath(int id, const std::string& path)
    {
        return isOk(panelkit_set_path(handle(), id, path.c_str()));
    }

    // A value as a text to keep between runs, whatever its kind, and back.
    std::optional<std::string> Save(int id) const { return text(panelkit_save, id); }
    bool Restore(int id, const std::string& saved)
    {
        return isOk(panelkit_restore(handle(), id, saved.c_str()));
    }
    // All of them as one text, but those that are not legal now.
    std::optional<std::string> SaveAll() const { return text(panelkit_save_all); }
    // Sets what it can; false: some value was refused, or its control is gone.
    bool RestoreAll(const std::string& saved)
    {
        return isOk(panelkit_restore_all(handle(), saved.c_str(), nullptr));
    }

    // How many lines a list box or combo box has, or rows a table. They count from 0.
    std::optional<int> LineCount(int id) const { return get<std::int32_t>(panelkit_line_count, id); }
    // The text of one, of a row that of its first column; lines that are pictures have none.
    std::optional<std::string> Line(int id, int line) const { return text(panelkit_get_line, id, line); }
    // Adds one at the end; of a box of pictures the text is the name of a .bmp file. data: the program's
    // number of the line. false also for a text that GBK can't say.
    bool AddLine(int id, const std::string& line, int data = 0)
    {
        return isOk(panelkit_add_line(handle(), id, line.c_str(), data));
    }
    // The same before a line; at: 0 up to their number.
    bool InsertLine(int id, int at, const std::string& line, int data = 0)
    {
        return isOk(panelkit_insert_line(handle(), id, at, line.c_str(), data));
    }
    // Takes one away, or all.
    bool DeleteLine(int id, int line) { return isOk(panelkit_delete_line(handle(), id, line)); }
    bool ClearLines(int id) { return isOk(panelkit_clear_lines(handle(), id)); }

protected:
    // Whether a call has done what it should.
    static bool isOk(panelkit_status status) { return status == PANELKIT_OK; }

    // What a getter of the C interface gives for these arguments; nullopt where it fails.
    template <class ValueTP, class GetterTP, class... ArgumentsTP>
    std::optional<ValueTP> get(GetterTP getter, ArgumentsTP... arguments) const
    {
        ValueTP value {};
        return isOk(getter(handle(), arguments..., &value)) ? std::optional<ValueTP>(value) : std::nullopt;
    }
    // That of a getter of 1 or 0.
    template <class GetterTP, class... ArgumentsTP>
    std::optional<bool> flag(GetterTP getter, ArgumentsTP... arguments) const
    {
        const auto found = get<std::int32_t>(getter, arguments...);
        return found ? std::optional<bool>(*found != 0) : std::nullopt;
    }
    // That of a getter that fills a buffer.
    template <class GetterTP, class... ArgumentsTP>
    std::optional<std::string> text(GetterTP getter, ArgumentsTP... arguments) const
    {
        size_t needed = 0;
        if (!isOk(getter(handle(), arguments..., nullptr, 0, &needed))) {
            return std::nullopt;
        }
        std::string found(needed, '\0');
        if (!isOk(getter(handle(), arguments..., found.data(), found.size(), &needed))) {
            return std::nullopt;
        }
        found.resize(needed - 1);
        return found;
    }

private:
    panelkit_dialog* handle() const { return static_cast<const FormTP*>(this)->Handle(); }
};

} // namespace panelkit

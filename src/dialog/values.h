#pragma once
#include "controls/base/control_value.h"
#include <optional>
#include <string>
#include <utility>
#include <vector>

class DuBasicDialogCL;

// The values of a dialog's controls, and their lines, by function id. Where several controls have the id, the
// first in the order of the kinds is meant.
// What a getter says is what the user sees, also what he has typed and not left yet. It changes nothing,
// shows no message and sends no notification. nullopt: an unknown id, a control that has no such value or no
// window, or a field in which no legal value stands.
// A setter shows the value at once; false, and nothing changes, for an unknown id, a control without such a
// value or window, and a value that the control would refuse. Setters send what the platform sends when a
// program changes such a control (of edits the changed text, of tables and trees the changed selection) and
// none of the messages that this library has for what the user does.
class PANELKIT_API DialogValuesCL
{
public:
    using SavedTP = std::vector<std::pair<int, std::string>>; // Ids with their values as texts.

    // Of that dialog, which must live as long.
    explicit DialogValuesCL(DuBasicDialogCL& dialog)
        : dialog_(dialog)
    {
    }
    DialogValuesCL(const DialogValuesCL&) = delete;
    DialogValuesCL& operator=(const DialogValuesCL&) = delete;

    // Edits with an integer, spin edits too; the status of a multi-state button; the counter of a rotate
    // button. Edits refuse what is out of their range, a multi-state button a status that it doesn't have.
    std::optional<int> IntM(int id) const;
    bool SetIntM(int id, int value);

    // Edits with a real, spin edits too; the angle (degrees) of a rotate button. They refuse what is out of
    // their range. An edit shows and keeps as many decimals as its file says.
    std::optional<float> RealM(int id) const;
    bool SetRealM(int id, double value); // Sets that, as the nearest single-precision number.

    // Edits with a text, multi-line edits; the text of a combo box. Refused are texts that are too long,
    // null, and, but for multi-line edits and the field of a combo box, what GBK can't say. A combo box
    // selects the line that has the text, else it takes it only into an edit field.
    std::optional<ValueTextCL> TextM(int id) const;
    bool SetTextM(int id, const ValueTextCL& text);
    // The same text into a buffer of `size` bytes with its terminator, cut between characters. The size that
    // the whole text needs, terminator included; 0, and nothing is written, when there is none. Null or a
    // size below 1: only the result.
    int TextM(int id, char* gbk, int size) const;
    int Utf8TextM(int id, char* utf8, int size) const;
    int WideTextM(int id, wchar_t* wide, int size) const; // The same, sizes in wchar_t.

    // Check boxes and radio buttons. Checking a radio button unchecks the others of its group.
    std::optional<bool> CheckedM(int id) const;
    bool SetCheckedM(int id, bool checked);
    // The id of the checked button in the group of the radio button with that id, the first of several;
    // nullopt also when none is checked. A group is what the window system takes for one.
    std::optional<int> GroupM(int id) const;

    // The selected line of a list box or combo box, the selected row of a table, from 0; -1 when none is.
    // nullopt also when several are selected, and for a list box without selection.
    std::optional<int> IndexM(int id) const;
    bool SetIndexM(int id, int index); // Selects that line and no other; -1: none.
    // The same for any number of lines: ascending; given in any order.
    std::optional<std::vector<int>> SelectionM(int id) const;
    bool SetSelectionM(int id, const std::vector<int>& lines);

    // The selected item of a tree: the texts from the root down to it with '/' between them (DuTreeCL tells
    // how a text with a '/' is written); empty when none is selected.
    std::optional<ValueTextCL> PathM(int id) const;
    bool SetPathM(int id, const ValueTextCL& path);

    // All parts of a value at once, for who handles controls without knowing their kinds. PartsM: the
    // ValuePart bits that a saved value consists of; 0 for an unknown id or a control that has none.
    unsigned PartsM(int id) const;
    ControlValueCL ValueM(int id) const; // The value, without parts where the others say nullopt.
    // Sets the parts that are given; those that the control has not make it fail.
    bool SetValueM(int id, const ControlValueCL& value);

    // A value as a text (UTF-8) to keep between runs, whatever the kind, and back again. The text means the
    // same at any locale. false: the text is none of such a value, or the control refuses it.
    std::optional<std::string> SavedM(int id) const;
    bool RestoreM(int id, const std::string& saved);
    // The same for all controls: their ids with their values, in the order of the kinds. Left out are those
    // with no value, or none that is legal now.
    SavedTP AllM() const;
    // Sets in the order of the list what it can; the ids of the others.
    std::vector<int> SetAllM(const SavedTP& saved);

    // Lines of list boxes and combo boxes; rows of tables with the text of their first column. They count
    // from 0. For a box of pictures the text is the name of a .bmp file, and its lines have none to tell.
    std::optional<int> LineCountM(int id) const;
    std::optional<ValueTextCL> LineM(int id, int line) const;
    // Adds a line at the end, or before a line from 0 up to their number. data: the application's number of
    // the line. Refused are null and what GBK can't say.
    bool AddLineM(int id, const ValueTextCL& text, int data = 0);
    bool InsertLineM(int id, int line, const ValueTextCL& text, int data = 0);
    // Takes one line away, or all. false also when there is no such line.
    bool DeleteLineM(int id, int line);
    bool ClearLinesM(int id);

    // Any control, the arrows of a spin edit included.
    bool EnableM(int id, bool enable);
    bool ShowM(int id, bool show);
    std::optional<bool> IsEnabledM(int id) const;
    std::optional<bool> IsShownM(int id) const; // Its own state, shown or not as the dialog may be.

    // Gives it the focus as a key of the user's would: the field that has it is left. false also when the
    // field keeps it, or the control is disabled or can't be seen.
    bool FocusM(int id);

    // What a label, group box, check box, radio button or standard button says. Setting refuses null; what
    // GBK can't say shows too, until the dialog is built anew.
    std::optional<ValueTextCL> CaptionM(int id) const;
    bool SetCaptionM(int id, const ValueTextCL& caption);

private:
    template <class FunctionTP> bool withLinesM(int id, FunctionTP&& see) const;

    DuBasicDialogCL& dialog_;
};

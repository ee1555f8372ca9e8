#pragma once
#include "editing/edit_places.h"
#include "editing/seen_sections.h"
#include "editing/text_changes.h"
#include "editing/value_forms.h"
#include <memory>
#include <string>
#include <string_view>
#include <vector>

class EditorStateCL;

// Edits the text of a description file. Each edit changes the bytes that are meant and leaves all others as
// they are: blanks, line ends, comments, what no reader understands. Afterwards the file is read again, and
// an edit with which anything but what was meant would be read is refused. Numbers of records are kept right,
// and so is what refers to records by their places. Null pointers are refused as places that don't exist.
class PANELKIT_API DescriptionEditorCL
{
public:
    // bytes: the whole file, GBK; copied.
    explicit DescriptionEditorCL(std::string_view bytes);
    DescriptionEditorCL(DescriptionEditorCL&&) noexcept;            // The other one may only be destroyed.
    DescriptionEditorCL& operator=(DescriptionEditorCL&&) noexcept; // The same.
    ~DescriptionEditorCL();

    // The file as it is now; valid until the next edit.
    std::string_view BytesM() const;
    const std::shared_ptr<const FileTextCL>& TextM() const; // The same; whoever copies it may keep it.
    const SeenSectionsCL& SectionsM() const;                // What is read from it, and where it stands.
    // What the last edit, undoing or redoing changed, in terms of the bytes before it. Empty before the first
    // one.
    const TextChangesTP& ChangesM() const;

    // Writes another value. text: as it is to stand there, GBK; "" is written as the word that stands for no
    // text. Where other values of the record depend on it (the limits on a data type), those that no longer
    // are of the right type get their defaults.
    EditResult SetM(const ValuePlaceCL& place, std::string_view text);

    // Writes a new record before another one; place.record is the number of records for one behind the last.
    // It is laid out like its neighbours. Values not given have their defaults, an id the lowest one that is
    // free, a window index one more than the highest. A section that isn't there is made.
    EditResult InsertM(const RecordPlaceCL& place, const std::vector<NamedTextCL>& values = {});
    // Takes a record away, and with a control its entries in other sections; also the relations of an id that
    // no other control has.
    EditResult DeleteM(const RecordPlaceCL& place);
    // Puts a record before another one of its section; before: the number of records for behind the last.
    EditResult MoveM(const RecordPlaceCL& place, int before);
    // Writes a record once more behind itself; a control gets the id, and so do copies of its entries and
    // relations. newId means nothing for records that aren't controls.
    EditResult DuplicateM(const RecordPlaceCL& place, int newId);
    // Gives a control another id, also in its entries, and in the relations if no other control has the old
    // id.
    EditResult RenameM(const RecordPlaceCL& place, int newId);
    // Writes an empty section, with a comment line that names the values of a record, behind those before it.
    EditResult AddSectionM(const char* header);
    // Changes bytes, whatever they are; changes: in order. asRead: only if all values are then read as
    // before.
    EditResult ReplaceM(const TextChangesTP& changes, bool asRead);

    // Take back the last edit, and do again what was taken back. False when there is none.
    bool UndoM();
    bool RedoM();

    // The lowest id from `from` on that no control has.
    int FreeIdM(int from) const;

private:
    std::unique_ptr<EditorStateCL> state_;
};

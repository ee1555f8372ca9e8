// Edits broken description files. Run by scripts/fuzz with the corpus in fuzz/corpus/editing. The last bytes
// of an input are the edits, the rest is the file.
#include "editing/description_editor.h"
#include <algorithm>
#include <cstdint>
#include <cstdlib>

namespace {

constexpr std::size_t EditSize = 6; // Bytes of an edit.
constexpr std::size_t MostEdits = 8;

void expect(bool holds)
{
    if (!holds) {
        std::abort();
    }
}

EditResult edit(DescriptionEditorCL& editor, const std::uint8_t* what)
{
    static const char* const Texts[]
        = { "0", "17", "-1", "NULL", "a b", "", "2.5", "[x]", "\xB1\xEA", "9999999999" };
    const std::size_t grammar = what[1] % slGrammars().size();
    const RecordPlaceCL place { slGrammars()[grammar].header, what[2] % 8 - 1 };
    const std::string text = Texts[what[4] % std::size(Texts)];
    const std::vector<ValueFormCL> forms = slFormsOf(slGrammars()[grammar], 0, {});
    const ValueFormCL* const form = forms.empty() ? nullptr : &forms[what[3] % forms.size()];
    switch (what[0] % 8) {
    case 0:
        return form != nullptr ? editor.InsertM(place, { { form->field, form->part, text } })
                               : editor.InsertM(place);
    case 1:
        return editor.DeleteM(place);
    case 2:
        return editor.MoveM(place, what[3] % 8 - 1);
    case 3:
        return editor.DuplicateM(place, what[3] * 256 + what[4]);
    case 4:
        return editor.RenameM(place, what[3] * 256 + what[4]);
    case 5:
        return editor.AddSectionM(place.section);
    case 6: {
        const std::size_t at = std::min<std::size_t>(what[2] * 16U, editor.BytesM().size());
        const std::size_t end = std::min<std::size_t>(at + what[3] % 8, editor.BytesM().size());
        return editor.ReplaceM({ { { at, end }, text } }, what[5] % 2 == 0);
    }
    default:
        return form != nullptr ? editor.SetM({ place, form->field, form->part }, text)
                               : EditResult::NoSuchPlace;
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::size_t edits = std::min(MostEdits, size / (2 * EditSize));
    const std::string file(reinterpret_cast<const char*>(data), size - edits * EditSize);
    DescriptionEditorCL editor(file);
    for (std::size_t i = 0; i < edits; ++i) {
        const std::string before(editor.BytesM());
        const EditResult result = edit(editor, data + file.size() + i * EditSize);
        const bool isChanged = result == EditResult::Done && !editor.ChangesM().empty();
        expect(isChanged || editor.BytesM() == before);
        expect(!isChanged || slWithChanges(before, editor.ChangesM()) == editor.BytesM());
    }
    const std::string last(editor.BytesM());
    while (editor.UndoM()) { }
    expect(editor.BytesM() == file);
    while (editor.RedoM()) { }
    expect(editor.BytesM() == last);
    return 0;
}

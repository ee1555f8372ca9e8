#pragma once
#include "records/rows.h"
#include <string_view>
#include <vector>

class VrIOCL;

// How a section begins.
enum class HeadKind
{
    Line,     // The version: one line that nobody reads.
    Comments, // The number of comment lines, and those; then one record.
    Counted,  // The number of records before that.
    Signed    // The same numbers in one line; a negative one says that records have a further value.
};

// Values that records have only where the numbers of a signed head say so.
enum HeadFlag : int
{
    HasShowCondition = 1, // A negative number of comment lines.
    HasDescription = 2    // A negative number of records.
};

// A kind of section: what its records hold, and what it belongs to.
struct GrammarCL
{
    const char* header; // GBK.
    const char* owner;  // The header of the main section of a secondary one; else null.
    HeadKind head;      // How it begins.
    // Shows a visitor the values of a record that has its defaults. flags: HeadFlag, of a signed head.
    void (*visit)(FieldVisitorCL& visitor, int flags);
    RowFieldsTP row {
        nullptr
    }; // Of a secondary section: the fields of its entries behind the id; else null.
    const char* idField { nullptr }; // The field with the id of a control: its own, or whose entry it is.
    // Whether its records are about controls of any section.
    bool NamesControlsM() const
    {
        return owner == nullptr && idField != nullptr && std::string_view(idField) == "control";
    }
};

// All sections that a file may have, in the order of reading; the first two must be there.
PANELKIT_API const std::vector<GrammarCL>& slGrammars();
// The place of a header (GBK) there; -1 for null and for an unknown one.
PANELKIT_API int slGrammarOf(const char* header);
// The places of the version and of the dialog's own section.
constexpr int VersionGrammar = 0;
constexpr int DialogGrammar = 1;

// Reads the section of a grammar from an open file, for the file's observer alone. For a secondary section it
// doesn't matter what its owner holds.
PANELKIT_API void slReadAlone(VrIOCL& io, int grammar);

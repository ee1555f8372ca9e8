#pragma once
#include "editing/edit_plan.h"

// New records and sections as text.

// What the values of a record are to be read as.
MeantRecordTP meantOf(const std::vector<ValueFormCL>& forms);
// What writes other values into a record that has the same fields. `set`: the number of the one that is
// wanted; others are written only where they are of another type now. `now` gets the texts of those that
// stay.
TextChangesTP valuesAnew(const EditPlanCL& plan, std::string_view bytes, int grammar, int record, int set,
    const std::vector<ValueFormCL>& before, std::vector<ValueFormCL>& now);
// What writes all of a record's values.
TextChangesTP recordAnew(const EditPlanCL& plan, std::string_view bytes, int grammar, int record,
    const std::vector<ValueFormCL>& forms);
// A record laid out like another one that has the same values in the same order; nothing when it hasn't.
std::optional<RecordTextCL> laidOutLike(const EditPlanCL& plan, std::string_view bytes, int grammar,
    int record, const std::vector<ValueFormCL>& forms);
// A record laid out as usual: a text has a line of its own, in entries the rest of the line. Ended by
// lineEnd.
RecordTextCL laidOut(const std::vector<ValueFormCL>& forms, bool isEntry, const std::string& lineEnd);
// A section without records, or with one: its lines, the comment naming the values.
std::string sectionText(
    const GrammarCL& grammar, const std::string& lineEnd, const RecordTextCL* record = nullptr);

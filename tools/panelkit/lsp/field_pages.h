#pragma once
#include <string>

// What the pages for authors say of a field, in the tables "field, type, default, meaning".
struct DocumentedFieldCL
{
    std::string type;
    std::string meaning;
};

// header: the section's, UTF-8. What only the table of all records' fields has counts for every section. Null
// when no page has the field.
const DocumentedFieldCL* documentedField(const std::string& header, const std::string& field);

#pragma once
#include "records/fields.h"
#include <nlohmann/json.hpp>
#include <string>

using JsonTP = nlohmann::ordered_json;

void printJson(const JsonTP& document);
// What a subcommand says of each file, printed at the end: of one file its document, of several a list of
// them, each with its "file" in front.
class DocumentsCL
{
public:
    explicit DocumentsCL(std::size_t files)
        : isList_(files > 1)
    {
    }
    void AddM(const std::string& file, JsonTP&& document);
    void PrintM() const; // Nothing without a document.

private:
    bool isList_;
    JsonTP documents_ = JsonTP::array();
};
std::string hexWord(unsigned long word); // "0x" and eight upper-case digits.

// Writes each field that it sees as a key of an object; a row of one field is that field's value alone.
class FieldPrinterCL : public FieldVisitorCL
{
public:
    explicit FieldPrinterCL(JsonTP& object)
        : object_(object)
    {
    }
    void IntM(const char* name, int& value) override;
    void RealM(const char* name, float& value) override;
    void IntsM(const char* name, int* values, int count) override;
    void RealsM(const char* name, float* values, int count) override;
    void ColourM(const char* name, ColourTP& colour, int* flag) override;
    void TextM(const char* name, CharArr& text, const TextFormCL& form) override;
    void ListM(const char* name, int rows,
        const std::function<void(FieldVisitorCL& visitor, int row)>& see) override;

private:
    JsonTP& object_;
};

#pragma once
#include "records/fields.h"
#include <nlohmann/json.hpp>
#include <string>

using JsonTP = nlohmann::ordered_json;

void printJson(const JsonTP& document);
std::string hexWord(unsigned long word); // "0x" and eight upper-case digits.

// Writes each field that it sees as a key of an object.
class FieldPrinterCL : public FieldVisitorCL
{
public:
    explicit FieldPrinterCL(JsonTP& object)
        : object_(object)
    {
    }
    void IntM(const char* name, int& value) override;
    void RealM(const char* name, float& value) override;
    void IntPairM(const char* name, int (&values)[2]) override;
    void RealPairM(const char* name, float (&values)[2]) override;
    void ColourM(const char* name, ColourTP& colour, int* flag) override;
    void TextM(const char* name, CharArr& text, NullWord nullWord) override;
    void ListM(const char* name, int rows,
        const std::function<void(FieldVisitorCL& visitor, int row)>& see) override;

private:
    void putM(const char* name, JsonTP value);

    JsonTP& object_;
};

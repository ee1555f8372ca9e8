#include "json.h"
#include "baselib/char_arr.h"
#include "baselib/gbk.h"
#include <charconv>
#include <cstdio>

namespace {

// The double whose shortest text is the shortest text of the single-precision value.
double shortest(float value)
{
    char text[64];
    const auto end = std::to_chars(text, text + sizeof text, value);
    double result = 0;
    std::from_chars(text, end.ptr, result);
    return result;
}

} // namespace

void printJson(const JsonTP& document)
{
    const std::string text = document.dump(2) + "\n";
    std::fwrite(text.data(), 1, text.size(), stdout);
}

std::string hexWord(unsigned long word)
{
    char text[16];
    std::snprintf(text, sizeof text, "0x%08lX", word & 0xFFFFFFFF);
    return text;
}

void FieldPrinterCL::putM(const char* name, JsonTP value)
{
    if (*name == '\0') {
        object_ = std::move(value);
    } else {
        object_[name] = std::move(value);
    }
}

void FieldPrinterCL::IntM(const char* name, int& value)
{
    putM(name, value);
}

void FieldPrinterCL::RealM(const char* name, float& value)
{
    putM(name, shortest(value));
}

void FieldPrinterCL::IntPairM(const char* name, int (&values)[2])
{
    putM(name, JsonTP::array({ values[0], values[1] }));
}

void FieldPrinterCL::RealPairM(const char* name, float (&values)[2])
{
    putM(name, JsonTP::array({ shortest(values[0]), shortest(values[1]) }));
}

void FieldPrinterCL::ColourM(const char* name, ColourTP& colour, int* flag)
{
    if (flag != nullptr && *flag == 0) {
        putM(name, nullptr);
    } else {
        putM(name, JsonTP::array({ colour & 0xFF, colour >> 8 & 0xFF, colour >> 16 & 0xFF }));
    }
}

void FieldPrinterCL::TextM(const char* name, CharArr& text, NullWord)
{
    putM(name, slGbkToUtf8(text.TextM()));
}

void FieldPrinterCL::ListM(
    const char* name, int rows, const std::function<void(FieldVisitorCL& visitor, int row)>& see)
{
    JsonTP list = JsonTP::array();
    for (int row = 0; row < rows; ++row) {
        JsonTP item;
        FieldPrinterCL printer(item);
        see(printer, row);
        list.push_back(std::move(item));
    }
    putM(name, std::move(list));
}

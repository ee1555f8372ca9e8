#include "json.h"
#include "baselib/char_arr.h"
#include "baselib/gbk.h"
#include <charconv>
#include <cmath>
#include <cstdio>

namespace {

// The shortest text of the single-precision value; plainly where that has no long rows of zeros.
std::string realText(float value)
{
    constexpr float LeastPlain = 1e-4F;
    constexpr float MostPlain = 1e15F;
    const float size = std::fabs(value);
    const bool isPlain = size == 0 || (size >= LeastPlain && size < MostPlain);
    char text[64];
    const auto end = std::to_chars(
        text, text + sizeof text, value, isPlain ? std::chars_format::fixed : std::chars_format::scientific);
    const std::string result(text, end.ptr);
    return result.find_first_of(".e") == std::string::npos ? result + ".0" : result;
}

// Prints as JsonTP's own dump(2) does, but for the reals, of which that prints more digits than some need,
// and without recursion: a tree may be as deep as its file has lines.
class PrinterCL
{
public:
    void PrintM(const JsonTP& document)
    {
        putM(document);
        while (!open_.empty()) {
            goOnM();
        }
        text_ += '\n';
        flushM();
    }

private:
    struct LevelCL
    {
        const JsonTP* value;
        JsonTP::const_iterator next;
    };

    void putM(const JsonTP& value)
    {
        if (value.is_number_float()) {
            text_ += realText(value.get<float>());
        } else if (!value.is_structured() || value.empty()) {
            text_ += value.dump();
        } else {
            text_ += value.is_object() ? '{' : '[';
            open_.push_back({ &value, value.begin() });
        }
    }
    void goOnM()
    {
        LevelCL& level = open_.back();
        const bool isObject = level.value->is_object();
        if (level.next == level.value->end()) {
            open_.pop_back();
            newLineM();
            text_ += isObject ? '}' : ']';
            return;
        }
        text_ += level.next == level.value->begin() ? "" : ",";
        newLineM();
        if (isObject) {
            text_ += JsonTP(level.next.key()).dump() + ": ";
        }
        putM(*level.next++);
    }
    void newLineM()
    {
        text_ += '\n';
        text_.append(2 * open_.size(), ' ');
        constexpr size_t Much = 65536;
        if (text_.size() > Much) {
            flushM();
        }
    }
    void flushM()
    {
        std::fwrite(text_.data(), 1, text_.size(), stdout);
        text_.clear();
    }

    std::vector<LevelCL> open_; // From the document down to what is being printed.
    std::string text_;          // Not yet printed.
};

} // namespace

void printJson(const JsonTP& document)
{
    PrinterCL().PrintM(document);
}

void DocumentsCL::AddM(const std::string& file, JsonTP&& document)
{
    JsonTP named = JsonTP::object();
    if (isList_) {
        named["file"] = file;
    }
    named.update(std::move(document));
    documents_.push_back(std::move(named));
}

void DocumentsCL::PrintM() const
{
    if (!documents_.empty()) {
        printJson(isList_ ? documents_ : documents_[0]);
    }
}

std::string hexWord(unsigned long word)
{
    char text[16];
    std::snprintf(text, sizeof text, "0x%08lX", word & 0xFFFFFFFF);
    return text;
}

void FieldPrinterCL::IntM(const char* name, int& value)
{
    object_[name] = value;
}

void FieldPrinterCL::RealM(const char* name, float& value)
{
    object_[name] = value;
}

void FieldPrinterCL::IntsM(const char* name, int* values, int count)
{
    object_[name] = std::vector<int>(values, values + count);
}

void FieldPrinterCL::RealsM(const char* name, float* values, int count)
{
    object_[name] = std::vector<float>(values, values + count);
}

void FieldPrinterCL::ColourM(const char* name, ColourTP& colour, int* flag)
{
    if (flag != nullptr && *flag == 0) {
        object_[name] = nullptr;
    } else {
        object_[name] = JsonTP::array({ colour & 0xFF, colour >> 8 & 0xFF, colour >> 16 & 0xFF });
    }
}

void FieldPrinterCL::TextM(const char* name, CharArr& text, const TextFormCL&)
{
    object_[name] = slGbkToUtf8(text.TextM());
}

void FieldPrinterCL::ListM(
    const char* name, int rows, const std::function<void(FieldVisitorCL& visitor, int row)>& see)
{
    JsonTP list = JsonTP::array();
    for (int row = 0; row < rows; ++row) {
        JsonTP item;
        FieldPrinterCL printer(item);
        see(printer, row);
        list.push_back(std::move(item.size() == 1 ? *item.begin() : item));
    }
    object_[name] = std::move(list);
}

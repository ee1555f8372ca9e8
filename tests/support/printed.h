#pragma once
#include "baselib/char_arr.h"
#include "baselib/gbk.h"
#include "baselib/io.h"
#include "records/fields.h"
#include "support/description.h"
#include <string>

// The fields of a record as "name=value name=value".
class FieldTextCL : public FieldVisitorCL
{
public:
    void IntM(const char* name, int& value) override { addM(name, std::to_string(value)); }
    void RealM(const char* name, float& value) override { addM(name, real(value)); }
    void IntsM(const char* name, int* values, int count) override
    {
        std::string all;
        for (int i = 0; i < count; ++i) {
            all += (i > 0 ? "," : "") + std::to_string(values[i]);
        }
        addM(name, all);
    }
    void RealsM(const char* name, float* values, int count) override
    {
        std::string all;
        for (int i = 0; i < count; ++i) {
            all += (i > 0 ? "," : "") + real(values[i]);
        }
        addM(name, all);
    }
    void ColourM(const char* name, ColourTP& colour, int* flag) override
    {
        addM(name,
            flag != nullptr && *flag == 0 ? "off"
                                          : std::to_string(colour & 0xFF) + ","
                    + std::to_string(colour >> 8 & 0xFF) + "," + std::to_string(colour >> 16));
    }
    void TextM(const char* name, CharArr& value, const TextFormCL&) override
    {
        addM(name, slGbkToUtf8(value.TextM()));
    }
    void ListM(
        const char* name, int rows, const std::function<void(FieldVisitorCL& visitor, int row)>& see) override
    {
        std::string all;
        for (int row = 0; row < rows; ++row) {
            FieldTextCL one;
            see(one, row);
            // A row of one field is told without its name.
            all += "[" + (one.fields_ == 1 ? one.text.substr(one.text.find('=') + 1) : one.text) + "]";
        }
        addM(name, all);
    }

    std::string text;

private:
    static std::string real(float value)
    {
        char digits[32];
        std::snprintf(digits, sizeof digits, "%g", static_cast<double>(value));
        return digits;
    }
    void addM(const std::string& name, const std::string& value)
    {
        text += (text.empty() ? "" : " ") + name + "=" + value;
        ++fields_;
    }

    int fields_ { 0 };
};

template <class RecordTP> std::string printedFields(RecordTP& record)
{
    FieldTextCL fields;
    record.EachFieldM(fields);
    return fields.text;
}

// The own fields of a record read from a text (UTF-8), by way of a record full of other values: nothing of
// what it held before may show.
template <class RecordTP> std::string printed(const std::string& utf8)
{
    const DescriptionFileCL file(utf8);
    VrIOCL io;
    io.OpenM(file.path(), "r");
    RecordTP record(AliveTag);
    record.FmReadInterfaceM(&io);
    VrIOCL again;
    again.OpenM(file.path(), "r");
    record.FmReadInterfaceM(&again);
    return printedFields(record);
}

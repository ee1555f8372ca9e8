#pragma once
#include "baselib/io.h"
#include "controls/buttons/new_rotate_btn_record.h"
#include "dialog/dialog_header.h"
#include "dialog/kinds.h"
#include "dialog/relation.h"
#include "editing/value_forms.h"
#include "records/field_reader.h"
#include "support/printed.h"
#include <cstdio>
#include <memory>
#include <string>
#include <vector>

// A value as it was read. A text of "*" stands for any.
struct ModelValueCL
{
    std::string field;
    int part;
    std::string text;
};
using ModelRecordTP = std::vector<ModelValueCL>;
using ModelTP = std::vector<std::vector<ModelRecordTP>>; // By grammar and record.

inline std::string realText(float value)
{
    char digits[32];
    std::snprintf(digits, sizeof digits, "%g", static_cast<double>(value));
    return digits;
}

// Reads a record and keeps what its values became. Those of a colour that may not apply begin with F, or are
// off.
class ModelReaderCL : public FieldVisitorCL
{
public:
    ModelReaderCL(FieldReaderCL& reader, ModelRecordTP& record)
        : reader_(reader)
        , record_(record)
    {
    }
    void IntM(const char* name, int& value) override
    {
        reader_.IntM(name, value);
        record_.push_back({ name, 0, std::to_string(value) });
    }
    void RealM(const char* name, float& value) override
    {
        reader_.RealM(name, value);
        record_.push_back({ name, 0, realText(value) });
    }
    void IntsM(const char* name, int* values, int count) override
    {
        reader_.IntsM(name, values, count);
        for (int part = 0; part < count; ++part) {
            record_.push_back({ name, part, std::to_string(values[part]) });
        }
    }
    void RealsM(const char* name, float* values, int count) override
    {
        reader_.RealsM(name, values, count);
        for (int part = 0; part < count; ++part) {
            record_.push_back({ name, part, realText(values[part]) });
        }
    }
    void ColourM(const char* name, ColourTP& colour, int* flag) override
    {
        reader_.ColourM(name, colour, flag);
        for (int part = 0; part < 3; ++part) {
            const std::string text = std::to_string(colour >> (8 * part) & 0xFF);
            record_.push_back({ name, part, flag == nullptr ? text : *flag == 0 ? "off" : "F" + text });
        }
    }
    void TextM(const char* name, CharArr& text, const TextFormCL& form) override
    {
        reader_.TextM(name, text, form);
        record_.push_back({ name, 0, text.TextM() });
    }
    void StopReadingM() override { reader_.StopReadingM(); }

private:
    FieldReaderCL& reader_;
    ModelRecordTP& record_;
};

// What the library's verbs read from each section of a file in which all sections read whole.
inline ModelTP modelOf(std::string_view bytes)
{
    ModelTP model(slGrammars().size());
    VrIOCL io;
    io.OpenM(std::make_shared<const FileTextCL>(bytes));
    for (std::size_t i = DialogGrammar; i < model.size(); ++i) {
        const GrammarCL& grammar = slGrammars()[i];
        int count = 1;
        int lines = 0;
        if (io.SearchStrM(grammar.header) == 0) {
            continue;
        }
        if (grammar.head == HeadKind::Comments) {
            io.InputDM(&lines);
            io.SkipSomeLinesM(lines + 1);
        } else if (grammar.head == HeadKind::Counted) {
            io.InputDM(&count);
            if (count == 0) {
                continue;
            }
            io.InputDM(&lines);
            io.SkipSomeLinesM(lines + 1);
        } else {
            io.InputDM(&count, &lines);
            io.SkipSomeLinesM(std::abs(lines));
        }
        const int flags = grammar.head != HeadKind::Signed || grammar.owner != nullptr
            ? 0
            : (lines < 0 ? HasShowCondition : 0) | (count < 0 ? HasDescription : 0);
        for (int record = 0; record < std::abs(count); ++record) {
            FieldReaderCL reader(&io);
            ModelReaderCL visitor(reader, model[i].emplace_back());
            grammar.visit(visitor, flags);
        }
    }
    return model;
}

// A control as a dialog is given it, with its entries.
struct ShownControlCL
{
    std::string section;
    int id;
    std::string text;
};
struct ShownDialogCL
{
    std::vector<ShownControlCL> controls;
    std::vector<std::string> relations;
};

template <class RecordsTP>
void addShown(RecordsTP& records, const char* section, std::vector<ShownControlCL>& to)
{
    for (int i = records.GetFirstIdxM(); i >= 0; i = records.GetNextIdxM(i)) {
        auto& record = records.ElementAtM(i);
        FieldTextCL text;
        record.EachCommonFieldM(text, 1);
        record.EachFieldM(text);
        to.push_back({ section, record.GetFuncIDM(), text.text });
    }
}

inline ShownDialogCL shownOf(VrIOCL& io)
{
    ShownDialogCL shown;
    slEachKindAsBuilt([&](auto row) {
        typename decltype(row)::Records records;
        int count = 0;
        slReadSection(io, records, &count);
        addShown(records, decltype(records)::Header, shown.controls);
    });
    slReadRelations(io, [&](RelationCL& relation) {
        FieldTextCL text;
        relation.EachFieldM(text);
        shown.relations.push_back(text.text);
    });
    DVrNewRotateBtnArr buttons;
    buttons.FmReadInterfaceM(&io);
    addShown(buttons, NewRotateBtnHeader, shown.controls);
    return shown;
}

inline ShownDialogCL shownOf(std::string_view bytes)
{
    VrIOCL io;
    io.OpenM(std::make_shared<const FileTextCL>(bytes));
    return shownOf(io);
}

#pragma once
#include "file_reading.h"
#include <algorithm>

enum class Verb
{
    Int,
    Real,
    Colour,
    Text,
    Id,
    Index,
    Count,
    Flag,
    Choice,
    Length,
    Caption,
    Name,
    Number,
    Limits
};

// One field of a record: its verb, its value in the record, and where the file has it.
struct FieldCL
{
    const char* name { nullptr };
    Verb verb { Verb::Int };
    const SeenValueCL* seen { nullptr }; // Its first part.
    int parts { 1 };
    const int* ints { nullptr };
    CharArr* text { nullptr };
    const simpleValD* value { nullptr };
    const float* reals { nullptr };
    int type { IntegerType }; // Of a number or limits.
    int size { 0 };           // Of a text, with its terminator.
    const ChoiceCL* firstChoice { nullptr };
    const ChoiceCL* lastChoice { nullptr };
    const ColourTP* colour { nullptr };
    const int* flag { nullptr }; // Of a colour: whether it applies; null: always.

    bool IsOnM() const { return flag == nullptr || *flag != 0; }
    float RealM(int part = 0) const
    {
        return reals != nullptr ? reals[part]
            : value != nullptr
            ? (type == RealType ? value->reals[part] : static_cast<float>(value->numbers[part]))
            : static_cast<float>(ints[part]);
    }
};

// The fields of one record beside the values that the reader met; valid while the record is.
class RecordViewCL : public FieldVisitorCL
{
public:
    void BeginM(const SeenSectionCL& section, int record)
    {
        count_ = 0;
        judged_.clear();
        first_ = section.FirstM(record);
        next_ = first_;
        end_ = section.EndM(record);
    }
    // Whether what the view shows is also true of another record: one in the same place, with the same
    // fields, whose values lie where those of the one before did.
    bool ShowsM(const SeenSectionCL& section, int record) const
    {
        return first_ != nullptr && section.FirstM(record) == first_ && section.EndM(record) == end_;
    }
    // The fields whose verbs tell what their values may be.
    const std::vector<std::size_t>& JudgedM() const { return judged_; }
    const FieldCL& FieldM(std::size_t place) const { return fields_[place]; }
    struct FieldsCL
    {
        const FieldCL* first;
        const FieldCL* last;
        const FieldCL* begin() const { return first; }
        const FieldCL* end() const { return last; }
    };
    FieldsCL FieldsM() const { return { fields_.data(), fields_.data() + count_ }; }
    // Null when the record has none. In little time: records of one kind mostly have the same fields, so that
    // a name is looked for once.
    const FieldCL* FindM(const char* name) const
    {
        const FoundCL& found = found_[placeM(name)];
        if (found.name == name && found.shape == shape_ && found.count == count_) {
            return found.place < count_ ? &fields_[found.place] : nullptr;
        }
        return searchM(name);
    }
    int IntM(const char* name, int part = 0) const // 0 without one.
    {
        const FieldCL* const field = FindM(name);
        return field != nullptr && field->ints != nullptr ? field->ints[part] : 0;
    }

    void IntM(const char* name, int& value) override { addM(name, Verb::Int, 1).ints = &value; }
    void RealM(const char* name, float& value) override { addM(name, Verb::Real, 1).reals = &value; }
    void IntsM(const char* name, int* values, int count) override
    {
        addM(name, Verb::Int, count).ints = values;
    }
    void RealsM(const char* name, float* values, int count) override
    {
        addM(name, Verb::Real, count).reals = values;
    }
    void ColourM(const char* name, ColourTP& colour, int* flag) override
    {
        FieldCL& field = addM(name, Verb::Colour, 3);
        field.colour = &colour;
        field.flag = flag;
    }
    void TextM(const char* name, CharArr& text, const TextFormCL& form) override
    {
        textM(name, Verb::Text, text, form);
    }
    void IdM(const char* name, int& value) override { addM(name, Verb::Id, 1).ints = &value; }
    void IndexM(const char* name, int& value) override { addM(name, Verb::Index, 1).ints = &value; }
    void CountM(const char* name, int& value) override { addM(name, Verb::Count, 1).ints = &value; }
    void FlagM(const char* name, int& value) override { addM(name, Verb::Flag, 1).ints = &value; }
    void ChoiceM(const char* name, int& value, const ChoicesCL& choices) override
    {
        FieldCL& field = addM(name, Verb::Choice, 1);
        field.ints = &value;
        field.firstChoice = choices.begin();
        field.lastChoice = choices.end();
    }
    void LengthM(const char* name, int& value, Along) override { addM(name, Verb::Length, 1).ints = &value; }
    void LengthPairM(const char* name, int (&xy)[2]) override { addM(name, Verb::Length, 2).ints = xy; }
    void CaptionM(const char* name, CharArr& text, const TextFormCL& form) override
    {
        textM(name, Verb::Caption, text, form);
    }
    void NameM(const char* name, CharArr& file, const TextFormCL& form) override
    {
        textM(name, Verb::Name, file, form);
    }
    void NumberM(const char* name, int type, simpleValD& value) override
    {
        FieldCL& field = addM(name, Verb::Number, 1);
        field.value = &value;
        field.type = type;
        field.size = TextSize;
    }
    void LimitsM(const char* name, int type, simpleValD& range) override
    {
        FieldCL& field = addM(name, Verb::Limits, 2);
        field.value = &range;
        field.type = type == RealType ? RealType : IntegerType;
    }

private:
    // Where a name was found among the fields of a record: at `count`, nowhere.
    struct FoundCL
    {
        const char* name { nullptr };
        unsigned shape { 0 };
        std::size_t count { 0 };
        std::size_t place { 0 };
    };

    static std::size_t placeM(const char* name)
    {
        const auto bits = reinterpret_cast<std::uintptr_t>(name);
        return (bits ^ bits >> 8) % Places;
    }
    const FieldCL* searchM(const char* name) const;
    FieldCL& addM(const char* name, Verb verb, int parts)
    {
        if (count_ == fields_.size()) {
            fields_.emplace_back();
        }
        if (verb == Verb::Choice || verb == Verb::Flag || verb == Verb::Colour || verb == Verb::Name) {
            judged_.push_back(count_);
        }
        FieldCL& field = fields_[count_++];
        if (field.name != name) {
            ++shape_;
        }
        if (field.name != name || field.verb != verb) {
            field = FieldCL(); // Else the same members are set again.
            field.name = name;
            field.verb = verb;
        }
        field.seen = next_ < end_ ? next_ : nullptr;
        field.parts = parts;
        next_ = std::min(next_ + parts, end_);
        return field;
    }
    void textM(const char* name, Verb verb, CharArr& text, const TextFormCL& form)
    {
        FieldCL& field = addM(name, verb, 1);
        field.text = &text;
        field.size = form.size;
    }

    static constexpr std::size_t Places = 1024; // So many that hardly two names of a kind share one.

    std::vector<std::size_t> judged_;
    std::vector<FieldCL> fields_; // Those of the record, and behind them what others left.
    std::size_t count_ { 0 };
    unsigned shape_ { 0 }; // Another one whenever a name stands where another one stood.
    mutable FoundCL found_[Places];
    const SeenValueCL* first_ { nullptr };
    const SeenValueCL* next_ { nullptr };
    const SeenValueCL* end_ { nullptr };
};

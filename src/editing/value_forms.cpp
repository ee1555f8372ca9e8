#include "editing/value_forms.h"
#include "baselib/char_arr.h"
#include "baselib/gbk.h"
#include "baselib/number_text.h"
#include "baselib/real_text.h"
#include <algorithm>

namespace {

// Finds out which values a record has, giving it those that are wanted as it goes: later ones depend on them.
class FormFinderCL : public FieldVisitorCL
{
public:
    explicit FormFinderCL(const std::vector<NamedTextCL>& given)
        : given_(given)
        , isUsed_(given.size())
    {
    }
    bool IsSoundM() const
    {
        for (std::size_t i = 0; i < given_.size(); ++i) {
            if (given_[i].isNeeded && !isUsed_[i]) {
                return false;
            }
        }
        return !isBad_;
    }
    std::vector<ValueFormCL> TakeM() { return std::move(forms_); }

    void IntM(const char* name, int& value) override { intM(name, 0, value); }
    void RealM(const char* name, float& value) override { realM(name, 0, value); }
    void IntsM(const char* name, int* values, int count) override
    {
        for (int part = 0; part < count; ++part) {
            intM(name, part, values[part]);
        }
    }
    void RealsM(const char* name, float* values, int count) override
    {
        for (int part = 0; part < count; ++part) {
            realM(name, part, values[part]);
        }
    }
    void ColourM(const char* name, ColourTP& colour, int* flag) override
    {
        const bool isOff = flag != nullptr && *flag == 0;
        for (int part = 0; part < 3; ++part) {
            int component = isOff && part == 0 ? -1 : static_cast<int>(colour >> (8 * part) & 0xFF);
            intM(name, part, component);
        }
    }
    void TextM(const char* name, CharArr& text, const TextFormCL& form) override
    {
        ValueFormCL& added = addM({ name, 0, TextType, false, false, form, text.TextM() });
        const bool hasNullWord = form.nullWord == NullWord::Empty || form.nullWord == NullWord::UpperEmpty;
        if (added.text.empty()) {
            added.text
                = hasNullWord ? "NULL" : std::string(name).substr(0, static_cast<std::size_t>(form.size) - 1);
        }
    }
    void IdM(const char* name, int& value) override
    {
        intM(name, 0, value);
        forms_.back().isId = true;
    }
    void IndexM(const char* name, int& value) override
    {
        intM(name, 0, value);
        forms_.back().isIndex = true;
    }
    void StopReadingM() override { isBad_ = true; }

private:
    void intM(const char* name, int part, int& value)
    {
        const std::string& text
            = addM({ name, part, IntegerType, false, false, { NullWord::Kept, 0 }, std::to_string(value) })
                  .text;
        slReadInt(text.data(), text.data() + text.size(), &value);
    }
    void realM(const char* name, int part, float& value)
    {
        char number[64];
        char* const end = slWriteShortest(number, value);
        const std::string& text
            = addM({ name, part, RealType, false, false, { NullWord::Kept, 0 }, std::string(number, end) })
                  .text;
        slReadReal(text.data(), text.data() + text.size(), &value);
    }
    // As it is wanted, if it is.
    ValueFormCL& addM(ValueFormCL form)
    {
        for (std::size_t i = 0; i < given_.size(); ++i) {
            const NamedTextCL& one = given_[i];
            if (one.part != form.part || one.field != form.field) {
                continue;
            }
            const bool standsForNone = one.text.empty() && form.type == TextType;
            isUsed_[i] = true;
            if (standsForNone || slCanStandFor(form, one.text)) {
                form.text = one.text;
            } else {
                isBad_ = isBad_ || one.isNeeded;
            }
        }
        return forms_.emplace_back(std::move(form));
    }

    const std::vector<NamedTextCL>& given_;
    std::vector<bool> isUsed_;
    std::vector<ValueFormCL> forms_;
    bool isBad_ { false };
};

template <class T>
bool isWholeNumber(std::string_view text, const char* (*read)(const char*, const char*, T*),
    bool (*fits)(const char*, const char*))
{
    T value {};
    const char* const end = text.data() + text.size();
    return !text.empty() && read(text.data(), end, &value) == end && fits(text.data(), end);
}

} // namespace

std::vector<ValueFormCL> slFormsOf(const GrammarCL& grammar, int flags, const std::vector<NamedTextCL>& given)
{
    FormFinderCL finder(given);
    grammar.visit(finder, flags);
    return finder.IsSoundM() ? finder.TakeM() : std::vector<ValueFormCL>();
}

bool slCanStandFor(const ValueFormCL& form, std::string_view text)
{
    switch (form.type) {
    case IntegerType:
        return isWholeNumber<int>(text, &slReadInt, &slIntFits);
    case RealType:
        return isWholeNumber<float>(text, &slReadReal, &slRealFits);
    default:
        return !text.empty() && !slIsBlank(text.front()) && !slIsBlank(text.back())
            && text.find_first_of(std::string_view("\r\n\0", 3)) == std::string_view::npos
            && text.size() < static_cast<std::size_t>(form.form.size);
    }
}

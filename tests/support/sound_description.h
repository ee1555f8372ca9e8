#pragma once
#include "baselib/gbk_texts.h"
#include "editing/value_forms.h"
#include <algorithm>
#include <cstring>
#include <random>
#include <string>
#include <vector>

// Description files by chance in which all sections read whole, laid out as freely as the reader allows. The
// same seed gives the same files everywhere.
class SoundDescriptionCL
{
public:
    explicit SoundDescriptionCL(unsigned seed)
        : random_(seed)
    {
    }
    int BelowM(int limit) { return static_cast<int>(random_() % static_cast<unsigned>(limit)); }
    bool ChanceM(int percent) { return BelowM(100) < percent; }

    std::string FileM()
    {
        lineEnd_ = ChanceM(30) ? "\r\n" : "\n";
        ids_.assign(slGrammars().size(), {});
        nextId_ = 1 + BelowM(3000);
        std::vector<std::string> parts;
        for (std::size_t i = 0; i < slGrammars().size(); ++i) {
            if (i <= DialogGrammar || ChanceM(45)) {
                parts.push_back(sectionM(slGrammars()[i], i));
            }
        }
        for (std::size_t i = parts.size(); i > 1; --i) {
            std::swap(parts[i - 1], parts[static_cast<std::size_t>(BelowM(static_cast<int>(i)))]);
        }
        std::string all;
        for (const std::string& part : parts) {
            all += part + (ChanceM(70) ? lineEnd_ : "");
        }
        if (ChanceM(30)) { // No end of the last line.
            all.erase(all.find_last_not_of("\r\n") + 1);
        }
        return all;
    }

    // The values of a record, of any data type that it may have.
    std::vector<ValueFormCL> FormsM(
        const GrammarCL& grammar, int flags, std::vector<NamedTextCL>* given = nullptr)
    {
        const std::vector<NamedTextCL> type { { "data_type", 0, std::to_string(1 + BelowM(3)) } };
        std::vector<ValueFormCL> forms = slFormsOf(grammar, flags, type);
        if (given != nullptr && !forms.empty()) {
            *given = type;
        }
        return forms.empty() ? slFormsOf(grammar, flags, {}) : forms;
    }

    // A text that a value may have.
    std::string TextForM(const ValueFormCL& form)
    {
        static const char* const Reals[] = { "0", "1.5", "-0.25", "1e3", "120", "7.125" };
        static const char* const Texts[] = { "a", "NULL ", "[x]", "1 2 3", "pen_red.bmp", "\xB2\xCE\xCA\xFD",
            "\xC9\xE8 \xD6\xC3", "a\tb" };
        if (form.isIndex) {
            return std::to_string(BelowM(6) - 1);
        }
        switch (form.type) {
        case IntegerType:
            return std::to_string(ChanceM(10) ? BelowM(100000) - 50000 : BelowM(250));
        case RealType:
            return Reals[BelowM(static_cast<int>(std::size(Reals)))];
        default:
            std::string text = Texts[BelowM(static_cast<int>(std::size(Texts)))];
            text.erase(text.find_last_not_of(' ') + 1);
            const bool mayBeNone = form.form.nullWord != NullWord::Kept;
            return text == "NULL" && !mayBeNone ? "none" : text;
        }
    }

private:
    std::string gapM(bool endsLine)
    {
        static const char* const Blanks[] = { " ", " ", " ", "  ", "\t", "   " };
        const std::string blanks = Blanks[BelowM(static_cast<int>(std::size(Blanks)))];
        return endsLine || ChanceM(15) ? (ChanceM(20) ? blanks : "") + lineEnd_
                + (ChanceM(10) ? lineEnd_ : "") + (ChanceM(10) ? blanks : "")
                                       : blanks;
    }

    std::string recordM(const GrammarCL& grammar, std::size_t place, int flags, bool endsLine)
    {
        std::string record;
        const std::vector<ValueFormCL> forms = FormsM(grammar, flags);
        for (std::size_t i = 0; i < forms.size(); ++i) {
            const bool isType = std::strcmp(forms[i].field, "data_type") == 0;
            const bool isLast = i + 1 == forms.size();
            record += isType ? forms[i].text : forms[i].isId ? idM(grammar, place) : TextForM(forms[i]);
            record += gapM(forms[i].type == TextType || (isLast && endsLine));
        }
        return record;
    }

    // A new one for a control; for what belongs to one mostly one that is there.
    std::string idM(const GrammarCL& grammar, std::size_t place)
    {
        const bool isRelation = grammar.NamesControlsM();
        if (grammar.owner == nullptr && !isRelation) {
            nextId_ += 1 + (ChanceM(20) ? BelowM(50) : 0);
            ids_[place].push_back(nextId_);
            return std::to_string(nextId_);
        }
        std::vector<int> known;
        for (std::size_t i = 0; i < ids_.size(); ++i) {
            if (isRelation || slGrammars()[i].header == grammar.owner) {
                known.insert(known.end(), ids_[i].begin(), ids_[i].end());
            }
        }
        const auto count = static_cast<int>(known.size());
        return std::to_string(
            count > 0 && !ChanceM(10) ? known[static_cast<std::size_t>(BelowM(count))] : -5);
    }

    std::string sectionM(const GrammarCL& grammar, std::size_t place)
    {
        const std::string header = std::string(grammar.header) + (ChanceM(10) ? " " : "") + lineEnd_;
        if (grammar.head == HeadKind::Line) {
            return header + "1.0" + lineEnd_;
        }
        const bool isSigned = grammar.head == HeadKind::Signed;
        const int flags = isSigned && grammar.owner == nullptr ? BelowM(4) : 0;
        const int comments = BelowM(3);
        const int count = grammar.head == HeadKind::Comments ? 1 : BelowM(5);
        const bool endsLines = !ChanceM(15); // Else records may share lines.
        std::string records;
        for (int i = 0; i < count; ++i) {
            records += recordM(grammar, place, flags, endsLines || i + 1 == count);
        }
        const std::string lines = std::string((flags & HasShowCondition) != 0 ? "-" : "")
            + std::to_string(comments + (isSigned ? 1 : 0));
        const std::string number
            = ((flags & HasDescription) != 0 && count > 0 ? "-" : "") + std::to_string(count);
        std::string head = grammar.head == HeadKind::Comments ? lines
            : isSigned                                        ? number + " " + lines
                                                              : number + lineEnd_ + lines;
        head += lineEnd_;
        for (int i = 0; i < comments; ++i) {
            head += (ChanceM(50) ? "1 2 / 3" : "\xD7\xA2 \xCA\xCD") + lineEnd_;
        }
        return header + head + records;
    }

    std::mt19937 random_; // What it gives is laid down; the library's distributions are not.
    std::string lineEnd_;
    std::vector<std::vector<int>> ids_; // Of the controls of each section.
    int nextId_ { 0 };
};

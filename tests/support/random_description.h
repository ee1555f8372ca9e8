#pragma once
#include "baselib/char_arr.h"
#include "baselib/gbk.h"
#include "baselib/gbk_texts.h"
#include "controls/buttons/new_rotate_btn_record.h"
#include "dialog/binding.h"
#include "dialog/dialog_header.h"
#include "dialog/kinds.h"
#include "dialog/relation.h"
#include <algorithm>
#include <random>
#include <string>
#include <vector>

// Description files by chance: of every kind of section, mostly sound, with whatever authors get wrong. The
// same seed gives the same files everywhere.
class RandomDescriptionCL : private FieldVisitorCL
{
public:
    explicit RandomDescriptionCL(unsigned seed)
        : random_(seed)
    {
    }

    // A file with most of the sections, in any order.
    std::string FileM()
    {
        isCrLf_ = chanceM(20);
        std::vector<std::string> parts { dialogM(), relationsM(), bindingsM(), newRotateButtonsM(),
            picturesM() };
        slEachKind([&](auto row) { addKindM<typename decltype(row)::Records>(parts); });
        for (std::size_t i = parts.size(); i > 1; --i) {
            std::swap(parts[i - 1], parts[static_cast<std::size_t>(belowM(static_cast<int>(i)))]);
        }
        std::string all;
        for (const std::string& part : parts) {
            all += chanceM(8) ? "" : part;
        }
        return all;
    }

    // A file with a few of its bytes cut out, repeated or replaced.
    std::string MutatedM(std::string file)
    {
        for (int edits = belowM(6) + 1; edits > 0 && !file.empty(); --edits) {
            const auto at = static_cast<std::size_t>(belowM(static_cast<int>(file.size())));
            const auto length = static_cast<std::size_t>(belowM(chanceM(10) ? 400 : 12));
            switch (belowM(6)) {
            case 0:
                file.erase(at, length);
                break;
            case 1:
                file.insert(
                    at, file.substr(static_cast<std::size_t>(belowM(static_cast<int>(at) + 1)), length));
                break;
            case 2:
                file[at] = static_cast<char>(belowM(256));
                break;
            case 3:
                file.insert(at, oddNumberM());
                break;
            case 4:
                file.insert(at, textM());
                break;
            default:
                file.resize(chanceM(70) ? file.size() : at);
            }
        }
        return file;
    }

    int BelowM(int limit) { return belowM(limit); }

private:
    int belowM(int limit) { return static_cast<int>(random_() % static_cast<unsigned>(limit)); }
    bool chanceM(int percent) { return belowM(100) < percent; }
    std::string lineEndM() const { return isCrLf_ ? "\r\n" : "\n"; }

    std::string oddNumberM()
    {
        static const char* const Odd[] = { "2147483647", "-2147483648", "99999999999", "-99999999999", "x",
            "1e9", "3.5", "-", "007", "+4", "1e400", "-1e400", "1e-60", ".5", "\xA3\xB1" };
        return Odd[belowM(static_cast<int>(std::size(Odd)))];
    }

    std::string textM()
    {
        static const char* const Texts[] = { "NULL", "null", "Null", "NULL x", "a.bmp", "pen_red.bmp", "",
            "\xB2\xCE\xCA\xFD\xC9\xE8\xD6\xC3", "[\xB1\xEA\xCC\xE2]", "\xB2", "1 2 3", "a\tb  " };
        if (chanceM(80)) {
            return Texts[belowM(static_cast<int>(std::size(Texts)))];
        }
        std::string text;
        for (int length = belowM(chanceM(20) ? 400 : 20); length > 0; --length) {
            text += chanceM(50) ? std::string("\xD6\xD0")
                                : std::string(1, static_cast<char>('a' + belowM(26)));
        }
        return text;
    }

    void putM(const std::string& value)
    {
        if (!chanceM(1)) {
            text_ += value + (chanceM(80) ? " " : lineEndM());
        }
    }
    int putIntM(int value)
    {
        putM(chanceM(3) ? oddNumberM() : std::to_string(value));
        return value;
    }

    void IntM(const char*, int& value) override { value = putIntM(belowM(60) - 5); }
    void RealM(const char*, float& value) override
    {
        value = static_cast<float>(belowM(2000) - 500) / 8;
        putM(chanceM(5) ? oddNumberM() : std::to_string(value));
    }
    void IntsM(const char* name, int* values, int count) override
    {
        for (int i = 0; i < count; ++i) {
            IntM(name, values[i]);
        }
    }
    void RealsM(const char* name, float* values, int count) override
    {
        for (int i = 0; i < count; ++i) {
            RealM(name, values[i]);
        }
    }
    void ColourM(const char*, ColourTP&, int*) override
    {
        for (int i = 0; i < 3; ++i) {
            putIntM(belowM(300) - 20);
        }
    }
    void TextM(const char*, CharArr&, const TextFormCL&) override { text_ += textM() + lineEndM(); }
    void IdM(const char*, int& value) override { value = putIntM(11 + belowM(5)); }
    void IndexM(const char*, int& value) override { value = putIntM(belowM(4)); }
    void ChoiceM(const char* name, int& value, const ChoicesCL& choices) override
    {
        if (chanceM(8)) {
            IntM(name, value);
        } else {
            value = putIntM(choices.first[belowM(choices.count)].value);
        }
    }

    std::string commentsM(int lines)
    {
        std::string comments;
        for (int i = 0; i < lines; ++i) {
            comments += textM() + lineEndM();
        }
        return comments;
    }

    // A section of `count` records, each written into text_ by put().
    template <class FunctionTP> std::string sectionM(const char* header, int count, FunctionTP&& put)
    {
        text_.clear();
        for (int i = 0; i < count; ++i) {
            put();
            text_ += lineEndM();
        }
        const int comments = belowM(3);
        const int said = chanceM(90) ? count : count + belowM(7) - 3;
        return header + lineEndM() + (chanceM(3) ? oddNumberM() : std::to_string(said)) + lineEndM()
            + std::to_string(comments) + lineEndM() + commentsM(comments) + text_ + lineEndM();
    }

    template <class RecordArrTP> void addKindM(std::vector<std::string>& parts)
    {
        FieldVisitorCL& visitor = *this;
        parts.push_back(sectionM(RecordArrTP::Header, belowM(5), [&] {
            typename RecordArrTP::RecordTP record;
            record.EachCommonFieldM(visitor);
            record.EachFieldM(visitor);
        }));
        for (const auto& secondary : RecordArrTP::Secondaries) {
            parts.push_back(sectionM(secondary.header, belowM(8), [&] {
                SectionEntryCL entry;
                entry.EachFieldM(visitor, secondary.fields);
            }));
        }
    }

    std::string dialogM()
    {
        DialogHeaderCL header;
        text_.clear();
        header.EachFieldM(*this);
        const int comments = belowM(3);
        return VersionHeader + lineEndM() + "1.0" + lineEndM() + ::DialogHeader + lineEndM()
            + std::to_string(comments) + lineEndM() + commentsM(comments) + text_ + lineEndM();
    }

    std::string relationsM()
    {
        return sectionM(RelationHeader, belowM(5), [&] {
            RelationCL relation;
            relation.EachFieldM(*this);
        });
    }

    std::string bindingsM()
    {
        return sectionM(BindingHeader, belowM(5), [&] {
            BindingCL binding;
            binding.EachFieldM(*this);
        });
    }

    std::string newRotateButtonsM()
    {
        const int count = belowM(4);
        const int comments = 1 + belowM(2);
        const int withShowCondition = belowM(2);
        const int withDescription = belowM(2);
        text_.clear();
        for (int i = 0; i < count; ++i) {
            DVrNewRotateBtnCL record;
            record.EachCommonFieldM(*this, 1);
            record.EachFieldM(*this, withShowCondition, withDescription);
            text_ += lineEndM();
        }
        return NewRotateBtnHeader + lineEndM() + std::to_string(withDescription != 0 ? -count : count) + " "
            + std::to_string(withShowCondition != 0 ? -comments : comments) + lineEndM()
            + commentsM(comments - 1) + text_;
    }

    std::string picturesM()
    {
        const int count = belowM(8);
        std::string entries;
        for (int i = 0; i < count; ++i) {
            entries += "0 " + std::to_string(belowM(5) - 1) + " " + std::to_string(belowM(6) - 1) + " "
                + textM() + lineEndM();
        }
        return NewRotateBtnBitmapHeader + lineEndM() + std::to_string(count) + " 1" + lineEndM() + entries;
    }

    std::mt19937 random_; // What it gives is laid down; the library's distributions are not.
    std::string text_;
    bool isCrLf_ { false };
};

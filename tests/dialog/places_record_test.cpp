// Where the values of a description file stand: each has a span that, cut out of the file, reads back as it.
#include "baselib/number_text.h"
#include "support/description_files.h"
#include "support/random_description.h"
#include "support/seen_file.h"
#include <climits>
#include <cstring>
#include <gtest/gtest.h>

namespace {

// Walks what was read and holds each value against what the observer was told of it, in order.
class MatcherCL : public FieldVisitorCL
{
public:
    MatcherCL(const FileTextCL& file, const std::vector<ValueSeenCL>& seen, std::size_t first = 0)
        : file_(file)
        , seen_(seen)
        , next_(first)
    {
    }
    bool IsDoneM() const { return next_ == seen_.size(); }
    int MatchedM() const { return matched_; }

    void IntM(const char* name, int& value) override { matchIntM(name, 0, value); }
    void RealM(const char* name, float& value) override { matchRealM(name, 0, value); }
    void IntsM(const char* name, int* values, int count) override
    {
        for (int part = 0; part < count; ++part) {
            matchIntM(name, part, values[part]);
        }
    }
    void RealsM(const char* name, float* values, int count) override
    {
        for (int part = 0; part < count; ++part) {
            matchRealM(name, part, values[part]);
        }
    }
    void ColourM(const char* name, ColourTP& colour, int* flag) override
    {
        bool isOn = true;
        for (int part = 0; part < 3; ++part) {
            const ValueSeenCL* const seen = takeM(name, part);
            int written = 0;
            if (seen != nullptr && readBackM(*seen, &written)) {
                if (part == 0 && written < 0 && flag != nullptr) {
                    isOn = false; // It leaves the colour as it was.
                }
                if (isOn) {
                    EXPECT_TRUE(static_cast<int>(colour >> (8 * part) & 0xFF) == (written & 0xFF)
                        || (flag != nullptr && *flag == 0));
                }
            }
        }
    }
    void TextM(const char* name, CharArr& text, const TextFormCL& form) override
    {
        const ValueSeenCL* const seen = takeM(name, 0);
        if (seen == nullptr) {
            return;
        }
        const std::string written(file_.CutM(seen->span));
        switch (seen->fate) {
        case Fate::Read:
            EXPECT_EQ(text.TextM(), written);
            break;
        case Fate::Cut:
            EXPECT_EQ(written.rfind(text.TextM(), 0), 0U);
            EXPECT_LT(text.LengthM(), written.size());
            break;
        case Fate::NullWord:
            EXPECT_TRUE(written == "NULL" || (written == "null" && form.nullWord != NullWord::UpperEmpty));
            EXPECT_EQ(std::string(text.TextM()), form.nullWord == NullWord::SkipsEntry ? written : "");
            break;
        case Fate::Missing:
            EXPECT_EQ(seen->span.begin, file_.SizeM());
            EXPECT_STREQ(text.TextM(), "");
            break;
        default:
            EXPECT_EQ(seen->fate, Fate::NotLookedAt);
        }
    }

private:
    // The next value told, which must be this one.
    const ValueSeenCL* takeM(const char* name, int part)
    {
        EXPECT_LT(next_, seen_.size()) << name << " was not told";
        if (next_ >= seen_.size()) {
            return nullptr;
        }
        const ValueSeenCL& seen = seen_[next_++];
        EXPECT_STREQ(seen.field, name);
        EXPECT_EQ(seen.part, part) << name;
        EXPECT_LE(seen.span.begin, seen.span.end);
        EXPECT_LE(seen.span.end, file_.SizeM());
        EXPECT_GE(seen.span.begin, lastEnd_) << name;
        lastEnd_ = seen.fate == Fate::NotANumber ? seen.span.begin : seen.span.end;
        ++matched_;
        return &seen;
    }
    // The number that stands where the value was read; false where none was read, and none stands.
    bool readBackM(const ValueSeenCL& seen, int* number)
    {
        const std::string_view written = file_.CutM(seen.span);
        const char* const end = written.data() + written.size();
        const bool isNumber = seen.fate == Fate::Read || seen.fate == Fate::Saturated;
        if (isNumber) {
            EXPECT_EQ(slReadInt(written.data(), end, number), end);
            EXPECT_EQ(std::to_string(*number) == plain(written), seen.fate == Fate::Read) << written;
        } else {
            expectNoneM(seen, slReadInt(written.data(), end, number) == written.data());
        }
        return isNumber;
    }
    // A whole number as it is printed: no sign without need, no leading zeros.
    static std::string plain(std::string_view number)
    {
        const bool isNegative = number.front() == '-';
        const std::size_t first = std::min(number.find_first_of("123456789"), number.size());
        const std::string digits(number.substr(first));
        return digits.empty() ? "0" : (isNegative ? "-" : "") + digits;
    }
    void expectNoneM(const ValueSeenCL& seen, bool isNone)
    {
        switch (seen.fate) {
        case Fate::NotANumber:
            EXPECT_FALSE(seen.span.EmptyM());
            EXPECT_TRUE(isNone);
            break;
        case Fate::Missing:
            EXPECT_EQ(seen.span.begin, file_.SizeM());
            break;
        default:
            EXPECT_EQ(seen.fate, Fate::NotLookedAt);
        }
    }
    void matchIntM(const char* name, int part, int value)
    {
        const ValueSeenCL* const seen = takeM(name, part);
        int written = 0;
        if (seen != nullptr && readBackM(*seen, &written)) {
            EXPECT_EQ(value, written) << name;
        }
    }
    void matchRealM(const char* name, int part, float value)
    {
        const ValueSeenCL* const seen = takeM(name, part);
        if (seen == nullptr) {
            return;
        }
        const std::string written(file_.CutM(seen->span));
        const char* const end = written.data() + written.size();
        if (seen->fate == Fate::Read || seen->fate == Fate::Saturated) {
            float back = 0;
            EXPECT_EQ(slReadReal(written.data(), end, &back), end) << written;
            EXPECT_EQ(value, back) << name;
            EXPECT_EQ(
                std::abs(std::strtod(written.c_str(), nullptr)) > 3.5e38, seen->fate == Fate::Saturated);
        } else {
            float back = 0;
            expectNoneM(*seen, slReadReal(written.data(), end, &back) == written.data());
        }
    }

    const FileTextCL& file_;
    const std::vector<ValueSeenCL>& seen_;
    std::size_t next_;
    std::size_t lastEnd_ { 0 };
    int matched_ { 0 };
};

// Hands the rows of each list of a record to see(list, row, visit), where visit(visitor) shows one row.
class RowsCL : public FieldVisitorCL
{
public:
    using SeeTP = std::function<void(int list, int row, const std::function<void(FieldVisitorCL&)>& visit)>;
    explicit RowsCL(SeeTP see)
        : see_(std::move(see))
    {
    }
    void ListM(const char*, int rows, const std::function<void(FieldVisitorCL&, int)>& see) override
    {
        for (int row = 0; row < rows; ++row) {
            see_(lists, row, [&see, row](FieldVisitorCL& visitor) { see(visitor, row); });
        }
        counts.push_back(rows);
        ++lists;
    }
    int lists { 0 };
    std::vector<int> counts;

private:
    SeeTP see_;
};

// Reads every section of a file and holds all its values against what was told of them.
class CheckCL
{
public:
    explicit CheckCL(const std::string& bytes)
        : file_(std::make_shared<const FileTextCL>(bytes))
    {
        dialogM();
        slEachKind([this](auto row) { kindM<typename decltype(row)::Records>(); });
        relationsM();
        bindingsM();
        newRotateButtonsM();
    }
    int matched { 0 }; // Values held against their places.
    int dropped { 0 }; // Entries told to belong to no record.

private:
    SeenFileCL& openM()
    {
        seen_ = SeenFileCL();
        io_.OpenM(file_);
        io_.SetObserverM(&seen_);
        return seen_;
    }
    // All values of one record or entry, from value `first` of it on.
    template <class VisitTP> void matchM(const char* section, int record, std::size_t first, VisitTP&& visit)
    {
        SCOPED_TRACE(std::string(section) + " " + std::to_string(record));
        const std::vector<ValueSeenCL>& values = seen_.values[{ section, record }];
        MatcherCL matcher(*file_, values, first);
        visit(matcher);
        EXPECT_TRUE(matcher.IsDoneM());
        matched += matcher.MatchedM();
    }
    void sectionsM(std::size_t most)
    {
        EXPECT_LE(seen_.sections.size(), most);
        for (const SectionSeenCL& section : seen_.sections) {
            const bool isThere = section.status != SectionStatus::Missing;
            EXPECT_EQ(file_->CutM(section.headerSpan), isThere ? section.header : "");
            EXPECT_LE(section.headerSpan.end, section.end);
            EXPECT_GE(section.countSpan.begin, section.countLine.begin);
            EXPECT_LE(section.countSpan.end, section.countLine.end);
            EXPECT_TRUE(section.follows.EmptyM() || section.follows.begin >= section.end);
        }
        for (const EntryDroppedCL& entry : seen_.dropped) {
            EXPECT_LE(entry.span.end, file_->SizeM());
            const std::vector<ValueSeenCL>& values = seen_.values.at({ entry.section, entry.entry });
            EXPECT_EQ(entry.span.begin, values.front().span.begin);
        }
        dropped += static_cast<int>(seen_.dropped.size());
    }

    void dialogM()
    {
        openM();
        DialogHeaderCL header;
        if (slReadDialogHeader(io_, header) != 0) {
            matchM(DialogHeader, 0, 0, [&](FieldVisitorCL& matcher) { header.EachFieldM(matcher); });
        }
        sectionsM(2);
    }

    template <class RecordArrTP> void kindM()
    {
        openM();
        RecordArrTP records;
        int count = 0;
        const SectionStatus status = slReadSection(io_, records, &count);
        EXPECT_EQ(seen_.sections.back().status, status);
        EXPECT_EQ(seen_.sections.back().count, count);
        std::map<int, int> firstOfId;
        for (int i = 0; i < count; ++i) {
            firstOfId.emplace(records[i].GetFuncIDM(), i);
            matchM(RecordArrTP::Header, i, 0, [&](FieldVisitorCL& matcher) {
                records[i].EachCommonFieldM(matcher);
                records[i].EachFieldM(matcher);
            });
        }
        std::vector<std::map<int, std::vector<int>>> entriesOfId;
        for (const auto& secondary : RecordArrTP::Secondaries) {
            entriesOfId.push_back(seen_.EntriesM(*file_, secondary.header));
        }
        for (int i = 0; i < count; ++i) {
            const int id = records[i].GetFuncIDM();
            const bool takesEntries = firstOfId[id] == i;
            RowsCL rows([&](int list, int row, const std::function<void(FieldVisitorCL&)>& visit) {
                const std::vector<int>& entries = entriesOfId[static_cast<std::size_t>(list)][id];
                ASSERT_LT(static_cast<std::size_t>(row), entries.size());
                matchM(RecordArrTP::Secondaries[static_cast<std::size_t>(list)].header,
                    entries[static_cast<std::size_t>(row)], 1, visit);
            });
            records[i].EachFieldM(rows);
            ASSERT_EQ(static_cast<std::size_t>(rows.lists), RecordArrTP::Secondaries.size());
            for (std::size_t list = 0; list < rows.counts.size(); ++list) {
                EXPECT_EQ(static_cast<std::size_t>(rows.counts[list]),
                    takesEntries ? entriesOfId[list][id].size() : 0U);
            }
        }
        sectionsM(1 + RecordArrTP::Secondaries.size());
    }

    void relationsM()
    {
        openM();
        int number = 0;
        slReadRelations(io_, [&](RelationCL& relation) {
            matchM(
                RelationHeader, number++, 0, [&](FieldVisitorCL& matcher) { relation.EachFieldM(matcher); });
        });
        sectionsM(1);
    }

    void bindingsM()
    {
        openM();
        int number = 0;
        slReadBindings(io_, [&](BindingCL& binding) {
            matchM(BindingHeader, number++, 0, [&](FieldVisitorCL& matcher) { binding.EachFieldM(matcher); });
            return 1;
        });
        sectionsM(1);
    }

    void newRotateButtonsM()
    {
        openM();
        DVrNewRotateBtnArr records;
        records.FmReadInterfaceM(&io_);
        for (int i = 0; i < records.GetBoundM(); ++i) {
            matchM(NewRotateBtnHeader, i, 0, [&](MatcherCL& matcher) {
                const auto& values = seen_.values[{ NewRotateBtnHeader, i }];
                const auto has = [&values](const char* field) {
                    return std::any_of(values.begin(), values.end(),
                        [field](const ValueSeenCL& value) { return std::strcmp(value.field, field) == 0; });
                };
                records[i].EachCommonFieldM(matcher, 1);
                records[i].EachFieldM(matcher, has("show_condition") ? 1 : 0, has("description") ? 1 : 0);
            });
        }
        sectionsM(2);
    }

    std::shared_ptr<const FileTextCL> file_;
    SeenFileCL seen_;
    VrIOCL io_;
};

} // namespace

TEST(Places, EveryValueOfSamplesAndExamplesReadsBackFromItsPlace)
{
    std::vector<std::string> files = descriptionFiles(PANELKIT_SAMPLES);
    const std::vector<std::string> examples = descriptionFiles(PANELKIT_EXAMPLES);
    files.insert(files.end(), examples.begin(), examples.end());
    int matched = 0;
    for (const std::string& file : files) {
        SCOPED_TRACE(file);
        matched += CheckCL(wholeFile(file)).matched;
    }
    EXPECT_GE(matched, 1000);
}

TEST(Places, EveryValueOfFilesMadeByChanceReadsBackFromItsPlace)
{
    RandomDescriptionCL random(20240229);
    int matched = 0;
    int dropped = 0;
    for (int i = 0; i < 1000 && !HasFailure(); ++i) {
        const std::string file = random.FileM();
        for (const std::string& bytes : { file, random.MutatedM(file) }) {
            const CheckCL check(bytes);
            matched += check.matched;
            dropped += check.dropped;
        }
        EXPECT_FALSE(HasFailure()) << "file " << i;
    }
    EXPECT_GE(matched, 500000);
    EXPECT_GE(dropped, 10000);
}

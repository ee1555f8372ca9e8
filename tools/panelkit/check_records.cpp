// Every record on its own; what the checks across records need of it is kept.
#include "baselib/gbk.h"
#include "baselib/gbk_texts.h"
#include "check.h"
#include "control_list.h"
#include "rising_set.h"
#include <algorithm>
#include <cstdint>

namespace {

// Where the fields of a kind leave nothing to see although Tab stops there.
bool isInvisible(int kind, const RecordViewCL& view)
{
    const auto isEmpty = [&view](const char* name) {
        const FieldCL* const field = view.FindM(name);
        return field == nullptr || field->text->EmptyM();
    };
    switch (kind) {
    case BmpButtonCode:
        return isEmpty("normal");
    case RotateBtnCode:
        return isEmpty("background") && isEmpty("rotating");
    default:
        return false;
    }
}

// The ids that the entries of a kind's one secondary section name.
RisingSetCL<int> idsOfEntries(FileReadingCL& file, const SeenSectionCL& section)
{
    EntryColumnCL column(file, section, "function_id");
    RisingSetCL<int> ids;
    for (int i = 0; i < section.RecordsM(); ++i) {
        ids.AddM(column.NumberM(i));
    }
    return ids;
}

class RecordsCheckerCL
{
public:
    RecordsCheckerCL(FileReadingCL& file, const std::filesystem::path& folder,
        const TranslationCL& translation, FindingsCL& findings)
        : file_(file)
        , translation_(translation)
        , findings_(findings)
        , pictures_(folder)
        , found_(findings.BeginOthersM())
    {
        constexpr std::size_t ShortRecord = 32; // Room that isn't used costs nothing, growing does.
        controls_.reserve(file.TextM().SizeM() / ShortRecord);
    }
    // Each record is looked at when it is read. Only then can be told which of them are sound.
    void CheckM()
    {
        dialogM();
        slEachKind([this](auto row) { kindM<decltype(row)>(); });
        checkSections(file_, findings_);
        dropUnsoundM();
        newRotateButtonsM();
        takeFindingsM();
        invisibleStatesM();
        checkEntries(file_, pictures_, findings_);
        checkLists(file_, findings_);
        checkIds(file_, controls_, arrows_, findings_);
        checkBindings(file_, controls_, findings_);
        const StackTP stack = stackOf(controls_);
        checkPlaces(file_, stack, findings_);
#ifdef _WIN32
        checkCaptions(file_, controls_, translation_, findings_);
#endif
        checkOrder(file_, controls_, stack, findings_);
    }

private:
    // What was found in one record, behind what was found in others.
    struct FoundCL
    {
        int grammar;
        int record;
        std::uint32_t findingsEnd;
        std::uint32_t picturesEnd;
    };

    bool isSoundM(int grammar, int record)
    {
        return record < file_.SectionM(grammar).soundRecords;
    }
    // A section's controls follow one another, one for each record.
    void dropUnsoundM()
    {
        auto kept = controls_.begin();
        int grammar = -1;
        int record = 0;
        for (CheckedControlCL& control : controls_) {
            record = control.grammar == grammar ? record + 1 : 0;
            grammar = control.grammar;
            if (isSoundM(grammar, record)) {
                if (&*kept != &control) {
                    *kept = std::move(control);
                }
                ++kept;
            }
        }
        controls_.erase(kept, controls_.end());
        const int spins = slGrammarOf(SpinEditHeader);
        arrows_.erase(std::remove_if(arrows_.begin(), arrows_.end(),
                          [&](const ArrowsCL& arrows) { return !isSoundM(spins, arrows.record); }),
            arrows_.end());
    }
    void valuesM(int grammar, int record, bool isPlain = false)
    {
        checkValues(file_, view_, isPlain, named_, found_);
        markM(grammar, record);
    }
    void markM(int grammar, int record)
    {
        const FoundCL now { grammar, record, static_cast<std::uint32_t>(found_.ListM().size()),
            static_cast<std::uint32_t>(named_.size()) };
        const FoundCL none {};
        const FoundCL& last = marks_.empty() ? none : marks_.back();
        if (now.findingsEnd > last.findingsEnd || now.picturesEnd > last.picturesEnd) {
            marks_.push_back(now);
        }
    }
    // What was found in sound records counts.
    void takeFindingsM()
    {
        FoundCL last {};
        for (const FoundCL& mark : marks_) {
            if (isSoundM(mark.grammar, mark.record)) {
                findings_.TakeM(found_, last.findingsEnd, mark.findingsEnd);
                for (std::size_t i = last.picturesEnd; i < mark.picturesEnd; ++i) {
                    const NamedPictureCL& named = named_[i];
                    pictures_.CheckM(std::string(file_.TextM().CutM(named.span)), named.isRegion,
                        named.span.begin, findings_);
                }
            }
            last = mark;
        }
    }

    void dialogM()
    {
        if (file_.HasDialogM() && file_.SectionM(DialogGrammar).RecordsM() > 0) {
            view_.BeginM(file_.SectionM(DialogGrammar), 0);
            file_.DialogM().EachFieldM(view_);
            valuesM(DialogGrammar, 0);
        }
    }
    template <class RowTP> void kindM()
    {
        using RecordsTP = typename RowTP::Records;
        const int grammar = slGrammarOf(RecordsTP::Header);
        const SeenSectionCL& section = file_.SectionM(grammar);
        // The fields of a kind are the same in each record, but for the types that a field tells of others.
        const FieldCL* type = nullptr;
        bool isShown = false;
        int shownType = 0;
        file_.ReadKindM<RecordsTP>([&](int i, typename RecordsTP::RecordTP& record) {
            if (!isShown || !view_.ShowsM(section, i) || (type != nullptr && type->ints[0] != shownType)) {
                view_.BeginM(section, i);
                record.EachCommonFieldM(view_);
                record.EachFieldM(view_);
                common_ = CommonFieldsCL(view_);
                isShown = true;
                type = view_.FindM("data_type");
                shownType = type != nullptr ? type->ints[0] : 0;
            }
            if (isInvisible(RowTP::Code, view_)) {
                found_.AddM(Says::InvisibleTabStop, offsetOf(*common_.id));
            }
            recordM(RowTP::Code, RecordsTP::KindName, grammar, i, RowTP::CanM(Stacked),
                section.values.RoomM().isPlain);
        });
    }
    void recordM(
        int kind, const char* kindName, int grammar, int record, bool isStacked, bool isPlain = false)
    {
        checkRanges(kind, view_, found_);
        valuesM(grammar, record, isPlain);
        controls_.push_back(checkedControlOf(view_, common_, kind, kindName, grammar, isStacked));
        if (kind == SpinEditCode && view_.IntM("data_type") > 0 && view_.IntM("spin_function_id") != 0) {
            arrows_.push_back(
                { record, view_.IntM("spin_function_id"), offsetOf(*view_.FindM("spin_function_id")) });
        }
    }
    void invisibleStatesM()
    {
        if (!file_.IsSoundM(MultiStateButtonDataHeader)) {
            return;
        }
        const auto ids = idsOfEntries(file_, file_.SectionM(MultiStateButtonDataHeader));
        for (const CheckedControlCL& control : controls_) {
            if (control.kind == MultiStateButtonCode && !ids.HasM(control.id)) {
                findings_.AddM(Says::InvisibleTabStop, control.idAt);
            }
        }
    }
    void newRotateButtonsM()
    {
        const int grammar = slGrammarOf(NewRotateBtnHeader);
        const SeenSectionCL& section = file_.SectionM(grammar);
        DVrNewRotateBtnArr& records = file_.NewRotateButtonsM();
        for (int i = 0; i < section.soundRecords; ++i) {
            view_.BeginM(section, i);
            records.ElementAtM(i).EachCommonFieldM(view_, 1);
            records.ElementAtM(i).EachFieldM(view_, section.FindM(i, "show_condition") != nullptr,
                section.FindM(i, "description") != nullptr);
            common_ = CommonFieldsCL(view_);
            recordM(0, "new_rotate_button", grammar, i, false);
            const FieldCL* const first = view_.FindM("initial_index");
            const int slots = records.ElementAtM(i).SlotCountM();
            if (!file_.IsSoundM(NewRotateBtnBitmapHeader)
                || !file_.SectionM(NewRotateBtnBitmapHeader).IsThereM() || first->seen == nullptr) {
                continue;
            }
            if (first->ints[0] < 0 || first->ints[0] >= slots) {
                findings_.AddM(Says::StartOutOfRange, first->seen->begin,
                    { std::to_string(first->ints[0]), std::to_string(slots) });
            }
        }
    }

    FileReadingCL& file_;
    [[maybe_unused]] const TranslationCL& translation_; // Where captions are measured.
    FindingsCL& findings_;
    PicturesCL pictures_;
    RecordViewCL view_;
    CommonFieldsCL common_; // Of that.
    CheckedControlsTP controls_;
    std::vector<ArrowsCL> arrows_;
    FindingsCL found_;                  // In records, sound or not,
    std::vector<NamedPictureCL> named_; // and the names of pictures that they have.
    std::vector<FoundCL> marks_;        // Which of them were found where.
};

} // namespace

void checkRecords(FileReadingCL& file, const std::filesystem::path& folder, const TranslationCL& translation,
    FindingsCL& findings)
{
    RecordsCheckerCL(file, folder, translation, findings).CheckM();
}

// Every record on its own; what the checks across records need of it is kept.
#include "baselib/gbk.h"
#include "baselib/gbk_texts.h"
#include "check.h"
#include "control_list.h"
#include "rising_set.h"
#include "sort_rows.h"
#include <algorithm>
#include <cstdint>
#include <cstring>

namespace {

std::uint32_t offsetOf(const FieldCL& field)
{
    return field.seen != nullptr ? field.seen->begin : 0;
}

// May take the caption from the record.
CheckedControlCL controlOf(const RecordViewCL& view, int kind, [[maybe_unused]] const char* kindName,
    int grammar, int record, bool isStacked)
{
    const FieldCL& index = *view.FindM("window_index");
    const FieldCL& id = *view.FindM("function_id");
    const FieldCL& position = *view.FindM("position");
    const FieldCL& size = *view.FindM("size");
    CheckedControlCL control;
    control.kind = static_cast<std::int16_t>(kind);
    control.grammar = static_cast<std::int16_t>(grammar);
    control.record = record;
    control.isStacked = isStacked;
    control.windowIndex = index.ints[0];
    control.id = id.ints[0];
    control.x = position.ints[0];
    control.y = position.ints[1];
    control.w = size.ints[0];
    control.h = size.ints[1];
    control.idAt = offsetOf(id);
    control.indexAt = offsetOf(index);
    control.positionAt = offsetOf(position);
#ifdef _WIN32
    control.kindName = kindName;
    control.isSunken = kind == LabelCode && view.IntM("edge") == 1;
#endif
    static constexpr KindsCL Captioned { LabelCode, GroupBoxCode, CheckBoxCode, RadioBoxCode,
        StandardButtonCode };
    static constexpr KindsCL Texts { LabelCode, GroupBoxCode };
    static constexpr KindsCL MayBeReadOnly { SingleEditCode, MultiEditCode };
    if (control.IsM(Captioned)) {
        const FieldCL& caption = *view.FindM(control.IsM(Texts) ? "text" : "caption");
        control.hasText = kind == LabelCode && !caption.text->EmptyM();
#ifdef _WIN32
        control.captionAt = offsetOf(caption);
        control.caption = std::move(*caption.text);
#endif
    }
    control.isReadOnly = control.IsM(MayBeReadOnly) && view.IntM("read_only") == 1;
    control.isDefault = kind == StandardButtonCode && view.IntM("default_button") == 1;
    control.group = kind == RadioBoxCode ? view.IntM("group") : 0;
    if (kind == SpinEditCode && view.IntM("data_type") > 0) {
        control.windowIndex = view.IntM("edit_window_index");
        control.indexAt = offsetOf(*view.FindM("edit_window_index"));
        control.arrowsId = view.IntM("spin_function_id");
        control.arrowsAt = offsetOf(*view.FindM("spin_function_id"));
    }
    return control;
}

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

StackTP stackOf(const CheckedControlsTP& controls)
{
    struct PlaceCL
    {
        int index;
        std::uint32_t control;
        bool operator<(const PlaceCL& other) const { return index < other.index; }
    };
    std::vector<PlaceCL> places;
    places.reserve(controls.size());
    for (std::size_t i = 0; i < controls.size(); ++i) {
        if (controls[i].isStacked) {
            places.push_back({ controls[i].windowIndex, static_cast<std::uint32_t>(i) });
        }
    }
    sortRows(places);
    StackTP stack;
    stack.reserve(controls.size());
    for (const PlaceCL& place : places) {
        stack.push_back(&controls[place.control]);
    }
    for (const CheckedControlCL& control : controls) {
        if (!control.isStacked) {
            stack.push_back(&control);
        }
    }
    return stack;
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
        controls_.erase(std::remove_if(controls_.begin(), controls_.end(),
                            [this](const CheckedControlCL& control) {
                                return !isSoundM(control.grammar, control.record);
                            }),
            controls_.end());
        newRotateButtonsM();
        takeFindingsM();
        invisibleStatesM();
        checkEntries(file_, pictures_, findings_);
        checkLists(file_, findings_);
        checkIds(file_, controls_, findings_);
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
    void valuesM(int grammar, int record)
    {
        checkValues(file_, view_, named_, found_);
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
                    pictures_.CheckM(std::string(file_.TextM().CutM(named_[i])), named_[i].begin, findings_);
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
        file_.ReadKindM<RecordsTP>([&](int i, typename RecordsTP::RecordTP& record) {
            view_.BeginM(section, i);
            record.EachCommonFieldM(view_);
            record.EachFieldM(view_);
            if (isInvisible(RowTP::Code, view_)) {
                found_.AddM(Says::InvisibleTabStop, offsetOf(*view_.FindM("function_id")));
            }
            recordM(RowTP::Code, RecordsTP::KindName, grammar, i, RowTP::CanM(Stacked));
        });
    }
    void recordM(int kind, const char* kindName, int grammar, int record, bool isStacked)
    {
        checkRanges(kind, view_, found_);
        valuesM(grammar, record);
        controls_.push_back(controlOf(view_, kind, kindName, grammar, record, isStacked));
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
    CheckedControlsTP controls_;
    FindingsCL found_;           // In records, sound or not,
    std::vector<SpanCL> named_;  // and the names of pictures that they have.
    std::vector<FoundCL> marks_; // Which of them were found where.
};

} // namespace

void checkRecords(FileReadingCL& file, const std::filesystem::path& folder, const TranslationCL& translation,
    FindingsCL& findings)
{
    RecordsCheckerCL(file, folder, translation, findings).CheckM();
}

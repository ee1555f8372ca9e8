// Every record on its own; what the checks across records need of it is kept.
#include "baselib/gbk.h"
#include "baselib/gbk_texts.h"
#include "check.h"
#include "control_list.h"
#include <cstring>

namespace {

std::size_t offsetOf(const RecordViewCL& view, const char* name)
{
    const FieldCL* const field = view.FindM(name);
    return field != nullptr && field->seen != nullptr ? field->seen->begin : 0;
}

CheckedControlCL controlOf(const RecordViewCL& view, int kind, const char* kindName, int grammar, int record,
    bool isStacked, int place)
{
    CheckedControlCL control { kind, kindName, grammar, record, isStacked, place, view.IntM("window_index"),
        view.IntM("function_id"), view.IntM("position"), view.IntM("position", 1), view.IntM("size"),
        view.IntM("size", 1), offsetOf(view, "function_id"), offsetOf(view, "window_index"),
        offsetOf(view, "position") };
    if (control.IsM({ LabelCode, GroupBoxCode, CheckBoxCode, RadioBoxCode, StandardButtonCode })) {
        const char* const name = control.IsM({ LabelCode, GroupBoxCode }) ? "text" : "caption";
        control.caption = view.FindM(name)->text;
        control.captionAt = offsetOf(view, name);
        control.hasText = kind == LabelCode && !control.caption->EmptyM();
        control.isSunken = kind == LabelCode && view.IntM("edge") == 1;
    }
    control.isReadOnly = control.IsM({ SingleEditCode, MultiEditCode }) && view.IntM("read_only") == 1;
    control.isDefault = kind == StandardButtonCode && view.IntM("default_button") == 1;
    control.group = kind == RadioBoxCode ? view.IntM("group") : 0;
    if (kind == SpinEditCode && view.IntM("data_type") > 0) {
        control.windowIndex = view.IntM("edit_window_index");
        control.indexAt = offsetOf(view, "edit_window_index");
        control.arrowsId = view.IntM("spin_function_id");
        control.arrowsAt = offsetOf(view, "spin_function_id");
    }
    return control;
}

// Where the fields of a kind leave nothing to see although Tab stops there.
bool isInvisible(int kind, const RecordViewCL& view, std::size_t rows)
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
    case MultiStateButtonCode:
        return rows == 0;
    default:
        return false;
    }
}

// How many entries of a kind's one secondary section name each id.
std::unordered_map<int, std::size_t> entriesById(FileReadingCL& file, const SeenSectionCL& section)
{
    std::unordered_map<int, std::size_t> counts;
    for (int i = 0; i < section.RecordsM(); ++i) {
        ++counts[file.NumberM(section, i, "function_id")];
    }
    return counts;
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
    {
    }
    void CheckM()
    {
        dialogM();
        std::size_t records = 0;
        for (std::size_t i = 0; i < slGrammars().size(); ++i) {
            const auto sound = static_cast<std::size_t>(file_.SectionM(static_cast<int>(i)).soundRecords);
            records += slGrammars()[i].owner == nullptr ? sound : 0;
        }
        controls_.reserve(records);
        slEachKind([this](auto row) { kindM<decltype(row)>(); });
        newRotateButtonsM();
        checkEntries(file_, pictures_, findings_);
        checkLists(file_, findings_);
        checkIds(file_, controls_, findings_);
        checkBindings(file_, controls_, pictures_, findings_);
        checkPlaces(file_, controls_, findings_);
#ifdef _WIN32
        checkCaptions(file_, controls_, translation_, findings_);
#endif
        checkOrder(file_, controls_, findings_);
    }

private:
    void dialogM()
    {
        const SeenSectionCL& section = file_.SectionM(DialogGrammar);
        if (file_.HasDialogM() && section.soundRecords > 0) {
            view_.BeginM(section, 0);
            file_.DialogM().EachFieldM(view_);
            checkValues(file_, view_, pictures_, findings_);
        }
    }
    template <class RowTP> void kindM()
    {
        using RecordsTP = typename RowTP::Records;
        const int grammar = slGrammarOf(RecordsTP::Header);
        const SeenSectionCL& section = file_.SectionM(grammar);
        std::unordered_map<int, std::size_t> entries;
        if constexpr (RowTP::Code == MultiStateButtonCode) {
            entries = entriesById(file_, file_.SectionM(grammar + 1));
        }
        for (int i = 0; i < section.soundRecords; ++i) {
            auto& record = file_.RecordsM<RecordsTP>().ElementAtM(i);
            view_.BeginM(section, i);
            record.EachCommonFieldM(view_);
            record.EachFieldM(view_);
            recordM(RowTP::Code, RecordsTP::KindName, grammar, i, RowTP::CanM(Stacked));
            if ((RowTP::Code != MultiStateButtonCode || file_.IsSoundM(MultiStateButtonDataHeader))
                && isInvisible(RowTP::Code, view_, entries[record.GetFuncIDM()])) {
                findings_.AddM(Says::InvisibleTabStop, controls_.back().idAt);
            }
        }
    }
    void recordM(int kind, const char* kindName, int grammar, int record, bool isStacked)
    {
        checkValues(file_, view_, pictures_, findings_);
        checkRanges(file_, kind, view_, findings_);
        controls_.push_back(
            controlOf(view_, kind, kindName, grammar, record, isStacked, static_cast<int>(controls_.size())));
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
};

} // namespace

void checkRecords(FileReadingCL& file, const std::filesystem::path& folder, const TranslationCL& translation,
    FindingsCL& findings)
{
    RecordsCheckerCL(file, folder, translation, findings).CheckM();
}

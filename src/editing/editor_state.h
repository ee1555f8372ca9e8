#pragma once
#include "editing/edit_places.h"
#include "editing/edit_plan.h"
#include <functional>
#include <optional>

// The file that an editor has, what has been done to it, and what its records are to each other.
class EditorStateCL
{
public:
    explicit EditorStateCL(std::string_view bytes);

    const std::shared_ptr<const FileTextCL>& TextM() const { return text_; }
    const SeenSectionsCL& SeenM() const;
    const TextChangesTP& ChangesM() const { return changes_; }
    std::string_view BytesM() const { return text_->CutM({ 0, text_->SizeM() }); }
    EditPlanCL PlanM() const { return { *text_, SeenM() }; }

    // Makes changes if what is read then is what is planned; null: whatever is read.
    EditResult DoM(TextChangesTP changes, const EditPlanCL* plan);
    EditResult DoM(const EditPlanCL& plan) { return DoM(plan.ChangesM(), &plan); }
    bool UndoM();
    bool RedoM();

    // The grammar of a place's section; -1 when it has no records or, except for the last one, the record
    // isn't there.
    int SectionAtM(const RecordPlaceCL& place) const;
    int RecordAtM(const RecordPlaceCL& place) const;
    int FlagsM(int grammar) const; // HeadFlag, from the numbers of a signed head.

    // The ids of all controls, those among them that stand in other fields of theirs.
    std::vector<int> IdsM() const;
    int FreeIdM(int from, const std::vector<int>& others = {}) const;
    // The window index behind the highest one.
    int NextIndexM() const;
    // Calls see(grammar, record) for each record elsewhere that belongs to a control: its entries, and the
    // relations of its id unless another control has it too. False when one of their sections isn't sound.
    bool EachDependantM(const EditPlanCL& plan, int grammar, int record,
        const std::function<void(int grammar, int record)>& see) const;
    // The secondary section of a grammar that names records by their places; -1: none.
    static int ByPlaceM(int grammar);

private:
    int controlsWithM(int id) const;
    void goM(const TextChangesTP& changes);

    struct StepCL
    {
        TextChangesTP done;
        TextChangesTP undoing;
    };
    std::shared_ptr<const FileTextCL> text_;
    mutable std::optional<SeenSectionsCL>
        seen_; // Read when it is asked for: many steps may be taken back at once.
    std::vector<StepCL> steps_;
    std::size_t stepsDone_ { 0 }; // Those behind them have been undone.
    TextChangesTP changes_;       // The last ones.
};

inline const GrammarCL& grammarOf(int grammar)
{
    return slGrammars()[static_cast<std::size_t>(grammar)];
}
// Whether a grammar's records are controls.
bool isOfControls(const GrammarCL& grammar);

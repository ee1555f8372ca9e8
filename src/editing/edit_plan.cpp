#include "editing/edit_plan.h"
#include "baselib/number_text.h"
#include <algorithm>
#include <cstring>

namespace {

bool isMeant(const MeantRecordTP& meant, const FileTextCL& text, const SeenSectionCL& section, int record)
{
    const SeenValueCL* value = section.FirstM(record);
    const auto count = static_cast<std::size_t>(section.EndM(record) - value);
    return meant.size() == count && std::all_of(meant.begin(), meant.end(), [&](const MeantValueCL& one) {
        const SeenValueCL& seen = *value++;
        return one.part == seen.part && one.field == seen.field && !seen.IsAbsentM() && seen.fate != Fate::Cut
            && seen.fate != Fate::Saturated && text.CutM(seen.SpanM()) == one.text;
    });
}

} // namespace

EditPlanCL::EditPlanCL(const FileTextCL& text, const SeenSectionsCL& seen)
    : text_(text)
    , seen_(seen)
{
}

bool EditPlanCL::isNumberM(SpanCL span, std::size_t regionEnd) const
{
    return !span.EmptyM() && span.end <= regionEnd
        && (span.end == text_.SizeM() || slIsBlank(text_.BytesM()[span.end]));
}

bool EditPlanCL::IsSoundM(int grammar) const
{
    const SeenSectionCL& section = seen_.AtM(grammar);
    const SectionSeenCL& head = section.head;
    const HeadKind kind = slGrammars()[static_cast<std::size_t>(grammar)].head;
    if (!section.IsThereM() || kind == HeadKind::Line) {
        return false;
    }
    if (kind != HeadKind::Comments && !isNumberM(head.countSpan, section.regionEnd)) {
        return false;
    }
    if (head.status == SectionStatus::Empty) {
        int count = -1;
        const std::string_view text = text_.CutM(head.countSpan);
        slReadInt(text.data(), text.data() + text.size(), &count);
        return count == 0;
    }
    return head.status == SectionStatus::Read && isNumberM(head.commentCount, section.regionEnd)
        && head.comments.end <= section.regionEnd
        && (kind == HeadKind::Comments || head.count == section.RecordsM())
        && std::all_of(section.values.begin(), section.values.end(), [&section](const SeenValueCL& value) {
               return !value.IsAbsentM() && value.end <= section.regionEnd;
           });
}

void EditPlanCL::SetM(int grammar, int record, std::size_t value, const std::string& text)
{
    SectionPlanCL& plan = of_[grammar];
    const auto place = plan.meant.find(record);
    MeantRecordTP& meant
        = place != plan.meant.end() ? place->second : plan.meant[record] = MeantM(grammar, record);
    meant[value].text = text;
    plan.changes.push_back({ seen_.AtM(grammar).FirstM(record)[value].SpanM(), text });
}

void EditPlanCL::RewriteM(int grammar, int record, const TextChangesTP& changes, MeantRecordTP meant)
{
    SectionPlanCL& plan = of_[grammar];
    plan.meant[record] = std::move(meant);
    plan.changes.insert(plan.changes.end(), changes.begin(), changes.end());
}

void EditPlanCL::AddSectionM(int grammar, TextChangeCL change, std::vector<MeantRecordTP> records)
{
    SectionPlanCL& plan = of_[grammar];
    plan.isNew = true;
    plan.changes.push_back(std::move(change));
    for (MeantRecordTP& record : records) {
        plan.inserted[0].push_back({ {}, std::move(record) });
    }
}

MeantRecordTP EditPlanCL::MeantM(int grammar, int record) const
{
    const SeenSectionCL& section = seen_.AtM(grammar);
    MeantRecordTP meant;
    for (const SeenValueCL* value = section.FirstM(record); value != section.EndM(record); ++value) {
        meant.push_back({ value->field, value->part, std::string(TextOfM(*value)) });
    }
    return meant;
}

NewRecordCL EditPlanCL::CopyM(int grammar, int record, const std::map<std::size_t, std::string>& others) const
{
    const SeenSectionCL& section = seen_.AtM(grammar);
    std::size_t begin = 0;
    NewRecordCL copy { RecordLinesCL(bytesM(), section).CutM(record, &begin), MeantM(grammar, record) };
    TextChangesTP changes;
    for (const auto& [value, text] : others) {
        const SeenValueCL& seen = section.FirstM(record)[value];
        changes.push_back({ { seen.begin - begin, seen.end - begin }, text });
        copy.meant[value].text = text;
    }
    copy.text.lines = slWithChanges(copy.text.lines, changes);
    return copy;
}

int EditPlanCL::NumberM(int grammar, int record, const char* field) const
{
    const SeenValueCL* const value = seen_.AtM(grammar).FindM(record, field);
    int number = 0;
    if (value != nullptr && !value->IsAbsentM()) {
        const std::string_view text = TextOfM(*value);
        slReadInt(text.data(), text.data() + text.size(), &number);
    }
    return number;
}

void EditPlanCL::addRecordChangesM(int grammar, const SectionPlanCL& plan, TextChangesTP& changes) const
{
    const SeenSectionCL& section = seen_.AtM(grammar);
    const RecordLinesCL lines(bytesM(), section);
    int count = section.RecordsM();
    for (const auto& [before, records] : plan.inserted) {
        for (const NewRecordCL& record : records) {
            changes.push_back(lines.InsertingM(before, record.text));
            ++count;
        }
    }
    for (auto first = plan.deleted.begin(); first != plan.deleted.end();) {
        int last = *first;
        const int begin = last;
        for (++first; first != plan.deleted.end() && *first == last + 1; ++first) {
            ++last; // A run of them may share lines.
        }
        changes.push_back(lines.DeletingM(begin, last));
        count -= last - begin + 1;
    }
    if (count == section.RecordsM()) {
        return;
    }
    const std::string_view said = text_.CutM(section.head.countSpan);
    const bool isNegative = said[0] == '-' && count > 0;
    changes.push_back({ section.head.countSpan, (isNegative ? "-" : "") + std::to_string(count) });
    bool hasComments = true;
    if (section.head.status == SectionStatus::Empty) {
        slEndOfEmptyHead(section, bytesM(), &hasComments);
    }
    if (!hasComments) { // The rest of a head that nobody has missed so far.
        TextChangeCL number = lines.InsertingM(0, { "0", lines.LineEndM() });
        changes.insert(changes.begin(), std::move(number));
    }
}

TextChangesTP EditPlanCL::ChangesM() const
{
    TextChangesTP all;
    for (const auto& [grammar, plan] : of_) {
        all.insert(all.end(), plan.changes.begin(), plan.changes.end());
        if (!plan.isNew) {
            TextChangesTP changes;
            addRecordChangesM(grammar, plan, changes);
            all.insert(all.end(), changes.begin(), changes.end());
        }
    }
    // What is inserted stands before what else begins there.
    std::stable_sort(all.begin(), all.end(), [](const TextChangeCL& one, const TextChangeCL& other) {
        return std::make_pair(one.span.begin, one.span.end)
            < std::make_pair(other.span.begin, other.span.end);
    });
    return all;
}

bool EditPlanCL::areSameM(const SeenSectionCL& section, int record, const FileTextCL& after,
    const SeenSectionCL& other, int otherRecord) const
{
    const SeenValueCL* value = section.FirstM(record);
    const SeenValueCL* const end = section.EndM(record);
    const SeenValueCL* now = other.FirstM(otherRecord);
    if (end - value != other.EndM(otherRecord) - now) {
        return false;
    }
    for (; value != end; ++value, ++now) {
        const bool isSame = value->part == now->part && value->fate == now->fate
            && (value->field == now->field || std::strcmp(value->field, now->field) == 0)
            && TextOfM(*value) == after.CutM(now->SpanM());
        if (!isSame) {
            return false;
        }
    }
    return true;
}

bool EditPlanCL::isSectionMetM(
    int grammar, const SectionPlanCL& plan, const FileTextCL& after, const SeenSectionCL& section) const
{
    const SeenSectionCL& before = seen_.AtM(grammar);
    int now = 0;
    const auto isNext = [&](const MeantRecordTP& meant) {
        return now < section.RecordsM() && isMeant(meant, after, section, now++);
    };
    for (int record = 0; record <= before.RecordsM(); ++record) {
        const auto inserted = plan.inserted.find(record);
        if (inserted != plan.inserted.end()
            && !std::all_of(inserted->second.begin(), inserted->second.end(),
                [&](const NewRecordCL& one) { return isNext(one.meant); })) {
            return false;
        }
        if (record == before.RecordsM() || plan.deleted.count(record) != 0) {
            continue;
        }
        const auto meant = plan.meant.find(record);
        const bool isMet = meant != plan.meant.end()
            ? isNext(meant->second)
            : now < section.RecordsM() && areSameM(before, record, after, section, now++);
        if (!isMet) {
            return false;
        }
    }
    return now == section.RecordsM() && section.IsThereM();
}

bool EditPlanCL::IsMetM(const FileTextCL& after, const SeenSectionsCL& seen) const
{
    static const SectionPlanCL Nothing;
    const auto count = static_cast<int>(slGrammars().size());
    for (int i = 0; i < count; ++i) {
        const auto plan = of_.find(i);
        const bool isMet = plan != of_.end() ? isSectionMetM(i, plan->second, after, seen.AtM(i))
            : seen_.AtM(i).head.status != seen.AtM(i).head.status
            ? false
            : !seen.AtM(i).IsThereM() || isSectionMetM(i, Nothing, after, seen.AtM(i));
        if (!isMet) {
            return false;
        }
    }
    return true;
}

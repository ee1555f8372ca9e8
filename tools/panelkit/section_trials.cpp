#include "section_trials.h"
#include <algorithm>

SectionTrialsCL::SectionTrialsCL(FileReadingCL& file, int grammar)
    : bytes_(file.TextM().CutM({ 0, file.TextM().SizeM() }))
    , number_(grammar)
    , region_ { file.SectionM(grammar).head.headerSpan.begin, file.SectionM(grammar).regionEnd }
{
    constexpr std::size_t Budget = 8'000'000; // Bytes to be read in all.
    left_ = static_cast<int>(std::clamp<std::size_t>(Budget / (region_.end - region_.begin + 1), 2, 200));
}

TrialCL SectionTrialsCL::TryM(SpanCL replaced, const std::string& by)
{
    TrialCL trial;
    oddTexts_ = 0;
    if (left_-- <= 0) {
        return trial;
    }
    std::string text(bytes_.substr(region_.begin, replaced.begin - region_.begin));
    text.append(by).append(bytes_.substr(replaced.end, region_.end - replaced.end));
    const auto shared = std::make_shared<const FileTextCL>(text);
    VrIOCL io;
    io.OpenM(shared);
    SeenSectionsCL seen;
    io.SetObserverM(&seen);
    slReadAlone(io, number_);
    trial.section = std::move(seen.AtM(number_));
    trial.section.regionEnd = text.size();
    trial.layout = layoutOf(trial.section, shared->CutM({ 0, text.size() }), number_ != DialogGrammar);
    for (const SeenValueCL& value : trial.section.values) {
        oddTexts_ += isRowOfNumbers(shared->CutM({ value.begin, value.end }), 3) ? 1 : 0;
    }
    return trial;
}

#include "dialog/binding.h"
#include "baselib/gbk_texts.h"
#include <algorithm>
#include <climits>
#include <cstdint>

namespace {

constexpr ChoiceCL EdgeBindings[]
    = { { EdgeStays, "stays" }, { EdgeMoves, "moves" }, { EdgeShares, "shares" } };

// The order in which edges go further: stay, share, move.
int reachOf(int binding)
{
    return binding == EdgeMoves ? 2 : binding == EdgeShares ? 1 : 0;
}

// By how many pixels an edge goes.
int shiftOf(int edge, int binding, int size, int more)
{
    if (binding == EdgeMoves) {
        return more;
    }
    if (binding != EdgeShares || size <= 0) {
        return 0;
    }
    const auto inside = static_cast<std::uint64_t>(std::clamp(edge, 0, size));
    const auto whole = static_cast<std::uint64_t>(size);
    return static_cast<int>((inside * static_cast<std::uint64_t>(more) + whole / 2) / whole);
}

int toEdge(std::int64_t edge)
{
    return static_cast<int>(std::clamp<std::int64_t>(edge, INT_MIN, INT_MAX));
}

void bindPair(int& low, int& high, int lowBinding, int highBinding, int size, int more, bool keepsSize)
{
    std::int64_t lowShift = shiftOf(low, lowBinding, size, more);
    std::int64_t highShift = shiftOf(high, highBinding, size, more);
    if (keepsSize) {
        lowShift = highShift = (lowShift + highShift) / 2;
    }
    low = toEdge(low + lowShift);
    high = std::max(low, toEdge(high + highShift));
}

} // namespace

void BindingCL::EachFieldM(FieldVisitorCL& visitor)
{
    visitor.IdM("control", control);
    visitor.ChoiceM("left", left, EdgeBindings);
    visitor.ChoiceM("top", top, EdgeBindings);
    visitor.ChoiceM("right", right, EdgeBindings);
    visitor.ChoiceM("bottom", bottom, EdgeBindings);
}

bool BindingCL::ShrinksM(Along along) const
{
    return along == Along::X ? reachOf(left) > reachOf(right) : reachOf(top) > reachOf(bottom);
}

bool BindingCL::StretchesM(Along along) const
{
    return along == Along::X ? reachOf(left) < reachOf(right) : reachOf(top) < reachOf(bottom);
}

GrowthCL::GrowthCL(const int (&fileSize)[2], int width, int height)
    : size { fileSize[0], fileSize[1] }
    , more { static_cast<int>(std::clamp<std::int64_t>(std::int64_t { width } - fileSize[0], 0, INT_MAX)),
        static_cast<int>(std::clamp<std::int64_t>(std::int64_t { height } - fileSize[1], 0, INT_MAX)) }
{
}

EdgesCL slBoundEdges(
    const EdgesCL& described, const BindingCL& binding, const GrowthCL& growth, const KeptSizeCL& kept)
{
    EdgesCL edges = described;
    bindPair(
        edges.left, edges.right, binding.left, binding.right, growth.size[0], growth.more[0], kept.width);
    bindPair(
        edges.top, edges.bottom, binding.top, binding.bottom, growth.size[1], growth.more[1], kept.height);
    return edges;
}

SectionStatus slReadBindings(VrIOCL& io, const std::function<int(BindingCL& binding)>& take)
{
    BindingCL binding;
    FieldCounterCL values;
    binding.EachFieldM(values);
    SectionReaderCL section(io, BindingHeader);
    section.OpenM(values.ValuesM());
    for (int i = 0; i < section.CountM(); ++i) {
        binding = BindingCL();
        binding.EachFieldM(section.RecordM(i));
        if (take != nullptr && take(binding) == 0) {
            section.DropM(EntryFault::UnknownId);
        }
    }
    return section.StatusM();
}

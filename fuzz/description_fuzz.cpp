// Feeds broken description files to all that reads them: every record, sections with their entries,
// relations and bindings, with and without somebody who is told what is found; or brings the records to
// another scale and the controls to other places. Run by scripts/fuzz with the corpus in
// fuzz/corpus/description. The length of an input says which.
#include "baselib/number_text.h"
#include "controls/lists/tree_lines.h"
#include "dialog/binding.h"
#include "dialog/reading_diagnostics.h"
#include "editing/seen_sections.h"
#include "reading.h"
#include "records/scaling.h"
#include "support/read_model.h"
#include <cstdint>
#include <cstdlib>

namespace {

std::string allOf(const std::shared_ptr<const FileTextCL>& text, ReadObserverCL* observer)
{
    VrIOCL io;
    io.OpenM(text);
    io.SetObserverM(observer);
    DialogHeaderCL header;
    FieldTextCL dialog;
    slReadDialogHeader(io, header);
    header.EachFieldM(dialog);
    std::string all = dialog.text;
    const ShownDialogCL shown = shownOf(io);
    for (const ShownControlCL& control : shown.controls) {
        all += control.section + control.text + "\n";
    }
    for (const std::string& relation : shown.relations) {
        all += relation + "\n";
    }
    return all;
}

// Each value that was told lies in the file, behind the one before it in its section.
void checkPlaces(const SeenSectionsCL& seen, std::size_t size)
{
    for (std::size_t i = 0; i < slGrammars().size(); ++i) {
        const SeenSectionCL& section = seen.AtM(static_cast<int>(i));
        std::size_t at = 0;
        for (const SeenValueCL& value : section.values) {
            if (value.begin < at || value.end < value.begin || value.end > size) {
                std::abort();
            }
            at = value.begin;
        }
    }
}

// As a tree takes its lines: each is placed at most once.
void growTree(const SeenSectionsCL& seen, const FileTextCL& text)
{
    const SeenSectionCL& section = seen.AtM(slGrammarOf(TreeDataHeader));
    TreeLinesCL lines;
    for (int i = 0; i < section.RecordsM() && i < 200; ++i) {
        int numbers[3] = {};
        const SeenValueCL* value = section.FirstM(i) + 1;
        for (int& number : numbers) {
            const std::string_view found = text.CutM((value++)->SpanM());
            slReadInt(found.data(), found.data() + found.size(), &number);
        }
        lines.AddM(numbers, std::string(text.CutM(value->SpanM())).c_str(), "a", "b");
    }
    const int count = lines.GetAvailableNumM();
    int placed = 0;
    lines.GenerateM(0, nullptr, [&placed, &lines](void*, const TreeLinesCL::LineCL& line) -> void* {
        ++placed;
        return line.data % 7 != 3 ? &lines : nullptr;
    });
    if (placed + lines.GetAvailableNumM() != count) {
        std::abort();
    }
}

// A control as large as the dialog may be, at that size and at others.
void bind(const BindingCL& binding, const int (&size)[2])
{
    const EdgesCL described { size[0] / 4, size[1] / 4, size[0] / 2, size[1] / 2 };
    const EdgesCL same = slBoundEdges(described, binding, GrowthCL(size, size[0], size[1]));
    if (same.left != described.left || same.top != described.top
        || (size[0] >= 0 && same.right != described.right)
        || (size[1] >= 0 && same.bottom != described.bottom)) {
        std::abort();
    }
    for (const int width : { size[0] / 2 + 1000, 2147483647 }) {
        for (const bool keepsSize : { false, true }) {
            const EdgesCL grown
                = slBoundEdges(described, binding, GrowthCL(size, width, width), { keepsSize, keepsSize });
            if (grown.right < grown.left || grown.bottom < grown.top) {
                std::abort();
            }
        }
    }
}

void scaleAndBind(VrIOCL& io, int percent)
{
    const ScaleCL scale(percent);
    DialogHeaderCL header;
    slReadDialogHeader(io, header);
    ScalingCL scaling(scale);
    header.EachFieldM(scaling);
    slEachKind([&](auto row) {
        slEachRecordRead<typename decltype(row)::Records>(
            io, [&scale](int, auto& record) { slScaleRecord(record, scale); });
    });
    class SizeCL : public FieldVisitorCL
    {
    public:
        void LengthPairM(const char* name, int (&xy)[2]) override
        {
            if (name == std::string_view("size")) {
                std::copy(xy, xy + 2, size);
            }
        }
        int size[2] {};
    } size;
    header.EachFieldM(size);
    slReadBindings(io, [&size](BindingCL& binding) {
        bind(binding, size.size);
        return binding.control % 5 != 0;
    });
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const auto text
        = std::make_shared<const FileTextCL>(std::string_view(reinterpret_cast<const char*>(data), size));
    if (size % 2 == 0) {
        SeenSectionsCL seen;
        if (allOf(text, nullptr) != allOf(text, &seen)) {
            std::abort();
        }
        checkPlaces(seen, size);
        growTree(seen, *text);
        return 0;
    }
    checkPlaces(slReadSections(text), size);
    VrIOCL io;
    io.OpenM(text);
    ReadingDiagnosticsCL diagnostics([](const DiagnosticCL&, void*) {}, nullptr, true);
    diagnostics.WatchM("fuzz.dlg", io);
    readAllSections(io, [](const char*, auto&) {});
    io.SetObserverM(nullptr);
    scaleAndBind(io, 50 + static_cast<int>(size % 300));
    return 0;
}

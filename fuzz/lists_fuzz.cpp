// Feeds broken lists of texts, in both forms, to their reader, and what it read once more through a file. Run
// by scripts/fuzz with the corpus in fuzz/corpus/lists. The first byte of an input says which form.
#include "containers/string_arr.h"
#include "memory_file.h"

namespace {

std::string textOf(const VrStringArr& list)
{
    std::string all;
    for (int i = 0; i < list.GetBoundM(); ++i) {
        all += std::string(list.CheckAvailableM(i) != 0 ? "" : "x") + list.GetItemPM(i)->TextM() + "\n";
    }
    return all;
}

void read(const std::string& path, bool isBinary, VrStringArr& list)
{
    VrIOCL io;
    io.OpenM(path.c_str(), isBinary ? "rb" : "r");
    list.FmInputEvrLstM(&io);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size == 0) {
        return 0;
    }
    const bool isBinary = data[0] % 2 != 0;
    const MemoryFileCL file(data + 1, size - 1);
    VrStringArr list;
    read(file.PathM(), isBinary, list);
    const MemoryFileCL written(data, 0);
    VrIOCL out;
    out.OpenM(written.PathM().c_str(), isBinary ? "wb" : "w");
    list.FmOutputEvrLstM(&out, "list");
    out.CloseM();
    VrStringArr again;
    read(written.PathM(), isBinary, again);
    if (textOf(again) != textOf(list)) {
        std::abort();
    }
    return 0;
}

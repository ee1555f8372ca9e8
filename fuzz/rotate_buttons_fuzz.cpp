// Feeds broken description files to the readers of both kinds of rotate buttons, and turns a picture by what
// the file says; run by scripts/fuzz with the corpus in fuzz/corpus/rotate_buttons. The first two bytes of an
// input are the width and height of the picture, the rest is the file.
#include "baselib/io.h"
#include "controls/buttons/new_rotate_btn_record.h"
#include "controls/buttons/rotate_btn_record.h"
#include "memory_file.h"
#include "pictures/rotation.h"
#include "records/section.h"
#include <cstdint>
#include <cstdlib>
#include <map>
#include <string>
#include <vector>

namespace {

// What a record says of places and angles.
class TurnCL : public FieldVisitorCL
{
public:
    void RealM(const char* name, float& value) override { reals[name] = value; }
    void IntsM(const char* name, int* values, int count) override
    {
        pairs[name] = { values, values + count };
    }

    std::map<std::string, float> reals;
    std::map<std::string, std::vector<int>> pairs;
};

// The blocks are as large as the picture and not a byte larger: a step outside is seen.
void turn(int width, int height, TurnCL& turn)
{
    const auto size = static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
    std::vector<std::uint32_t> picture(size, 0x123456);
    for (std::size_t i = 0; i < size; i += 3) {
        picture[i] = 0xFFFFFF;
    }
    std::vector<std::uint32_t> onto(size);
    float angle = turn.reals["initial_angle"];
    for (const int sign : turn.pairs["step_signs"]) {
        slDrawRotated({ picture.data(), width, height }, { onto.data(), width, height },
            turn.pairs["picture_position"].data(), turn.pairs["centre"].data(), angle);
        angle = slAngleAfterStep(angle, sign, turn.reals["step_angle"]);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size < 2) {
        return 0;
    }
    const MemoryFileCL file(data + 2, size - 2);
    VrIOCL io;
    io.OpenM(file.PathM().c_str(), "r");
    DVrRotateBtnArr knobs;
    int count = 0;
    slReadSection(io, knobs, &count);
    for (int i = knobs.GetFirstIdxM(); i >= 0 && i < 8; i = knobs.GetNextIdxM(i)) {
        TurnCL values;
        knobs.ElementAtM(i).EachFieldM(values);
        turn(1 + data[0] % 40, 1 + data[1] % 40, values);
    }
    DVrNewRotateBtnArr series;
    series.FmReadInterfaceM(&io);
    return 0;
}

#include "baselib/io.h"
#include "support/temp_file.h"
#include <array>
#include <gtest/gtest.h>
#include <random>

namespace {

// Bytes of which many mean something to the reader.
std::string randomBytes(std::mt19937& random)
{
    static const char telling[] = "0123456789+-.eE \t\r\n\0[]\x81\xFE\x5B\x40\x80\xFF";
    std::string bytes(random() % 400, ' ');
    for (char& byte : bytes) {
        byte = random() % 4 == 0 ? static_cast<char>(random()) : telling[random() % sizeof telling];
    }
    return bytes;
}

// One reading operation; what it stores must stay within its buffer.
void readOnce(VrIOCL& io, std::mt19937& random)
{
    int ints[3] = {};
    float reals[2] = {};
    char byte = 0;
    CharArr text;
    std::array<char, 300> buffer;
    buffer.fill('#');
    const int size = static_cast<int>(random() % 262) - 1;
    switch (random() % 10) {
    case 0:
        io.InputDM(&ints[0], &ints[1], nullptr, &ints[2]);
        break;
    case 1:
        io.InputInt3DM(ints);
        break;
    case 2:
        io.InputRM(&reals[0], &reals[1]);
        break;
    case 3:
        io.InputCM(&byte);
        break;
    case 4:
        io.InputGetsM(buffer.data(), size);
        break;
    case 5:
        io.InputSM(buffer.data(), size, 1);
        break;
    case 6:
        io.InputTextM(&text);
        break;
    case 7:
        io.SkipLineM();
        break;
    case 8:
        io.SkipSomeLinesM(size);
        break;
    default:
        io.SearchStrM(random() % 2 == 0 ? "[]" : "\x81[");
        break;
    }
    for (int k = 260; k < 300; ++k) {
        ASSERT_EQ(buffer[k], '#');
    }
}

} // namespace

TEST(IoFuzz, NoBytesMakeAnyReadLeaveTheFileOrItsBuffers)
{
    std::mt19937 random(20240131);
    for (int round = 0; round < 300; ++round) {
        const std::string bytes = randomBytes(random);
        const TempFile file(bytes);
        VrIOCL io;
        io.OpenM(file.path(), round % 3 == 0 ? "rb" : "r");
        for (int k = 0; k < 100; ++k) {
            readOnce(io, random);
            ASSERT_LE(io.BytesLeftM(), bytes.size());
        }
    }
}

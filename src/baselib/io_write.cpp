#include "baselib/gbk.h"
#include "baselib/io.h"
#include "baselib/real_text.h"
#include <algorithm>
#include <cfloat>
#include <charconv>
#include <climits>
#include <cmath>
#include <cstdint>
#include <cstring>

namespace {

void toLittleEndian(std::uint32_t bits, unsigned char (&bytes)[4])
{
    for (unsigned char& byte : bytes) {
        byte = static_cast<unsigned char>(bits);
        bits >>= 8;
    }
}

} // namespace

bool VrIOCL::outputBytesM(const void* from, std::size_t count)
{
    if (out_ == nullptr || std::fwrite(from, 1, count, out_) != count) {
        return false;
    }
    if (count > 0) {
        outputLineBegun_ = static_cast<const char*>(from)[count - 1] != '\n';
    }
    return true;
}

int VrIOCL::OutputDM(int value)
{
    if (binary_) {
        unsigned char bytes[4];
        toLittleEndian(static_cast<std::uint32_t>(value), bytes);
        return outputBytesM(bytes, sizeof bytes) ? 1 : 0;
    }
    char text[16];
    char* const end = std::to_chars(text, text + sizeof text - 1, value).ptr;
    *end = ' ';
    return outputBytesM(text, static_cast<std::size_t>(end - text) + 1) ? 1 : 0;
}

int VrIOCL::OutputRM(float value)
{
    if (binary_) {
        std::uint32_t bits = 0;
        std::memcpy(&bits, &value, sizeof bits);
        return OutputDM(static_cast<int>(bits));
    }
    const float finite = std::isnan(value) ? 0.0F : std::clamp(value, -FLT_MAX, FLT_MAX);
    char text[64];
    char* const end = slWriteShortest(text, finite);
    *end = ' ';
    return outputBytesM(text, static_cast<std::size_t>(end - text) + 1) ? 1 : 0;
}

int VrIOCL::OutputSM(const char* text, int most, int flag)
{
    const char* const from = text != nullptr ? text : "";
    std::size_t length = std::strlen(from);
    if (most >= 0) {
        length = slGbkCutLength(from, length, static_cast<std::size_t>(std::max(most - 1, 0)));
    }
    if (binary_) {
        return outputCountedM(from, length);
    }
    const bool written = outputBytesM(from, length) && (flag == 0 || outputBytesM("\n", 1));
    return written ? 1 : 0;
}

int VrIOCL::EndBegunLineM()
{
    return binary_ || !outputLineBegun_ || outputBytesM("\n", 1) ? 1 : 0;
}

int VrIOCL::OutputTextM(const char* text)
{
    const char* const from = text != nullptr ? text : "";
    return outputCountedM(from, std::strlen(from));
}

int VrIOCL::outputCountedM(const char* text, std::size_t length)
{
    const std::size_t kept = slGbkCutLength(text, length, INT_MAX);
    const bool written
        = OutputDM(static_cast<int>(kept)) && outputBytesM(text, kept) && (binary_ || outputBytesM("\n", 1));
    return written ? 1 : 0;
}

#include "baselib/gbk.h"
#include "baselib/io.h"
#include "baselib/number_scan.h"
#include "baselib/number_text.h"
#include "baselib/path.h"
#include <algorithm>
#include <cstdint>
#include <cstring>

namespace {

std::uint32_t littleEndian(const unsigned char* bytes)
{
    return bytes[0] | (std::uint32_t { bytes[1] } << 8) | (std::uint32_t { bytes[2] } << 16)
        | (std::uint32_t { bytes[3] } << 24);
}

constexpr std::size_t NoLength = SIZE_MAX;

} // namespace

void VrIOCL::skipBlanksM()
{
    at_ = slSkipBlanks(at_, end_);
}

bool VrIOCL::inputBytesM(void* to, std::size_t count)
{
    if (BytesLeftM() < count) {
        return false;
    }
    std::memcpy(to, at_, count);
    at_ += count;
    return true;
}

template <typename T> int VrIOCL::inputAllM(T* const (&values)[9], bool (VrIOCL::*input)(T*))
{
    int count = 0;
    for (T* value : values) {
        if (value != nullptr) {
            if (!(this->*input)(value)) {
                break;
            }
            ++count;
        }
    }
    return count;
}

int VrIOCL::InputDM(int* a, int* b, int* c, int* d, int* e, int* f, int* g, int* h, int* i)
{
    return inputAllM({ a, b, c, d, e, f, g, h, i }, &VrIOCL::InputOneM);
}

int VrIOCL::InputRM(float* a, float* b, float* c, float* d, float* e, float* f, float* g, float* h, float* i)
{
    return inputAllM({ a, b, c, d, e, f, g, h, i }, &VrIOCL::InputOneM);
}

int VrIOCL::InputCM(char* a, char* b, char* c, char* d, char* e, char* f, char* g, char* h, char* i)
{
    return inputAllM({ a, b, c, d, e, f, g, h, i }, &VrIOCL::inputCharM);
}

int VrIOCL::InputInt2DM(int pair[2])
{
    if (pair == nullptr) {
        return 0;
    }
    return InputDM(&pair[0], &pair[1]);
}

int VrIOCL::InputInt3DM(int triple[3])
{
    if (triple == nullptr) {
        return 0;
    }
    return InputDM(&triple[0], &triple[1], &triple[2]);
}

int VrIOCL::InputPoint2DM(float pair[2])
{
    if (pair == nullptr) {
        return 0;
    }
    return InputRM(&pair[0], &pair[1]);
}

bool VrIOCL::InputOneM(int* value)
{
    if (binary_) {
        unsigned char bytes[4];
        if (!inputBytesM(bytes, sizeof bytes)) {
            return false;
        }
        *value = static_cast<int>(littleEndian(bytes));
        return true;
    }
    skipBlanksM();
    const char* const begin = at_;
    at_ = slReadInt(begin, end_, value);
    return at_ > begin;
}

bool VrIOCL::InputOneM(float* value)
{
    if (binary_) {
        unsigned char bytes[4];
        if (!inputBytesM(bytes, sizeof bytes)) {
            return false;
        }
        const std::uint32_t bits = littleEndian(bytes);
        std::memcpy(value, &bits, sizeof bits);
        return true;
    }
    skipBlanksM();
    const char* const begin = at_;
    at_ = slReadReal(begin, end_, value);
    return at_ > begin;
}

bool VrIOCL::inputCharM(char* value)
{
    if (!binary_) {
        skipBlanksM();
    }
    return inputBytesM(value, 1);
}

// The length in front of a text, taken only when that many bytes follow it; otherwise NoLength, nothing read.
std::size_t VrIOCL::inputLengthM()
{
    const char* const start = at_;
    int length = -1;
    bool whole = InputOneM(&length) && length >= 0;
    if (whole && !binary_) {
        char space = '\0';
        whole = inputBytesM(&space, 1) && space == ' ';
    }
    if (!whole || static_cast<std::size_t>(length) > BytesLeftM()) {
        at_ = start;
        return NoLength;
    }
    return static_cast<std::size_t>(length);
}

bool VrIOCL::InputItemM(std::string_view* item)
{
    *item = {};
    if (binary_) {
        const std::size_t length = inputLengthM();
        if (length == NoLength) {
            return false;
        }
        *item = { at_, length };
        at_ += length;
        return true;
    }
    const char* const begin = slSkipBlanks(at_, end_);
    at_ = begin;
    if (begin == end_) {
        return false;
    }
    const void* const lineFeed = std::memchr(begin, '\n', BytesLeftM());
    const char* lineEnd = lineFeed != nullptr ? static_cast<const char*>(lineFeed) : end_;
    const char* itemEnd = lineEnd;
    while (slIsBlank(itemEnd[-1])) {
        --itemEnd;
    }
    if (lineFeed != nullptr && lineEnd[-1] == '\r') {
        --lineEnd;
    }
    at_ = lineEnd;
    *item = { begin, static_cast<std::size_t>(itemEnd - begin) };
    return true;
}

int VrIOCL::InputGetsM(char* buffer, int size)
{
    std::string_view item;
    const bool read = InputItemM(&item);
    if (buffer != nullptr && size > 0) {
        const std::size_t kept = slGbkCutLength(item.data(), item.size(), static_cast<std::size_t>(size) - 1);
        std::copy_n(item.data(), kept, buffer);
        buffer[kept] = '\0';
    }
    return read ? 1 : 0;
}

int VrIOCL::InputSM(char* buffer, int most, int)
{
    return InputGetsM(buffer, most < 0 ? PathSize : most);
}

int VrIOCL::InputTextM(CharArr* text)
{
    if (text == nullptr) {
        return 0;
    }
    const std::size_t length = inputLengthM();
    if (length == NoLength) {
        text->SetM("");
        return 0;
    }
    text->SetM(at_, length);
    at_ += length;
    if (!binary_) {
        SkipLineM();
    }
    return 1;
}

int VrIOCL::SkipLineM()
{
    if (at_ < end_) {
        const void* const lineFeed = std::memchr(at_, '\n', BytesLeftM());
        at_ = lineFeed != nullptr ? static_cast<const char*>(lineFeed) + 1 : end_;
    }
    return 1;
}

int VrIOCL::SkipSomeLinesM(int n)
{
    for (; n > 0 && at_ < end_; --n) {
        SkipLineM();
    }
    return 1;
}

// Whether anything but blanks stands between the line's beginning and the read position.
bool VrIOCL::isLineBegunM() const
{
    const char* at = at_;
    while (at > data_ && at[-1] != '\n' && slIsBlank(at[-1])) {
        --at;
    }
    return at > data_ && at[-1] != '\n';
}

int VrIOCL::SkipEndLineM()
{
    return SkipSomeLinesM(isLineBegunM() ? 2 : 1);
}

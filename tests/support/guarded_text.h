#pragma once
#include <cstddef>
#include <gtest/gtest.h>
#include <string>
#include <windows.h>

namespace testing_support {

// A buffer with a page right behind its last byte, or right before its first, that nobody may touch: who does
// ends the program.
class GuardedBufferCL
{
public:
    enum Side
    {
        GuardBehind,
        GuardBefore
    };
    explicit GuardedBufferCL(size_t size, Side side = GuardBehind)
        : size_(size)
    {
        constexpr size_t Page = 4096;
        const size_t room = (size + Page - 1) / Page * Page;
        pages_ = static_cast<char*>(
            VirtualAlloc(nullptr, room + Page, MEM_RESERVE | MEM_COMMIT, PAGE_READWRITE));
        DWORD before = 0;
        VirtualProtect(side == GuardBehind ? pages_ + room : pages_, Page, PAGE_NOACCESS, &before);
        data_ = side == GuardBehind ? pages_ + room - size : pages_ + Page;
        FillM();
    }
    // A text of just its bytes and the zero behind them.
    explicit GuardedBufferCL(const std::string& text, Side side = GuardBehind)
        : GuardedBufferCL(text.size() + 1, side)
    {
        text.copy(data_, text.size());
        data_[text.size()] = '\0';
    }
    GuardedBufferCL(const GuardedBufferCL&) = delete;
    GuardedBufferCL& operator=(const GuardedBufferCL&) = delete;
    ~GuardedBufferCL() { VirtualFree(pages_, 0, MEM_RELEASE); }

    char* DataM() const { return data_; }
    int SizeM() const { return static_cast<int>(size_); }
    void FillM() { std::fill(data_, data_ + size_, '#'); }
    // What was written, once: then it holds nothing.
    std::string TakeM()
    {
        const std::string text(data_, strnlen(data_, size_));
        EXPECT_LT(text.size(), size_) << "no zero at its end";
        FillM();
        return text;
    }

private:
    size_t size_;
    char* pages_;
    char* data_;
};

// Texts (GBK) around a limit of so many bytes with the zero, and one far beyond: of single bytes, and of
// characters of two of which one lies across the limit.
inline std::vector<std::string> textsAround(size_t limit)
{
    std::vector<std::string> texts { "" };
    for (const size_t length : { limit - 2, limit - 1, limit, limit + 1, limit + 2, size_t(10000) }) {
        texts.emplace_back(length, 'x');
        for (const size_t first : { 0, 1 }) {
            std::string text(first, 'x');
            while (text.size() + 2 <= length) {
                text += "\xD6\xD0";
            }
            texts.push_back(text);
        }
    }
    return texts;
}

} // namespace testing_support

#pragma once
#include "baselib/text_pool.h"

// A text on the heap, copied deeply. The object is one pointer and may be moved by bytes.
class PANELKIT_API CharArr
{
public:
    CharArr() = default;
    // A copy of the text; null counts as empty.
    explicit CharArr(const char* text) { SetM(text); }
    CharArr(const CharArr& other) { SetM(other.TextM()); }
    CharArr(CharArr&& other) noexcept
        : text_(other.text_)
    {
        other.text_ = nullptr;
    }
    CharArr& operator=(const CharArr& other);
    CharArr& operator=(CharArr&& other) noexcept
    {
        char* const taken = other.text_;
        other.text_ = nullptr;
        if (text_ != nullptr) {
            slDeleteText(text_);
        }
        text_ = taken;
        return *this;
    }
    ~CharArr()
    {
        if (text_ != nullptr) {
            slDeleteText(text_);
        }
    }

    int SetM(const char* text); // Null counts as empty; may be a part of the text held. 1.
    int SetM(const char* bytes, std::size_t length); // The bytes up to the first NUL among them. 1.
    // A text without a NUL, which lies with others in a block of the pool.
    void SetInM(TextPoolCL& pool, const char* bytes, std::size_t length)
    {
        char* made = nullptr;
        if (length > 0) {
            made = pool.NewM(length + 1);
            std::memcpy(made, bytes, length);
            made[length] = '\0';
        }
        if (text_ != nullptr) {
            slDeleteText(text_);
        }
        text_ = made;
    }
    const char* TextM() const { return text_ != nullptr ? text_ : ""; } // Never null; valid until set anew.
    int GetM(char* out, int size) const; // Copied, cut to the buffer at a character boundary. 1;
                                         // 0 without one.
    std::size_t LengthM() const;         // Bytes without the terminator.
    // Whether it has no byte.
    bool EmptyM() const { return *TextM() == '\0'; }

    // For a text that is set again and again, without a NUL: in a block of its own with room for `room` bytes
    // with the terminator, which the text held is too; longer ones are cut. ClearM keeps the block.
    void SetWithinM(const char* bytes, std::size_t length, std::size_t room);
    void ClearM()
    {
        if (text_ != nullptr) {
            text_[0] = '\0';
        }
    }

private:
    char* text_ { nullptr }; // Its own; see text_pool.h.
};

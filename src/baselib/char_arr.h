#pragma once
#include "baselib/api.h"
#include <cstddef>
#include <memory>

// A text on the heap, copied deeply. The object is one pointer and may be moved by bytes.
class PANELKIT_API CharArr
{
public:
    CharArr() = default;
    // A copy of the text; null counts as empty.
    explicit CharArr(const char* text) { SetM(text); }
    CharArr(const CharArr& other) { SetM(other.TextM()); }
    CharArr(CharArr&&) = default;
    CharArr& operator=(const CharArr& other);
    CharArr& operator=(CharArr&&) = default;
    ~CharArr() = default;

    int SetM(const char* text); // Null counts as empty; may be a part of the text held. 1.
    int SetM(const char* bytes, std::size_t length); // The bytes up to the first NUL among them. 1.
    const char* TextM() const { return text_ ? text_.get() : ""; } // Never null; valid until set anew.
    int GetM(char* out, int size) const; // Copied, cut to the buffer at a character boundary. 1;
                                         // 0 without one.
    std::size_t LengthM() const;         // Bytes without the terminator.
    // Whether it has no byte.
    bool EmptyM() const { return *TextM() == '\0'; }

    // For a text that is set again and again: the same, in a block with room for `room` bytes with the
    // terminator, which the text held is too; longer ones are cut. ClearM keeps the block.
    void SetWithinM(const char* bytes, std::size_t length, std::size_t room);
    void ClearM()
    {
        if (text_) {
            text_[0] = '\0';
        }
    }

private:
    std::unique_ptr<char[]> text_;
};

#pragma once
#include "baselib/base.h"
#include "baselib/char_arr.h"

// A text as element of a list.
class PANELKIT_API VrStringCL : public VrBaseCL
{
public:
    VrStringCL() = default;
    explicit VrStringCL(char tag)
        : VrBaseCL(tag)
    {
    }

    int AddStringM(const char* text); // Replaces the text, the tag stays. 1; 0 and unchanged for null.
    int GetStringM(
        char* out) const; // Copied into a buffer of 260 bytes, cut between characters. 1; 0 for null.
    int GetStringM(char* out, int size) const;          // The same for a buffer of `size` bytes.
    const char* TextM() const { return text_.TextM(); } // Never null; valid until the text changes.
    CharArr& ValueM() { return text_; }                 // The text to change in its place.

    // A list's stream: tag and text, any text reading back equal. What can't be read is deleted and empty.
    void FmInputEvrFileM(VrIOCL* io) override;
    void FmOutputEvrFileM(VrIOCL* io) const override;
    // Becomes alive with the other string's text; nothing if the other is no string.
    void SetByMergeM(const VrBaseCL& other, int index) override;

private:
    CharArr text_;
};

#pragma once
#include "baselib/char_arr.h"
#include "baselib/file_text.h"
#include <cstddef>
#include <cstdio>
#include <memory>
#include <string_view>

class FieldReaderCL;
class ReadObserverCL;

// Reads and writes files of numbers and GBK texts. Text mode ("r", "w"): numbers in decimal, a text to the
// end of its line. Binary mode ("rb", "wb"): ints and reals of four bytes, low byte first, texts behind a
// length of four bytes. Blanks are space, tab, CR, LF, VT, FF and NUL. No operation fails for what a file
// holds; a reader or writer that isn't open reads nothing and writes nothing (result 0).
class PANELKIT_API VrIOCL
{
public:
    VrIOCL() = default;
    VrIOCL(const VrIOCL&) = delete;
    VrIOCL& operator=(const VrIOCL&) = delete;
    ~VrIOCL(); // Closes.

    // Opens for reading, the file read whole, or for writing, the file emptied. path is GBK on Windows, bytes
    // as they are elsewhere. Anything but a regular file, or an unknown mode, leaves it unopened.
    void OpenM(const char* path, const char* mode);
    // Opens a text for reading as mode "r" does a file; null closes. path: where it is from, null for
    // nowhere.
    void OpenM(std::shared_ptr<const FileTextCL> text, const char* path = nullptr);
    void CloseM(); // Harmless when not open.
    // Whether there is a file, to read or to write; whether its mode is binary.
    bool IsOpenM() const { return data_ != nullptr || out_ != nullptr; }
    bool IsBinaryM() const { return binary_; }
    std::size_t BytesLeftM() const
    {
        return static_cast<std::size_t>(end_ - at_);
    } // Behind the read position.
    // Of the file read, in bytes.
    std::size_t SizeM() const { return static_cast<std::size_t>(end_ - data_); }
    // The offset of the next byte to be read.
    std::size_t PositionM() const { return static_cast<std::size_t>(at_ - data_); }
    // The file read; null unless open for reading.
    const std::shared_ptr<const FileTextCL>& FileTextM() const { return text_; }

    // Who is told, value by value, what reading finds; null: nobody. It must live until it is replaced.
    void SetObserverM(ReadObserverCL* observer) { observer_ = observer; }
    ReadObserverCL* ObserverM() const { return observer_; }
    // The directory of the open file as OpenM got it, with its separator; "" when it has none. out: 260
    // bytes.
    int GetFilePathM(char* out) const;

    // Finds a text from the file's beginning on, never inside a double-byte character; the next read takes
    // what follows it. 0 when not found, the position unchanged, also for an empty text.
    int SearchStrM(const char* text);

    // Each reads one value for each pointer that isn't null, skipping blanks and line ends before it, and
    // stops where none stands: those variables keep their values, the position stays there. The number of
    // values read.
    int InputDM(int* a, int* b = nullptr, int* c = nullptr, int* d = nullptr, int* e = nullptr,
        int* f = nullptr, int* g = nullptr, int* h = nullptr, int* i = nullptr); // Saturates.
    int InputRM(float* a, float* b = nullptr, float* c = nullptr, float* d = nullptr, float* e = nullptr,
        float* f = nullptr, float* g = nullptr, float* h = nullptr,
        float* i = nullptr); // The same for reals: the nearest one; saturates.
    int InputCM(char* a, char* b = nullptr, char* c = nullptr, char* d = nullptr, char* e = nullptr,
        char* f = nullptr, char* g = nullptr, char* h = nullptr,
        char* i = nullptr);       // The same for bytes, one each.
    bool InputOneM(int* value);   // The same for one value; false where none stands.
    bool InputOneM(float* value); // The same.
    // The same for two or three values that belong together.
    int InputInt2DM(int pair[2]);
    int InputInt3DM(int triple[3]);
    int InputPoint2DM(float pair[2]);

    // The rest of the line from the next byte that is no blank, blanks at its end dropped; what exceeds size
    // - 1 bytes is passed over. The line end stays unread. 0 and "" at the end of the file, otherwise 1.
    int InputGetsM(char* buffer, int size);
    bool InputItemM(std::string_view* item); // The same whole, as a part of the file; false at the end.
    int InputSM(
        char* buffer, int most, int flag); // The same with size most, 260 for -1; flag changes nothing.
    // A text as OutputTextM wrote it; the position then starts the next line. 0 and "" when none stands here.
    int InputTextM(CharArr* text);

    int SkipLineM();           // To just past the next LF, or the end of the file. 1.
    int SkipSomeLinesM(int n); // The same n times; n below 1: nothing. 1.
    // Passes over the line that ends a list, and before it over the rest of the line that the last value read
    // stands on, unless that line was read to its end. 1.
    int SkipEndLineM();

    // Each writes one value, followed in text mode by a space; a real so that it reads back the same, in text
    // mode an infinity as the largest number and what is no number as 0. 1 when written.
    int OutputDM(int value);
    int OutputRM(float value);
    // Writes a text, at most most - 1 bytes of it cut between characters unless most is -1; in text mode a
    // flag other than 0 ends the line behind it.
    int OutputSM(const char* text, int most, int flag);
    // Writes any text so that InputTextM gives it back: in text mode its length, a space, its bytes, a line
    // end.
    int OutputTextM(const char* text);
    // In text mode ends the line that was begun, if one was. 1 when written or not needed.
    int EndBegunLineM();

private:
    friend class FieldReaderCL; // Most of reading a file: it takes numbers straight from the bytes.

    template <typename T> int inputAllM(T* const (&values)[9], bool (VrIOCL::*input)(T*));
    bool inputCharM(char* value);
    bool inputBytesM(void* to, std::size_t count);
    std::size_t inputLengthM();
    void skipBlanksM();
    bool isLineBegunM() const;
    bool outputBytesM(const void* from, std::size_t count);
    int outputCountedM(const char* text, std::size_t length);

    std::shared_ptr<const FileTextCL> text_; // The file read; null unless open for reading.
    const char* data_ { nullptr };           // Its bytes.
    const char* end_ { nullptr };            // Behind the last one.
    const char* at_ { nullptr };             // The next one to be read.
    FILE* out_ { nullptr };                  // The file written.
    bool outputLineBegun_ { false };
    bool binary_ { false };
    CharArr directory_;
    ReadObserverCL* observer_ { nullptr };
};

#include "pictures/bmp_rle.h"
#include <algorithm>

namespace {

// Codes of the second byte where the first is 0; larger ones announce that many single pixels.
constexpr int EndOfRow = 0;
constexpr int EndOfPicture = 1;
constexpr int Move = 2;

class RunDecoder
{
public:
    RunDecoder(const BmpBytes& file, const BmpHeader& header, unsigned char* indices, std::size_t stride)
        : file_(file)
        , header_(header)
        , indices_(indices)
        , stride_(stride != 0 ? stride : static_cast<std::size_t>(header.width))
        , at_(header.pixelsAt)
        , end_(file.size)
    {
        if (header.codesSize != 0 && file.holds(at_, header.codesSize)) {
            end_ = at_ + header.codesSize;
        }
    }

    bool decode()
    {
        while (!done_ && holds(2)) {
            const int first = file_.data[at_];
            const int second = file_.data[at_ + 1];
            at_ += 2;
            if (first != 0) {
                repeat(first, second);
            } else if (second > Move) {
                copy(second);
            } else {
                mark(second);
            }
        }
        if (done_) {
            return true;
        }
        if (indices_ != nullptr) {
            std::fill(row() + marked_, row() + x_, static_cast<unsigned char>(0));
        }
        return header_.codesSize <= file_.size - header_.pixelsAt;
    }

private:
    bool holds(std::size_t count) const { return count <= end_ - at_; }

    int fitting(int count) const { return std::min(count, header_.width - x_); } // Of so many pixels.

    void put(int index)
    {
        if (x_ < header_.width) {
            if (indices_ != nullptr) {
                row()[x_] = static_cast<unsigned char>(index);
            }
            ++x_;
        }
    }
    unsigned char* row() const
    {
        const int fromBelow = header_.topDown ? header_.height - 1 - y_ : y_;
        return indices_ + static_cast<std::size_t>(fromBelow) * stride_;
    }

    void mark(int code)
    {
        marked_ = x_;
        if (code == EndOfRow) {
            moveTo(0, 1);
        } else if (code == EndOfPicture) {
            done_ = true;
        } else if (holds(2)) {
            const int right = file_.data[at_];
            const int up = file_.data[at_ + 1];
            at_ += 2;
            // Compared before adding: the sizes may reach the limit of int.
            moveTo(right < header_.width - x_ ? x_ + right : header_.width, up);
        } else {
            at_ = end_;
        }
    }

    void moveTo(int x, int up)
    {
        x_ = x;
        marked_ = x;
        if (up < header_.height - y_) {
            y_ += up;
        } else {
            done_ = true;
        }
    }

    void repeat(int count, int pixel)
    {
        if (header_.bits == 8) {
            const int inRow = fitting(count);
            if (indices_ != nullptr) {
                std::fill_n(row() + x_, inRow, static_cast<unsigned char>(pixel));
            }
            x_ += inRow;
            return;
        }
        for (int i = 0; i < count; ++i) {
            put(nibble(pixel, i));
        }
    }

    // Single pixels, filled up to a whole number of 16-bit words.
    void copy(int count)
    {
        const std::size_t bytes = static_cast<std::size_t>(header_.bits == 8 ? count : (count + 1) / 2);
        const std::size_t filled = bytes + bytes % 2;
        if (!holds(filled)) {
            at_ = end_;
            return;
        }
        if (header_.bits == 8) {
            const int inRow = fitting(count);
            if (indices_ != nullptr) {
                std::copy_n(file_.data + at_, inRow, row() + x_);
            }
            x_ += inRow;
        } else {
            for (int i = 0; i < count; ++i) {
                put(nibble(file_.data[at_ + static_cast<std::size_t>(i / 2)], i));
            }
        }
        at_ += filled;
    }

    static int nibble(int byte, int i) { return i % 2 == 0 ? byte >> 4 : byte & 15; }

    const BmpBytes& file_;
    const BmpHeader& header_;
    unsigned char* indices_;
    std::size_t stride_;
    std::size_t at_;
    std::size_t end_;  // Of the codes.
    int x_ { 0 };      // Up to the width.
    int y_ { 0 };      // In the order of the file, always a row of the picture.
    int marked_ { 0 }; // Pixels of the row from here on stand behind the last mark.
    bool done_ { false };
};

} // namespace

bool slDecodeBmpRuns(
    const BmpBytes& file, const BmpHeader& header, unsigned char* indices, std::size_t stride)
{
    return RunDecoder(file, header, indices, stride).decode();
}

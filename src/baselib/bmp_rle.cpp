#include "baselib/bmp_rle.h"

namespace {

// Codes of the second byte where the first is 0; larger ones announce that many single pixels.
constexpr int EndOfRow = 0;
constexpr int EndOfPicture = 1;
constexpr int Move = 2;

class RunDecoder
{
public:
    RunDecoder(const BmpBytes& file, const BmpHeader& header, unsigned char* indices)
        : file_(file)
        , header_(header)
        , indices_(indices)
        , at_(header.pixelsAt)
    {
    }

    bool decode()
    {
        while (file_.holds(at_, 2)) {
            const int first = file_.data[at_];
            const int second = file_.data[at_ + 1];
            at_ += 2;
            bool good = true;
            if (first != 0) {
                good = repeat(first, second);
            } else if (second == EndOfPicture) {
                return true;
            } else if (second == EndOfRow) {
                good = moveTo(0, y_ + 1);
            } else if (second == Move) {
                good = move();
            } else {
                good = copy(second);
            }
            if (!good) {
                return false;
            }
        }
        return false;
    }

private:
    bool fits(int count) const { return y_ < header_.height && count <= header_.width - x_; }
    void put(int index)
    {
        indices_[static_cast<std::size_t>(y_) * static_cast<std::size_t>(header_.width)
            + static_cast<std::size_t>(x_)]
            = static_cast<unsigned char>(index);
        ++x_;
    }

    bool moveTo(int x, int y)
    {
        x_ = x;
        y_ = y;
        return x_ <= header_.width && y_ <= header_.height;
    }

    bool move()
    {
        if (!file_.holds(at_, 2)) {
            return false;
        }
        const int right = file_.data[at_];
        const int up = file_.data[at_ + 1];
        at_ += 2;
        // Compared before adding: the sizes may reach the limit of int.
        return right <= header_.width - x_ && up <= header_.height - y_ && moveTo(x_ + right, y_ + up);
    }

    bool repeat(int count, int pixel)
    {
        if (!fits(count)) {
            return false;
        }
        for (int i = 0; i < count; ++i) {
            put(header_.bits == 8 ? pixel : nibble(pixel, i));
        }
        return true;
    }

    // Single pixels, filled up to a whole number of 16-bit words.
    bool copy(int count)
    {
        const std::size_t bytes = static_cast<std::size_t>(header_.bits == 8 ? count : (count + 1) / 2);
        if (!fits(count) || !file_.holds(at_, bytes)) {
            return false;
        }
        for (int i = 0; i < count; ++i) {
            put(header_.bits == 8 ? file_.data[at_ + static_cast<std::size_t>(i)]
                                  : nibble(file_.data[at_ + static_cast<std::size_t>(i / 2)], i));
        }
        at_ += bytes + bytes % 2;
        return true;
    }

    static int nibble(int byte, int i) { return i % 2 == 0 ? byte >> 4 : byte & 15; }

    const BmpBytes& file_;
    const BmpHeader& header_;
    unsigned char* indices_;
    std::size_t at_;
    int x_ { 0 };
    int y_ { 0 }; // From the lowest row.
};

} // namespace

bool slDecodeBmpRuns(const BmpBytes& file, const BmpHeader& header, unsigned char* indices)
{
    return RunDecoder(file, header, indices).decode();
}

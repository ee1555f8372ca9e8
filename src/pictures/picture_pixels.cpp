#include "pictures/picture_pixels.h"

namespace {

template <int N> int turn(const int (&directions)[N][2], int* dir)
{
    if (dir == nullptr) {
        return 0;
    }
    for (int i = 0; i < N; ++i) {
        if (slIsSameInt2D(directions[i], dir) != 0) {
            const int* const next = directions[(i + 1) % N];
            dir[0] = next[0];
            dir[1] = next[1];
            break;
        }
    }
    return 1;
}

} // namespace

int slIsTransparency(const unsigned char* pixel, const unsigned char* key)
{
    if (pixel == nullptr || key == nullptr) {
        return 0;
    }
    return pixel[0] >= key[0] && pixel[1] >= key[1] && pixel[2] >= key[2] ? 1 : 0;
}

int slIsSamePixel4D(const unsigned char* a, const unsigned char* b)
{
    return a != nullptr && b != nullptr && a[0] == b[0] && a[1] == b[1] && a[2] == b[2] ? 1 : 0;
}

int slIsSameInt2D(const int* a, const int* b)
{
    if (a == nullptr || b == nullptr) {
        return 0;
    }
    return a[0] == b[0] && a[1] == b[1] ? 1 : 0;
}

int slIsAvailPosi(const int* p, int w, int h)
{
    if (p == nullptr) {
        return 0;
    }
    return p[0] >= 0 && p[1] >= 0 && p[1] < w && p[1] < h ? 1 : 0;
}

int slGetNextAxisDirect(int* dir)
{
    static constexpr int Directions[4][2] = { { 1, 0 }, { 0, 1 }, { -1, 0 }, { 0, -1 } };
    return turn(Directions, dir);
}

int slGetNextDirect(int* dir)
{
    static constexpr int Directions[8][2]
        = { { 1, 0 }, { 1, 1 }, { 0, 1 }, { -1, 1 }, { -1, 0 }, { -1, -1 }, { 0, -1 }, { 1, -1 } };
    return turn(Directions, dir);
}

#pragma once
#include <string>
#include <vector>
#include <windows.h>

namespace testing_support {

// The pixels of a window as on screen when read.
class Pixels
{
public:
    enum class Part
    {
        Client,
        Whole
    };

    explicit Pixels(HWND window, Part part = Part::Client);
    int WidthM() const { return width_; }
    int HeightM() const { return height_; }
    COLORREF AtM(int x, int y) const; // CLR_INVALID outside.
    int CountM(COLORREF color) const;
    int DifferencesM(const Pixels& other) const;   // Pixels that differ; -1 when the sizes do.
    bool SavePngM(const std::wstring& path) const; // To look at.

private:
    int width_ { 0 };
    int height_ { 0 };
    std::vector<DWORD> data_; // 0x00RRGGBB, rows from the top.
};

} // namespace testing_support

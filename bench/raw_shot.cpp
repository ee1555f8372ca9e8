// The least that a program does which pictures a dialog: one empty window of the plotter's size, no controls,
// painted and written as it is. raw_shot OUT.bmp
#include <cstdio>
#include <vector>
#include <windows.h>

namespace {

constexpr int Width = 560;
constexpr int Height = 424;

bool write(HWND window, const char* file)
{
    BITMAPFILEHEADER header {};
    BITMAPINFO info {};
    std::vector<unsigned char> pixels(size_t { Width } * Height * 4);
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = Width;
    info.bmiHeader.biHeight = Height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    header.bfType = 0x4D42;
    header.bfOffBits = sizeof header + sizeof info.bmiHeader;
    header.bfSize = header.bfOffBits + static_cast<DWORD>(pixels.size());
    const HDC source = ::GetWindowDC(window);
    const HDC memory = ::CreateCompatibleDC(source);
    const HBITMAP bitmap = ::CreateCompatibleBitmap(source, Width, Height);
    const HGDIOBJ before = ::SelectObject(memory, bitmap);
    ::BitBlt(memory, 0, 0, Width, Height, source, 0, 0, SRCCOPY);
    ::SelectObject(memory, before);
    const int rows = ::GetDIBits(memory, bitmap, 0, Height, pixels.data(), &info, DIB_RGB_COLORS);
    ::DeleteObject(bitmap);
    ::DeleteDC(memory);
    ::ReleaseDC(window, source);
    std::FILE* const out = rows == Height ? std::fopen(file, "wb") : nullptr;
    return out != nullptr && std::fwrite(&header, sizeof header, 1, out) == 1
        && std::fwrite(&info.bmiHeader, sizeof info.bmiHeader, 1, out) == 1
        && std::fwrite(pixels.data(), pixels.size(), 1, out) == 1 && std::fclose(out) == 0;
}

} // namespace

int main(int argc, char** argv)
{
    const HWND window = ::CreateWindowExW(0, L"#32770", L"", WS_POPUP | WS_CAPTION | WS_SYSMENU, 0, 0, Width,
        Height, nullptr, nullptr, ::GetModuleHandleW(nullptr), nullptr);
    ::ShowWindow(window, SW_SHOW);
    ::UpdateWindow(window);
    return argc == 2 && window != nullptr && write(window, argv[1]) ? 0 : 1;
}

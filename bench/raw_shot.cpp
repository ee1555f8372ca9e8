// What a program does by plain calls that pictures a dialog: a window of the plotter's size with its
// background, painted and written as it is. raw_shot OUT.bmp: without controls, the least that any picture
// takes. raw_shot OUT.bmp LIST: with the windows of a list of first_bench.
#include "plain_windows.h"
#include <cstdio>

namespace {

constexpr int Width = 560;
constexpr int Height = 424;
constexpr int FontHeight = 14;

// In the folder that it is started in.
LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message != WM_PAINT) {
        return ::DefWindowProcW(window, message, wParam, lParam);
    }
    PAINTSTRUCT paint;
    const HDC dc = ::BeginPaint(window, &paint);
    const HANDLE picture = ::LoadImageW(
        nullptr, L"plotter_background.bmp", IMAGE_BITMAP, 0, 0, LR_LOADFROMFILE | LR_CREATEDIBSECTION);
    const HDC memory = ::CreateCompatibleDC(dc);
    const HGDIOBJ before = ::SelectObject(memory, picture);
    ::BitBlt(dc, 0, 0, Width, Height, memory, 0, 0, SRCCOPY);
    ::SelectObject(memory, before);
    ::DeleteDC(memory);
    ::DeleteObject(picture);
    ::EndPaint(window, &paint);
    return 0;
}

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
    WNDCLASSW type {};
    type.lpfnWndProc = procedure;
    type.hInstance = ::GetModuleHandleW(nullptr);
    type.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1);
    type.lpszClassName = L"RawShot";
    ::RegisterClassW(&type);
    const HWND window = ::CreateWindowExW(0, type.lpszClassName, L"", WS_POPUP | WS_CAPTION | WS_SYSMENU, 0,
        0, Width, Height, nullptr, nullptr, type.hInstance, nullptr);
    if (argc == 3) {
        const INITCOMMONCONTROLSEX controls { sizeof controls, ICC_UPDOWN_CLASS };
        ::InitCommonControlsEx(&controls);
        std::vector<plain::WindowCL> windows = plain::read(argv[2]);
        plain::giveRoomOfArrows(windows);
        plain::makeAll(window, windows, FontHeight);
        if (windows.size() < 20) {
            return 1;
        }
    }
    ::ShowWindow(window, SW_SHOW);
    ::RedrawWindow(window, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    return argc >= 2 && window != nullptr && write(window, argv[1]) ? 0 : 1;
}

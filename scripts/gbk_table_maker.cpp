// Prints src/baselib/gbk_table.cpp from what code page 936 is to the platform. Needed only to make that file
// anew: x86_64-w64-mingw32-g++ -static scripts/gbk_table_maker.cpp -o build/maker.exe && scripts/wine
// build/maker.exe
#include <cstdio>
#include <windows.h>

int main()
{
    std::printf(
        "// Made by scripts/gbk_table_maker.cpp.\n#include \"baselib/gbk_table.h\"\n\n// clang-format off\n"
        "const std::uint16_t gbkTable[GbkLeadCount][GbkTrailCount] = {\n");
    for (int lead = 0x81; lead <= 0xFE; ++lead) {
        std::printf("  {");
        for (int trail = 0x40; trail <= 0xFE; ++trail) {
            const char pair[] = { static_cast<char>(lead), static_cast<char>(trail) };
            wchar_t code = 0;
            if (trail != 0x7F && MultiByteToWideChar(936, MB_ERR_INVALID_CHARS, pair, 2, &code, 1) == 1) {
                std::printf("%d,", code);
            } else if (trail != 0x7F) {
                return 1;
            }
        }
        std::printf("},\n");
    }
    std::printf("};\n");
}

#include "mutants.h"
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

bool isNoted[65536];

void noteLine(const char* kind, const char* what)
{
    static FILE* const notes = std::fopen(std::getenv("PANELKIT_MUTANT_NOTES"), "ab");
    if (notes != nullptr) {
        std::fprintf(notes, "%s %s\n", kind, what);
        std::fflush(notes);
    }
}

int awakeMutant()
{
    const char* const number = std::getenv("PANELKIT_MUTANT");
    return number != nullptr ? std::atoi(number) : 0;
}

} // namespace

int slAwakeMutant = awakeMutant();

bool slNoteMutant(int number)
{
    if (!isNoted[number]) {
        isNoted[number] = true;
        char text[16];
        std::snprintf(text, sizeof text, "%d", number);
        noteLine("mutant", text);
    }
    return false;
}

void slNoteTest(const char* name)
{
    if (slAwakeMutant < 0) {
        std::memset(isNoted, 0, sizeof isNoted);
        noteLine("test", name);
    }
}

#include "baselib/helpers.h"
#include "baselib/gbk.h"
#include "baselib/path.h"
#include <algorithm>
#include <climits>
#include <cmath>
#include <cstdlib>
#include <string>

namespace {

int arrText(char* buffer, const char* word, const char* name)
{
    if (buffer == nullptr) {
        return 0;
    }
    std::string text = word;
    text += name != nullptr ? name : "";
    std::replace(text.begin(), text.end(), '\n', ' ');
    std::replace(text.begin(), text.end(), '\r', ' ');
    slCopyText(buffer, PathSize, text.c_str());
    return 1;
}

} // namespace

int slRound(float value)
{
    if (std::isnan(value)) {
        return 0;
    }
    // Not std::round: MinGW's adds a half in single precision, which is too much for what lies just below a
    // half.
    const double exact = value;
    const double whole = std::trunc(exact);
    const double rounded = std::abs(exact - whole) >= 0.5 ? whole + std::copysign(1.0, exact) : whole;
    return static_cast<int>(std::clamp(rounded, static_cast<double>(INT_MIN), static_cast<double>(INT_MAX)));
}

void* slMalloc(std::size_t bytes)
{
    return std::malloc(bytes > 0 ? bytes : 1);
}

void slFree(void* block)
{
    std::free(block);
}

int slGetArrBeginStr(char* buffer, const char* name)
{
    return arrText(buffer, "Begin ", name);
}

int slGetArrIndexStr(char* buffer, const char* name)
{
    return arrText(buffer, "Item ", name);
}

int slGetArrEndStr(char* buffer, const char* name)
{
    return arrText(buffer, "End ", name);
}

#pragma once
#include "baselib/gbk.h"

// A byte that is a character by itself whatever stands before it.
inline bool slStandsAlone(char byte)
{
    const unsigned char value = static_cast<unsigned char>(byte);
    return value < 0x40 || value == 0x7F || value == 0xFF;
}

// Where characters begin, for positions asked in rising order: no byte is walked over more than once.
class CharacterStartsCL
{
public:
    explicit CharacterStartsCL(const char* begin)
        : known_(begin)
    {
    }

    bool IsStartM(const char* at, const char* end)
    {
        const char* from = at;
        while (from > known_ && !slStandsAlone(from[-1])) {
            --from;
        }
        while (from < at) {
            from += slGbkCharLength(from, end);
        }
        known_ = from; // Past `at` by one where `at` is inside a character.
        return from == at;
    }

private:
    const char* known_;
};

#pragma once
#include <cstdlib>

// A number that the environment says; else the one of the short form that runs with all tests.
inline int soakNumber(const char* name, int shortForm)
{
    const char* const said = std::getenv(name);
    return said != nullptr && *said != '\0' ? std::atoi(said) : shortForm;
}

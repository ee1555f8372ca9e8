// Feeds broken translations to their reader. Run by scripts/fuzz with the corpus in fuzz/corpus/catalogue.
#include "baselib/message_catalogue.h"
#include <cstdint>
#include <cstring>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    MessageCatalogueCL catalogue;
    catalogue.ReadM(std::string(reinterpret_cast<const char*>(data), size));
    std::size_t length = 0;
    for (const char* const text : { "Speed", "Open", "" }) {
        for (const char* const context : { "", "machine" }) {
            const char* const found = catalogue.FindM(text, context);
            length += found != nullptr ? std::strlen(found) : 0;
        }
    }
    volatile std::size_t all = length; // All of it must be there.
    static_cast<void>(all);
    return 0;
}

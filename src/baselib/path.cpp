#include "baselib/path.h"
#include "baselib/gbk.h"
#include <cstring>

const char* slGetFileName(const char* path)
{
    const char* const end = path + std::strlen(path);
    const char* name = path;
    for (const char* at = path; at < end;) {
        const bool separator = *at == '/' || *at == '\\';
        at += slGbkCharLength(at, end);
        if (separator) {
            name = at;
        }
    }
    return name;
}

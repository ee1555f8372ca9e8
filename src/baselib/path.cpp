#include "baselib/path.h"
#include "baselib/gbk.h"
#include <cstring>
#include <string>

const char* slGetFileName(const char* path)
{
    if (path == nullptr) {
        return "";
    }
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

int slGetFileExtension(const char* file, char* out)
{
    if (out == nullptr) {
        return 0;
    }
    const char* const point
        = std::strrchr(slGetFileName(file), '.'); // A point is no part of a longer character.
    slCopyText(out, PathSize, point != nullptr ? point + 1 : "");
    return 1;
}

int slCatFileNameWithPath(const char* path, const char* file, char* out)
{
    if (out == nullptr) {
        return 0;
    }
    std::string joined = path != nullptr ? path : "";
    // A drive alone ("C:") means its current directory, another place than its root.
    if (*slGetFileName(path) != '\0' && joined.back() != ':') {
        joined += '/';
    }
    joined += file != nullptr ? file : "";
    slCopyText(out, PathSize, joined.c_str());
    return 1;
}

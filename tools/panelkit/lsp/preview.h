#pragma once
#include "open_file.h"
#include <map>

// The windows of `view --watch` that this session has opened, one a file.
class PreviewsCL
{
public:
    PreviewsCL() = default;
    PreviewsCL(const PreviewsCL&) = delete;
    PreviewsCL& operator=(const PreviewsCL&) = delete;
    ~PreviewsCL();

    // arguments: the file's URI, and the position whose control is to be marked. Why not; "" when it is
    // shown.
    std::string ShowM(OpenFileCL& file, const JsonTP& arguments, Language language);

private:
    struct PreviewCL
    {
        std::filesystem::path mark; // Holds the id of the control that is marked.
        long long process { 0 };
    };

    std::map<std::string, PreviewCL> previews_; // By path.
};

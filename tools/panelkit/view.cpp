#include "commands.h"
#include "description_file.h"
#include "live_dialog.h"

int viewCommand(const ViewOptionsCL& options)
{
    ViewOptionsCL absolute = options; // Each file's folder becomes the current one.
    if (!options.mark.empty()) {
        absolute.mark = std::filesystem::absolute(std::filesystem::u8path(options.mark)).u8string();
    }
    return showEachFile(options, [&absolute](const OpenedFileCL& file) {
        LiveDialogCL(file.name, absolute).DoModalM();
        return 0;
    });
}

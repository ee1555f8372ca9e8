#include "commands.h"
#include "description_file.h"
#include "preview_dialog.h"

int viewCommand(const ShowOptionsCL& options)
{
    return showEachFile(options, [](const OpenedFileCL& file) {
        PreviewDialogCL(file.name).DoModalM();
        return 0;
    });
}

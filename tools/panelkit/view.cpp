#include "commands.h"
#include "description_file.h"
#include "live_dialog.h"

int viewCommand(const ViewOptionsCL& options)
{
    return showEachFile(options, [&options](const OpenedFileCL& file) {
        LiveDialogCL(file.name, options).DoModalM();
        return 0;
    });
}

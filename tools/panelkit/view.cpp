#include "commands.h"
#include "description_file.h"
#include "preview_dialog.h"

int viewCommand(const std::string& file)
{
    std::string name;
    if (!enterFolderOf(file, &name)) {
        return CannotUse;
    }
    PreviewDialogCL(name).DoModalM();
    return 0;
}

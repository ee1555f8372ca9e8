#include "commands.h"
#include "description_file.h"
#include "shown_dialog.h"

int viewCommand(const std::string& file)
{
    std::string name;
    if (!enterFolderOf(file, &name)) {
        return CannotUse;
    }
    ShownDialogCL(name).RunM();
    return 0;
}

#include "application.h"
#include "commands.h"
#include "description_file.h"
#include "png.h"
#include "shown_dialog.h"
#include <filesystem>

int shotCommand(const std::string& file, const std::string& picture)
{
    // Before the current folder changes: the picture goes where the user stands.
    const std::wstring out = std::filesystem::absolute(std::filesystem::u8path(picture)).wstring();
    std::string name;
    if (!enterFolderOf(file, &name)) {
        return CannotUse;
    }
    ShownDialogCL dialog(name);
    if (!dialog.BuildM() || !dialog.WaitUntilShownM()) {
        complain("the dialog of '" + file + "' did not come up");
        return 1;
    }
    const bool saved = saveWindowAsPng(dialog.m_hWnd, out);
    dialog.DestroyWindow();
    return saved ? 0 : complain("cannot write '" + picture + "'");
}

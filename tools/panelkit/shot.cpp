#include "application.h"
#include "commands.h"
#include "description_file.h"
#include "png.h"
#include "preview_dialog.h"
#include <filesystem>

int shotCommand(
    const std::string& file, const std::string& picture, const std::vector<ControlStatusTP>& statuses)
{
    // Before the current folder changes: the picture goes where the user stands.
    const std::wstring out = std::filesystem::absolute(std::filesystem::u8path(picture)).wstring();
    std::string name;
    if (!enterFolderOf(file, &name)) {
        return CannotUse;
    }
    PreviewDialogCL dialog(name);
    const bool built = dialog.CreateM() == 1;
    for (const auto& [id, status] : statuses) {
        if (built && !dialog.SetStatusM(id, status)) {
            return complain("control " + std::to_string(id) + " of '" + file + "' has no status "
                + std::to_string(status));
        }
    }
    if (!built || !dialog.WaitUntilShownM()) {
        complain("the dialog of '" + file + "' did not come up");
        return 1;
    }
    const bool saved = saveWindowAsPng(dialog.m_hWnd, out);
    dialog.DestroyWindow();
    return saved ? 0 : complain("cannot write '" + picture + "'");
}

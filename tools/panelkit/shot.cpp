#include "commands.h"
#include "description_file.h"
#include "pictures_to_write.h"
#include "preview_dialog.h"
#include "window_picture.h"
#include <filesystem>

int shotCommand(const ShotOptionsCL& options)
{
    // Before the current folder changes: the pictures go where the user stands.
    const std::vector<PictureToWriteCL> pictures = picturesToWrite(options);
    if (pictures.empty()) {
        return CannotUse;
    }
    return showEachFile(options, [&](const OpenedFileCL& file) {
        PreviewDialogCL dialog(file.name);
        const bool built = dialog.CreateM() == 1;
        for (const auto& [id, status] : options.statuses) {
            if (built && !dialog.SetStatusM(id, status)) {
                return complain("control " + std::to_string(id) + " of '" + file.said + "' has no status "
                    + std::to_string(status));
            }
        }
        if (!built || !dialog.WaitUntilShownM()) {
            complain("the dialog of '" + file.said + "' did not come up");
            return 1;
        }
        const PictureToWriteCL& picture = pictures[file.number];
        const std::wstring out = std::filesystem::u8path(picture.path).wstring();
        const bool saved = saveWindow(dialog.m_hWnd, out, isBmpName(picture.said));
        dialog.DestroyWindow();
        return saved ? 0 : complain("cannot write '" + picture.said + "'");
    });
}

#include "application.h"
#include "commands.h"
#include "description_file.h"
#include "png.h"
#include "preview_dialog.h"
#include <filesystem>

int shotCommand(const ShotOptionsCL& options)
{
    // Before the current folder changes: the picture goes where the user stands.
    const std::wstring out = std::filesystem::absolute(std::filesystem::u8path(options.picture)).wstring();
    return showEachFile(options, [&options, &out](const OpenedFileCL& file) {
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
        const bool saved = saveWindowAsPng(dialog.m_hWnd, out);
        dialog.DestroyWindow();
        return saved ? 0 : complain("cannot write '" + options.picture + "'");
    });
}

#include "commands.h"
#include "description_file.h"
#include "id_overlay.h"
#include "pictures_to_write.h"
#include "preview_dialog.h"
#include "window_picture.h"
#include <filesystem>
#include <imm.h>
#include <memory>

namespace {

// Only the first window of a program finds another one in the foreground, so its caption may be that of a
// window that isn't active: the others are pictured as that one is, as each would be alone.
class ShotDialogCL : public PreviewDialogCL
{
public:
    using PreviewDialogCL::PreviewDialogCL;
    void TakeCaptionOfTheFirstM()
    {
        static const BOOL ofTheFirst = isCaptionActive_;
        SendMessage(WM_NCACTIVATE, static_cast<WPARAM>(ofTheFirst));
    }

    // Frame included; below the file's size: that. False when the controls would not follow.
    bool SetSizeM(int width, int height)
    {
        CRect client;
        GetClientRect(&client);
        return ResizeM(client.Width(), client.Height()) == 1
            && SetWindowPos(nullptr, 0, 0, width, height, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        isCaptionActive_ = message == WM_NCACTIVATE ? static_cast<BOOL>(wParam) : isCaptionActive_;
        return PreviewDialogCL::WindowProc(message, wParam, lParam);
    }

private:
    BOOL isCaptionActive_ { FALSE };
};

} // namespace

int shotCommand(const ShotOptionsCL& options)
{
    // Before the current folder changes: the pictures go where the user stands.
    const std::vector<PictureToWriteCL> pictures = picturesToWrite(options);
    if (pictures.empty()) {
        return CannotUse;
    }
    ::ImmDisableIME(0); // Nobody types here: what helps with that need not start.
    return showEachFile(options, [&](const OpenedFileCL& file) {
        auto shown = std::make_unique<ShotDialogCL>(file.name, options.textLanguage);
        ShotDialogCL& dialog = *shown;
        if (options.scale != 0) {
            dialog.SetScaleM(options.scale);
        }
        const bool built = dialog.CreateM() == 1;
        for (const auto& [id, status] : options.statuses) {
            if (built && !dialog.SetStatusM(id, status)) {
                return complain("control " + std::to_string(id) + " of '" + file.said + "' has no status "
                    + std::to_string(status));
            }
        }
        if (built && options.scale != 0) { // What lies beyond the screen is in no picture.
            ::SetWindowPos(dialog.m_hWnd, nullptr, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
        }
        if (built && options.width > 0 && !dialog.SetSizeM(options.width, options.height)) {
            return complain("the dialog of '" + file.said + "' can't be resized: no control of it is bound");
        }
        if (built) {
            dialog.ShowWindow(SW_SHOW); // The library would take its time, for each picture.
        }
        if (!built || !dialog.WaitUntilShownM()) {
            complain("the dialog of '" + file.said + "' did not come up");
            return 1;
        }
        dialog.TakeCaptionOfTheFirstM();
        if (options.showsIds) {
            drawIds(dialog.m_hWnd);
        }
        const PictureToWriteCL& picture = pictures[file.number];
        const std::wstring out = std::filesystem::u8path(picture.path).wstring();
        const bool saved = saveWindow(dialog.m_hWnd, out, isBmpName(picture.said));
        if (file.number + 1 == options.files.size()) {
            static_cast<void>(shown.release()); // It goes with the program, much faster than by itself.
        } else {
            dialog.DestroyWindow();
        }
        return saved ? 0 : complain("cannot write '" + picture.said + "'");
    });
}

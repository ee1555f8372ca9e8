#pragma once
#include "commands.h"
#include "findings_bar.h"
#include "id_overlay.h"
#include "kept_values.h"
#include "message_log.h"
#include "preview_dialog.h"
#include "watched_files.h"
#include <memory>

// The preview of a file that its author works on.
class LiveDialogCL : public PreviewDialogCL
{
public:
    // name: as PreviewDialogCL takes it.
    LiveDialogCL(const std::string& name, const ViewOptionsCL& options);
    ~LiveDialogCL() override;

    BOOL OnInitDialog() override;
    HWND BarM() const
    {
        return bar_.HandleM();
    } // What is wrong with the file; null before there was anything.
    HWND OverlayM() const { return overlay_.HandleM(); } // The ids; null without.

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    std::vector<std::filesystem::path> watchedM() const;
    bool checkM();
    void followFileM();
    bool isBusyM() const;
    bool isDroppedDownM() const;
    void rebuildM();
    void giveFocusM(HWND control);
    void keepPlaceM(WINDOWPOS& place);
    bool isLabelledM() const { return options_.showsIds || !options_.mark.empty(); }
    void followControlsM();
    void labelM();
    void dockM();

    ViewOptionsCL options_;
    Language language_;
    std::filesystem::path path_;
    KeptValuesCL kept_;
    FindingsBarCL bar_;
    IdOverlayCL overlay_;
    std::unique_ptr<MessageLogCL> log_;
    std::unique_ptr<WatchedFilesCL> watched_;
    HWND left_ { nullptr };          // The control that had the focus when the dialog was left,
    HWND awaiting_ { nullptr };      // and its successor, if there is one, which gets it
    bool awaitsFocus_ { false };     // when the user comes back.
    HWND overlaidFocus_ { nullptr }; // The focus since which the ids are on top.
    POINT filePlace_ {};             // Where the file last said that the window is.
    bool isBuilding_ { false };
    bool wasBuilt_ { false };
};

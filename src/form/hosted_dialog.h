#pragma once
#include "dialog/basic_dialog.h"
#include "form/canvas_c.h"
#include <map>
#include <string>

// The dialog behind a handle of the C interface: a host that is built before it is shown, keeps its controls
// when it closes, and tells a callback what the user does. It frees itself once it is doomed and nothing of
// it is under way.
class HostedDialogCL : public DuBasicDialogCL
{
public:
    HostedDialogCL(panelkit_dialog* handle, const panelkit_options& options);

    // Builds the description file (GBK path). Whether there is a window now.
    bool BuildM(const std::string& path, HWND owner);
    bool HasWindowM() const { return m_hWnd != nullptr; }
    bool IsOpenM() const { return isOpen_; }
    void OpenM();
    int RunM();              // Shows it modally; the result, -1 when it was doomed or the program quits.
    void CloseM(int result); // Hides it.
    int ResultM() const { return result_; }
    // From now on nobody is told anything; it goes when the last UseCL does.
    void DoomM();

    bool StartTimerM(int timer, int milliseconds);
    bool StopTimerM(int timer); // Whether it ran.
    // Has the callback paint a control; null: nobody. False: the control takes no painter.
    bool SetPainterM(int id, panelkit_painter painter, void* user);

    panelkit_dialog* HandleM() const { return handle_; }
    std::string& ErrorM() { return error_; } // Of the last call with the handle.

    // While one lives, what controls notify is what the program does.
    class QuietCL
    {
    public:
        explicit QuietCL(HostedDialogCL& dialog)
            : dialog_(dialog)
        {
            ++dialog_.quiet_;
        }
        QuietCL(const QuietCL&) = delete;
        QuietCL& operator=(const QuietCL&) = delete;
        ~QuietCL() { --dialog_.quiet_; }

    private:
        HostedDialogCL& dialog_;
    };

    // While one lives, the dialog does: a call of the application's, or a message being handled.
    class UseCL
    {
    public:
        enum By
        {
            ByCall,
            ByMessage
        };
        UseCL(HostedDialogCL& dialog, By by)
            : dialog_(dialog)
            , by_(by)
        {
            ++dialog_.uses_;
        }
        UseCL(const UseCL&) = delete;
        UseCL& operator=(const UseCL&) = delete;
        ~UseCL() { dialog_.endUseM(by_); }

    private:
        HostedDialogCL& dialog_;
        const By by_;
    };

    BOOL OnInitDialog() override;
    void EndDialog(int result) override { CloseM(result); }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    void OnOK() override { askToCloseM(IDOK); }
    void OnCancel() override { askToCloseM(IDCANCEL); }

private:
    // What the callback says; 0 when there is none to ask.
    int tellM(int event, int id = 0, int kind = 0, int number = 0, int good = 0, POINT at = {});
    void tellOfControlM(int event, int id, int number, int good = 0);
    void tellOfNotificationM(UINT message, WPARAM wParam, LPARAM lParam);
    void tellLeftM(int id, int kind);
    void askToCloseM(int result);
    void endUseM(UseCL::By by);
    int kindM(int id);
    int frameM(int id); // That a special animation shows, -1: none.

    panelkit_dialog* const handle_;
    panelkit_options options_;
    std::string error_;
    std::map<UINT_PTR, int> timers_; // The program's id by the window's.
    UINT_PTR lastTimer_;
    HWND disabledOwner_ { nullptr };
    int result_ { -1 };
    int uses_ { 0 };
    int quiet_ { 0 };
    bool isOpen_ { false };
    bool isDoomed_ { false };
};

// Handles one message of this thread, waiting for it or not. -1: there is none; 0: the program quits.
int slHandleMessage(bool waits);

// A small application with three dialogs: workshop.exe [FOLDER] [--settings FOLDER]
// FOLDER: of the description files and their pictures; without it the folder `workshop` beside the program.
// --settings FOLDER: where the values are kept; without it a folder below %APPDATA%.
#include "panelkit.h"

#include "jog_dialog.h"
#include "machine_form.h"
#include "pens_dialog.h"

#include <shellapi.h>

namespace {

enum ControlId : int // Of workshop.dlg.
{
    MachineButtonId = 11,
    PensButtonId = 12,
    JogButtonId = 13,
    MachineSummaryId = 111,
    PensSummaryId = 112,
    JogSummaryId = 113,
    MachineIconId = 201,
    PensIconId = 202,
    JogIconId = 203
};

struct ArgumentsCL
{
    std::filesystem::path folder;
    std::filesystem::path settings { SettingsCL::UsersFolderM() };
};

ArgumentsCL arguments()
{
    wchar_t program[MAX_PATH] = L"";
    ::GetModuleFileNameW(nullptr, program, MAX_PATH);
    ArgumentsCL given;
    given.folder = std::filesystem::path(program).parent_path() / "workshop";
    int count = 0;
    LPWSTR* const words = ::CommandLineToArgvW(::GetCommandLineW(), &count);
    for (int i = 1; i < count; ++i) {
        // Made absolute here: the current folder changes.
        if (std::wstring(words[i]) == L"--settings" && i + 1 < count) {
            given.settings = std::filesystem::absolute(words[++i]);
        } else {
            given.folder = std::filesystem::absolute(words[i]);
        }
    }
    ::LocalFree(words);
    return given;
}

// The window from which the three dialogs are opened.
class WorkshopCL
{
public:
    explicit WorkshopCL(const SettingsCL& settings)
        : settings_(settings)
        , main_("workshop.dlg")
        , machine_(main_.Native(), settings)
    {
        onM(MachineButtonId, MachineIconId, [this] { machine_.RunM(); });
        onM(PensButtonId, PensIconId, [this] { PensDialogCL(settings_).DoModalM(windowM()); });
        onM(JogButtonId, JogIconId,
            [this] { JogDialogCL(settings_, machine_.MotionM()).DoModalM(windowM()); });
        summariseM();
    }
    // Empty: everything is there.
    std::string ErrorM() const { return main_ ? machine_.ErrorM() : main_.Error(); }
    void RunM() { main_.Run(); }

private:
    CWnd* windowM() const { return CWnd::FromHandle(static_cast<HWND>(main_.Native())); }
    // A button and the picture beside it do the same.
    void onM(int button, int icon, const std::function<void()>& open)
    {
        const auto openAndTell = [this, open] {
            open();
            summariseM();
        };
        main_.OnClick(button, openAndTell);
        main_.OnClick(icon, openAndTell);
    }
    void showM(int label, const std::string& text)
    {
        ::SetDlgItemTextW(
            static_cast<HWND>(main_.Native()), label, ValueTextCL::FromUtf8M(text).WideM().c_str());
    }
    void summariseM()
    {
        showM(MachineSummaryId, machine_.SummaryM());
        showM(PensSummaryId, PensDialogCL::SummaryM(settings_));
        showM(JogSummaryId, JogDialogCL::SummaryM(settings_));
    }

    const SettingsCL& settings_;
    panelkit::Form main_;
    MachineFormCL machine_;
};

// The program. The toolkit calls InitInstance when everything is ready.
class WorkshopAppCL : public CWinApp
{
public:
    BOOL InitInstance() override
    {
        const ArgumentsCL given = arguments();
        ::SetCurrentDirectoryW(given.folder.c_str()); // Pictures are found relative to the current folder.
        const SettingsCL settings(given.settings);
        WorkshopCL workshop(settings);
        const std::string error = workshop.ErrorM();
        if (!error.empty()) {
            ::MessageBoxW(
                nullptr, ValueTextCL::FromUtf8M(error).WideM().c_str(), L"Workshop", MB_OK | MB_ICONERROR);
            exitCode_ = 1;
        } else {
            workshop.RunM();
        }
        return FALSE; // The main window is closed: no message loop to run.
    }
    int ExitInstance() override
    {
        CWinApp::ExitInstance();
        return exitCode_;
    }

private:
    int exitCode_ { 0 };
};

WorkshopAppCL application;

} // namespace

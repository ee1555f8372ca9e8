#include "live_dialog.h"
#include "baselib/gbk.h"
#include "check.h"
#include "controls/base/leaving.h"
#include <cstdlib>

namespace {

constexpr UINT FilesChangedMsg = WM_APP + 1;
constexpr UINT_PTR RetryTimer = 2;
constexpr UINT RetryMilliseconds = 30;
constexpr UINT_PTR OverlayTimer = 3; // Controls come and go, and Tab stops with them, without a word.
constexpr UINT OverlayMilliseconds = 200;

} // namespace

LiveDialogCL::LiveDialogCL(const std::string& name, const ViewOptionsCL& options)
    : PreviewDialogCL(name, options.textLanguage)
    , options_(options)
    , language_(languageOf(options.language))
    , path_(std::filesystem::current_path() / slGbkToWide(name.c_str()))
{
    SetScaleM(options.scale != 0 ? options.scale : AutomaticScale);
}

LiveDialogCL::~LiveDialogCL() = default;

BOOL LiveDialogCL::OnInitDialog()
{
    if (options_.logsMessages) {
        log_ = std::make_unique<MessageLogCL>();
    }
    isBuilding_ = true;
    if (options_.watches) { // From before it is read.
        const HWND window = m_hWnd;
        watched_
            = std::make_unique<WatchedFilesCL>([window] { ::PostMessageW(window, FilesChangedMsg, 0, 0); });
        watched_->WatchM(watchedM());
    }
    const BOOL result = PreviewDialogCL::OnInitDialog();
    isBuilding_ = false;
    wasBuilt_ = true;
    kept_.NoteBuiltM(m_hWnd);
    if (options_.watches) {
        checkM();
    }
    if (isLabelledM()) {
        SetTimer(OverlayTimer, OverlayMilliseconds);
    }
    return result;
}

// The file itself and where its translations may come from.
std::vector<std::filesystem::path> LiveDialogCL::watchedM() const
{
    TranslationCL translation;
    translation.SetLanguageM(options_.textLanguage.c_str());
    std::vector<std::filesystem::path> files { path_ };
    for (const std::string& catalogue : translation.FilesM(slWideToGbk(path_.wstring()).c_str())) {
        files.emplace_back(slGbkToWide(catalogue.c_str()));
    }
    return files;
}

// Says what is wrong with the file, and watches the pictures that it names. False: nothing can be built of
// it; a file that is gone comes back.
bool LiveDialogCL::checkM()
{
    const auto text = readText(path_);
    if (text == nullptr) {
        return false;
    }
    const FindingsCL findings = checkText("", path_.parent_path(), text);
    std::vector<std::filesystem::path> files = watchedM();
    for (const std::string& picture : findings.PicturesM()) {
        files.push_back(path_.parent_path() / slGbkToWide(picture.c_str()));
    }
    watched_->WatchM(files);
    const bool isGood = findings.CountM(Severity::Error) == 0;
    if (isGood) {
        bar_.HideM();
    } else {
        bar_.ShowM(m_hWnd, findings, language_);
    }
    return isGood;
}

void LiveDialogCL::followFileM()
{
    if (isBusyM()) {
        SetTimer(RetryTimer, RetryMilliseconds);
        return;
    }
    KillTimer(RetryTimer);
    if (checkM()) {
        rebuildM();
    }
}

// While the user holds something, or has something to answer, no control may go.
bool LiveDialogCL::isBusyM() const
{
    GUITHREADINFO thread {};
    thread.cbSize = sizeof thread;
    constexpr DWORD OwnLoops = GUI_INMENUMODE | GUI_INMOVESIZE | GUI_POPUPMENUMODE | GUI_SYSTEMMENUMODE;
    const bool isHeld = ::GetGUIThreadInfo(::GetCurrentThreadId(), &thread)
        && (thread.hwndCapture != nullptr || (thread.flags & OwnLoops) != 0);
    const auto isDown = [](int key) { return (::GetAsyncKeyState(key) & 0x8000) != 0; };
    return isHeld || isDown(VK_LBUTTON) || isDown(VK_RBUTTON) || isDown(VK_MBUTTON) || !IsWindowEnabled()
        || IsIconic() || isDroppedDownM();
}

bool LiveDialogCL::isDroppedDownM() const
{
    for (HWND child = ::GetWindow(m_hWnd, GW_CHILD); child != nullptr;
         child = ::GetWindow(child, GW_HWNDNEXT)) {
        if (dynamic_cast<CComboBox*>(FromHandlePermanent(child)) != nullptr
            && ::SendMessageW(child, CB_GETDROPPEDSTATE, 0, 0) != 0) {
            return true;
        }
    }
    return false;
}

void LiveDialogCL::rebuildM()
{
    const ValidationPauseCL rebuilding(m_hWnd); // No field is left or entered by it.
    const bool isVisible = IsWindowVisible() != FALSE;
    const bool isActive = ::GetActiveWindow() == m_hWnd;
    kept_.TakeM(m_hWnd, isActive ? ::GetFocus() : awaitsFocus_ ? awaiting_ : left_);
    isBuilding_ = true;
    SetRedraw(FALSE);
    RebuildM();
    kept_.NoteBuiltM(m_hWnd);
    const HWND successor = kept_.GiveBackM(m_hWnd);
    if (isActive) {
        giveFocusM(successor);
    } else {
        awaiting_ = successor;
        awaitsFocus_ = true; // Now it would make the dialog active.
    }
    isBuilding_ = false;
    if (isVisible) { // The style that the file says has taken that away.
        ::SetWindowPos(m_hWnd, nullptr, 0, 0, 0, 0,
            SWP_SHOWWINDOW | SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE | SWP_NOZORDER);
        RedrawWindow(
            nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN | RDW_UPDATENOW);
    }
    dockM();
}

void LiveDialogCL::followControlsM()
{
    labelM();
    const HWND focus = ::GetFocus();
    if (focus != overlaidFocus_ && IsWindowEnabled() && !isDroppedDownM()) {
        overlaidFocus_ = focus;
        overlay_.RaiseM();
    }
}

// To the control that had it, else to where a new dialog has it.
void LiveDialogCL::giveFocusM(HWND control)
{
    awaitsFocus_ = false;
    const HWND wanted = control != nullptr ? control : ::GetNextDlgTabItem(m_hWnd, nullptr, FALSE);
    ::SetFocus(wanted != nullptr ? wanted : m_hWnd);
}

// The user's place holds, until the file says another one.
void LiveDialogCL::keepPlaceM(WINDOWPOS& place)
{
    if ((place.flags & SWP_NOMOVE) != 0) {
        return;
    }
    if (wasBuilt_ && place.x == filePlace_.x && place.y == filePlace_.y) {
        place.flags |= SWP_NOMOVE;
    }
    filePlace_ = { place.x, place.y };
}

void LiveDialogCL::dockM()
{
    bar_.DockM(m_hWnd);
    if (isLabelledM()) {
        labelM();
    }
}

// Where no control is marked the file names none, or one that isn't there.
void LiveDialogCL::labelM()
{
    if (options_.showsIds) {
        overlay_.FollowM(m_hWnd);
        return;
    }
    std::string word;
    readBytes(std::filesystem::u8path(options_.mark), &word);
    const int id = std::atoi(word.c_str());
    if (id != 0) {
        overlay_.FollowM(m_hWnd, &id);
    } else {
        overlay_.HideM();
    }
}

LRESULT LiveDialogCL::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (log_ != nullptr && !isBuilding_) {
        log_->SeeM(m_hWnd, message, wParam, lParam);
    }
    switch (message) {
    case FilesChangedMsg:
        followFileM();
        return 0;
    case WM_TIMER:
        if (wParam == RetryTimer) {
            followFileM();
            return 0;
        }
        if (wParam == OverlayTimer) {
            followControlsM();
            return 0;
        }
        break;
    case WM_WINDOWPOSCHANGING:
        if (isBuilding_) {
            keepPlaceM(*reinterpret_cast<WINDOWPOS*>(lParam));
        }
        break;
    case WM_DESTROY:
        watched_.reset();
        break;
    case WM_ACTIVATE:
        if (LOWORD(wParam) == WA_INACTIVE) {
            left_ = ::GetFocus();
            awaitsFocus_ = false;
        }
        break;
    default:
        break;
    }
    const LRESULT result = PreviewDialogCL::WindowProc(message, wParam, lParam);
    if (message == WM_WINDOWPOSCHANGED && !isBuilding_) {
        dockM();
    } else if (message == WM_ACTIVATE && LOWORD(wParam) != WA_INACTIVE && awaitsFocus_) {
        giveFocusM(awaiting_);
    }
    return result;
}

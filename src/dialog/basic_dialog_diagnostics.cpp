// Who is told what is wrong with the description file.
#include "baselib/file.h"
#include "baselib/gbk.h"
#include "baselib/io.h"
#include "dialog/basic_dialog.h"
#include "dialog/reading_diagnostics.h"
#include "toolkit/thread_state.h"
#include <string>

namespace {

void tellDebugger(const DiagnosticCL& what, void*)
{
    std::string text = std::string("panelkit: ") + what.file;
    if (what.line > 0) {
        text += ':' + std::to_string(what.line) + ':' + std::to_string(what.column);
    }
    text += std::string(": ") + what.message + " [" + what.code + "]\n";
    ::OutputDebugStringW(slGbkToWide(text.c_str()).c_str());
}

} // namespace

void DuBasicDialogCL::SetDiagnosticsM(DiagnosticTP callback, void* context)
{
    const bool isForDebugger = callback == nullptr;
    diagnostics_ = std::make_unique<ReadingDiagnosticsCL>(
        isForDebugger ? &tellDebugger : callback, context, isForDebugger);
}

void DuBasicDialogCL::beginDiagnosticsM()
{
    if (diagnostics_ == nullptr && ::IsDebuggerPresent()) {
        SetDiagnosticsM(nullptr, nullptr);
    }
    if (diagnostics_ != nullptr) {
        diagnostics_->BeginBuildM();
    }
}

void DuBasicDialogCL::openFileM(VrIOCL& io)
{
    io.OpenM(configFile_, "r");
    if (!io.IsOpenM() && slIsTooLargeToRead(configFile_)) {
        ThreadStateCL::ThisM().hasLackedMemory = true;
    }
    if (diagnostics_ != nullptr) {
        diagnostics_->WatchM(configFile_, io);
    }
}

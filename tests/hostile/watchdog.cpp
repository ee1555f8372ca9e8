#include "hostile/watchdog.h"
#include "support/faults.h"
#include <cstdio>

using namespace testing_support;

namespace {

constexpr ULONGLONG Patience = 5000; // Milliseconds for a step.
constexpr DWORD Interval = 250;
constexpr UINT Hung = 124;
constexpr UINT Faulted = 125;

WatchdogCL* only = nullptr;
FaultsCL* faults = nullptr;

} // namespace

WatchdogCL::WatchdogCL()
    : since_(GetTickCount64())
    , stop_(CreateEventW(nullptr, TRUE, FALSE, nullptr))
{
    DuplicateHandle(GetCurrentProcess(), GetCurrentThread(), GetCurrentProcess(), &watched_, 0, FALSE,
        DUPLICATE_SAME_ACCESS);
    only = this;
    faults = new FaultsCL(onFault);
    thread_ = std::thread([this] { watchM(); });
}

WatchdogCL::~WatchdogCL()
{
    SetEvent(stop_);
    thread_.join();
    delete faults;
    only = nullptr;
    CloseHandle(watched_);
    CloseHandle(stop_);
}

void WatchdogCL::BeginM(unsigned seed, bool tells)
{
    const std::lock_guard<std::mutex> lock(mutex_);
    seed_ = seed;
    number_ = 0;
    tells_ = tells;
}

void WatchdogCL::StepM(const std::string& step)
{
    const std::lock_guard<std::mutex> lock(mutex_);
    step_ = step;
    ++number_;
    since_ = GetTickCount64();
    if (tells_) {
        std::fprintf(stderr, "%s\n", whereM().c_str());
        std::fflush(stderr);
    }
}

std::string WatchdogCL::whereM()
{
    return "seed " + std::to_string(seed_) + ", step " + std::to_string(number_) + ": " + step_;
}

void WatchdogCL::watchM()
{
    while (WaitForSingleObject(stop_, Interval) == WAIT_TIMEOUT) {
        const std::lock_guard<std::mutex> lock(mutex_);
        if (GetTickCount64() - since_ > Patience) {
            std::fprintf(stderr, "%s: HANGS\n", whereM().c_str());
            SuspendThread(watched_);
            CONTEXT context {};
            context.ContextFlags = CONTEXT_FULL;
            GetThreadContext(watched_, &context);
            WriteStackM(context);
            TerminateProcess(GetCurrentProcess(), Hung);
        }
    }
}

void WatchdogCL::onFault(const EXCEPTION_POINTERS& fault)
{
    std::fprintf(stderr, "%s: FAULT %08lx\n", only->whereM().c_str(), fault.ExceptionRecord->ExceptionCode);
    WriteStackM(*fault.ContextRecord);
    TerminateProcess(GetCurrentProcess(), Faulted);
}

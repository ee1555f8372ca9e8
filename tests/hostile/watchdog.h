#pragma once
#include <mutex>
#include <string>
#include <thread>
#include <windows.h>

// Ends the process, and says where it was, when the thread that made it stays at one step for too long or
// meets a memory fault. One at a time.
class WatchdogCL
{
public:
    WatchdogCL();
    WatchdogCL(const WatchdogCL&) = delete;
    WatchdogCL& operator=(const WatchdogCL&) = delete;
    ~WatchdogCL();

    void BeginM(unsigned seed, bool tells); // tells: each step is written to stderr.
    void StepM(const std::string& step);

private:
    void watchM();
    static void onFault(const EXCEPTION_POINTERS& fault);
    std::string whereM();

    std::mutex mutex_;
    std::string step_;
    unsigned seed_ { 0 };
    int number_ { 0 };
    ULONGLONG since_ { 0 };
    bool tells_ { false };
    HANDLE stop_;
    HANDLE watched_ { nullptr };
    std::thread thread_;
};

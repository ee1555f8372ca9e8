#pragma once
#include <cstdio>
#include <string>
#include <windows.h>

// What the test does just now; if the program crashes there, that is printed.
class ToldStepCL
{
public:
    ToldStepCL()
        : before_(::SetUnhandledExceptionFilter(&tell))
    {
    }
    ToldStepCL(const ToldStepCL&) = delete;
    ToldStepCL& operator=(const ToldStepCL&) = delete;
    ~ToldStepCL() { ::SetUnhandledExceptionFilter(before_); }

    // kind, name: must hold until the next call.
    static void NoteM(unsigned seed, int step, const char* kind, const char* name)
    {
        seed_ = seed;
        step_ = step;
        NoteNameM(kind, name);
    }
    static void NoteNameM(const char* kind, const char* name) // Of the same step.
    {
        kind_ = kind;
        name_ = name;
    }
    static std::string TextM()
    {
        return "seed " + std::to_string(seed_) + ", step " + std::to_string(step_) + ": " + kind_ + " "
            + name_;
    }

private:
    static LONG WINAPI tell(EXCEPTION_POINTERS* fault)
    {
        std::fprintf(stderr, "crashed at %p; seed %u, step %d: %s %s\n",
            fault->ExceptionRecord->ExceptionAddress, seed_, step_, kind_, name_);
        std::fflush(stderr);
        return EXCEPTION_EXECUTE_HANDLER; // The program ends, without a debugger that nobody waits for.
    }

    static inline unsigned seed_ { 0 };
    static inline int step_ { 0 };
    static inline const char* kind_ { "" };
    static inline const char* name_ { "" };
    LPTOP_LEVEL_EXCEPTION_FILTER before_;
};

#pragma once
#include "support/description_files.h"
#include "support/temp_file.h"
#include <cstdio>
#include <cstdlib>
#include <gtest/gtest.h>
#include <string>
#include <vector>
#ifdef _WIN32
#include <windows.h>
#else
#include <sys/wait.h>
#endif

// What a run of the panelkit command gave.
struct CommandResultCL
{
    int code { -1 };
    std::string output; // Standard output.
    std::string errors; // Standard error.
};

#ifdef _WIN32

constexpr DWORD NotStarted = 999; // The code of a command that the system did not start.

inline HANDLE inheritedFile(const std::string& path)
{
    SECURITY_ATTRIBUTES attributes { sizeof attributes, nullptr, TRUE };
    return ::CreateFileA(path.c_str(), GENERIC_WRITE, FILE_SHARE_READ, &attributes, CREATE_ALWAYS,
        FILE_ATTRIBUTE_NORMAL, nullptr);
}

inline int startCommand(const std::string& arguments, const std::string& output, const std::string& errors)
{
    STARTUPINFOA start {};
    start.cb = sizeof start;
    start.dwFlags = STARTF_USESTDHANDLES;
    start.hStdOutput = inheritedFile(output);
    start.hStdError = inheritedFile(errors);
    PROCESS_INFORMATION process {};
    std::string line = "\"" PANELKIT_COMMAND "\" " + arguments;
    DWORD code = NotStarted;
    // Wine now and then refuses one start of thousands, before our program runs at all: each refusal is told.
    for (int attempt = 1; attempt <= 3; ++attempt) {
        if (::CreateProcessA(
                nullptr, line.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &start, &process)) {
            ::WaitForSingleObject(process.hProcess, 120000);
            ::GetExitCodeProcess(process.hProcess, &code);
            ::CloseHandle(process.hThread);
            ::CloseHandle(process.hProcess);
            break;
        }
        std::printf("NOT STARTED, attempt %d, error %lu: %s\n", attempt, ::GetLastError(), line.c_str());
    }
    ::CloseHandle(start.hStdOutput);
    ::CloseHandle(start.hStdError);
    return static_cast<int>(code);
}

#else

inline int startCommand(const std::string& arguments, const std::string& output, const std::string& errors)
{
    const std::string line = "'" PANELKIT_COMMAND "' " + arguments + " >'" + output + "' 2>'" + errors + "'";
    const int status = std::system(line.c_str());
    return WIFEXITED(status) ? WEXITSTATUS(status) : 1000 + WTERMSIG(status);
}

#endif

// Runs the command with arguments as typed; quote names with blanks in double quotes.
inline CommandResultCL runCommand(const std::string& arguments)
{
    const TempFile output;
    const TempFile errors;
    CommandResultCL result;
    result.code = startCommand(arguments, output.path(), errors.path());
    result.output = wholeFile(output.path());
    result.errors = wholeFile(errors.path());
    return result;
}

// The one line of complaint and exit 2 that wrong use gets.
inline void expectComplaint(const CommandResultCL& result, const std::string& part)
{
    EXPECT_EQ(result.code, 2);
    EXPECT_EQ(result.output, "");
    EXPECT_NE(result.errors.find(part), std::string::npos) << result.errors;
    EXPECT_EQ(result.errors.rfind("panelkit: ", 0), 0U) << result.errors;
    EXPECT_EQ(result.errors.find('\n'), result.errors.size() - 1) << result.errors;
}

// Every description file of examples/.
inline std::vector<std::string> exampleFiles()
{
    return descriptionFiles(PANELKIT_EXAMPLES);
}

inline int countOf(const std::string& text, const std::string& part)
{
    int count = 0;
    for (size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) {
        ++count;
    }
    return count;
}

inline std::string sample(const std::string& name)
{
    return PANELKIT_SAMPLES "/" + name;
}

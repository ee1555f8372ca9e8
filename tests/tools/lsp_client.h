#pragma once
#include "baselib/gbk.h"
#include "tools/run_command.h"
#include <deque>
#include <nlohmann/json.hpp>
#include <stdexcept>
#ifdef _WIN32
#include <windows.h>
#else
#include <unistd.h>
#endif

using LspJson = nlohmann::json;

// A program with its standard input and output in our hands.
class PipedProgramCL
{
public:
    PipedProgramCL(const PipedProgramCL&) = delete;
    PipedProgramCL& operator=(const PipedProgramCL&) = delete;
#ifdef _WIN32
    explicit PipedProgramCL(const std::string& arguments)
    {
        SECURITY_ATTRIBUTES inherited { sizeof inherited, nullptr, TRUE };
        HANDLE input = nullptr;
        HANDLE output = nullptr;
        ::CreatePipe(&input, &to_, &inherited, 1 << 16);
        ::CreatePipe(&from_, &output, &inherited, 1 << 16);
        ::SetHandleInformation(to_, HANDLE_FLAG_INHERIT, 0);
        ::SetHandleInformation(from_, HANDLE_FLAG_INHERIT, 0);
        STARTUPINFOA start {};
        start.cb = sizeof start;
        start.dwFlags = STARTF_USESTDHANDLES;
        start.hStdInput = input;
        start.hStdOutput = start.hStdError = output;
        std::string line = "\"" PANELKIT_COMMAND "\" " + arguments;
        ::CreateProcessA(
            nullptr, line.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &start, &process_);
        ::CloseHandle(input);
        ::CloseHandle(output);
    }
    ~PipedProgramCL()
    {
        EndM();
    }
    bool WriteM(const char* bytes, std::size_t size)
    {
        DWORD written = 0;
        return ::WriteFile(to_, bytes, static_cast<DWORD>(size), &written, nullptr) && written == size;
    }
    std::size_t ReadM(char* bytes, std::size_t size)
    {
        DWORD read = 0;
        return ::ReadFile(from_, bytes, static_cast<DWORD>(size), &read, nullptr) ? read : 0;
    }
    int EndM() // Closes its input; the exit code.
    {
        if (to_ != nullptr) {
            ::CloseHandle(std::exchange(to_, nullptr));
            ::WaitForSingleObject(process_.hProcess, 60000);
            ::GetExitCodeProcess(process_.hProcess, &code_);
            ::CloseHandle(process_.hThread);
            ::CloseHandle(process_.hProcess);
            ::CloseHandle(from_);
        }
        return static_cast<int>(code_);
    }

private:
    HANDLE to_ { nullptr };
    HANDLE from_ { nullptr };
    PROCESS_INFORMATION process_ {};
    DWORD code_ { 999 };
#else
    explicit PipedProgramCL(const std::string& arguments)
    {
        int input[2];
        int output[2];
        if (::pipe(input) != 0 || ::pipe(output) != 0) {
            throw std::runtime_error("no pipe");
        }
        const std::string line = "exec '" PANELKIT_COMMAND "' " + arguments;
        process_ = ::fork();
        if (process_ == 0) {
            ::dup2(input[0], 0);
            ::dup2(output[1], 1);
            for (const int end : { input[0], input[1], output[0], output[1] }) {
                ::close(end);
            }
            ::execl("/bin/sh", "sh", "-c", line.c_str(), static_cast<char*>(nullptr));
            ::_exit(127);
        }
        ::close(input[0]);
        ::close(output[1]);
        to_ = input[1];
        from_ = output[0];
    }
    ~PipedProgramCL()
    {
        EndM();
    }
    bool WriteM(const char* bytes, std::size_t size)
    {
        while (size > 0) {
            const ssize_t written = ::write(to_, bytes, size);
            if (written <= 0) {
                return false;
            }
            bytes += written;
            size -= static_cast<std::size_t>(written);
        }
        return true;
    }
    std::size_t ReadM(char* bytes, std::size_t size)
    {
        const ssize_t read = ::read(from_, bytes, size);
        return read > 0 ? static_cast<std::size_t>(read) : 0;
    }
    int EndM() // Closes its input; the exit code.
    {
        if (to_ >= 0) {
            ::close(std::exchange(to_, -1));
            int status = 0;
            ::waitpid(process_, &status, 0);
            ::close(from_);
            code_ = WIFEXITED(status) ? WEXITSTATUS(status) : 1000 + WTERMSIG(status);
        }
        return code_;
    }
    pid_t ProcessM() const
    {
        return process_;
    }

private:
    int to_ { -1 };
    int from_ { -1 };
    pid_t process_ { 0 };
    int code_ { 999 };
#endif
};

// What an editor is to `panelkit lsp`.
class LspClientCL
{
public:
    explicit LspClientCL(
        const LspJson& capabilities = LspJson::object(), const std::string& options = "--lang en")
        : program_("lsp " + options)
    {
        welcome = RequestM("initialize", { { "processId", nullptr }, { "capabilities", capabilities } });
        NotifyM("initialized", LspJson::object());
    }
    ~LspClientCL() { EXPECT_EQ(EndM(), 0); }
    int EndM()
    {
        if (!isEnded_) {
            isEnded_ = true;
            RequestM("shutdown", nullptr);
            NotifyM("exit", nullptr);
        }
        return program_.EndM();
    }

    void SendM(const LspJson& message) { SendBytesM(message.dump()); }
    void SendBytesM(const std::string& body)
    {
        const std::string bytes = "Content-Length: " + std::to_string(body.size()) + "\r\n\r\n" + body;
        program_.WriteM(bytes.data(), bytes.size());
    }
    LspJson ReceiveM() // The next message; throws at the end of the output.
    {
        std::size_t head = std::string::npos;
        while ((head = read_.find("\r\n\r\n")) == std::string::npos) {
            moreM();
        }
        const std::size_t length = std::stoul(read_.substr(read_.find(':') + 1));
        while (read_.size() < head + 4 + length) {
            moreM();
        }
        LspJson message = LspJson::parse(read_.substr(head + 4, length));
        read_.erase(0, head + 4 + length);
        return message;
    }
    void NotifyM(const std::string& method, const LspJson& params)
    {
        SendM({ { "jsonrpc", "2.0" }, { "method", method }, { "params", params } });
    }
    // The whole answer; notices before it are kept.
    LspJson AnswerM(const std::string& method, const LspJson& params)
    {
        const int id = ++lastId_;
        LspJson request = { { "jsonrpc", "2.0" }, { "id", id }, { "method", method } };
        if (!params.is_null()) {
            request["params"] = params;
        }
        SendM(request);
        for (;;) {
            LspJson message = ReceiveM();
            if (message.contains("id") && message["id"] == id) {
                return message;
            }
            notices_.push_back(std::move(message));
        }
    }
    LspJson RequestM(const std::string& method, const LspJson& params)
    {
        const LspJson answer = AnswerM(method, params);
        EXPECT_FALSE(answer.contains("error")) << method << ": " << answer.dump();
        return answer.value("result", LspJson());
    }
    LspJson NoticeM(const std::string& method)
    {
        for (;;) {
            LspJson message;
            if (notices_.empty()) {
                message = ReceiveM();
            } else {
                message = std::move(notices_.front());
                notices_.pop_front();
            }
            if (message.value("method", "") == method) {
                return message["params"];
            }
        }
    }
    // The findings for a version of a text.
    LspJson FindingsM(const std::string& uri, int version)
    {
        for (;;) {
            const LspJson params = NoticeM("textDocument/publishDiagnostics");
            if (params["uri"] == uri && params.value("version", -1) == version) {
                return params["diagnostics"];
            }
        }
    }

    LspJson welcome;
#ifndef _WIN32
    pid_t ProcessM() const
    {
        return program_.ProcessM();
    }
#endif

private:
    void moreM()
    {
        char block[65536];
        const std::size_t size = program_.ReadM(block, sizeof block);
        if (size == 0) {
            throw std::runtime_error("the server has ended: " + read_);
        }
        read_.append(block, size);
    }

    PipedProgramCL program_;
    std::string read_;
    std::deque<LspJson> notices_;
    int lastId_ { 0 };
    bool isEnded_ { false };
};

// Where a text has an offset, in lines and UTF-16 units.
inline LspJson positionAt(const std::u16string& text, std::size_t offset)
{
    std::size_t line = 0;
    std::size_t begin = 0;
    for (std::size_t at = 0; at < offset; ++at) {
        const bool isEnd
            = text[at] == '\n' || (text[at] == '\r' && (at + 1 == text.size() || text[at + 1] != '\n'));
        if (isEnd) {
            ++line;
            begin = at + 1;
        }
    }
    return { { "line", line }, { "character", offset - begin } };
}

inline std::size_t offsetAt(const std::u16string& text, const LspJson& position)
{
    std::size_t at = 0;
    for (auto line = position["line"].get<std::size_t>(); line > 0 && at < text.size(); ++at) {
        const bool isEnd
            = text[at] == '\n' || (text[at] == '\r' && (at + 1 == text.size() || text[at + 1] != '\n'));
        line -= isEnd ? 1 : 0;
    }
    return std::min(at + position["character"].get<std::size_t>(), text.size());
}

// A text that is open in the editor.
class EditedTextCL
{
public:
    EditedTextCL(LspClientCL& client, const std::string& path, const std::string& gbk)
        : client_(client)
        , text(slGbkToUtf16(gbk.data(), gbk.size()))
    {
        for (const char byte : std::filesystem::absolute(path).generic_u8string()) {
            uri += byte;
        }
        uri = (uri[0] == '/' ? "file://" : "file:///") + uri;
        client_.NotifyM("textDocument/didOpen",
            { { "textDocument",
                { { "uri", uri }, { "languageId", "panelkit" }, { "version", version },
                    { "text", Utf8M() } } } });
    }
    std::string Utf8M() const { return slUtf16ToUtf8(text.data(), text.size()); }
    std::string GbkM() const { return slUtf16ToGbk(text.data(), text.size()); }
    LspJson PlaceM(std::size_t offset) const { return positionAt(text, offset); }
    LspJson RangeM(std::size_t begin, std::size_t end) const
    {
        return { { "start", PlaceM(begin) }, { "end", PlaceM(end) } };
    }
    // Changes the text; what the server is to be told of it.
    LspJson ChangeM(std::size_t begin, std::size_t end, const std::u16string& typed)
    {
        const LspJson range = RangeM(begin, end);
        text.replace(begin, end - begin, typed);
        return { { "range", range }, { "text", slUtf16ToUtf8(typed.data(), typed.size()) } };
    }
    void TellM(const LspJson& changes)
    {
        client_.NotifyM("textDocument/didChange",
            { { "textDocument", { { "uri", uri }, { "version", ++version } } },
                { "contentChanges", changes } });
    }
    // Types, in place of what stands there.
    void TypeM(std::size_t begin, std::size_t end, const std::u16string& typed)
    {
        TellM(LspJson::array({ ChangeM(begin, end, typed) }));
    }
    // Applies what the server wants changed, as an editor does: all ranges mean the text before.
    void ApplyM(LspJson edits)
    {
        std::sort(edits.begin(), edits.end(), [this](const LspJson& a, const LspJson& b) {
            return offsetAt(text, a["range"]["start"]) > offsetAt(text, b["range"]["start"]);
        });
        for (const LspJson& edit : edits) {
            TypeM(offsetAt(text, edit["range"]["start"]), offsetAt(text, edit["range"]["end"]),
                slUtf8ToUtf16(edit["newText"].get<std::string>()));
        }
    }
    LspJson FindingsM() { return client_.FindingsM(uri, version); }
    LspJson AskM(const std::string& method, LspJson params = LspJson::object())
    {
        params["textDocument"]["uri"] = uri;
        return client_.RequestM("textDocument/" + method, params);
    }
    LspJson AskAtM(const std::string& method, std::size_t offset, LspJson params = LspJson::object())
    {
        params["position"] = PlaceM(offset);
        return AskM(method, params);
    }
    LspJson FixesM(const LspJson& finding)
    {
        return AskM("codeAction",
            { { "range", finding["range"] }, { "context", { { "diagnostics", { finding } } } } });
    }

private:
    LspClientCL& client_;

public:
    std::u16string text;
    std::string uri;
    int version { 1 };
};

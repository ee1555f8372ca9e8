#pragma once
#include "features.h"
#include "inbox.h"
#include "preview.h"
#include <map>

// What the client has open, and the answers to its messages.
class ServerCL
{
public:
    explicit ServerCL(std::string language)
        : option_(std::move(language))
    {
    }
    // Answers one message. False for the last one.
    bool TakeM(const JsonTP& message, InboxCL& inbox);
    void TellFindingsM(); // Of the texts that have changed since.
    bool WasShutDownM() const { return state_ == State::ShutDown; }

private:
    enum class State
    {
        New,
        Working,
        ShutDown
    };
    using AnswerTP = JsonTP (ServerCL::*)(const JsonTP& params);

    void noticeM(const std::string& method, const JsonTP& params);
    JsonTP answerM(const std::string& method, const JsonTP& params);
    JsonTP initializeM(const JsonTP& params);
    JsonTP executeM(const JsonTP& params);
    void openM(const JsonTP& params);
    void changeM(const JsonTP& params);
    void forgetM();
    OpenFileCL& fileM(const JsonTP& params);
    OpenFileCL& fileOfM(const std::string& uri);
    static void tellM(const std::string& uri, const JsonTP& version, JsonTP&& diagnostics);

    std::string option_; // As the user gave the language.
    Language language_ { Language::English };
    PositionCode code_ { PositionCode::Utf16 };
    State state_ { State::New };
    std::map<std::string, OpenFileCL> files_; // By their URIs.
    PreviewsCL previews_;
};

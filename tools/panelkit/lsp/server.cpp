#include "server.h"
#include "check.h"
#include "commands.h"

namespace {

// Codes of the protocol.
constexpr int ParseError = -32700;
constexpr int InvalidRequest = -32600;
constexpr int MethodNotFound = -32601;
constexpr int InvalidParams = -32602;
constexpr int NotInitialized = -32002;
constexpr int RequestFailed = -32803;
constexpr int RequestCancelled = -32800;

struct ErrorCL
{
    int code;
    std::string why;
};

using FeatureTP = JsonTP (*)(OpenFileCL& file, const JsonTP& params);

const std::map<std::string, FeatureTP>& features()
{
    static const std::map<std::string, FeatureTP> all { { "textDocument/inlayHint", &inlayHints },
        { "textDocument/hover", &hoverAt }, { "textDocument/completion", &completionsAt },
        { "textDocument/definition", &definitionOf }, { "textDocument/references", &referencesOf },
        { "textDocument/prepareRename", &preparedRename }, { "textDocument/rename", &renamed },
        { "textDocument/documentSymbol", &documentSymbols }, { "textDocument/foldingRange", &foldingRanges },
        { "textDocument/documentColor", &documentColours },
        { "textDocument/colorPresentation", &colourPresentations },
        { "textDocument/formatting", &formattingEdits } };
    return all;
}

void sayTo(const char* method, JsonTP&& params)
{
    sendMessage({ { "jsonrpc", "2.0" }, { "method", method }, { "params", std::move(params) } });
}

void showMessage(int type, const std::string& text)
{
    sayTo("window/showMessage", { { "type", type }, { "message", text } });
}

} // namespace

bool ServerCL::TakeM(const JsonTP& message, InboxCL& inbox)
{
    const JsonTP id = message.is_object() ? message.value("id", JsonTP()) : JsonTP();
    JsonTP answer = { { "jsonrpc", "2.0" }, { "id", id } };
    const auto fail = [&answer](int code, const std::string& why) {
        answer["error"] = { { "code", code }, { "message", why } };
    };
    const bool isRequest = message.is_object() && message.contains("id");
    const bool hasMethod = message.is_object() && message.contains("method") && message["method"].is_string();
    if (hasMethod && message["method"] == "exit") {
        return false;
    }
    try {
        if (message.is_discarded()) {
            fail(ParseError, "no JSON");
        } else if (!hasMethod && isRequest) {
            return true; // The answer to a request of ours: nothing depends on it.
        } else if (!hasMethod) {
            fail(InvalidRequest, "neither a request nor a notice");
        } else if (!isRequest) {
            noticeM(message["method"], message.value("params", JsonTP::object()));
            return true;
        } else if (inbox.IsCancelledM(id)) {
            fail(RequestCancelled, "cancelled");
        } else {
            answer["result"] = answerM(message["method"], message.value("params", JsonTP::object()));
        }
    } catch (const ErrorCL& error) {
        fail(error.code, error.why);
    } catch (const RefusalCL& refusal) {
        fail(RequestFailed, refusal.why);
    } catch (const JsonTP::exception& error) {
        fail(InvalidParams, error.what());
    }
    if (isRequest || answer.contains("error")) {
        sendMessage(answer);
    }
    return true;
}

JsonTP ServerCL::answerM(const std::string& method, const JsonTP& params)
{
    if (method == "initialize" && state_ == State::New) {
        return initializeM(params);
    }
    if (state_ == State::New) {
        throw ErrorCL { NotInitialized, "not initialized" };
    }
    if (state_ == State::ShutDown || method == "initialize") {
        throw ErrorCL { InvalidRequest, "not now: " + method };
    }
    if (method == "shutdown") {
        state_ = State::ShutDown;
        return nullptr;
    }
    if (method == "workspace/executeCommand") {
        return executeM(params);
    }
    if (method == "textDocument/codeAction") {
        return codeActions(fileM(params), params, language_);
    }
    const auto feature = features().find(method);
    if (feature == features().end()) {
        throw ErrorCL { MethodNotFound, "unknown method " + method };
    }
    return feature->second(fileM(params), params);
}

JsonTP ServerCL::initializeM(const JsonTP& params)
{
    state_ = State::Working;
    const JsonTP locale = params.value("locale", JsonTP());
    language_ = option_.empty() && locale.is_string()
        ? (locale.get_ref<const std::string&>().rfind("zh", 0) == 0 ? Language::Chinese : Language::English)
        : languageOf(option_);
    const JsonTP general = params.at("capabilities").value("general", JsonTP::object());
    const char* codeName = "utf-16";
    for (const JsonTP& wanted : general.value("positionEncodings", JsonTP::array())) {
        if (wanted == "utf-8" || wanted == "utf-32") { // As the client likes it best.
            codeName = wanted == "utf-8" ? "utf-8" : "utf-32";
            code_ = wanted == "utf-8" ? PositionCode::Utf8 : PositionCode::Utf32;
            break;
        }
        if (wanted == "utf-16") {
            break;
        }
    }
    constexpr int Incremental = 2;
    const JsonTP sync = { { "openClose", true }, { "change", Incremental }, { "save", true } };
    const JsonTP capabilities = { { "positionEncoding", codeName }, { "textDocumentSync", sync },
        { "hoverProvider", true }, { "inlayHintProvider", true },
        { "completionProvider", { { "triggerCharacters", { "[", " " } } } }, { "definitionProvider", true },
        { "referencesProvider", true }, { "renameProvider", { { "prepareProvider", true } } },
        { "documentSymbolProvider", true }, { "foldingRangeProvider", true }, { "colorProvider", true },
        { "documentFormattingProvider", true },
        { "codeActionProvider", { { "codeActionKinds", { "quickfix" } } } },
        { "executeCommandProvider", { { "commands", { ConvertCommand, PreviewCommand } } } } };
    return { { "capabilities", capabilities },
        { "serverInfo", { { "name", "panelkit" }, { "version", PANELKIT_VERSION } } } };
}

void ServerCL::noticeM(const std::string& method, const JsonTP& params)
{
    if (state_ != State::Working) {
        return;
    }
    if (method == "textDocument/didOpen") {
        openM(params);
    } else if (method == "textDocument/didChange") {
        changeM(params);
    } else if (method == "textDocument/didSave") {
        fileM(params).ChangeM().LookAtFileM();
    } else if (method == "textDocument/didClose") {
        const std::string uri = params.at("textDocument").at("uri");
        files_.erase(uri);
        tellM(uri, nullptr, JsonTP::array());
    } else if (method == "workspace/didChangeWatchedFiles") {
        forgetM();
    }
}

void ServerCL::openM(const JsonTP& params)
{
    const JsonTP& document = params.at("textDocument");
    const std::string uri = document.at("uri");
    files_.erase(uri);
    OpenFileCL& file = files_.emplace(uri, OpenFileCL(uri, document.at("text"), code_)).first->second;
    file.ChangeM().version = document.at("version");
}

void ServerCL::changeM(const JsonTP& params)
{
    DocumentCL& document = fileM(params).ChangeM();
    for (const JsonTP& change : params.at("contentChanges")) {
        document.ChangeM(change);
    }
    document.version = params.at("textDocument").at("version");
}

// Pictures came, went or changed.
void ServerCL::forgetM()
{
    for (auto& [uri, file] : files_) {
        file.ChangeM().LookAtFileM();
    }
}

OpenFileCL& ServerCL::fileM(const JsonTP& params)
{
    return fileOfM(params.at("textDocument").at("uri"));
}

OpenFileCL& ServerCL::fileOfM(const std::string& uri)
{
    const auto found = files_.find(uri);
    if (found == files_.end()) {
        throw ErrorCL { InvalidParams, uri + " is not open" };
    }
    return found->second;
}

void ServerCL::tellM(const std::string& uri, const JsonTP& version, JsonTP&& diagnostics)
{
    JsonTP params = { { "uri", uri }, { "diagnostics", std::move(diagnostics) } };
    if (!version.is_null()) {
        params["version"] = version;
    }
    sayTo("textDocument/publishDiagnostics", std::move(params));
}

void ServerCL::TellFindingsM()
{
    for (auto& [uri, file] : files_) {
        if (file.IsToldM()) {
            continue;
        }
        JsonTP diagnostics = JsonTP::array();
        for (const FindingCL& finding : file.AnalysisM().findings.ListM()) {
            diagnostics.push_back(diagnosticOf(file, finding, language_));
        }
        tellM(uri, file.DocumentM().version, std::move(diagnostics));
        file.SetToldM();
    }
}

JsonTP ServerCL::executeM(const JsonTP& params)
{
    constexpr int Error = 1;
    constexpr int Info = 3;
    const std::string command = params.at("command");
    const JsonTP arguments = params.value("arguments", JsonTP::array());
    OpenFileCL& file = fileOfM(arguments.at(0));
    const std::string path = file.DocumentM().PathM().u8string();
    if (path.empty()) {
        throw RefusalCL { "the text has no file yet: save it first" };
    }
    const bool isChinese = language_ == Language::Chinese;
    if (command == ConvertCommand) {
        std::string said; // To the client we say it in its language.
        const bool isDone = convertFile(path, "", false, &said) == 0;
        file.ChangeM().LookAtFileM();
        showMessage(isDone ? Info : Error,
            isDone ? (isChinese ? "文件已是 GBK 编码: 请以 GBK 编码重新打开"
                                : "the file is GBK now: open it anew, as GBK")
                   : (isChinese ? "文件含有 GBK 中没有的字符" : "the file can't be made GBK"));
        return nullptr;
    }
    if (command == PreviewCommand) {
        const std::string why = previews_.ShowM(file, arguments, language_);
        if (!why.empty()) {
            throw RefusalCL { why };
        }
        return nullptr;
    }
    throw ErrorCL { InvalidParams, "unknown command " + command };
}

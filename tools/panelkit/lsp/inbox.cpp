#include "inbox.h"
#include <cstdlib>
#include <cstring>

namespace {

constexpr std::size_t MostBytes = std::size_t { 1 } << 28; // More is no message.
constexpr int MostLevels = 200; // The same: copies and answers go down level by level, each on the stack.

// Discarded for what is no message.
JsonTP parsed(const std::string& body)
{
    bool isTooDeep = false;
    JsonTP message = JsonTP::parse(
        body,
        [&isTooDeep](int level, JsonTP::parse_event_t, JsonTP&) {
            isTooDeep = isTooDeep || level > MostLevels;
            return !isTooDeep;
        },
        false);
    return isTooDeep ? JsonTP(JsonTP::value_t::discarded) : message;
}

// A line of a message's head without its end; false at the end of the input.
bool readHeadLine(std::FILE* client, std::string* line)
{
    line->clear();
    constexpr std::size_t MostInLine = 4096;
    for (int byte = std::getc(client); byte != EOF; byte = std::getc(client)) {
        if (byte == '\n') {
            if (!line->empty() && line->back() == '\r') {
                line->pop_back();
            }
            return true;
        }
        if (line->size() < MostInLine) {
            *line += static_cast<char>(byte);
        }
    }
    return false;
}

bool readBody(std::FILE* client, std::string* body)
{
    constexpr const char Length[] = "content-length:";
    std::size_t length = 0;
    for (std::string line; readHeadLine(client, &line);) {
        if (line.empty() && length > 0) {
            body->resize(length);
            return std::fread(body->data(), 1, length, client) == length;
        }
        std::string name = line.substr(0, sizeof Length - 1);
        for (char& letter : name) {
            letter = static_cast<char>(letter >= 'A' && letter <= 'Z' ? letter - 'A' + 'a' : letter);
        }
        if (name == Length) {
            length = std::strtoull(line.c_str() + name.size(), nullptr, 10);
            if (length > MostBytes) {
                return false;
            }
        }
    }
    return false;
}

} // namespace

InboxCL::InboxCL(std::FILE* client)
    : client_(client)
    , thread_([this] { readM(); })
{
}

void InboxCL::readM()
{
    for (std::string body; readBody(client_, &body);) {
        JsonTP message = parsed(body);
        const bool isLast = message.is_object() && message.value("method", JsonTP()) == "exit";
        const std::lock_guard<std::mutex> lock(mutex_);
        messages_.push_back(std::move(message));
        arrival_.notify_one();
        if (isLast) {
            break; // Who waited for more would keep the program alive.
        }
    }
    const std::lock_guard<std::mutex> lock(mutex_);
    isEnded_ = true;
    arrival_.notify_one();
}

bool InboxCL::TakeM(JsonTP* message, bool waits)
{
    std::unique_lock<std::mutex> lock(mutex_);
    if (waits) {
        arrival_.wait(lock, [this] { return isEnded_ || !messages_.empty(); });
    }
    if (messages_.empty()) {
        return false;
    }
    *message = std::move(messages_.front());
    messages_.pop_front();
    return true;
}

bool InboxCL::IsCancelledM(const JsonTP& id)
{
    const std::lock_guard<std::mutex> lock(mutex_);
    for (const JsonTP& message : messages_) {
        if (message.is_object() && message.value("method", JsonTP()) == "$/cancelRequest"
            && message.contains("params") && message["params"].is_object()
            && message["params"].value("id", JsonTP()) == id) {
            return true;
        }
    }
    return false;
}

void sendMessage(const JsonTP& message)
{
    // A text may hold what is no character: that must not end the session.
    const std::string body = message.dump(-1, ' ', false, JsonTP::error_handler_t::replace);
    std::printf("Content-Length: %zu\r\n\r\n", body.size());
    std::fwrite(body.data(), 1, body.size(), stdout);
    std::fflush(stdout);
}

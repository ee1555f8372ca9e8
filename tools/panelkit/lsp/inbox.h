#pragma once
#include "json.h"
#include <condition_variable>
#include <cstdio>
#include <deque>
#include <mutex>
#include <thread>

// The client's messages, read on a thread of its own: who answers can see whether more has come already.
class InboxCL
{
public:
    explicit InboxCL(std::FILE* client); // Must stay open as long as the inbox.
    InboxCL(const InboxCL&) = delete;
    InboxCL& operator=(const InboxCL&) = delete;
    ~InboxCL() { thread_.join(); }

    // The next message; discarded for one that is no JSON. False without one: at the end, and unless `waits`
    // whenever none is there.
    bool TakeM(JsonTP* message, bool waits);
    // Whether the client takes back a request that is still to be answered.
    bool IsCancelledM(const JsonTP& id);

private:
    void readM();

    std::FILE* client_;
    std::mutex mutex_;
    std::condition_variable arrival_;
    std::deque<JsonTP> messages_;
    bool isEnded_ { false };
    std::thread thread_;
};

void sendMessage(const JsonTP& message); // To the client, on standard output.

#pragma once
#include <atomic>
#include <functional>
#include <random>
#include <string>
#include <thread>
#include <windows.h>

// Somebody who presses keys and clicks by chance, with real input, in whatever loop runs on this thread: that
// of a menu, a scroll bar or a message box too. Each input is made when what came before it is handled. A
// message box he answers, sometimes only after he has gone on for a while.
class HurriedUserCL
{
public:
    // random: outlives the user. onStep: told of each input before it is made.
    HurriedUserCL(std::mt19937& random, std::function<void(const std::string&)> onStep);
    HurriedUserCL(const HurriedUserCL&) = delete;
    HurriedUserCL& operator=(const HurriedUserCL&) = delete;
    ~HurriedUserCL();

    // What he calls in place of an input while the dialog is not shown, and again and again when he has made
    // all, while a loop inside still runs.
    struct CallsCL
    {
        std::function<void()> show;
        std::function<void()> done;
    };
    void BeginM(int inputs, CallsCL calls);
    void UseM(HWND dialog); // Goes on in that dialog.
    // Whether all is done; asked by the outermost loop.
    bool IsDoneM() const { return left_ == 0 && !isHeld_; }
    void EndM(); // He makes nothing any more.

    int BoxesM() const { return boxes_; } // Message boxes answered.

private:
    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    void scheduleM();
    void stepM();
    bool answerBoxM();
    void leaveLoopsM();
    void inputM();
    void keyM();
    void mouseM();
    void releaseM();
    void liftFingerM();
    POINT placeM();
    void tellM(const std::string& what) { onStep_(what); }
    size_t belowM(size_t limit);

    std::mt19937& random_;
    std::function<void(const std::string&)> onStep_;
    CallsCL calls_;
    HWND window_ { nullptr };
    HWND dialog_ { nullptr };
    HWND box_ { nullptr };
    int patience_ { 0 }; // Inputs that he makes before he answers the box.
    int left_ { 0 };
    int moves_ { 0 }; // Before he lets go of the mouse.
    int boxes_ { 0 };
    bool isLeaving_ { false };
    bool isRunning_ { false };
    bool isActing_ { false };
    std::atomic<int> steps_ { 0 };
    std::atomic<bool> isHeld_ { false };
    HANDLE stop_ { CreateEventW(nullptr, TRUE, FALSE, nullptr) };
    std::thread finger_;
};

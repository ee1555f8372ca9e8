// How long a typed key takes in an edit among 4,000 controls over one in an edit alone: from the key's
// message in the queue to an empty queue, painting included, with the dialog shown and its keys handled as a
// dialog's.
#include "measures.h"
#include "raw_dialog.h"
#include "support/pump.h"
#include "support/test_dialog.h"

using namespace mixed;

namespace {

constexpr int Controls = 4000;
constexpr int Keys = 100;
constexpr int Rounds = 9;

class TypingCL
{
public:
    explicit TypingCL(const std::string& text, int id)
        : file_(text)
        , dialog_(file_.path())
        , id_(id)
    {
        dialog_.BuildM();
        edit_ = ::GetDlgItem(dialog_.m_hWnd, id);
    }
    // The seconds a key.
    double TypeM()
    {
        dialog_.ShowWindow(SW_SHOW);
        ::SetForegroundWindow(dialog_.m_hWnd);
        ::SetFocus(edit_);
        testing_support::PumpPending();
        ::SetWindowTextW(edit_, L"");
        const double seconds = secondsOf([this] {
            for (int i = 0; i < Keys; ++i) {
                ::PostMessageW(edit_, WM_KEYDOWN, 'A', 0x001E0001);
                ::PostMessageW(edit_, WM_KEYUP, 'A', static_cast<LPARAM>(0xC01E0001));
                handleAllM();
            }
        });
        length_ = ::GetWindowTextLengthW(edit_);
        dialog_.ShowWindow(SW_HIDE);
        testing_support::PumpPending();
        return seconds / Keys;
    }
    bool HasTypedM() const { return length_ == Keys; }

private:
    void handleAllM()
    {
        MSG message;
        while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
            if (!CWnd::WalkPreTranslateTree(dialog_.m_hWnd, &message)) {
                ::TranslateMessage(&message);
                ::DispatchMessageW(&message);
            }
        }
    }

    DescriptionFileCL file_;
    HostCL dialog_;
    int id_;
    HWND edit_ { nullptr };
    int length_ { 0 };
};

} // namespace

int main()
{
    TypingCL many(description(Controls), FirstId + 1);
    TypingCL one(std::string(HeaderSections)
            + "[单行文本]\n1\n0\n0 1001 120 10 100 20 3 0 200 0 0 1\n\n0 1 255 255 255\n",
        FirstId + 1);
    std::vector<double> among;
    std::vector<double> alone;
    for (int round = 0; round <= Rounds; ++round) {
        const double inMany = many.TypeM();
        const double inOne = one.TypeM();
        if (!many.HasTypedM() || !one.HasTypedM()) {
            std::fprintf(stderr, "keys are lost\n");
            return 1;
        }
        if (round > 0) {
            among.push_back(inMany);
            alone.push_back(inOne);
        }
    }
    tellRatio("key_in_4000", among, alone);
    return 0;
}

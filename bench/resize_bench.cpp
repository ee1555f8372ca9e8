// What it costs to place the controls of a dialog that is resized, over one plain deferred pass that puts the
// same windows there.
#include "measures.h"
#include "raw_dialog.h"
#include "support/pump.h"

using namespace mixed;

namespace {

constexpr int Count = 1000;

// All edges in turn stay, move and share, none passing its neighbour.
std::string bindings()
{
    static const char* const edges[] = { " 0 0 1 0", " 1 1 1 1", " 2 0 2 0", " 0 2 2 2", " 2 1 1 1" };
    std::string text = "[随窗口变化]\n" + std::to_string(Count) + "\n0\n";
    for (int place = 0; place < Count; ++place) {
        text += std::to_string(FirstId + place) + edges[place % 5] + "\n";
    }
    return text;
}

// A dialog in which nothing follows by itself: the bench says when.
class QuietHostCL : public HostCL
{
public:
    using HostCL::HostCL;
    void ShowM()
    {
        BuildM();
        ShowWindow(SW_SHOWNOACTIVATE);
        testing_support::PumpPending();
    }
};

struct PlacedCL
{
    HWND window;
    RECT rect;
};

std::vector<PlacedCL> placesOf(HWND dialog)
{
    std::vector<PlacedCL> places;
    for (HWND child = ::GetWindow(dialog, GW_CHILD); child != nullptr;
         child = ::GetWindow(child, GW_HWNDNEXT)) {
        PlacedCL place { child, {} };
        ::GetWindowRect(child, &place.rect);
        ::MapWindowPoints(nullptr, dialog, reinterpret_cast<POINT*>(&place.rect), 2);
        places.push_back(place);
    }
    return places;
}

void placePlainly(const std::vector<PlacedCL>& places)
{
    HDWP pass = ::BeginDeferWindowPos(static_cast<int>(places.size()));
    for (const PlacedCL& place : places) {
        pass = ::DeferWindowPos(pass, place.window, nullptr, place.rect.left, place.rect.top,
            place.rect.right - place.rect.left, place.rect.bottom - place.rect.top,
            SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOCOPYBITS);
    }
    ::EndDeferWindowPos(pass);
}

bool areAlike(HWND one, HWND other)
{
    const auto mine = placesOf(one);
    const auto theirs = placesOf(other);
    bool isSame = mine.size() == theirs.size() && mine.size() >= Count;
    for (std::size_t i = 0; isSame && i < mine.size(); ++i) {
        isSame = ::EqualRect(&mine[i].rect, &theirs[i].rect) != FALSE;
    }
    return isSame;
}

} // namespace

int main()
{
    const DescriptionFileCL file(description(Count) + bindings());
    QuietHostCL mine(file.path());
    QuietHostCL plain(file.path());
    mine.ShowM();
    plain.ShowM();
    RECT client {};
    mine.GetClientRect(&client);
    // Where the windows of the other dialog go, before any time is taken.
    const int sizes[][2] = { { static_cast<int>(client.right) + 300, static_cast<int>(client.bottom) + 200 },
        { static_cast<int>(client.right) + 20, static_cast<int>(client.bottom) + 350 } };
    std::vector<PlacedCL> places[2];
    for (int i = 0; i < 2; ++i) {
        plain.ResizeM(sizes[i][0], sizes[i][1]);
        places[i] = placesOf(plain.m_hWnd);
    }
    std::vector<double> resized;
    std::vector<double> raw;
    for (int round = 0; round < 12; ++round) {
        const int which = round % 2;
        const auto run = [&](bool isMine) {
            testing_support::PumpPending();
            if (isMine) {
                resized.push_back(secondsOf([&] { mine.ResizeM(sizes[which][0], sizes[which][1]); }));
            } else {
                raw.push_back(secondsOf([&] { placePlainly(places[which]); }));
            }
        };
        run(round / 2 % 2 == 0);
        run(round / 2 % 2 != 0);
        if (!areAlike(mine.m_hWnd, plain.m_hWnd)) {
            std::fprintf(stderr, "the windows stand elsewhere\n");
            return 1;
        }
    }
    tellRatio("resize_1000_over_raw", resized, raw);
    return 0;
}

// How much longer the last of 4,000 controls takes to find by id than the first: in the dialog, in its kind's
// array, and in the array while ids change now and then.
#include "measures.h"
#include "mixed_dialog.h"
#include "support/test_dialog.h"

namespace {

constexpr int Controls = 4000;
constexpr int Looks = 2000;
int rounds = 15;

// The times of as many look-ups of the first and of the last id, in turn.
template <class LookTP> void measure(const char* name, LookTP&& look, int firstId, int lastId)
{
    std::vector<double> first;
    std::vector<double> last;
    const auto times = [&look](int id) {
        return secondsOf([&look, id] {
            for (int i = 0; i < Looks; ++i) {
                if (!look(id)) {
                    std::fprintf(stderr, "%d is not found\n", id);
                    std::exit(1);
                }
            }
        });
    };
    times(firstId);
    for (int round = 0; round < rounds; ++round) {
        first.push_back(times(firstId));
        last.push_back(times(lastId));
    }
    tellRatio(name, last, first);
}

} // namespace

int main(int argc, char**)
{
    rounds = argc > 1 ? 5 : 15;
    TestDialogCL dialog(mixed::description(Controls));
    int kind = 0;
    measure(
        "dialog_lookup_4000",
        [&](int id) {
            CWnd* const found = dialog.GetContrlPtrM(id, &kind);
            return found != nullptr && ::GetDlgCtrlID(found->m_hWnd) == id;
        },
        mixed::FirstId, mixed::FirstId + Controls - 1);
    DuLabelArr labels;
    for (int i = 0; i < Controls; ++i) {
        DuLabelCL label(AliveTag);
        label.SetFunctionIDM(mixed::FirstId + i);
        labels.AddItemM(label);
    }
    measure(
        "lookup_4000", [&](int id) { return labels.GetControlPtrM(id) != nullptr; }, mixed::FirstId,
        mixed::FirstId + Controls - 1);
    return 0;
}

// A dialog is closed, destroyed, deleted and built anew from inside the messages that its window gets while
// it is built, while the user works with each kind of control (the mouse held, a list dropped down, a message
// open), drags its frame, has a menu or a scroll bar in hand, while it is modal, and while it goes.
#include "dialog/every_kind_sections.h"
#include "soak/closing_scenes.h"
#include "soak/guarded_object.h"
#include "soak/soak_numbers.h"
#include "soak/told_step.h"
#include "support/faults.h"
#include "support/gone.h"
#include "support/small_picture.h"
#include <gtest/gtest.h>

using namespace testing_support;

namespace {

// What happens to the dialog between its building and its end.
struct SceneCL
{
    enum Way
    {
        Change,
        UseControl,
        DragFrame,
        SystemMenu,
        OwnMenu,
        EditMenu,
        ScrollBar,
        Modal
    };
    std::string name;
    int number; // UseControl: its id.
    Way way;
    unsigned step; // One of so many cases is done with every run.

    // Whether what is seen in that phase belongs to this scene; what all have in common is done once.
    bool CoversM(ClosingPhase phase) const { return way == Modal || (phase == Using) != (way == Change); }
    void PlayM() const
    {
        using namespace closing_scenes;
        switch (way) {
        case UseControl:
            return useControl(number);
        case DragFrame:
            return dragFrame();
        case SystemMenu:
            return openSystemMenu();
        case OwnMenu:
            return openMenu(0, VK_RETURN);
        case EditMenu:
            return openMenu(13, VK_ESCAPE);
        case ScrollBar:
            return holdScrollBar(LongList);
        case Change:
        case Modal:
            break;
        }
    }
    int LoopsM() const // Of the system.
    {
        return way == DragFrame ? 2 : way > DragFrame && way < Modal ? 1 : 0;
    }
    friend void PrintTo(const SceneCL& scene, std::ostream* out) { *out << scene.name; }
    static constexpr int LongList = 17;
};

std::vector<SceneCL> scenes()
{
    std::vector<SceneCL> all { { "Changing", 0, SceneCL::Change, 61 } };
    for (const int id :
        { 11, 13, 14, 15, 16, 17, 18, 19, 20, 21, 22, 23, 24, 31, 32, 33, 34, 35, 36, 37, 38 }) {
        all.push_back({ "Control" + std::to_string(id), id, SceneCL::UseControl, 61 });
    }
    const std::pair<const char*, SceneCL::Way> others[] = { { "Frame", SceneCL::DragFrame },
        { "SystemMenu", SceneCL::SystemMenu }, { "OwnMenu", SceneCL::OwnMenu },
        { "EditMenu", SceneCL::EditMenu }, { "ScrollBar", SceneCL::ScrollBar }, { "Modal", SceneCL::Modal } };
    for (const auto& [name, way] : others) {
        all.push_back({ name, 100 + way, way, 151 });
    }
    return all;
}

class ClosingTest : public testing::TestWithParam<SceneCL>
{
protected:
    static void TearDownTestSuite()
    {
        std::printf("%d cases of closing, in %d of which the moment did not come again; %d left out\n", done_,
            inVain_, leftOut_);
    }

    // A new dialog, the scene, and the action at its moment.
    void runM(const SceneCL& scene, std::optional<MomentCL> when, ClosingAction what)
    {
        auto* const dialog = new GuardedCL<ClosingDialogCL>(file_.path());
        ClosingDialogCL::seen.clear();
        ClosingDialogCL::when = when;
        ClosingDialogCL::what = what;
        ClosingDialogCL::phase = Building;
        dialog->SetPainterM(38, [](CDC&, const CSize&) {});
        if (scene.way == SceneCL::Modal) {
            closing_scenes::playModal(*dialog);
        } else {
            showM(*dialog, scene);
        }
        ClosingDialogCL::phase = Ending;
        if (ClosingDialogCL::WindowM() != nullptr) {
            dialog->BuildAnewM();
        }
        if (ClosingDialogCL::WindowM() != nullptr) {
            dialog->DestroyWindow();
        }
        delete ClosingDialogCL::living;
        inVain_ += ClosingDialogCL::when ? 1 : 0;
        ClosingDialogCL::when.reset();
        PumpPending();
    }
    static void showM(ClosingDialogCL& dialog, const SceneCL& scene)
    {
        dialog.CreateM();
        if (ClosingDialogCL::WindowM() != nullptr) {
            dialog.ShowWindow(SW_SHOW);
        }
        ClosingDialogCL::phase = Using;
        if (ClosingDialogCL::WindowM() != nullptr && scene.way != SceneCL::Change) {
            closing_scenes::begin();
            scene.PlayM();
            pumpFilter = nullptr;
        }
        ClosingDialogCL::phase = Changing;
        if (scene.way == SceneCL::Change) {
            closing_scenes::change();
        }
    }

    // Wine's own controls don't bear to be destroyed from inside each message that they send: they go on with
    // what they have freed. Tests PlainControls show it with plain windows, but for the system menu that goes
    // with its window while it opens: there the C library told of a spoilt heap.
    static bool isBorneM(const SceneCL& scene, const MomentCL& moment, ClosingAction action)
    {
        const bool isColour = moment.message >= WM_CTLCOLORMSGBOX && moment.message <= WM_CTLCOLORSTATIC;
        const bool asks = (isColour && moment.detail == MomentCL::Field) || moment.message == WM_MEASUREITEM
            || moment.message == WM_DRAWITEM || moment.message == WM_DELETEITEM || moment.message == WM_NOTIFY
            || moment.message == WM_NOTIFYFORMAT;
        const UINT code = moment.message == WM_COMMAND ? HIWORD(moment.detail) : 0;
        const bool isBeforeTextShows = code == EN_UPDATE || (code == CBN_EDITUPDATE && scene.number == 19);
        const bool isPressed = scene.number == 17 || scene.number == 35 || scene.way == SceneCL::Modal;
        const bool isListEntered = isPressed
            && (moment.message == LbTrackPointMsg || code == LBN_SETFOCUS || code == EN_KILLFOCUS);
        const bool takesMenu = scene.way == SceneCL::SystemMenu && moment.message == WM_INITMENUPOPUP
            && (action == DestroyItsWindow || action == Delete);
        return action == Close || !(asks || isBeforeTextShows || isListEntered || takesMenu);
    }
    static constexpr UINT LbTrackPointMsg = 0x131; // A pressed list box says where, before anything else.

    // Whether it is one of so many; the same in every run, whatever comes before it.
    static bool isPickedM(int number, const std::string& name, unsigned step)
    {
        unsigned hash = static_cast<unsigned>(number) + 2166136261U;
        for (const char character : name) {
            hash = (hash ^ static_cast<unsigned char>(character)) * 16777619U;
        }
        return (hash >> 8) % step == 0;
    }

    // The list of the scroll bar has more lines than fit.
    static std::string sectionsM(const std::string& picture)
    {
        std::string sections = sectionsOfEveryKind(picture, "text");
        const std::string one = "[文本列表框初始值]\n1\n0\n17 text\n";
        std::string nine = "[文本列表框初始值]\n9\n0\n";
        for (int i = 0; i < 9; ++i) {
            nine += "17 text\n";
        }
        return sections.replace(sections.find(one), one.size(), nine)
            + "[随窗口变化]\n5\n0\n13 0 0 1 0\n15 0 0 1 0\n16 0 0 1 1\n18 1 0 1 0\n24 1 0 1 1\n";
    }

    static inline int done_ { 0 };
    static inline int inVain_ { 0 };
    static inline int leftOut_ { 0 }; // What Wine's controls don't bear.
    const SmallPictureCL picture_ { 0x0000FF, 20, 20 };
    const DescriptionFileCL file_ { sectionsM(picture_.path()) };
};

} // namespace

TEST_P(ClosingTest, FromInsideItsMessages)
{
    const SceneCL& scene = GetParam();
    const char* const only = std::getenv("PANELKIT_SOAK_CLOSING"); // One alone, by its name.
    const auto step
        = static_cast<unsigned>(soakNumber("PANELKIT_SOAK_CLOSINGS", static_cast<int>(scene.step)));
    const MessageBoxWatcher watcher;
    const ToldStepCL telling;
    ToldStepCL::NoteM(0, 0, "", "");
    closing_scenes::loops = 0;
    runM(scene, std::nullopt, Close);
    EXPECT_EQ(closing_scenes::loops, scene.LoopsM());
    EXPECT_EQ(ClosingDialogCL::seen.back().message, static_cast<UINT>(WM_NCDESTROY));
    const std::vector<MomentCL> moments = ClosingDialogCL::seen;
    const int windows = LiveWindowsM();
    const GoneCL gone;
    for (const MomentCL& moment : moments) {
        if (!scene.CoversM(moment.phase)) {
            continue;
        }
        for (int action = 0; action < ClosingActionCount; ++action) {
            const std::string name = std::string(ClosingActionNames[action]) + " at " + moment.TextM();
            const bool isWanted = only != nullptr ? name == only : isPickedM(scene.number, name, step);
            if (!isWanted) {
                continue;
            }
            if (!isBorneM(scene, moment, static_cast<ClosingAction>(action))) {
                ++leftOut_;
                continue;
            }
            SCOPED_TRACE(name);
            ToldStepCL::NoteM(0, scene.number, "", name.c_str());
            const FaultsCL faults;
            const GuardedPagesCL pages;
            runM(scene, moment, static_cast<ClosingAction>(action));
            ++done_;
            EXPECT_EQ(faults.SeenM(), std::vector<std::string>());
            EXPECT_EQ(GuardedPagesCL::TouchesM(), "");
            EXPECT_EQ(GoneCL::WrittenM(), 0);
            EXPECT_EQ(GoneCL::MessagesM(), 0);
            EXPECT_EQ(LiveWindowsM(), windows);
            ASSERT_NE(::HeapValidate(::GetProcessHeap(), 0, nullptr), FALSE);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Scenes, ClosingTest, testing::ValuesIn(scenes()),
    [](const testing::TestParamInfo<SceneCL>& scene) { return scene.param.name; });

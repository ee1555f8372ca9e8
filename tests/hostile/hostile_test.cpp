// Broken description files, shown and clicked through by somebody in a hurry. From the environment:
//   PANELKIT_HOSTILE_COUNT   how many dialogs, else 200 and those of seeds.txt
//   PANELKIT_HOSTILE_FIRST   the first of their seeds, else 1; each makes the same file and the same inputs
//   PANELKIT_HOSTILE_FOLDER  where to leave the files; each step is then told too
#include "dialog/basic_dialog.h"
#include "form/panelkit_c.h"
#include "hostile/hurried_user.h"
#include "hostile/mutations.h"
#include "hostile/watchdog.h"
#include "support/all.h"
#include "support/description_files.h"
#include <cstdlib>
#include <fstream>
#include <gtest/gtest.h>
#include <set>

using namespace testing_support;

namespace {

constexpr int Inputs = 30;
constexpr unsigned UsualCount = 200;
constexpr unsigned Again = 30;
constexpr size_t Spare = 8; // Blocks of the heap: two were seen, and of Again dialogs no third may leave one.

unsigned setting(const char* name, unsigned usual)
{
    const char* text = std::getenv(name);
    return text != nullptr ? static_cast<unsigned>(std::strtoul(text, nullptr, 10)) : usual;
}

// A folder with all pictures of the examples, some broken ones, and the description file of the day.
class StageCL
{
public:
    StageCL()
    {
        const char* wanted = std::getenv("PANELKIT_HOSTILE_FOLDER");
        stays_ = wanted != nullptr;
        folder_ = stays_ ? std::filesystem::path(wanted)
                         : std::filesystem::temp_directory_path()
                / ("panelkit_hostile_" + std::to_string(GetCurrentProcessId()));
        std::filesystem::create_directories(folder_);
        for (const auto& entry : std::filesystem::recursive_directory_iterator(PANELKIT_EXAMPLES)) {
            if (entry.path().extension() == ".bmp") {
                const std::string bytes = wholeFile(entry.path().string());
                const std::string name = entry.path().filename().string();
                writeM(name, bytes);
                pictures_.push_back(name);
            }
        }
        std::sort(pictures_.begin(), pictures_.end());
        const std::string whole = wholeFile((folder_ / pictures_.front()).string());
        writeM("cut.bmp", whole.substr(0, whole.size() / 2));
        writeM("header.bmp", whole.substr(0, 54));
        writeM("text.bmp", "no picture\n");
        writeM("empty.bmp", "");
        pictures_.insert(pictures_.end(),
            { "cut.bmp", "header.bmp", "text.bmp", "empty.bmp", "none.bmp", "NULL", ".", "..\\x.bmp",
                "a b.bmp" });
    }
    StageCL(const StageCL&) = delete;
    StageCL& operator=(const StageCL&) = delete;
    ~StageCL()
    {
        if (!stays_) {
            std::error_code ignored;
            std::filesystem::remove_all(folder_, ignored);
        }
    }

    bool StaysM() const { return stays_; }
    const std::vector<std::string>& PicturesM() const { return pictures_; }
    std::string WriteM(unsigned seed, const std::string& bytes) const
    {
        return writeM(stays_ ? std::to_string(seed) + ".dlg" : "hostile.dlg", bytes);
    }

private:
    std::string writeM(const std::string& name, const std::string& bytes) const
    {
        std::ofstream(folder_ / name, std::ios::binary) << bytes;
        return (folder_ / name).string();
    }

    std::filesystem::path folder_;
    std::vector<std::string> pictures_;
    bool stays_ { false };
};

std::vector<std::string> soundFiles()
{
    std::vector<std::string> files;
    for (const char* const folder : { PANELKIT_EXAMPLES, PANELKIT_SAMPLES }) {
        for (const std::string& path : descriptionFiles(folder)) {
            files.push_back(wholeFile(path));
        }
    }
    return files;
}

// Those that once broke something.
std::vector<unsigned> keptSeeds()
{
    std::vector<unsigned> seeds;
    std::ifstream file(PANELKIT_SAMPLES "/../hostile/seeds.txt");
    for (std::string line; std::getline(file, line);) {
        if (!line.empty() && line[0] != '#') {
            seeds.push_back(static_cast<unsigned>(std::strtoul(line.c_str(), nullptr, 10)));
        }
    }
    EXPECT_FALSE(seeds.empty());
    return seeds;
}

BOOL CALLBACK countMultiLine(HWND window, LPARAM data)
{
    wchar_t name[8] = L"";
    ::GetClassNameW(window, name, 8);
    const bool isMultiLine
        = std::wstring(name) == L"Edit" && (::GetWindowLongW(window, GWL_STYLE) & ES_MULTILINE) != 0;
    *reinterpret_cast<size_t*>(data) += isMultiLine ? 1 : 0;
    return TRUE;
}

// An application's dialog: it has fields checked, and is told what the file says wrongly.
class HostileDialogCL : public DuBasicDialogCL
{
public:
    HostileDialogCL(const std::string& path, std::mt19937& random)
    {
        static const int Scales[] = { 50, 125, 150, 800 };
        SetConfigFileM(path.c_str());
        SetSelectRefusedM(below(random, 2) == 0);
        SetMessageOwnerM(below(random, 2) == 0);
        SetPictureKeyboardM(below(random, 2) == 0);
        if (below(random, 2) == 0) {
            SetDiagnosticsM([](const DiagnosticCL&, void*) {}, nullptr);
        }
        if (below(random, 5) == 0) {
            SetScaleM(Scales[below(random, std::size(Scales))]);
        }
    }
    std::function<void(HWND)> onBuilt;

    BOOL OnInitDialog() override
    {
        const BOOL result = DuBasicDialogCL::OnInitDialog();
        initItemRelationM();
        if (onBuilt) {
            onBuilt(m_hWnd);
        }
        return result;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(HostileDialogCL, DuBasicDialogCL)
ON_MESSAGE(1624, &HostileDialogCL::onCtrlLostFocusM)
ON_MESSAGE(1625, &HostileDialogCL::onCtrlSetFocusM)
END_MESSAGE_MAP()

void bringBack(HWND window)
{
    ::ShowWindow(window, ::IsIconic(window) ? SW_RESTORE : SW_SHOW);
    ::SetForegroundWindow(window);
}

class RunCL
{
public:
    // Shows, uses and destroys the dialog of a seed.
    void SeedM(unsigned seed)
    {
        random_.seed(seed);
        watchdog_.BeginM(seed, stage_.StaysM());
        const auto made = mutator_.MakeM(random_);
        for (const int mutation : made.mutations) {
            ++mutations[mutation];
        }
        useM(stage_.WriteM(seed, made.bytes));
    }
    int BoxesM() const { return user_.BoxesM(); }

    size_t multiLines { 0 }; // Edits of several lines so far.
    int mutations[Mutations] {};
    int dialogs { 0 };

private:
    void beginM(HWND window)
    {
        ::EnumChildWindows(window, countMultiLine, reinterpret_cast<LPARAM>(&multiLines));
        user_.UseM(window);
    }
    void useM(const std::string& path)
    {
        ++dialogs;
        const size_t way = below(random_, 4);
        if (way == 0) {
            modalM(path);
        } else if (way == 1) {
            openedM(path);
        } else {
            modelessM(path);
        }
        user_.EndM();
        watchdog_.StepM("what is left in the queue");
        PumpPending();
    }
    void waitM()
    {
        // A step that takes too long ends all; here it only has to come to an end.
        PumpUntil([this] { return user_.IsDoneM(); }, 600000);
    }
    void modelessM(const std::string& path)
    {
        pumpFilter = [](MSG* message) { return AfxPreTranslateMessage(message) != FALSE; };
        HostileDialogCL dialog(path, random_);
        watchdog_.StepM("builds");
        if (dialog.CreateM() != 0) {
            const HWND window = dialog.m_hWnd;
            user_.BeginM(Inputs, { [window] { bringBack(window); }, [] {} });
            bringBack(window);
            beginM(window);
            waitM();
            watchdog_.StepM("takes the values");
            dialog.ValuesM().SetAllM(dialog.ValuesM().AllM());
        }
        watchdog_.StepM("destroys");
        user_.EndM();
        dialog.DestroyWindow();
    }
    void modalM(const std::string& path)
    {
        pumpFilter = [](MSG* message) { return AfxPreTranslateMessage(message) != FALSE; };
        HostileDialogCL dialog(path, random_);
        user_.BeginM(Inputs,
            { [&dialog] { bringBack(dialog.m_hWnd); },
                [&dialog] {
                    if (dialog.m_hWnd != nullptr) {
                        dialog.EndDialog(IDABORT);
                    }
                } });
        dialog.onBuilt = [this](HWND window) { beginM(window); };
        for (int times = 0; times < Inputs && !user_.IsDoneM(); ++times) {
            watchdog_.StepM("builds");
            dialog.DoModalM();
        }
    }
    void openedM(const std::string& path)
    {
        pumpFilter = [](MSG* message) {
            int32_t handled = 0;
            return panelkit_translate_message(message, &handled) == PANELKIT_OK && handled != 0;
        };
        panelkit_options options {};
        options.size = sizeof options;
        options.callback = [](const panelkit_event* event, void*) -> int32_t {
            char text[64];
            panelkit_get_text(event->dialog, event->id, text, sizeof text, nullptr);
            return 0;
        };
        panelkit_dialog* dialog = nullptr;
        watchdog_.StepM("builds");
        if (panelkit_open(path.c_str(), &options, &dialog) == PANELKIT_OK) {
            void* window = nullptr;
            panelkit_native_window(dialog, &window);
            user_.BeginM(Inputs, { [dialog] { panelkit_show(dialog); }, [] {} });
            panelkit_show(dialog);
            beginM(static_cast<HWND>(window));
            waitM();
        }
        watchdog_.StepM("destroys");
        user_.EndM();
        panelkit_destroy(dialog);
    }

    std::mt19937 random_;
    StageCL stage_;
    const MutatorCL mutator_ { soundFiles(), stage_.PicturesM() };
    WatchdogCL watchdog_;
    HurriedUserCL user_ { random_, [this](const std::string& step) { watchdog_.StepM(step); } };
};

} // namespace

TEST(Hostile, NothingBreaksADialog)
{
    const unsigned count = setting("PANELKIT_HOSTILE_COUNT", UsualCount);
    const unsigned first = setting("PANELKIT_HOSTILE_FIRST", 1);
    RunCL run;
    const auto runAll = [&run](unsigned from, unsigned to) {
        for (unsigned seed = from; seed < to; ++seed) {
            run.SeedM(seed);
        }
    };
    const ULONGLONG begin = GetTickCount64();
    if (std::getenv("PANELKIT_HOSTILE_COUNT") == nullptr) {
        for (const unsigned seed : keptSeeds()) {
            run.SeedM(seed);
        }
    }
    runAll(first, first + count);
    // What the system keeps from one dialog to the next it has now: the last ones once more leave nothing.
    const unsigned again = first + count - std::min(count, Again);
    run.multiLines = 0;
    const int windows = LiveWindowsM();
    const int objects = LiveGdiObjectsM();
    const HeapUse before = LiveHeapM();
    runAll(again, first + count);
    const HeapUse after = LiveHeapM();
    EXPECT_EQ(LiveWindowsM(), windows);
    EXPECT_EQ(LiveGdiObjectsM(), objects);
    // Wine leaves a block of each edit of several lines that had a text.
    EXPECT_LE(after.blocks, before.blocks + run.multiLines + Spare);
    std::fprintf(stderr, "%d dialogs in %d s, %d messages answered, %zd blocks left, %zd multi-line edits\n",
        run.dialogs, static_cast<int>((GetTickCount64() - begin) / 1000), run.BoxesM(),
        after.blocks - before.blocks, run.multiLines);
    for (int mutation = 0; mutation < Mutations; ++mutation) {
        std::fprintf(stderr, "  %s: %d\n", nameOfMutation(mutation), run.mutations[mutation]);
    }
}

TEST(Hostile, ASeedMakesTheSameFile)
{
    const MutatorCL mutator(soundFiles(), { "a.bmp", "NULL" });
    std::set<std::string> files;
    for (unsigned seed = 1; seed <= 50; ++seed) {
        std::mt19937 random(seed);
        std::mt19937 same(seed);
        const std::string bytes = mutator.MakeM(random).bytes;
        EXPECT_EQ(mutator.MakeM(same).bytes, bytes);
        files.insert(bytes);
    }
    EXPECT_GT(files.size(), 45u);
}

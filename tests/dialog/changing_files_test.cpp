// Pictures and description files that another program changes while a dialog is built, and between builds.
#include "dialog/every_kind_sections.h"
#include "support/handles.h"
#include "support/shown_dialog.h"
#include "support/small_picture.h"
#include <functional>

using namespace testing_support;

namespace {

std::string bytesOf(const SmallPictureCL& picture)
{
    return picture.bytes();
}

// What may become of a file. Writing fails where the file is held; then it stays.
void write(const char* path, const std::string& bytes)
{
    if (FILE* const file = std::fopen(path, "wb")) {
        std::fwrite(bytes.data(), 1, bytes.size(), file);
        std::fclose(file);
    }
}

// Nobody can open a file that it holds.
class HeldFileCL
{
public:
    explicit HeldFileCL(const char* path)
        : file_(::CreateFileA(path, GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr))
    {
        EXPECT_NE(file_, INVALID_HANDLE_VALUE);
    }
    HeldFileCL(const HeldFileCL&) = delete;
    HeldFileCL& operator=(const HeldFileCL&) = delete;
    ~HeldFileCL() { ::CloseHandle(file_); }

private:
    HANDLE file_;
};

class EveryKindCL : private SmallPictureCL, public ShownDialogCL
{
public:
    EveryKindCL()
        : SmallPictureCL(0x0000FF, 20, 20)
        , ShownDialogCL(sectionsOfEveryKind(path(), "text"))
        , pictureBytes_(bytes())
        , fileBytes_(wholeOf(PathM()))
    {
    }
    ~EveryKindCL() override { RestoreM(); }

    void RebuildM()
    {
        DestroyM();
        InitDlgM(this, 1);
        ShowWindow(SW_SHOW);
    }
    void PaintM()
    {
        RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW | RDW_ALLCHILDREN);
    }
    // What an application does with what there is.
    void UseM()
    {
        PaintM();
        for (HWND child = ::GetWindow(m_hWnd, GW_CHILD); child != nullptr;
             child = ::GetWindow(child, GW_HWNDNEXT)) {
            const int id = ::GetDlgCtrlID(child);
            if (id != 20 && id != 24) { // Tables wait for what the mouse does next.
                ::SendMessageW(child, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
                ::SendMessageW(child, WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
            }
        }
        ValuesM().SetRealM(34, 45.0);
        ValuesM().SetIntM(33, 9);
        ValuesM().AddLineM(35, L"none.bmp", 1);
        AddItemM(35, 0, PictureM());
        ShowFrameM(36, 0);
        ValuesM().SetAllM(ValuesM().AllM());
        PaintM();
        PumpPending();
    }
    const char* PictureM() const { return path(); }
    const std::string& PictureBytesM() const { return pictureBytes_; }
    const std::string& FileBytesM() const { return fileBytes_; }
    void RestoreM()
    {
        std::filesystem::remove(path());
        write(path(), pictureBytes_);
        write(PathM(), fileBytes_);
    }

private:
    static std::string wholeOf(const char* path)
    {
        std::string all;
        if (FILE* const file = std::fopen(path, "rb")) {
            for (int byte = std::fgetc(file); byte != EOF; byte = std::fgetc(file)) {
                all += static_cast<char>(byte);
            }
            std::fclose(file);
        }
        return all;
    }

    std::string pictureBytes_;
    std::string fileBytes_;
};

// Builds the dialog as the file was, and compares with what it showed then.
class SameAsBeforeCL
{
public:
    explicit SameAsBeforeCL(EveryKindCL& dialog)
        : dialog_(dialog)
    {
        dialog.RebuildM();
        dialog.UseM();
        dialog.SetScaleM(150); // What a scale needs stays.
        dialog.SetScaleM(100);
        dialog.RebuildM();
        dialog.PaintM();
        stack_ = dialog.StackM();
        pixels_ = std::make_unique<Pixels>(dialog.m_hWnd);
        windows_ = LiveWindowsM();
        objects_ = LiveGdiObjectsM();
    }
    void ExpectM()
    {
        dialog_.RestoreM();
        dialog_.RebuildM();
        dialog_.PaintM();
        EXPECT_EQ(dialog_.StackM(), stack_);
        EXPECT_EQ(Pixels(dialog_.m_hWnd).DifferencesM(*pixels_), 0);
        EXPECT_EQ(LiveWindowsM(), windows_);
        EXPECT_EQ(LiveGdiObjectsM(), objects_);
    }

private:
    EveryKindCL& dialog_;
    std::string stack_;
    std::unique_ptr<Pixels> pixels_;
    int windows_ { 0 };
    int objects_ { 0 };
};

// Has the action run while the dialog is built: when the records of a kind are read, before its pictures are.
template <class ControlTP> void whenBuilding(EveryKindCL& dialog, const std::function<void()>& action)
{
    dialog.SetFactoryM<ControlTP>([action](int) -> std::unique_ptr<ControlTP> {
        if (action) {
            action();
        }
        return nullptr;
    });
}

} // namespace

TEST(ChangingFiles, PicturesMayVanishOrBecomeOthersAtAnyTime)
{
    EveryKindCL dialog;
    SameAsBeforeCL same(dialog);
    const std::string small = bytesOf(SmallPictureCL(0x00FF00, 3, 2));
    const std::string large = bytesOf(SmallPictureCL(0x00FF00, 90, 70));
    const std::string whole = dialog.PictureBytesM();
    const char* const path = dialog.PictureM();
    std::string tooWide = whole;
    tooWide.replace(18, 4, std::string("\xFF\xFF\x00\x00", 4));
    const std::vector<std::function<void()>> changes = { [&] { std::filesystem::remove(path); },
        [&] { write(path, small); }, [&] { write(path, large); }, [&] { write(path, ""); },
        [&] { write(path, std::string(500, '\xE7')); }, [&] { write(path, whole.substr(0, 40)); },
        [&] { write(path, whole.substr(0, whole.size() / 2)); }, [&] { write(path, tooWide); },
        [&] {
            std::filesystem::remove(path);
            std::filesystem::create_directory(path);
        } };
    for (std::size_t i = 0; i < changes.size(); ++i) {
        SCOPED_TRACE(i);
        changes[i](); // Between a build and its next use.
        dialog.UseM();
        dialog.SetScaleM(150); // Pictures are loaded anew.
        dialog.SetScaleM(100);
        dialog.UseM();
        dialog.RebuildM(); // Between builds.
        dialog.UseM();
        same.ExpectM();
        // Within a build, before and between those that have pictures.
        whenBuilding<DuNormalAnimateCL>(dialog, i % 2 == 0 ? changes[i] : nullptr);
        whenBuilding<DuMultiStateButtonCL>(dialog, i % 2 != 0 ? changes[i] : nullptr);
        dialog.RebuildM();
        whenBuilding<DuNormalAnimateCL>(dialog, nullptr);
        whenBuilding<DuMultiStateButtonCL>(dialog, nullptr);
        dialog.UseM();
        same.ExpectM();
    }
}

TEST(ChangingFiles, ADescriptionFileMayChangeAtAnyTime)
{
    EveryKindCL dialog;
    SameAsBeforeCL same(dialog);
    const std::string& whole = dialog.FileBytesM();
    const char* const path = dialog.PathM();
    std::vector<std::string> others
        = { "", whole + whole, whole + std::string(5000, ' '), std::string(3000, '\0'), "[", HeaderSections };
    for (std::size_t part = 1; part < 12; ++part) {
        others.push_back(whole.substr(0, whole.size() * part / 12));
        others.push_back(whole.substr(whole.size() * part / 12));
    }
    for (const std::string& other : others) {
        SCOPED_TRACE(other.size());
        write(path, other);
        dialog.RebuildM();
        dialog.UseM();
        same.ExpectM();
        // Within a build: what was read of the file at first counts.
        whenBuilding<DuSingleEditCL>(dialog, [&] { write(path, other); });
        dialog.RebuildM();
        whenBuilding<DuSingleEditCL>(dialog, nullptr);
        EXPECT_EQ(childrenOf(dialog.m_hWnd), 25);
        dialog.InitDlgM(&dialog, 1); // Of the new file, into what was read of the old one.
        dialog.UseM();
        same.ExpectM();
    }
}

TEST(ChangingFiles, FilesMayBeGoneOrHeld)
{
    EveryKindCL dialog;
    SameAsBeforeCL same(dialog);
    for (const char* const path : { dialog.PathM(), dialog.PictureM() }) {
        {
            const HeldFileCL held(path);
            dialog.RebuildM();
            dialog.UseM();
        }
        same.ExpectM();
        std::filesystem::remove(path);
        dialog.RebuildM();
        dialog.UseM();
        same.ExpectM();
    }
}

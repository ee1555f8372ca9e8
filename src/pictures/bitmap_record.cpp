#include "pictures/bitmap_record.h"
#include "pictures/picture_sharing.h"
#include <algorithm>

template class PANELKIT_API Arr<DVrBitmapCL>;

namespace {

constexpr COLORREF Blue = 0xFF0000;

// A memory context with a bitmap selected for as long as this lives.
class BitmapContext
{
public:
    BitmapContext(CDC* like, HGDIOBJ bitmap)
    {
        if (like != nullptr && context_.CreateCompatibleDC(like)) {
            previous_ = ::SelectObject(context_.m_hDC, bitmap);
        }
    }
    BitmapContext(const BitmapContext&) = delete;
    BitmapContext& operator=(const BitmapContext&) = delete;
    ~BitmapContext()
    {
        if (isSelected()) {
            ::SelectObject(context_.m_hDC, previous_);
        }
    }

    bool isSelected() const { return previous_ != nullptr; }
    CDC* get() { return &context_; }

private:
    CDC context_;
    HGDIOBJ previous_ { nullptr };
};

BITMAP measure(HGDIOBJ bitmap)
{
    BITMAP measures {};
    ::GetObjectW(bitmap, sizeof(measures), &measures);
    return measures;
}

} // namespace

DVrBitmapCL::DVrBitmapCL(const DVrBitmapCL& other)
    : VrBaseCL(other)
{
    bitmap_.ShareM(other.bitmap_);
    SetExtraM(other.extra_[0], other.extra_[1]);
    copyFileM(other);
}

DVrBitmapCL& DVrBitmapCL::operator=(const DVrBitmapCL& other)
{
    if (this != &other) {
        VrBaseCL::operator=(other);
        bitmap_.ShareM(other.bitmap_);
        SetExtraM(other.extra_[0], other.extra_[1]);
        copyFileM(other);
    }
    return *this;
}

void DVrBitmapCL::copyFileM(const DVrBitmapCL& other)
{
    if (!file_.EmptyM() || !other.file_.EmptyM()) {
        file_ = other.file_;
    }
    key_ = other.key_;
}

DVrBitmapCL::~DVrBitmapCL()
{
    bitmap_.DeleteM();
}

bool DVrBitmapCL::HoldsBitmapM() const
{
    return bitmap_.IsAliveM();
}

CBitmap* DVrBitmapCL::GetBitmapM()
{
    if (!HoldsBitmapM()) {
        bitmap_.ForgetM();
        return nullptr;
    }
    return bitmap_.MakeOwnM() ? &bitmap_ : nullptr;
}

HBITMAP DVrBitmapCL::ShownBitmapM() const
{
    return static_cast<HBITMAP>(bitmap_.HandleM());
}

bool DVrBitmapCL::ReadPartM(const PixelPartCL& part) const
{
    const FileBitmapCL* const file = bitmap_.FileM();
    return file != nullptr && file->ReadPartM(part);
}

void DVrBitmapCL::LoadBitmapM(const char* file)
{
    bitmap_.DeleteM();
    if (!file_.EmptyM()) {
        file_ = CharArr();
    }
    bitmap_.ShowM(slFileBitmap(file, {}, NoKey));
}

int DVrBitmapCL::LoadSafeBitmapM(const char* file)
{
    LoadBitmapM(file);
    return HoldsBitmapM() ? 1 : 0;
}

int DVrBitmapCL::LoadScaledM(const char* file, const PictureScaleCL& scale, std::int64_t key)
{
    if (!scale.MayChangeM()) {
        return LoadSafeBitmapM(file);
    }
    bitmap_.DeleteM();
    bitmap_.ShowM(slFileBitmap(file, scale, key));
    file_.SetM(file);
    key_ = key;
    return HoldsBitmapM() ? 1 : 0;
}

void DVrBitmapCL::RescaleM(const PictureScaleCL& scale)
{
    std::shared_ptr<FileBitmapCL> again = file_.EmptyM() ? nullptr : slFileBitmap(file_.TextM(), scale, key_);
    if (again != nullptr) {
        bitmap_.DeleteM();
        bitmap_.ShowM(std::move(again));
    }
}

int DVrBitmapCL::MoveBitmapM(CBitmap* source)
{
    if (source == nullptr || source == &bitmap_) {
        return 0;
    }
    if (auto* const shared = dynamic_cast<SharedCL*>(source)) {
        bitmap_.ShareM(*shared);
        shared->ForgetM();
    } else {
        bitmap_.OwnM(source->Detach());
    }
    return 1;
}

void DVrBitmapCL::DelItemM()
{
    bitmap_.DeleteM();
    VrBaseCL::DelItemM();
}

void DVrBitmapCL::DropM()
{
    if (!bitmap_.IsSharedM()) {
        bitmap_.DeleteM();
    }
    bitmap_.ForgetM();
}

void DVrBitmapCL::SetExtraM(int first, int second)
{
    extra_[0] = first;
    extra_[1] = second;
}

int DVrBitmapCL::GetWidthM() const
{
    return HoldsBitmapM() ? static_cast<int>(measure(ShownBitmapM()).bmWidth) : 0;
}

int DVrBitmapCL::GetHeightM() const
{
    return HoldsBitmapM() ? static_cast<int>(measure(ShownBitmapM()).bmHeight) : 0;
}

int DVrBitmapCL::DrawBitmapM(CDC* dc, int x, int y, const int (*size)[2])
{
    if (!HoldsBitmapM() || dc == nullptr) {
        return 0;
    }
    BitmapContext source(dc, ShownBitmapM());
    if (!source.isSelected()) {
        return 0;
    }
    const int w = GetWidthM();
    const int h = GetHeightM();
    if (size != nullptr && ((*size)[0] < w || (*size)[1] < h)) {
        dc->StretchBlt(x, y, (*size)[0], (*size)[1], source.get(), x, y, w, h, SRCCOPY);
    } else {
        dc->BitBlt(x, y, w, h, source.get(), 0, 0, SRCCOPY);
    }
    return 1;
}

int DVrBitmapCL::DrawStretchBitmapM(CDC* dc, int x, int y, int w, int h)
{
    if (!HoldsBitmapM() || dc == nullptr) {
        return 0;
    }
    BitmapContext source(dc, ShownBitmapM());
    if (!source.isSelected()) {
        return 0;
    }
    dc->StretchBlt(x, y, w, h, source.get(), 0, 0, GetWidthM(), GetHeightM(), SRCCOPY);
    return 1;
}

int DVrBitmapCL::BlendBitmapM(CDC* dc)
{
    if (dc == nullptr || !bitmap_.MakeOwnM()) {
        return 0;
    }
    const int saved = dc->SaveDC();
    int result = 0;
    {
        BitmapContext target(dc, ShownBitmapM());
        if (target.isSelected()) {
            // x runs over the height and y over the width; what lies outside the bitmap has no pixel.
            const int shorter = std::min(GetWidthM(), GetHeightM());
            for (int x = 0; x < shorter; ++x) {
                for (int y = 0; y < shorter; ++y) {
                    target.get()->SetPixelV(x, y, Blue);
                }
            }
            result = 1;
        }
    }
    dc->RestoreDC(saved);
    return result;
}

// What records know of the bitmap that they share.
#include "pictures/bitmap_record.h"
#include "pictures/picture_sharing.h"

// The system may give a deleted handle's value to another object: whether it is deleted must be known to all.
struct DVrBitmapCL::HoldCL
{
    std::shared_ptr<FileBitmapCL> file; // Null: it is these records' own.
    HGDIOBJ fileHandle { nullptr }; // What records have that don't know of the own one yet. Nobody else does.
    HGDIOBJ own { nullptr };        // In place of the file's.
    bool isDeleted { false };
};

bool DVrBitmapCL::SharedCL::IsAliveM() const
{
    return hold_ != nullptr && !hold_->isDeleted && m_hObject != nullptr;
}

bool DVrBitmapCL::SharedCL::IsSharedM() const
{
    return hold_.use_count() > 1;
}

HGDIOBJ DVrBitmapCL::SharedCL::HandleM() const
{
    if (!IsAliveM()) {
        return nullptr;
    }
    return hold_->own != nullptr && m_hObject == hold_->fileHandle ? hold_->own : m_hObject;
}

const FileBitmapCL* DVrBitmapCL::SharedCL::FileM() const
{
    return IsAliveM() ? hold_->file.get() : nullptr;
}

bool DVrBitmapCL::SharedCL::MakeOwnM()
{
    if (!IsAliveM()) {
        return false;
    }
    if (hold_->file != nullptr) {
        hold_->own = hold_->file.use_count() == 1 ? hold_->file->TakeM() : hold_->file->CopyM();
        if (hold_->own == nullptr) {
            return false;
        }
        hold_->file.reset();
    }
    if (hold_->own != nullptr && m_hObject == hold_->fileHandle) {
        Attach(hold_->own);
    }
    return true;
}

void DVrBitmapCL::SharedCL::OwnM(HGDIOBJ bitmap)
{
    ForgetM();
    if (bitmap != nullptr) {
        Attach(bitmap);
        hold_ = std::make_shared<HoldCL>();
    }
}

void DVrBitmapCL::SharedCL::ShowM(std::shared_ptr<FileBitmapCL> file)
{
    ForgetM();
    if (file != nullptr) {
        hold_ = std::make_shared<HoldCL>();
        m_hObject = hold_->fileHandle = file->HandleM(); // Attached when it is handed out.
        hold_->file = std::move(file);
    }
}

void DVrBitmapCL::SharedCL::ShareM(const SharedCL& other)
{
    ForgetM();
    if (!other.IsAliveM()) {
        return;
    }
    if (other.hold_->file != nullptr) {
        m_hObject = other.m_hObject;
    } else {
        Attach(other.HandleM());
    }
    hold_ = other.hold_;
}

void DVrBitmapCL::SharedCL::ForgetM()
{
    Detach();
    hold_.reset();
}

void DVrBitmapCL::SharedCL::DeleteM()
{
    const HGDIOBJ bitmap = HandleM();
    const std::shared_ptr<HoldCL> hold = hold_;
    ForgetM();
    if (bitmap == nullptr) {
        return;
    }
    hold->isDeleted = true;
    if (hold->file != nullptr) {
        hold->file.reset();
    } else {
        ::DeleteObject(bitmap);
    }
}

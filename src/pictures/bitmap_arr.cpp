#include "baselib/path.h"
#include "pictures/bitmap_record.h"
#include <string>

namespace {

std::string completeName(const char* file)
{
    char extension[PathSize] {};
    slGetFileExtension(file, extension);
    const std::string name = file != nullptr ? file : "";
    return extension[0] == '\0' ? name + ".bmp" : name;
}

} // namespace

int DVrBitmapArr::AddBitmapM(const char* file, const PictureScaleCL& scale)
{
    const int index = AddItemM(DVrBitmapCL(AliveTag));
    DVrBitmapCL* const record = ElementAtPM(index);
    if (record == nullptr) {
        return -1;
    }
    if (record->LoadScaledM(file, scale) == 0) {
        DelItemM(index);
        return -1;
    }
    return index;
}

int DVrBitmapArr::SetBitmapM(int index, const char* file, const PictureScaleCL& scale)
{
    if (DVrBitmapCL* const old = ElementAtPM(index)) {
        old->DropM(); // Assigning would only let it go.
    }
    const int stored = SetItemM(DVrBitmapCL(AliveTag), index);
    DVrBitmapCL* const record = ElementAtPM(index);
    return stored == 1 && record != nullptr ? record->LoadScaledM(completeName(file).c_str(), scale) : 0;
}

int DVrBitmapArr::InsertBitmapM(int index, const char* file, const PictureScaleCL& scale)
{
    const int inserted = InsertItemM(DVrBitmapCL(AliveTag), index);
    DVrBitmapCL* const record = ElementAtPM(index);
    if (inserted != 1 || record == nullptr) {
        return inserted == 1 ? 0 : inserted;
    }
    if (record->LoadScaledM(completeName(file).c_str(), scale) == 0) {
        DelItemM(index);
        return 0;
    }
    return inserted;
}

void DVrBitmapArr::RescaleM(const PictureScaleCL& scale)
{
    for (int i = GetFirstIdxM(); i >= 0; i = GetNextIdxM(i)) {
        ElementAtM(i).RescaleM(scale);
    }
}

int DVrBitmapArr::DrawBitmapM(int index, CDC* dc, int x, int y, const int (*size)[2])
{
    DVrBitmapCL& record = ElementAtM(index);
    return record.IsAliveM() && record.HoldsBitmapM() ? record.DrawBitmapM(dc, x, y, size) : 0;
}

int DVrBitmapArr::GetBmpSizeM(int index, int* size) const
{
    if (CheckAvailableM(index) == 0 || size == nullptr) {
        return 0;
    }
    const DVrBitmapCL* const record = GetItemPM(index);
    size[0] = record->GetWidthM();
    size[1] = record->GetHeightM();
    return 1;
}

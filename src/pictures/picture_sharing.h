#pragma once
#include "pictures/picture_scale.h"
#include "pictures/resampling.h"
#include "toolkit/toolkit.h"
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

// A bitmap as a file gave it. Several records may show it: whoever wants to write to it needs his own. Goes
// with the last of them.
class FileBitmapCL
{
public:
    FileBitmapCL(HBITMAP bitmap, bool isTopDown)
        : bitmap_(bitmap)
        , isTopDown_(isTopDown)
    {
    }
    FileBitmapCL(const FileBitmapCL&) = delete;
    FileBitmapCL& operator=(const FileBitmapCL&) = delete;
    ~FileBitmapCL() { ::DeleteObject(bitmap_); }

    HBITMAP HandleM() const { return bitmap_; }
    HBITMAP TakeM() { return std::exchange(bitmap_, nullptr); } // For the only one that shows it.
    HBITMAP CopyM() const;                         // Another one just like it; null where there is no memory.
    bool ReadPartM(const PixelPartCL& part) const; // As that of DVrBitmapCL.

private:
    HBITMAP bitmap_;
    bool isTopDown_; // The system doesn't tell.
};
using FileBitmapTP = std::shared_ptr<FileBitmapCL>; // Null: none.

// The picture of a file at a scale (LoadScaledM of DVrBitmapCL). Of no other record, unless pictures are
// being shared. Null when it can't be loaded.
FileBitmapTP slFileBitmap(const char* file, const PictureScaleCL& scale, std::int64_t key);

// While one lives, a file that the thread loads again gives the bitmap that it gave before, if that is still
// shown and the file has not changed since: a dialog takes memory for each picture, not for each of its
// places. One within another is of no consequence.
class PictureSharingCL
{
public:
    PictureSharingCL();
    PictureSharingCL(const PictureSharingCL&) = delete;
    PictureSharingCL& operator=(const PictureSharingCL&) = delete;
    ~PictureSharingCL();

private:
    friend FileBitmapTP slFileBitmap(const char* file, const PictureScaleCL& scale, std::int64_t key);

    // What tells of a change of a file.
    struct StateCL
    {
        std::uint64_t size;
        std::uint64_t written;
        bool operator==(const StateCL& other) const { return size == other.size && written == other.written; }
    };
    struct ScaledCL
    {
        CSize size;
        std::int64_t key;
        std::weak_ptr<FileBitmapCL> bitmap;
    };
    struct FileCL
    {
        StateCL state {};
        CSize size;                         // 0: not known.
        std::weak_ptr<FileBitmapCL> bitmap; // As large as the file says.
        std::vector<ScaledCL> scaled;
    };

    static bool readStateM(const std::wstring& path, StateCL* state);
    FileCL* findM(const char* file);
    static FileBitmapTP loadM(const char* file, FileCL* known);
    FileBitmapTP plainM(const char* file);
    FileBitmapTP scaledM(const char* file, const PictureScaleCL& scale, std::int64_t key);

    std::map<std::wstring, FileCL> files_; // By whole path.
    PictureSharingCL* outer_;
};

#pragma once
#include "baselib/char_arr.h"
#include "containers/arr.h"
#include "pictures/picture_scale.h"
#include "pictures/resampling.h"
#include "toolkit/toolkit.h"
#include <memory>

class FileBitmapCL;
struct PixelPartCL;

// A loaded picture. Assigned records share one GDI bitmap: the one that is destroyed, reloaded or deleted
// first deletes it. The others then hold no bitmap: they draw nothing and report 0. Files are .bmp files by
// GBK path, loaded as device-independent sections. The records of a dialog that load the same file take
// memory for one of them, until one is to be written to.
class PANELKIT_API DVrBitmapCL : public VrBaseCL
{
public:
    DVrBitmapCL() = default;
    explicit DVrBitmapCL(char tag)
        : VrBaseCL(tag)
    {
    }
    DVrBitmapCL(const DVrBitmapCL& other); // Shares, as assignment does.
    // Takes over the tag and the two numbers and shares the other's bitmap. Its own is let go, not deleted.
    DVrBitmapCL& operator=(const DVrBitmapCL& other);
    ~DVrBitmapCL() override;

    void LoadBitmapM(const char* file);    // Deletes the bitmap first; stays empty when loading fails.
    int LoadSafeBitmapM(const char* file); // The same; 1 when loaded, otherwise 0.
    // The same at a scale; key: the colour of pixels that let the background through (slResample). With a
    // scale that may change the file's name is kept for RescaleM, which loads it anew, and leaves the picture
    // as it is where that fails; nothing without a kept name.
    int LoadScaledM(const char* file, const PictureScaleCL& scale, std::int64_t key = NoKey);
    void RescaleM(const PictureScaleCL& scale);
    // Takes over the source's bitmap and leaves the source empty; its own is let go, not deleted. A source
    // that is another record's (GetBitmapM) hands over its part in a shared bitmap. 1, or 0 when there is no
    // source.
    int MoveBitmapM(CBitmap* source);
    void DelItemM(); // Deletes the bitmap and marks the record deleted.
    void DropM();    // Lets the bitmap go; deletes it unless another record shares it.

    bool HoldsBitmapM() const; // Whether there is one, not deleted by another record either.
    // Its own to write to; null when there is none, or no memory for that. The record keeps it.
    CBitmap* GetBitmapM();
    // To read from and no more: it may be what other records show too. Null when there is none; valid until
    // the record is changed or GetBitmapM called.
    HBITMAP ShownBitmapM() const;
    // Reads a part of a picture that a file gave in 24 or 32 bits; of others, and without one, nothing:
    // false. Pixels of the part that the picture doesn't have stay.
    bool ReadPartM(const PixelPartCL& part) const;
    // In pixels; 0 without a bitmap.
    int GetWidthM() const;
    int GetHeightM() const;

    // Draws with the top left at x, y of dc: at its own size, or, where size (may be null) is smaller in
    // either direction, scaled to it, then taking the source from x, y of the bitmap on. 1, or 0 when nothing
    // is drawn.
    int DrawBitmapM(CDC* dc, int x, int y, const int (*size)[2]);
    int DrawStretchBitmapM(CDC* dc, int x, int y, int w, int h); // Scaled to that rectangle; 1 or 0.
    // Paints the bitmap itself blue, as far as exchanged width and height reach: the square of the shorter
    // side. dc: a context like the one it is for. 1, or 0 when nothing is painted.
    int BlendBitmapM(CDC* dc);

    // Two numbers that go along with the picture, copied by assignment.
    const int* GetExtraM() const { return extra_; }
    void SetExtraM(int first, int second);

private:
    struct HoldCL; // What all that share a bitmap know of it.

    class PANELKIT_API SharedCL : public CBitmap
    {
    public:
        bool IsAliveM() const;
        bool IsSharedM() const;
        HGDIOBJ HandleM() const;           // Null: none.
        const FileBitmapCL* FileM() const; // Null where it is no file's, or there is none.
        // The object may be used: what it holds is no other file's record's.
        bool MakeOwnM();
        void OwnM(HGDIOBJ bitmap);                      // As its first holder; null: none.
        void ShowM(std::shared_ptr<FileBitmapCL> file); // The same.
        void ShareM(const SharedCL& other);
        void ForgetM();
        void DeleteM();

    private:
        std::shared_ptr<HoldCL> hold_;
    };

    void copyFileM(const DVrBitmapCL& other);

    SharedCL bitmap_;
    CharArr file_; // That it was loaded from at a scale which may change.
    std::int64_t key_ { NoKey };
    int extra_[2] { 0, 0 };
};

extern template class PANELKIT_API Arr<DVrBitmapCL>;

// An array of DVrBitmapCL. Files are .bmp files by GBK path.
class PANELKIT_API DVrBitmapArr : public Arr<DVrBitmapCL>
{
public:
    // Appends the picture of a file, the name as given. Its slot; -1 when loading fails. scale: as for
    // LoadScaledM, also below.
    int AddBitmapM(const char* file, const PictureScaleCL& scale = {});
    // Loads into a new record at index, whose old bitmap is dropped, or inserts one there. A name without
    // extension gets ".bmp". 1, or 0 when loading fails: SetBitmapM leaves an empty record there,
    // InsertBitmapM a deleted one.
    int SetBitmapM(int index, const char* file, const PictureScaleCL& scale = {});
    int InsertBitmapM(int index, const char* file, const PictureScaleCL& scale = {});
    void RescaleM(const PictureScaleCL& scale); // That of each record.

    // As the record's DrawBitmapM; 0 for a slot that isn't alive or holds no bitmap.
    int DrawBitmapM(int index, CDC* dc, int x, int y, const int (*size)[2]);
    int GetBmpSizeM(int index, int* size) const; // size[2]: width, height. 0 for a slot that isn't alive.
};

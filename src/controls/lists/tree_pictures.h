#pragma once
#include "pictures/picture_scale.h"
#include "toolkit/toolkit.h"
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

// Where the images of a list come from: for each image its file, null for the second and further ones of a
// file.
using ImageFilesTP = std::vector<std::shared_ptr<const std::string>>;

// Adds picture files to the image list of a tree while many items are inserted. A file is read once, however
// often it is added; yet each time has images of its own. They come into the list together at the end:
// one by one, the list would move all it has again and again.
class TreePicturesCL
{
public:
    // files: where it is noted from which files the images come.
    TreePicturesCL(CImageList& images, const PictureScaleCL& scale, ImageFilesTP& files);
    TreePicturesCL(const TreePicturesCL&) = delete;
    TreePicturesCL& operator=(const TreePicturesCL&) = delete;

    // The index that the first image of a .bmp file (GBK path) will have; -1 when it can't be loaded, or
    // there is no list.
    int AddM(const char* file);
    void FinishM(); // Puts the images into the list; to be called once, at the end.

    // Adds the images of a file to a list, with black as the mask colour: the index of the first, or -1.
    static int AddFileM(CImageList& images, const char* file, const PictureScaleCL& scale);
    // An empty one as trees have it at that scale.
    static BOOL CreateListM(CImageList& images, const PictureScaleCL& scale);
    // Notes so many images of a file.
    static void NoteM(ImageFilesTP& files, const std::shared_ptr<const std::string>& file, int count);

private:
    struct PictureCL
    {
        int first { -1 };
        int count { 0 };
        std::shared_ptr<const std::string> file;
    };
    void addStripM(size_t from, size_t to);

    CImageList& images_;
    const PictureScaleCL scale_;
    const int side_;
    ImageFilesTP& files_;
    CImageList distinct_; // The images of each file, once.
    std::unordered_map<std::string, PictureCL> known_;
    std::vector<int> added_; // For each image to come its index in distinct_.
    int before_;
};

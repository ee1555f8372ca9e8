#pragma once
#include "pictures/picture_scale.h"
#include "toolkit/toolkit.h"
#include <string>
#include <unordered_map>
#include <vector>

// Adds picture files to the image list of a tree while many items are inserted. A file is read once, however
// often it is added; yet each time has images of its own. They come into the list together at the end:
// one by one, the list would move all it has again and again.
class TreePicturesCL
{
public:
    // files: where an image comes from is noted there, for each image to come a file, and the empty text for
    // the second and further ones of a file; null: nowhere.
    TreePicturesCL(CImageList& images, const PictureScaleCL& scale, std::vector<std::string>* files);
    TreePicturesCL(const TreePicturesCL&) = delete;
    TreePicturesCL& operator=(const TreePicturesCL&) = delete;
    ~TreePicturesCL(); // Puts the images into the list.

    // The index that the first image of a .bmp file (GBK path) will have; -1 when it can't be loaded, or
    // there is no list.
    int AddM(const char* file);

    // Adds the images of a file to a list, with black as the mask colour: the index of the first, or -1.
    static int AddFileM(CImageList& images, const char* file, const PictureScaleCL& scale);
    // An empty one as trees have it at that scale.
    static BOOL CreateListM(CImageList& images, const PictureScaleCL& scale);
    // Notes so many images of a file.
    static void NoteM(std::vector<std::string>* files, const char* file, int count);

private:
    struct PictureCL
    {
        int first { -1 };
        int count { 0 };
    };
    void addStripM(size_t from, size_t to);

    CImageList& images_;
    const PictureScaleCL scale_;
    const int side_;
    std::vector<std::string>* files_;
    CImageList distinct_; // The images of each file, once.
    std::unordered_map<std::string, PictureCL> known_;
    std::vector<int> added_; // For each image to come its index in distinct_.
    int before_;
};

#pragma once
#include "commands.h"

// A picture that shot is to write.
struct PictureToWriteCL
{
    std::string path; // From wherever.
    std::string said; // As the user wrote it.
};

// The picture of each file. None, and why is said, when one can't be written or two would be the same.
std::vector<PictureToWriteCL> picturesToWrite(const ShotOptionsCL& options);
// By its ending, in whatever case.
bool isBmpName(const std::string& picture);

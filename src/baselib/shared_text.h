#pragma once
#include "baselib/char_arr.h"
#include "baselib/file_text.h"
#include <memory>

class VrIOCL;

// A description file for several readings of one build, loaded once. What an application does to the file
// between two of them must be seen by the later one: whoever gave it the chance says so.
class PANELKIT_API SharedTextCL
{
public:
    // Opens io as VrIOCL::OpenM(path, "r") does. Null or what can't be opened leaves it unopened.
    void OpenM(VrIOCL& io, const char* path);
    // The file is loaded anew when it is opened next. If its bytes are the same, the text stays too.
    void MayHaveChangedM() { isFresh_ = false; }

private:
    CharArr path_;
    std::shared_ptr<const FileTextCL> text_;
    bool isFresh_ { false };
};

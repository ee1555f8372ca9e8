#pragma once
#include "baselib/path.h"
#include "containers/arr.h"

class IntArr;
class VrIOCL;

// The name of a .bmp file; the picture is loaded on demand. Names are GBK and at most 259 bytes, longer ones
// cut between characters.
class PANELKIT_API DVrBmpCL : public VrBaseCL
{
public:
    DVrBmpCL() = default;
    explicit DVrBmpCL(char tag)
        : VrBaseCL(tag)
    {
    }

    // Becomes alive and reads the name, the rest of its line; stored behind the directory of the file read.
    void FmInputEvrFileM(VrIOCL* io) override;

    int GetBmpNameM(char* out) const;  // Copies it; out: 260 bytes. 1.
    int SetBmpNameM(const char* name); // Null counts as empty. 1.

private:
    char name_[PathSize] {};
};

extern template class PANELKIT_API Arr<DVrBmpCL>;

class PANELKIT_API DVrBmpArr : public Arr<DVrBmpCL>
{
public:
    int GetBmpNameM(int index, char* out) const; // 0 and "" outside the array.

    // The picture of a slot as slLoadBmpTexture delivers it; the caller releases the buffer with slFree. Null
    // and sizes of 0 when it can't be loaded, or outside the array.
    unsigned char* GetBmpContentM(int index, int* w, int* h) const;

    // Appends a list from a file: a count, then for each picture a number (not used) and its name, then a
    // line that ends the list, whatever it says. map[k] becomes the slot of the file's picture k. All slots
    // of the array then count as available. A count beyond the bytes left is no list. 1, or 0 when there is
    // no memory.
    int FmInputScpFileM(VrIOCL* io, IntArr* map);
};

#pragma once
#include "baselib/api.h"
#include <cstdio>

class VrIOCL;

// What the delete tag of an element says; fresh elements carry Deleted and count as empty.
constexpr char AliveTag = 31;
constexpr char DeletedTag = 32;

// The base of every record and runtime control that an Arr holds. The order of the virtual
// operations is part of the binary interface.
class PANELKIT_API VrBaseCL
{
public:
    VrBaseCL() = default;
    explicit VrBaseCL(char tag)
        : deleteTag_(tag)
    {
    }
    VrBaseCL(const VrBaseCL&) = default;
    VrBaseCL& operator=(const VrBaseCL&) = default;

    // Do nothing here: reading and writing one element, in the library's streams and in plain ones; making it
    // what it is at first; filling an appended slot from an element of another array, at that index
    // (Arr::MergeM).
    virtual void FmInputEvrFileM(VrIOCL* io);
    virtual void FmOutputEvrFileM(VrIOCL* io) const;
    virtual void FmReadEvrFileM(FILE* file);
    virtual void FmWriteEvrFileM(FILE* file) const;
    virtual void InitialM();
    virtual void SetByMergeM(const VrBaseCL& other, int index);
    virtual ~VrBaseCL();

    // The delete tag; any other value than AliveTag counts as deleted.
    void SetDeleteTagM(char tag) { deleteTag_ = tag; }
    char GetDeleteTagM() const { return deleteTag_; }
    void DelItemM() { deleteTag_ = DeletedTag; } // Only marks it; the array that holds it counts it still.
    // Whether the tag is AliveTag.
    bool IsAliveM() const { return deleteTag_ == AliveTag; }

private:
    char deleteTag_ { DeletedTag };
};
